#pragma once

#include "app/app.h"

namespace invoice {

// Creates an empty invoice and selects it. Returns it. The 32,768th key raises overflow.
core::Item& addInvoiceRecord(app::App& app);

// Shows the record LV.SelectedItem in the layout's fields: the values of a repeated field one below the
// other. What a cell has beyond the rows of the layout is not shown.
void retrieveInvoiceRecord(core::Document& document);

} // namespace invoice
