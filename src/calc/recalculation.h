#pragma once

#include "app/app.h"

namespace calc {

// Brings all calculated cells and the Totals row of a list up to date, and tells the progress in the
// status bar. It stops at the first row that fails, after two messages; what was worked out by then
// stays, and so do the sums of the finished rows.
void RecalculateAll(app::App& app, core::RecordsList& list);

// RecalculateAll over the records with all that follows it when a dialog has caused it: the layout
// and the invoice list are refreshed, under the hourglass.
void recalculateAfterDialog(app::App& app);

} // namespace calc
