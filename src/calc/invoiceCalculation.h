#pragma once

#include "app/app.h"

#include <optional>
#include <string>

namespace calc {

// The calculation of one invoice. The formulas are divided among three routines, which must run in
// this order: line calculations for each item row, sums of item rows, header calculations. Each takes
// the 1-based index of the record.

// Formulas of item columns: one value for each item row, each followed by "@". Answers what failed.
std::optional<std::string> RecalculateInvoice(core::Document& document, int rowIndex,
                                              core::RecordsList& list);
// Invoice-level formulas of a single column: the sum of its item values. Those of several tokens get
// the running sum here, and their value from the third routine. A value that is no number raises
// typeMismatch.
void RecalculateSegmentedTotals(core::Document& document, int rowIndex, core::RecordsList& list);
// Invoice-level formulas that refer to no item column. Answers what failed.
std::optional<std::string> RecalculateNormalInvoiceColumns(core::Document& document, int rowIndex,
                                                           core::RecordsList& list);

// The whole calculation of one invoice. Sets bCalcError when a formula failed.
void calculateInvoice(app::App& app, core::RecordsList& list, int rowIndex);
// The same without the message: answers what went wrong first.
[[nodiscard]] std::optional<std::string> tryCalculateInvoice(core::Document& document,
                                                             core::RecordsList& list, int rowIndex);

} // namespace calc
