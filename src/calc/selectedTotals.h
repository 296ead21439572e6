#pragma once

#include "app/app.h"
#include "core/totalsRow.h"

namespace calc {

// Empties LV3 and gives it a row for each numeric column, in the order that the user sees.
void RefreshSelectedTotals(core::Document& document);

// Adds the cells of a row to the sums in LV3, or takes them out.
void UpdateSelectedTotals(core::Document& document, core::TotalsMode mode, const core::RecordsList& list,
                          int rowIndex);

// Fills selectedRows with the 1-based indexes of the list's selected items, in list order.
void collectSelected(app::App& app, const core::RecordsList& list);

// A click on one of the lists LV, iLV and searchLV, after the selection has followed it. A plain click
// sums the clicked row alone, whatever else is selected; clicks with Ctrl add and subtract.
void list_Click(app::App& app, core::RecordsList& list);

} // namespace calc
