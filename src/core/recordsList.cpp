#include "core/recordsList.h"

#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <functional>

namespace core {

std::size_t Item::placeOf(int n) const {
    if (n < 1 || static_cast<std::size_t>(n) > cells.size())
        raise(errors::indexOutOfBounds, core::fill(core::tr("sub-item %1"), {std::to_string(n)}));
    return static_cast<std::size_t>(n - 1);
}

Item& RecordsList::add(std::string_view key, std::string_view text) {
    auto item = std::make_unique<Item>();
    item->Key = key;
    item->Text = text;
    if (columns.count() > 1) item->cells.resize(static_cast<std::size_t>(columns.count() - 1));
    item->index_ = count() + 1;
    if (keysIndexed_ && !key.empty()) byKey_.emplace(upper(key), item.get());
    items_.push_back(std::move(item));
    ++arrangement_;
    return *items_.back();
}

void RecordsList::remove(Item& item) {
    const int index = indexOf(item);
    if (keysIndexed_) {
        const auto found = byKey_.find(upper(item.Key));
        if (found != byKey_.end() && found->second == &item) byKey_.erase(found);
    }
    if (selectedItem_ == &item) selectedItem_ = nullptr;
    const bool wasLast = index == count();
    items_.erase(items_.begin() + (index - 1));
    ++arrangement_;
    if (!wasLast) numbered_ = false;
}

int RecordsList::removeIf(const std::function<bool(const Item&)>& test) {
    const auto kept = std::stable_partition(items_.begin(), items_.end(),
                                            [&](const std::unique_ptr<Item>& item) { return !test(*item); });
    const int gone = static_cast<int>(items_.end() - kept);
    if (gone == 0) return 0;
    for (auto item = kept; item != items_.end(); ++item)
        if (selectedItem_ == item->get()) selectedItem_ = nullptr;
    items_.erase(kept, items_.end());
    itemsMoved();
    return gone;
}

void RecordsList::clear() {
    items_.clear();
    selectedItem_ = nullptr;
    itemsMoved();
    numbered_ = true;
}

void RecordsList::rearrange(const std::function<void(std::vector<std::unique_ptr<Item>>&)>& change) {
    selectedItem_ = nullptr;
    change(items_);
    itemsMoved();
}

std::size_t RecordsList::placeOf(int index) const {
    if (index < 1 || index > count())
        raise(errors::indexOutOfBounds, core::fill(core::tr("item %1"), {std::to_string(index)}));
    return static_cast<std::size_t>(index - 1);
}

Item* RecordsList::itemWith(std::string_view key) const {
    if (key.empty()) return nullptr;
    if (!keysIndexed_) {
        byKey_.clear();
        byKey_.reserve(items_.size());
        for (const auto& item : items_)
            if (!item->Key.empty()) byKey_.emplace(upper(item->Key), item.get());
        keysIndexed_ = true;
    }
    const auto found = byKey_.find(upper(key));
    return found == byKey_.end() ? nullptr : found->second;
}

Item& RecordsList::byKey(std::string_view key) {
    Item* item = find(key);
    if (item == nullptr) raise(errors::elementNotFound, std::string(key));
    return *item;
}

Item* RecordsList::findText(std::string_view text, int from) {
    for (int index = std::max(from, 1); index <= count(); ++index)
        if (equalsNoCase(at(index).Text, text)) return &at(index);
    return nullptr;
}

int RecordsList::indexOf(const Item& item) const {
    renumber();
    return item.index_;
}

Item* RecordsList::totals() {
    if (items_.empty()) return nullptr;
    // At the end as a rule, at the head while search results are put behind it.
    for (const auto& item : {std::cref(items_.back()), std::cref(items_.front())})
        if (item.get()->isTotals()) return item.get().get();
    return find(totalsKey);
}

void RecordsList::setSelectedItem(Item* item) {
    if (!MultiSelect) clearSelection();
    selectedItem_ = item;
    if (item != nullptr) item->Selected = true;
}

void RecordsList::clearSelection() {
    for (const auto& item : items_) item->Selected = false;
}

void RecordsList::appendCells() {
    for (const auto& item : items_) item->cells.emplace_back();
}

void RecordsList::removeCells(int subItem) {
    for (const auto& item : items_)
        if (subItem >= 1 && static_cast<std::size_t>(subItem) <= item->cells.size())
            item->cells.erase(item->cells.begin() + (subItem - 1));
}

void RecordsList::sort() {
    struct Entry {
        std::uint64_t head; // the first eight bytes of the key, so that most comparisons touch no memory
        std::uint32_t from, size;
        std::unique_ptr<Item>* item;
    };
    std::string keys;
    std::vector<Entry> entries;
    entries.reserve(items_.size());
    for (auto& item : items_) {
        const auto from = static_cast<std::uint32_t>(keys.size());
        appendUpper(keys, SortKey == 0 ? item->Text.view() : item->subItem(SortKey).view());
        const auto size = static_cast<std::uint32_t>(keys.size() - from);
        std::uint64_t head = 0;
        for (std::uint32_t i = 0; i < 8; ++i)
            head = head << 8 | (i < size ? static_cast<unsigned char>(keys[from + i]) : 0);
        entries.push_back({head, from, size, &item});
    }
    const auto isLess = [&](const Entry& a, const Entry& b) {
        if (a.head != b.head) return a.head < b.head;
        return std::string_view(keys).substr(a.from, a.size) < std::string_view(keys).substr(b.from, b.size);
    };
    if (SortOrder == 0)
        std::ranges::stable_sort(entries, isLess);
    else
        std::ranges::stable_sort(entries, [&](const Entry& a, const Entry& b) { return isLess(b, a); });
    std::vector<std::unique_ptr<Item>> sorted;
    sorted.reserve(items_.size());
    for (const Entry& entry : entries) sorted.push_back(std::move(*entry.item));
    items_ = std::move(sorted);
    ++arrangement_;
    numbered_ = false;
}

void RecordsList::itemsMoved() {
    ++arrangement_;
    numbered_ = false;
    keysIndexed_ = false;
    byKey_.clear();
}

void RecordsList::renumber() const {
    if (numbered_) return;
    for (std::size_t i = 0; i < items_.size(); ++i) items_[i]->index_ = static_cast<int>(i) + 1;
    numbered_ = true;
}

void moveTotals(RecordsList& list) {
    Item* old = list.totals();
    if (old == nullptr) { // the window cleared by a new database that was given up
        addTotalsRow(list);
        return;
    }
    // The cells travel as one line of text, so a "|" in a Totals cell shifts what stands behind it.
    std::string line;
    for (const CellText& cell : old->cells) line.append(cell.view()).push_back('|');
    list.MultiSelect = false;
    list.Sorted = false;
    list.remove(*old);
    list.setSelectedItem(list.empty() ? nullptr : &list.at(list.count()));
    Item& totals = addTotalsRow(list);
    totals.Text = totalsKey;
    list.MultiSelect = true;
    const std::vector<std::string_view> pieces = split(line, '|');
    for (std::size_t i = 0; i < totals.cells.size() && i < pieces.size(); ++i) totals.cells[i] = pieces[i];
}

Item& addTotalsRow(RecordsList& list) {
    Item& totals = list.add(totalsKey);
    for (CellText& cell : totals.cells) cell = noSum;
    return totals;
}

} // namespace core
