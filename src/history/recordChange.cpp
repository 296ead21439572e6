#include "history/recordChange.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace history {

using core::CellText;
using core::Item;
using core::RecordsList;

namespace {

constexpr std::uint32_t gone = UINT32_MAX;

Record copyOf(const Item& item) {
    return {item.Key, item.cells};
}

std::size_t bytesOf(const CellText& cell) {
    return sizeof cell + (cell.size() > 15 ? cell.size() : 0);
}

// What has to be put between the cells that both begin with and those that both end with. The copy follows.
void compareCells(std::vector<CellText>& before, const std::vector<CellText>& now, std::uint32_t place,
                  RecordChange& change) {
    const std::size_t least = std::min(before.size(), now.size());
    std::size_t head = 0;
    while (head < least && before[head] == now[head]) ++head;
    if (head == before.size() && head == now.size()) return;
    std::size_t tail = 0;
    while (tail < least - head && before[before.size() - 1 - tail] == now[now.size() - 1 - tail]) ++tail;
    const auto from = before.begin() + static_cast<std::ptrdiff_t>(head);
    const auto to = before.end() - static_cast<std::ptrdiff_t>(tail);
    change.splices.push_back({place, static_cast<std::uint16_t>(head),
                              static_cast<std::uint16_t>(now.size() - head - tail),
                              static_cast<std::uint16_t>(to - from)});
    std::move(from, to, std::back_inserter(change.cells));
    before = now;
}

// What stands between the records that both begin with and those that both end with.
struct Middle {
    std::size_t head = 0, tail = 0;

    Middle(const std::vector<Record>& before, const std::vector<const Item*>& now) {
        const std::size_t least = std::min(before.size(), now.size());
        while (head < least && before[head].Key == now[head]->Key) ++head;
        while (tail < least - head && before[before.size() - 1 - tail].Key == now[now.size() - 1 - tail]->Key)
            ++tail;
    }
};

// Where each record from `head` on stood before.
std::vector<std::uint32_t> sourcesOf(const std::vector<Record>& before, const std::vector<const Item*>& now,
                                     const Middle& middle) {
    std::unordered_multimap<std::string_view, std::uint32_t> places;
    for (std::size_t i = before.size() - middle.tail; i > middle.head; --i)
        places.emplace(before[i - 1].Key.view(), static_cast<std::uint32_t>(i - 1));
    std::vector<std::uint32_t> sources;
    for (std::size_t i = middle.head; i < now.size() - middle.tail; ++i) {
        const auto found = places.find(now[i]->Key.view());
        sources.push_back(found == places.end() ? gone : found->second);
        if (found != places.end()) places.erase(found);
    }
    return sources;
}

// Which of the staying records comes next when they stand as they did; empty when they do.
std::vector<std::uint32_t> orderBefore(const std::vector<std::uint32_t>& staying) {
    std::vector<std::uint32_t> order;
    if (std::ranges::is_sorted(staying)) return order;
    for (std::uint32_t i = 0; i < staying.size(); ++i) order.push_back(i);
    std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) { return staying[a] < staying[b]; });
    return order;
}

std::vector<const Item*> itemsOf(const RecordsList& list) {
    std::vector<const Item*> items;
    items.reserve(static_cast<std::size_t>(list.count()));
    list.forEach([&](const Item& item) { items.push_back(&item); });
    return items;
}

} // namespace

std::size_t RecordChange::bytes() const {
    std::size_t size = takenOut.size() * sizeof takenOut[0] + order.size() * sizeof order[0] +
                       splices.size() * sizeof splices[0];
    for (const CellText& cell : cells) size += bytesOf(cell);
    for (const auto& [place, record] : putIn) {
        size += sizeof record + sizeof place;
        for (const CellText& cell : record.cells) size += bytesOf(cell);
    }
    return size;
}

