#include "summary/grouping.h"

#include "core/dates.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace summary {

namespace {

using core::ColumnType;
using Kind = Step::Kind;

struct NamedKind {
    std::string_view name;
    Kind kind;
};
constexpr std::array<NamedKind, 4> dateKinds = {{{core::marked("year"), Kind::Year},
                                                 {core::marked("quarter"), Kind::Quarter},
                                                 {core::marked("month"), Kind::Month},
                                                 {core::marked("day"), Kind::Day}}};

constexpr int monthsOfYear = 12, monthsOfQuarter = 3;

std::string withDigits(long number, std::size_t digits) {
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return text;
}

// "mm/dd/yyyy", which nearly every cell of a date column is.
std::optional<std::chrono::year_month_day> plainDate(std::string_view cell) {
    constexpr std::size_t length = 10;
    if (cell.size() != length || cell[2] != '/' || cell[5] != '/') return std::nullopt;
    const auto number = [&](std::size_t from, std::size_t digits) {
        int value = 0;
        for (std::size_t i = from; i < from + digits; ++i) {
            if (!core::isDigit(cell[i])) return -1;
            value = value * 10 + (cell[i] - '0');
        }
        return value;
    };
    const int month = number(0, 2), day = number(3, 2), year = number(6, 4);
    if (month < 1 || day < 1 || year < 100) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    return date.ok() ? std::optional(date) : std::nullopt;
}

} // namespace

std::optional<Step> stepNamed(std::string_view word, ColumnType type) {
    if (type == ColumnType::Date) {
        const auto* found = std::ranges::find_if(
            dateKinds, [&](const NamedKind& named) { return core::equalsNoCase(named.name, word); });
        return found == dateKinds.end() ? std::nullopt : std::optional(Step{found->kind, {}});
    }
    const bool isNumber =
        type == ColumnType::Number || type == ColumnType::Currency || type == ColumnType::Calculation;
    const std::optional<Amount> width = isNumber ? numberIn(word) : std::nullopt;
    constexpr double widest = 1e15;
    if (!width || !(Amount() < *width) || width->toDouble() > widest) return std::nullopt;
    return Step{Kind::Width, *width};
}

std::string stepName(const Step& step) {
    if (step.kind == Kind::Width) return step.width.text();
    for (const NamedKind& named : dateKinds)
        if (named.kind == step.kind) return std::string(named.name);
    return {};
}

std::string headingOf(const GroupBy& by) {
    if (by.step.kind == Kind::Each) return by.column;
    const std::string step = stepName(by.step);
    if (by.step.kind == Kind::Width) return core::fill(core::tr("%1 (steps of %2)"), {by.column, step});
    std::string heading = by.column;
    return heading.append(" (").append(core::tr(step)).append(")");
}

std::optional<std::chrono::sys_days> dayIn(std::string_view cell, std::chrono::year_month_day today) {
    if (const auto plain = plainDate(cell)) return std::chrono::sys_days(*plain);
    const std::optional<core::DayValue> value = core::dateValue(cell, today);
    if (!value) return std::nullopt;
    using namespace std::chrono;
    return sys_days(year(1899) / December / 30) + days(*value);
}

bool GroupKey::operator<(const GroupKey& other) const {
    if (rank != other.rank) return rank < other.rank;
    if (rank == Rank::Value && !(value == other.value)) return value < other.value;
    const int byCapitals = core::compareNoCase(label, other.label);
    return byCapitals != 0 ? byCapitals < 0 : label < other.label;
}

GroupKey GroupReader::dateKey(std::string_view cell) const {
    const auto day = dayIn(cell, today_);
    if (!day) return {GroupKey::Rank::Text, {}, std::string(cell)};
    const std::chrono::year_month_day date(*day);
    const long year = static_cast<int>(date.year());
    const long month = static_cast<long>(static_cast<unsigned>(date.month())) - 1;
    std::string label = withDigits(year, 4);
    long place = 0;
    switch (step_.kind) {
    case Kind::Year:
        place = year;
        break;
    case Kind::Quarter:
        place = year * 4 + month / monthsOfQuarter;
        label.append("-Q").append(std::to_string(month / monthsOfQuarter + 1));
        break;
    case Kind::Month:
        place = year * monthsOfYear + month;
        label.append("-").append(withDigits(month + 1, 2));
        break;
    default:
        place = day->time_since_epoch().count();
        label = core::formatDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                                 static_cast<unsigned>(date.day()));
    }
    return {GroupKey::Rank::Value, Amount::ofWhole(place), label};
}

GroupKey GroupReader::numberKey(std::string_view cell) const {
    const std::optional<Amount> number = numberIn(cell);
    if (!number) return {GroupKey::Rank::Text, {}, std::string(cell)};
    if (step_.kind != Kind::Width) return {GroupKey::Rank::Value, *number, std::string(core::trim(cell))};
    const Amount low = number->floorTo(step_.width);
    Amount high = low;
    high += step_.width;
    const bool bMoney = isMoney(cell, type_);
    const std::string label = core::fill(
        core::tr("%1 to below %2"), {bMoney ? low.money() : low.text(), bMoney ? high.money() : high.text()});
    return {GroupKey::Rank::Value, low, label};
}

GroupKey GroupReader::keyOf(std::string_view cell) const {
    if (core::trim(cell).empty()) return {GroupKey::Rank::Empty, {}, core::tr(emptyLabel)};
    switch (type_) {
    case ColumnType::Date:
        return dateKey(cell);
    case ColumnType::Number:
    case ColumnType::Currency:
    case ColumnType::Calculation:
        return numberKey(cell);
    default:
        return {GroupKey::Rank::Text, {}, std::string(cell)};
    }
}

std::uint32_t GroupReader::groupOf(std::string_view cell) {
    const auto [place, isNew] = byCell_.try_emplace(cell, 0);
    if (!isNew) return place->second;
    GroupKey key = keyOf(cell);
    if (key.rank == GroupKey::Rank::Text) { // as it stands in the cell
        place->second = static_cast<std::uint32_t>(keys_.size());
        keys_.push_back(std::move(key));
        return place->second;
    }
    // Numbers that are written in several ways are one group, and a text "(empty)" is not the empty one.
    std::string identity(1, static_cast<char>(key.rank));
    constexpr double mostDigits = 1e15; // of a text of an amount
    const bool bByValue = key.rank == GroupKey::Rank::Value && std::abs(key.value.toDouble()) < mostDigits;
    identity.append(bByValue ? key.value.text() : key.label);
    const auto [known, isFirst] =
        byIdentity_.try_emplace(std::move(identity), static_cast<std::uint32_t>(keys_.size()));
    if (isFirst) keys_.push_back(std::move(key));
    place->second = known->second;
    return known->second;
}

std::vector<std::uint32_t> GroupReader::order() const {
    std::vector<std::uint32_t> sorted(keys_.size()), order(keys_.size());
    std::iota(sorted.begin(), sorted.end(), 0U);
    std::ranges::sort(sorted, [&](std::uint32_t a, std::uint32_t b) { return keys_[a] < keys_[b]; });
    for (std::size_t i = 0; i < sorted.size(); ++i) order[sorted[i]] = static_cast<std::uint32_t>(i);
    return order;
}

} // namespace summary
