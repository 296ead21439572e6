#include "calc/selectedTotals.h"

#include "core/format.h"
#include "core/number.h"

namespace calc {

using core::Item;
using core::Mask;
using core::RecordsList;
using core::TotalsMode;

void RefreshSelectedTotals(core::Document& document) {
    document.LV3.clear();
    const RecordsList& list = document.bInvoiceStyle ? document.iLV : document.LV;
    for (const int index : list.columns.displayOrder()) {
        const core::Column& column = list.columns.at(index);
        if (column.Index == 1 || !document.isNumericColumn(column.Text)) continue;
        document.LV3.add(column.Text, column.Text);
    }
}

void UpdateSelectedTotals(core::Document& document, TotalsMode mode, const RecordsList& list, int rowIndex) {
    if (rowIndex < 1) return;
    const Item& row = list.at(rowIndex);
    document.LV3.forEach([&](Item& sum) {
        const core::Column* column = list.columns.find(sum.Text);
        if (column == nullptr) return;
        const std::string_view cell = RecordsList::cell(row, *column);
        const bool bDecimal = cell.find('.') != std::string_view::npos;
        const double before = core::val(core::format(sum.subItem(1), Mask::TwoDecimals));
        const double value = core::val(core::format(cell, bDecimal ? Mask::TwoDecimals : Mask::Whole));
        const double after = mode == TotalsMode::Add ? before + value : before - value;
        sum.subItem(1) = core::format(after, bDecimal ? Mask::Money : Mask::WholeCommas);
    });
}

void collectSelected(app::App& app, const RecordsList& list) {
    app.mainFrm.selectedRows.clear();
    int index = 0;
    list.forEach([&](const Item& item) {
        ++index;
        if (item.Selected) app.mainFrm.selectedRows.push_back(index);
    });
}

void list_Click(app::App& app, RecordsList& list) {
    const Item* clicked = list.selectedItem();
    if (clicked == nullptr || clicked->isTotals()) return;
    const int rowIndex = list.indexOf(*clicked);
    if (app.mainFrm.bCtrlDown) {
        UpdateSelectedTotals(app.document, clicked->Selected ? TotalsMode::Add : TotalsMode::Subtract, list,
                             rowIndex);
        return;
    }
    RefreshSelectedTotals(app.document);
    collectSelected(app, list);
    if (app.mainFrm.selectedRows.empty() || rowIndex == list.count()) return;
    UpdateSelectedTotals(app.document, TotalsMode::Add, list, rowIndex);
}

} // namespace calc
