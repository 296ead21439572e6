#pragma once

#include "app/app.h"
#include "calc/formulas.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace entry {

using ColumnNames = std::set<std::string, std::less<>>;

// Writes the layout's fields into the selected invoice, or a new one, and works it out. The values of a
// repeated field go into one cell, each followed by "@". Silent for the Totals row. With a set of columns the
// other cells stay as they are.
void editInvoiceRecord(app::App& app, bool bUpdate, const ColumnNames* only = nullptr);

// What the cell of a column gets from the layout's field, or from one of its fields in an item row.
std::string invoiceCell(const core::Column& column, const std::string& text);
std::string itemValue(const core::Column& column, const std::string& text);

// Fills the layout's fields with what a new record proposes. A new invoice is in the list at once, so its
// serial numbers are used up at once.
void proposeValues(app::App& app);

// Adds many invoices, each as "New" and then editInvoiceRecord do, and puts the lists and the totals in
// order once at the end. `fill` puts what the row, from 0, is to hold into the fields, which hold the
// proposed values. Keys that would run out raise overflow before anything is written. Answers the invoices
// that could not be calculated, without a message; they are stored as well.
// What `fill` raises leaves none of them, and no key or serial number used up.
std::vector<calc::Uncalculated> addInvoices(app::App& app, int count,
                                            const std::function<void(int row)>& fill);

// Deletes the invoices selected in the invoice list. False when the user said no.
bool deleteInvoices(app::App& app);

// What deleting records does in an invoice database besides: the rows of the results go, and the view is
// built anew.
void removeInvoiceRows(core::Document& document, const std::string& key);

// The button "Delete": the selected records, where the records are on view.
void Delete_ButtonClick(app::App& app);

} // namespace entry
