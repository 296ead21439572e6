#pragma once

#include "app/app.h"

#include <functional>
#include <string>

namespace entry {

// Writes the layout's fields into the selected invoice, or a new one, and works it out. The values of a
// repeated field go into one cell, each followed by "@". Silent for the Totals row.
void editInvoiceRecord(app::App& app, bool bUpdate);

// Fills the layout's fields with what a new record proposes. A new invoice is in the list at once, so its
// serial numbers are used up at once.
void proposeValues(app::App& app);

// Adds many invoices, each as "New" and then editInvoiceRecord do, and puts the lists and the totals in
// order once at the end. `fill` puts what the row, from 0, is to hold into the fields, which hold the
// proposed values. False, after the message, when a formula failed; the document is then half written.
// Keys that would run out raise overflow before anything is.
bool addInvoices(app::App& app, int count, const std::function<void(int row)>& fill);

// Deletes the invoices selected in the invoice list. False when the user said no.
bool deleteInvoices(app::App& app);

// What deleting records does in an invoice database besides: the rows of the results go, and the view is
// built anew.
void removeInvoiceRows(app::App& app, const std::string& key);

} // namespace entry
