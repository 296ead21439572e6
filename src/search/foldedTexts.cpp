#include "search/foldedTexts.h"

#include "search/folding.h"

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
    for (std::size_t place = 0; place < subItems.size(); ++place)
        columns_[place] = copied(columns_[place], subItems[place], isChanged);
    hashes_ = std::move(hashes);
    subItems_ = std::move(subItems);
    read_.assign(columns_.size(), {});
    return true;
}

FoldedTexts::Column FoldedTexts::copied(const Column& before, int subItem,
                                        const std::vector<char>& isChanged) const {
    Column column;
    column.texts.reserve(before.texts.size() + items_.size());
    column.from.reserve(items_.size() + 1);
    for (std::size_t row = 0; row < items_.size(); ++row) {
        column.from.push_back(static_cast<std::uint32_t>(column.texts.size()));
        if (isChanged[row] == 0)
            column.texts.append(before.text(row));
        else if (const auto cell = static_cast<std::size_t>(subItem - 1); cell < items_[row]->cells.size())
            appendFolded(column.texts, items_[row]->cells[cell]);
        column.texts.push_back(separator);
    }
    column.from.push_back(static_cast<std::uint32_t>(column.texts.size()));
    return column;
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
