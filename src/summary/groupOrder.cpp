#include "summary/groupOrder.h"

#include <algorithm>
#include <numeric>

namespace summary {

namespace {

// Below zero when a comes before b.
int compared(const auto& a, const auto& b) {
    return a < b ? -1 : b < a ? 1 : 0;
}

// A figure as it is compared: dates are days.
std::vector<std::optional<Amount>> figuresOf(const Summary& summary, std::size_t figure,
                                             std::chrono::year_month_day today) {
    std::vector<std::optional<Amount>> all;
    all.reserve(summary.groups.size());
    for (const Group& group : summary.groups) {
        const Value& value = group.figures.at(figure);
        all.push_back(value.number);
        if (value.number) continue;
        if (const auto day = dayIn(value.text, today))
            all.back() = Amount::ofWhole(day->time_since_epoch().count());
    }
    return all;
}

} // namespace

void sortGroups(Summary& summary, std::size_t column, bool bDescending, std::chrono::year_month_day today) {
    const std::vector<Group>& groups = summary.groups;
    const std::size_t keys = summary.request.by.size();
    std::vector<std::optional<Amount>> figures;
    if (column > keys) figures = figuresOf(summary, column - keys - 1, today);
    const auto byColumn = [&](std::uint32_t a, std::uint32_t b) {
        int order = 0;
        if (column < keys)
            order = compared(groups[a].keys[column], groups[b].keys[column]);
        else if (column == keys)
            order = compared(groups[a].records, groups[b].records);
        else if (figures[a].has_value() != figures[b].has_value())
            return figures[a] ? -1 : 1;
        else if (figures[a])
            order = compared(*figures[a], *figures[b]);
        return bDescending ? -order : order;
    };
    std::vector<std::uint32_t> sorted(groups.size()), newPlace(groups.size());
    std::iota(sorted.begin(), sorted.end(), 0U);
    std::ranges::sort(sorted, [&](std::uint32_t a, std::uint32_t b) {
        const int order = byColumn(a, b);
        return order != 0 ? order < 0 : groups[a].keys < groups[b].keys;
    });
    std::vector<Group> now;
    now.reserve(groups.size());
    for (const std::uint32_t old : sorted) {
        newPlace[old] = static_cast<std::uint32_t>(now.size());
        now.push_back(std::move(summary.groups[old]));
    }
    summary.groups = std::move(now);
    for (auto& [record, group] : summary.members) group = newPlace[group];
}

} // namespace summary