void apply(const RecordChange& change, RecordsList& list) {
    using Items = std::vector<std::unique_ptr<Item>>;
    const auto move = [&](Items& items) {
        for (auto place = change.takenOut.rbegin(); place != change.takenOut.rend(); ++place)
            items[*place].reset();
        std::erase(items, nullptr);
        if (!change.order.empty()) {
            Items ordered;
            ordered.reserve(change.order.size());
            for (const std::uint32_t next : change.order)
                ordered.push_back(std::move(items[change.orderFrom + next]));
            std::ranges::move(ordered, items.begin() + change.orderFrom);
        }
        if (change.putIn.empty()) return;
        Items all;
        all.reserve(items.size() + change.putIn.size());
        auto next = items.begin();
        for (const auto& [place, record] : change.putIn) {
            while (all.size() < place) all.push_back(std::move(*next++));
            auto item = std::make_unique<Item>();
            item->Key = record.Key;
            if (item->isTotals()) item->Text = core::totalsKey;
            item->cells = record.cells;
            all.push_back(std::move(item));
        }
        std::move(next, items.end(), std::back_inserter(all));
        items = std::move(all);
    };
    if (!change.takenOut.empty() || !change.order.empty() || !change.putIn.empty()) list.rearrange(move);
    auto cell = change.cells.begin();
    for (const RecordChange::Splice& splice : change.splices) {
        std::vector<CellText>& cells = list.at(static_cast<int>(splice.place) + 1).cells;
        const auto at = cells.begin() + splice.at;
        const std::uint16_t both = std::min(splice.gone, splice.come);
        std::copy_n(cell, both, at);
        if (splice.gone > both) cells.erase(at + both, at + splice.gone);
        if (splice.come > both) cells.insert(at + both, cell + both, cell + splice.come);
        cell += splice.come;
    }
}

void RecordCopy::take(const RecordsList& list) {
    records_.clear();
    records_.reserve(static_cast<std::size_t>(list.count()));
    list.forEach([&](const Item& item) { records_.push_back(copyOf(item)); });
}

RecordChange RecordCopy::lookAgain(const RecordsList& list) {
    RecordChange change;
    const std::vector<const Item*> now = itemsOf(list);
    const Middle middle(records_, now);
    for (std::size_t i = 0; i < middle.head; ++i)
        compareCells(records_[i].cells, now[i]->cells, static_cast<std::uint32_t>(i), change);
    const std::size_t nowEnd = now.size() - middle.tail;
    const std::size_t end = records_.size() - middle.tail;
    if (nowEnd > middle.head || end > middle.head) {
        const std::vector<std::uint32_t> sources = sourcesOf(records_, now, middle);
        std::vector<std::uint32_t> staying;
        std::vector<Record> between;
        for (std::size_t i = 0; i < sources.size(); ++i) {
            const Item& item = *now[middle.head + i];
            if (sources[i] == gone) {
                change.takenOut.push_back(static_cast<std::uint32_t>(middle.head + i));
                between.push_back(copyOf(item));
                continue;
            }
            staying.push_back(sources[i]);
            Record& record = records_[sources[i]];
            compareCells(record.cells, item.cells, sources[i], change);
            between.push_back(std::move(record));
        }
        change.orderFrom = static_cast<std::uint32_t>(middle.head);
        change.order = orderBefore(staying);
        std::ranges::sort(staying);
        for (std::size_t i = middle.head; i < end; ++i)
            if (!std::ranges::binary_search(staying, static_cast<std::uint32_t>(i)))
                change.putIn.emplace_back(static_cast<std::uint32_t>(i), std::move(records_[i]));
        const auto from = records_.begin() + static_cast<std::ptrdiff_t>(middle.head);
        const auto to = records_.begin() + static_cast<std::ptrdiff_t>(end);
        const std::ptrdiff_t common = std::min(to - from, static_cast<std::ptrdiff_t>(between.size()));
        const auto rest = between.begin() + common;
        std::move(between.begin(), rest, from);
        if (from + common != to)
            records_.erase(from + common, to);
        else
            records_.insert(from + common, std::make_move_iterator(rest),
                            std::make_move_iterator(between.end()));
    }
    for (std::size_t i = nowEnd; i < now.size(); ++i)
        compareCells(records_[i].cells, now[i]->cells, static_cast<std::uint32_t>(end + (i - nowEnd)),
                     change);
    return change;
}

} // namespace history
