#pragma once

#include "core/cellText.h"
#include "core/column.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace core {

constexpr std::string_view totalsKey = "Totals";
constexpr std::string_view noSum = "------";        // a Totals cell without a sum
constexpr std::string_view multiValueSum = "-----"; // a Totals cell over a multi-value cell
constexpr std::uint32_t blue = 0xFF0000;            // 0x00BBGGRR, the colour of the Totals row

// One row of a list. Its sub-items are the cells of the columns from Index 2 on, so that sub-item n
// belongs to the column with Index n + 1. The Totals row is drawn blue and bold by its key alone.
struct Item {
    CellText Key;  // "i" and a number, or "Totals"; empty in lists whose rows have no key
    CellText Text; // scratch sort key, or, in lists of invoices, the key of the record shown
    CellText Tag;  // in search results the key of the record found
    bool Selected = false;
    std::vector<CellText> cells;

    bool isTotals() const { return Key == totalsKey; }
    // n from 1; raises indexOutOfBounds.
    CellText& subItem(int n) { return cells[placeOf(n)]; }
    const CellText& subItem(int n) const { return cells[placeOf(n)]; }

private:
    std::size_t placeOf(int n) const;

    friend class RecordsList;
    mutable int index_ = 0; // 1-based, kept by the list
};

// A list of items with a column table: the store of the records and, in other instances, the
// invoice list, the search results, the selected totals and the serial counters. It is no widget;
// a view shows it.
class RecordsList {
public:
    explicit RecordsList(std::string name) : Name(std::move(name)) {}
    RecordsList(const RecordsList&) = delete;
    RecordsList& operator=(const RecordsList&) = delete;

    std::string Name;
    ColumnHeaders columns;
    bool MultiSelect = true;
    bool Sorted = false;
    bool Visible = true;
    int SortKey = 0;   // column index less 1; 0 is the item's Text
    int SortOrder = 0; // 0 ascending, 1 descending; never reset, so that every sort toggles

    // Appends an item with a cell for each column but the first. No check of the key: the callers'
    // counters keep keys unique.
    Item& add(std::string_view key, std::string_view text = {});
    void remove(Item& item);
    // Takes out every item that the test holds for, in one pass, and says how many went.
    int removeIf(const std::function<bool(const Item&)>& test);
    void clear();
    void reserve(std::size_t items) { items_.reserve(items); }

    int count() const { return static_cast<int>(items_.size()); }
    bool empty() const { return items_.empty(); }
    // 1-based; raises indexOutOfBounds.
    Item& at(int index) { return *items_[placeOf(index)]; }
    const Item& at(int index) const { return *items_[placeOf(index)]; }
    // By key, in any case; nullptr and elementNotFound when there is none.
    Item* find(std::string_view key) { return itemWith(key); }
    const Item* find(std::string_view key) const { return itemWith(key); }
    Item& byKey(std::string_view key);
    // The first item with that Text, from the given index on; nullptr when there is none.
    Item* findText(std::string_view text, int from = 1);
    int indexOf(const Item& item) const; // 1-based
    // The Totals row, nearly always the last item; nullptr when there is none.
    Item* totals();

    // The cell of a column, by its Index (2 and up).
    static CellText& cell(Item& item, const Column& column) { return item.subItem(column.Index - 1); }
    static const CellText& cell(const Item& item, const Column& column) {
        return item.subItem(column.Index - 1);
    }

    // The item that has the focus. Without MultiSelect, choosing one takes the selection from the rest.
    Item* selectedItem() const { return selectedItem_; }
    void setSelectedItem(Item* item);
    void clearSelection();

    // Adds or removes the cell of a column in every item.
    void appendCells();
    void removeCells(int subItem);

    // Hands out the items themselves, in their order, to be taken out, put in and moved about. Nothing has
    // the focus afterwards.
    void rearrange(const std::function<void(std::vector<std::unique_ptr<Item>>&)>& change);

    // Puts the items into the order that SortKey and SortOrder ask for. Stable; by upper-cased
    // characters.
    void sort();

    template <typename Visitor>
    void forEach(Visitor&& visit) {
        for (auto& item : items_) visit(*item);
    }
    template <typename Visitor>
    void forEach(Visitor&& visit) const {
        for (const auto& item : items_) visit(static_cast<const Item&>(*item));
    }

    // Raised by every change of the items' number or order, so that a view knows to start afresh.
    std::uint64_t arrangement() const { return arrangement_; }

private:
    std::size_t placeOf(int index) const;
    Item* itemWith(std::string_view key) const;
    void itemsMoved();
    void renumber() const;

    std::vector<std::unique_ptr<Item>> items_;
    mutable bool numbered_ = true;
    mutable std::unordered_map<std::string, Item*> byKey_; // made when a key is looked for
    mutable bool keysIndexed_ = false;
    Item* selectedItem_ = nullptr;
    std::uint64_t arrangement_ = 0;
};

// Puts the Totals row back at the end of the list and selects the item before it, as every command
// that can move it does afterwards.
void moveTotals(RecordsList& list);

// Adds the Totals row with a "------" for every column but the first.
Item& addTotalsRow(RecordsList& list);

} // namespace core
