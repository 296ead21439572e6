#include "summary/itemRows.h"

#include "core/text.h"

#include <algorithm>

namespace summary {

ItemRows::ItemRows(const core::Document& document) : bInvoices_(document.bInvoiceStyle), names_(document) {
    for (const core::Column& column : document.LV.columns)
        if (column.Index != 1 && isItemColumn(column) && !column.isType(core::ColumnType::Calculation))
            typed_.push_back(&column);
}

bool ItemRows::isItemColumn(const core::Column& column) const {
    return bInvoices_ && names_.contains(column.Text);
}

void ItemRows::read(const core::Item& record) {
    used_.clear();
    for (const core::Column* column : typed_) {
        splitValues(core::RecordsList::cell(record, *column), true, values_);
        used_.resize(std::max(used_.size(), values_.size()));
        for (std::size_t row = 0; row < values_.size(); ++row)
            if (!core::trim(values_[row]).empty()) used_[row] = 1;
    }
    if (std::ranges::find(used_, 1) == used_.end()) used_.assign(1, 1);
}

void splitValues(std::string_view cell, bool bItems, std::vector<std::string_view>& values) {
    values.clear();
    if (!bItems || cell.find(core::itemSeparator) == std::string_view::npos) {
        values.push_back(cell);
        return;
    }
    if (cell.ends_with(core::itemSeparator)) cell.remove_suffix(1);
    for (;;) {
        const std::size_t end = cell.find(core::itemSeparator);
        values.push_back(cell.substr(0, end));
        if (end == std::string_view::npos) return;
        cell.remove_prefix(end + 1);
    }
}

} // namespace summary
