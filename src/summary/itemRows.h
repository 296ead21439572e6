#pragma once

#include "calc/itemColumns.h"

#include <string_view>
#include <vector>

namespace summary {

// The item rows of invoices. A layout has room for so many; those that nobody has filled in count nowhere,
// though their calculated columns have values.
class ItemRows {
public:
    explicit ItemRows(const core::Document& document);

    bool isItemColumn(const core::Column& column) const;
    // Looks which rows of a record are filled in. A record without any has one.
    void read(const core::Item& record);
    std::size_t rows() const { return used_.size(); } // filled in or not
    bool isUsed(std::size_t row) const { return row < used_.size() && used_[row] != 0; }

private:
    bool bInvoices_;
    calc::ItemColumns names_;
    std::vector<const core::Column*> typed_; // that are not calculated
    std::vector<char> used_;
    std::vector<std::string_view> values_;
};

// The values of a cell: itself, or those of its item rows.
void splitValues(std::string_view cell, bool bItems, std::vector<std::string_view>& values);

} // namespace summary
