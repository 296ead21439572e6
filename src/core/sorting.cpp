#include "core/sorting.h"

#include "core/text.h"

namespace core {

namespace {

constexpr std::size_t keyWidth = 22; // characters

bool sortsByItsText(const Column& column) {
    return column.isType(ColumnType::Text) || column.isType(ColumnType::Picture);
}

void toggleAndSort(RecordsList& list, int sortKey) {
    list.SortKey = sortKey;
    list.SortOrder = list.SortOrder == 0 ? 1 : 0;
    list.sort();
}

} // namespace

std::string sortKeyOf(std::string_view cell, ColumnType type) {
    std::string key;
    if (type == ColumnType::Date) {
        key.append(right(cell, 4)).append(left(cell, 2)).append(mid(cell, 4, 2));
        return key;
    }
    // A cell longer than the key has no room for padding and stands as it is.
    const std::size_t size = length(cell);
    if (size < keyWidth) key.assign(keyWidth - size, ' ');
    key.append(cell);
    return key;
}

void sortByColumnKey(RecordsList& list, const Column& column) {
    if (sortsByItsText(column)) {
        toggleAndSort(list, column.Index - 1);
        return;
    }
    if (list.count() < 2) return;
    const ColumnType type = column.type();
    list.forEach([&](Item& item) { item.Text = sortKeyOf(RecordsList::cell(item, column), type); });
    toggleAndSort(list, 0);
}

void sortByHiddenColumn(RecordsList& list, const Column& column) {
    if (sortsByItsText(column)) {
        toggleAndSort(list, column.Index - 1);
        return;
    }
    if (list.count() < 2) return;
    const ColumnType type = column.type();
    list.forEach([&](Item& item) {
        CellText key = sortKeyOf(RecordsList::cell(item, column), type);
        item.cells.push_back(std::move(key));
    });
    toggleAndSort(list, list.columns.count());
    list.forEach([](Item& item) { item.cells.pop_back(); });
}

} // namespace core
