#include "search/filter/foldedTexts.h"

#include "search/filter/folding.h"

#include <algorithm>
#include <functional>

namespace search {

using core::Item;
using core::RecordsList;

namespace {

std::size_t hashOf(const Item& item) {
    constexpr std::size_t factor = 0x9E3779B97F4A7C15;
    std::size_t all = item.cells.size();
    for (const core::CellText& cell : item.cells)
        all = (all ^ std::hash<std::string_view>()(cell.view())) * factor;
    return all;
}

void appendRows(FoldedTexts::Column& copy, const FoldedTexts::Column& before, std::size_t row,
                std::size_t end) {
    const std::uint32_t first = before.from[row];
    const auto moved = static_cast<std::uint32_t>(copy.texts.size()) - first; // modulo its range
    copy.texts.append(before.texts, first, before.from[end] - first);
    for (; row < end; ++row) copy.from.push_back(before.from[row] + moved);
}

} // namespace

bool FoldedTexts::follow(const RecordsList& list, const FilterColumns& columns) {
    std::vector<const Item*> items;
    std::vector<std::size_t> hashes;
    items.reserve(static_cast<std::size_t>(list.count()));
    hashes.reserve(static_cast<std::size_t>(list.count()));
    list.forEach([&](const Item& item) {
        if (item.isTotals()) return;
        items.push_back(&item);
        hashes.push_back(hashOf(item));
    });
    std::vector<int> subItems;
    for (const FilterColumn& column : columns) subItems.push_back(column.subItem);

    const bool isOtherTable = subItems != subItems_;
    std::vector<char> isChanged(items.size(), 1);
    bool isAny = isOtherTable || items.size() != items_.size();
    if (!isOtherTable)
        for (std::size_t row = 0; row < items.size(); ++row) {
            // Two rows that changed places have other texts too.
            isChanged[row] = row >= hashes_.size() || hashes[row] != hashes_[row] ? 1 : 0;
            isAny = isAny || isChanged[row] != 0 || items[row] != items_[row];
        }
    items_ = std::move(items);
    if (!isAny) return false;
    if (isOtherTable) columns_.clear();
    columns_.resize(subItems.size());
    columns_ = copied(subItems, isChanged);
    hashes_ = std::move(hashes);
    subItems_ = std::move(subItems);
    read_.assign(columns_.size(), {});
    return true;
}

// Record by record, since the cells of one lie together.
void FoldedTexts::fold(std::size_t row, std::size_t end, const std::vector<int>& subItems,
                       std::vector<Column>& copies) const {
    for (; row < end; ++row)
        for (std::size_t place = 0; place < copies.size(); ++place) {
            Column& copy = copies[place];
            copy.from.push_back(static_cast<std::uint32_t>(copy.texts.size()));
            if (const auto cell = static_cast<std::size_t>(subItems[place] - 1);
                cell < items_[row]->cells.size())
                appendFolded(copy.texts, items_[row]->cells[cell]);
            copy.texts.push_back(separator);
        }
}

std::vector<FoldedTexts::Column> FoldedTexts::copied(const std::vector<int>& subItems,
                                                     const std::vector<char>& isChanged) const {
    constexpr std::size_t usualText = 8;
    std::vector<Column> copies(subItems.size());
    for (std::size_t place = 0; place < copies.size(); ++place) {
        copies[place].texts.reserve(std::max(columns_[place].texts.size(), items_.size() * usualText));
        copies[place].from.reserve(items_.size() + 1);
    }
    for (std::size_t row = 0, end = 0; row < items_.size(); row = end) {
        for (end = row; end < items_.size() && isChanged[end] == isChanged[row];) ++end;
        if (isChanged[row] != 0) {
            fold(row, end, subItems, copies);
            continue;
        }
        for (std::size_t place = 0; place < copies.size(); ++place)
            appendRows(copies[place], columns_[place], row, end);
    }
    for (Column& copy : copies) copy.from.push_back(static_cast<std::uint32_t>(copy.texts.size()));
    return copies;
}

const std::vector<std::int64_t>& FoldedTexts::numbers(std::size_t place) const {
    std::vector<std::int64_t>& numbers = read_[place].numbers;
    if (numbers.size() == rows()) return numbers;
    numbers.reserve(rows());
    for (std::size_t row = 0; row < rows(); ++row)
        numbers.push_back(filterNumber(columns_[place].text(row)).value_or(none));
    return numbers;
}

const std::vector<std::int64_t>& FoldedTexts::days(std::size_t place,
                                                   std::chrono::year_month_day today) const {
    std::vector<std::int64_t>& days = read_[place].days;
    if (days.size() == rows() && read_[place].today == today) return days;
    days.clear();
    days.reserve(rows());
    read_[place].today = today; // a date without a year is one of this year
    for (std::size_t row = 0; row < rows(); ++row)
        days.push_back(core::dateValue(columns_[place].text(row), today).value_or(none));
    return days;
}

} // namespace search
