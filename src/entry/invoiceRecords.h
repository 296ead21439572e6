#pragma once

#include "app/app.h"

#include <string>

namespace entry {

// Writes the layout's fields into the selected invoice, or a new one, and works it out. The values of a
// repeated field go into one cell, each followed by "@". Silent for the Totals row.
void editInvoiceRecord(app::App& app, bool bUpdate);

// Deletes the invoices selected in the invoice list. False when the user said no.
bool deleteInvoices(app::App& app);

// What deleting records does in an invoice database besides: the rows of the results go, and the view is
// built anew.
void removeInvoiceRows(app::App& app, const std::string& key);

} // namespace entry
