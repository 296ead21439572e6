#pragma once

#include "calc/formulas.h"

namespace calc {

// Brings all calculated cells and the Totals row of a list up to date, and tells the progress in the
// status bar. It stops at the first row that fails, after two messages; what was worked out by then
// stays, and so do the sums of the finished rows.
void RecalculateAll(app::App& app, core::RecordsList& list);

// The same over all records, for who can tell of each record that fails: it does not stop there and shows
// no messages. Such a record is summed with the cells that it has, as one that is stored is.
std::vector<Uncalculated> recalculateEveryRow(app::App& app);

// RecalculateAll over the records with all that follows it when a dialog has caused it: the layout
// and the invoice list are refreshed, under the hourglass.
void recalculateAfterDialog(app::App& app);

} // namespace calc
