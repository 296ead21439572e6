#include "summary/summaryTable.h"

#include "app/appearance.h"
#include "core/text.h"

#include <algorithm>
#include <cmath>

namespace summary {

std::vector<std::string> headings(const Summary& summary) {
    std::vector<std::string> all;
    for (const GroupBy& by : summary.request.by) all.push_back(headingOf(by));
    all.push_back(core::tr(recordsHeading));
    for (const Figure& figure : summary.request.figures) all.push_back(headingOf(figure));
    return all;
}

exchange::OutTable tableOf(const Summary& summary, std::string title, std::size_t mostLetters) {
    using core::ColumnType;
    exchange::OutTable table;
    table.title = std::move(title);
    const std::size_t keys = summary.request.by.size();
    for (std::string& heading : headings(summary)) {
        const std::size_t place = table.columns.size();
        const ColumnType type = place < keys    ? ColumnType::Text
                                : place == keys ? ColumnType::Number
                                                : summary.figureTypes[place - keys - 1];
        table.columns.push_back({std::move(heading), type, core::newColumnWidth, {}});
    }
    const auto addCounted = [](exchange::OutRow& row, const Group& group) {
        row.push_back(std::to_string(group.records));
        for (const Value& figure : group.figures) row.push_back(figure.text);
    };
    table.rows.reserve(summary.groups.size() + 1);
    for (const Group& group : summary.groups) {
        exchange::OutRow row;
        for (const GroupKey& key : group.keys) row.emplace_back(core::left(key.label, mostLetters));
        addCounted(row, group);
        table.rows.push_back(std::move(row));
    }
    exchange::OutRow total(summary.request.by.size());
    if (total.empty()) return table;
    total.front() = core::tr(totalLabel);
    addCounted(total, summary.total);
    table.rows.push_back(std::move(total));
    table.bLastIsTotals = true;
    return table;
}

Summary shownSummary(const app::App& app, Summary summary) {
    const core::LocaleForm* form = app::formInUse(app);
    if (form == nullptr) return summary;
    std::vector<core::ColumnType> keyTypes;
    for (const GroupBy& by : summary.request.by) {
        const core::Column* column = app.document.LV.columns.find(by.column);
        keyTypes.push_back(column == nullptr ? core::ColumnType::Text : column->type());
    }
    const auto show = [&](Group& group) {
        for (std::size_t i = 0; i < std::min(group.keys.size(), keyTypes.size()); ++i)
            group.keys[i].label = core::shownIn(*form, keyTypes[i], group.keys[i].label);
        for (std::size_t i = 0; i < group.figures.size(); ++i)
            group.figures[i].text = core::shownIn(*form, summary.figureTypes[i], group.figures[i].text);
    };
    for (Group& group : summary.groups) show(group);
    show(summary.total);
    return summary;
}

namespace {

const Value* figureAt(const Group& group, int figure) {
    const auto place = static_cast<std::size_t>(figure);
    return place < group.figures.size() ? &group.figures[place] : nullptr;
}

} // namespace

std::optional<double> barValue(const Group& group, int figure) {
    if (figure == recordsBar) return static_cast<double>(group.records);
    const Value* value = figureAt(group, figure);
    return value != nullptr && value->number ? std::optional(value->number->toDouble()) : std::nullopt;
}

std::string barText(const Group& group, int figure) {
    if (figure == recordsBar) return std::to_string(group.records);
    const Value* value = figureAt(group, figure);
    return value == nullptr ? std::string() : value->text;
}

BarScale::BarScale(const Summary& summary, int figure) : figure_(figure) {
    for (const Group& group : summary.groups) {
        const double value = barValue(group, figure).value_or(0);
        least_ = std::min(least_, value);
        greatest_ = std::max(greatest_, value);
    }
    if (room() > 0 && std::isfinite(room())) return;
    least_ = 0;
    greatest_ = 1;
}

Bar BarScale::barOf(const Group& group) const {
    const double value = std::clamp(barValue(group, figure_).value_or(0), least_, greatest_);
    const double end = (value - least_) / room();
    return {std::min(zero(), end), std::max(zero(), end)};
}

} // namespace summary
