#include "calc/totalsFrm.h"

#include "calc/recalculation.h"
#include "core/runTimeError.h"
#include "core/text.h"

#include <algorithm>

namespace calc {

TotalsFrm::TotalsFrm(app::App& app) : app_(app) {
    using core::ColumnType;
    for (const core::Column& column : app.document.LV.columns) {
        const ColumnType type = column.type();
        const bool hasNoSum =
            type == ColumnType::Text || type == ColumnType::Picture || type == ColumnType::Date;
        if (column.Index != 1 && !hasNoSum) LV.push_back({column.Text, false});
    }
    for (const auto& totaled : app.document.totaledCols) {
        const auto row =
            std::ranges::find_if(LV, [&](const Row& r) { return core::equalsNoCase(r.Text, totaled.item); });
        if (row == LV.end()) core::raise(core::errors::elementNotFound, totaled.item);
        row->Checked = true;
    }
}

void TotalsFrm::OKButton_Click() {
    app_.document.totaledCols.clear();
    for (const Row& row : LV)
        if (row.Checked) app_.document.totaledCols.add(row.Text, row.Text);
    recalculateAfterDialog(app_);
    unloaded = true;
}

} // namespace calc
