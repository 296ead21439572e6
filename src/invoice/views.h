#pragma once

#include "app/app.h"

namespace invoice {

// Rebuilds the list of the view on show; nothing in a standard database, which shows no such list.
void rebuildView(core::Document& document);

// Rebuild iLV from LV: one row an item row, and one row an invoice. A row's Text is the key of the
// record in LV that it came from.
void BuildItemsView(core::Document& document);
void BuildInvoicesView(core::Document& document);

// The report's columns are those that have been chosen for the view on show.
void choosePrintedCols(core::Document& document);

// The view on show after a record has been written: its columns stay as the user has sized and dragged
// them, and the row of the selected record is selected.
void refreshRows(core::Document& document);

} // namespace invoice
