#include "search/filter/filter.h"

#include "core/currency.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "search/filter/folding.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace search {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr int decimals = 4;

core::DayValue dayOf(const year_month_day& date) {
    constexpr sys_days zero = sys_days(year(1899) / month(12) / day(30));
    return (sys_days(date) - zero).count();
}

// A number of so many digits and nothing else.
std::optional<int> digits(std::string_view text, std::size_t least, std::size_t most) {
    int value = 0;
    if (text.size() < least || text.size() > most) return {};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 0) return {};
    return value;
}

// By its English name or the beginning of it, as the dates in cells have it.
std::optional<int> monthNamed(std::string_view text) {
    constexpr std::array<std::string_view, 12> names = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                        "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                        "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
    for (std::size_t i = 0; i < names.size(); ++i)
        if (text.size() >= 3 && names[i].starts_with(folded(text))) return static_cast<int>(i) + 1;
    return {};
}

Days daysOfMonth(int yearNumber, int monthNumber) {
    const auto first = year(yearNumber) / month(static_cast<unsigned>(monthNumber));
    return {dayOf(first / day(1)), dayOf(year_month_day(first / std::chrono::last))};
}

// 5/2015, 2015-05, May 2015
std::optional<Days> monthIn(std::string_view text) {
    const std::size_t separator = text.find_first_of(" /-.");
    if (separator == std::string_view::npos) return {};
    const std::string_view head = text.substr(0, separator);
    const std::string_view tail = core::trim(text.substr(separator + 1));
    std::optional<int> monthNumber = monthNamed(head);
    if (!monthNumber) monthNumber = digits(head, 1, 2);
    std::optional<int> yearNumber = digits(tail, 4, 4);
    if (!yearNumber && text[separator] != ' ') {
        yearNumber = digits(head, 4, 4);
        monthNumber = digits(tail, 1, 2);
    }
    if (!monthNumber || !yearNumber || *monthNumber < 1 || *monthNumber > 12) return {};
    return daysOfMonth(*yearNumber, *monthNumber);
}

} // namespace

FilterColumns filterColumns(const core::Document& document, const core::RecordsList& list) {
    FilterColumns columns;
    for (const core::Column& column : list.columns) {
        if (column.Index == 1) continue;
        const core::Column* defined = document.LV.columns.find(column.Text);
        columns.push_back({column.Text, column.Index - 1, (defined == nullptr ? column : *defined).type()});
    }
    return columns;
}

std::string filterPiece(std::string_view column, std::string_view comparison, std::string_view value) {
    const auto quoted = [](std::string_view text) {
        std::string out = "\"";
        out.append(core::replaceAll(text, "\"", "\"\"")).append("\"");
        return out;
    };
    const auto isPlain = [](std::string_view text) {
        return !text.empty() && std::ranges::all_of(text, [](char c) {
            return core::isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
                   (c & 0x80) != 0;
        });
    };
    std::string piece = isPlain(column) ? std::string(column) : quoted(column);
    piece.append(comparison);
    // Two points outside of quotes are a range, which the caller may want.
    if (!value.empty()) piece.append(isPlain(value) ? std::string(value) : quoted(value));
    return piece;
}

std::optional<std::int64_t> filterNumber(std::string_view text) {
    constexpr std::int64_t most = FilterTerm::highest - 1; // so that there is a next one
    if (const auto plain = core::readPlainNumber(text)) {
        const auto scaled = plain->digitsWith(decimals, core::Rounding::HalfEven);
        if (!scaled || *scaled > static_cast<std::uint64_t>(most)) return {};
        const auto value = static_cast<std::int64_t>(*scaled);
        return plain->negative ? -value : value;
    }
    if (!core::isNumeric(text)) return {};
    try {
        const std::int64_t value = core::Currency::parse(text).tenThousandths();
        if (value > most || value < -most) return {};
        return value;
    } catch (const core::RunTimeError&) {
        return {};
    }
}

std::optional<Days> filterDays(std::string_view text, year_month_day today) {
    text = core::trim(text);
    if (core::equalsNoCase(text, "today")) return Days{dayOf(today), dayOf(today)};
    if (const auto number = digits(text, 4, 4))
        return Days{daysOfMonth(*number, 1).first, daysOfMonth(*number, 12).last};
    if (const auto days = monthIn(text)) return days;
    const std::optional<core::DayValue> one = core::dateValue(text, today);
    if (!one) return {};
    return Days{*one, *one};
}

} // namespace search
