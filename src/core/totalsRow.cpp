#include "core/totalsRow.h"

#include "core/format.h"
#include "core/number.h"

namespace core {

bool isTotaledColumn(const Document& document, std::string_view name) {
    return document.totaledCols.contains(name);
}

TotalsRowUpdater::TotalsRowUpdater(const Document& document, RecordsList& list) : totals_(list.totals()) {
    for (const Column& column : list.columns) {
        if (column.Index == 1 || !isTotaledColumn(document, column.Text)) continue;
        const Column& defined = document.LV.columns[column.Text];
        if (defined.isNumeric()) columns_.push_back({column.Index - 1, defined.type()});
    }
}

void TotalsRowUpdater::update(TotalsMode mode, const Item& item) const {
    if (totals_ == nullptr) return;
    // Carried on from column to column: a Number column behind a Currency column is summed and shown
    // as money. That is how the sums are wanted.
    bool bCurrency = false;
    for (const TotaledColumn& column : columns_) {
        const std::string_view cell = item.subItem(column.subItem);
        CellText& sum = totals_->subItem(column.subItem);
        if (cell.find(itemSeparator) != std::string_view::npos) {
            sum = multiValueSum;
            continue;
        }
        if (column.type != ColumnType::Number) bCurrency = false;
        if (column.type == ColumnType::Currency) bCurrency = true;
        if (column.type == ColumnType::Calculation && cell.find('.') != std::string_view::npos)
            bCurrency = true;
        const double before = val(format(sum, Mask::TwoDecimals));
        // Without money the cell is read as it stands, so that a comma in it ends the number.
        const double value = bCurrency ? val(format(cell, Mask::TwoDecimals)) : val(cell);
        const double after = mode == TotalsMode::Add ? before + value : before - value;
        sum = bCurrency ? format(after, Mask::Money) : numberText(after);
    }
}

void UpdateTotalsRow(const Document& document, TotalsMode mode, RecordsList& list, int rowIndex) {
    if (rowIndex < 1) return;
    TotalsRowUpdater(document, list).update(mode, list.at(rowIndex));
}

void resetTotalsRow(RecordsList& list) {
    Item* totals = list.totals();
    if (totals == nullptr) return;
    for (CellText& cell : totals->cells) cell = noSum;
}

} // namespace core
