#include "tables/writtenValue.h"

#include "core/cellText.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>
#include <vector>

namespace tables {

namespace {

using core::ColumnType;
using exchange::SheetCell;
using std::chrono::year_month_day;

constexpr std::size_t longestValue = 48;     // in bytes; a longer text is neither number nor date
constexpr std::size_t mostSummedDigits = 15; // that a sum keeps
// Behind the widely known ones stand those that only the user's word makes a sign: a text may end with them.
constexpr std::array<std::string_view, 34> signs = {
    "US$", "R$",  "$",   "€",   "£",   "¥",  "₹",  "EUR", "USD", "GBP", "CHF", "JPY",
    "SEK", "NOK", "DKK", "PLN", "kr",  "zł", "A$", "C$",  "Kč",  "CZK", "Ft",  "HUF",
    "lei", "RON", "лв",  "₺",   "₽", "₴",  "₩",  "CAD", "AUD", "R"};
constexpr std::size_t knownSigns = 18;

bool isAllDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, core::isDigit);
}

// The blanks, minus signs and apostrophes that typesetters use, as the keyboard has them.
std::string plainMarks(std::string_view text) {
    std::string plain(text);
    if (core::asciiLength(text) == text.size()) return plain;
    for (const std::string_view blank : {"\u00A0", "\u202F", "\u2009"})
        plain = core::replaceAll(plain, blank, " ");
    plain = core::replaceAll(plain, "\u2212", "-");
    return core::replaceAll(plain, "\u2019", "'");
}

std::string_view takeSign(std::string_view& text, const CurrencySign& told) {
    const std::array<std::string_view, 1> one = {told ? std::string_view(*told) : std::string_view()};
    std::span<const std::string_view> possible = std::span(signs).first(knownSigns);
    if (told) possible = std::span(one).first(told->empty() ? 0 : 1);
    for (const std::string_view sign : possible) {
        if (text.starts_with(sign))
            text = core::trim(text.substr(sign.size()));
        else if (text.ends_with(sign))
            text = core::trim(text.substr(0, text.size() - sign.size()));
        else
            continue;
        return sign;
    }
    return {};
}

// "1 234 567" without its blanks; nothing when the groups are no thousands.
std::optional<std::string> ungrouped(std::string_view whole, char decimal, bool& isGrouped) {
    constexpr std::size_t group = 3;
    const std::size_t at = whole.find_first_not_of("0123456789");
    isGrouped = at != std::string_view::npos;
    if (!isGrouped) return std::string(whole);
    const char mark = whole[at];
    if (mark == decimal || std::string_view(" '.,").find(mark) == std::string_view::npos) return std::nullopt;
    std::string digits;
    for (const std::string_view part : core::split(whole, mark)) {
        const bool fits = digits.empty() ? part.size() <= group : part.size() == group;
        if (!fits || !isAllDigits(part)) return std::nullopt;
        digits += part;
    }
    return digits;
}

int valueOf(std::string_view digits) {
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

// Cuts off a time behind the date; answers whether it is another one than midnight.
bool cutTime(std::string_view& text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return false;
    const std::size_t blank = text.find_last_of(" T", colon);
    if (blank == std::string_view::npos) return false;
    const bool isOther = text.find_first_of("123456789", blank) != std::string_view::npos;
    text = core::trim(text.substr(0, blank));
    return isOther;
}

std::optional<year_month_day> dayOf(int year, std::string_view month, std::string_view day) {
    const year_month_day date(std::chrono::year(year),
                              std::chrono::month(static_cast<unsigned>(valueOf(month))),
                              std::chrono::day(static_cast<unsigned>(valueOf(day))));
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::optional<WrittenDate> namedDate(std::string_view text) {
    using std::chrono::sys_days, std::chrono::days;
    constexpr sys_days dayZero = std::chrono::year(1899) / 12 / 30;
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto digits = std::ranges::count_if(text, core::isDigit);
    if (digits < 5 || std::ranges::count_if(text, isLetter) < 3) return std::nullopt;
    const auto value = core::dateValue(text, std::chrono::year(2000) / 1 / 1);
    if (!value) return std::nullopt;
    return WrittenDate{year_month_day(dayZero + days(*value))};
}

std::string cellDate(const year_month_day& date) {
    return core::formatDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                            static_cast<unsigned>(date.day()));
}

CheckedCell unreadable(std::string reason) {
    return {{}, std::move(reason)};
}

CheckedCell dateCell(const SheetCell& cell, const ReadAs& as) {
    if (cell.kind == SheetCell::Kind::Number) return unreadable(core::tr("is no date"));
    const auto date = writtenDate(cell.text, as.dates);
    if (!date) return unreadable(core::tr("is no date in this order"));
    if (date->bTime) return unreadable(core::tr("has a time, which a date has no room for"));
    return {cellDate(date->day), {}};
}

CheckedCell numberCell(const SheetCell& cell, const ReadAs& as, year_month_day today) {
    if (cell.kind == SheetCell::Kind::Number) return checkedCell(as.type, cell.text, today);
    const auto number = writtenNumber(cell.text, as.decimal, as.sign);
    if (!number) return unreadable(core::tr("is no number in this form"));
    if (as.type == ColumnType::Currency && number->places > 2)
        return unreadable(core::tr("has more places than an amount of money"));
    return checkedCell(as.type, number->digits, today);
}

} // namespace

bool isCode(std::string_view text) {
    return text.size() > 1 && text.front() == '0' && isAllDigits(text);
}

std::span<const std::string_view> currencySigns() {
    return signs;
}

std::optional<WrittenNumber> writtenNumber(std::string_view text, char decimal, const CurrencySign& sign) {
    if (text.size() > longestValue) return std::nullopt;
    const std::string plain = plainMarks(text);
    std::string_view rest = core::trim(plain);
    WrittenNumber number;
    bool isNegative = rest.starts_with('(') && rest.ends_with(')') && rest.size() > 2;
    if (isNegative) rest = core::trim(rest.substr(1, rest.size() - 2));
    const auto takeMinus = [&] {
        if (isNegative || rest.empty()) return;
        isNegative = rest.front() == '-' || rest.back() == '-';
        if (rest.front() == '-')
            rest.remove_prefix(1);
        else if (rest.back() == '-')
            rest.remove_suffix(1);
        rest = core::trim(rest);
    };
    takeMinus();
    number.sign = takeSign(rest, sign);
    takeMinus();
    const std::size_t point = std::min(rest.find(decimal), rest.size());
    const std::string_view fraction = point < rest.size() ? rest.substr(point + 1) : std::string_view();
    if (point < rest.size() && !isAllDigits(fraction)) return std::nullopt;
    const auto whole = ungrouped(rest.substr(0, point), decimal, number.bGrouped);
    if (!whole || whole->size() + fraction.size() == 0 ||
        whole->size() + fraction.size() > mostSummedDigits || (whole->size() > 1 && whole->front() == '0'))
        return std::nullopt;
    number.places = fraction.size();
    if (isNegative) number.digits = "-";
    number.digits += *whole;
    if (!fraction.empty()) number.digits.append(".").append(fraction);
    return number;
}

std::optional<WrittenDate> writtenDate(std::string_view text, DateOrder order) {
    text = core::trim(text);
    if (text.size() < 6 || text.size() > longestValue) return std::nullopt;
    const bool hasTime = cutTime(text);
    const std::size_t at = text.find_first_not_of("0123456789");
    if (at == std::string_view::npos) return std::nullopt;
    std::vector<std::string_view> parts = core::split(text, text[at]);
    for (std::string_view& part : parts) part = core::trim(part);
    const bool isNumeric = parts.size() == 3 &&
                           std::string_view("./- ").find(text[at]) != std::string::npos &&
                           std::ranges::all_of(parts, isAllDigits);
    std::optional<WrittenDate> date;
    if (!isNumeric) {
        date = namedDate(text);
    } else if (parts[0].size() == 4) {
        if (parts[1].size() > 2 || parts[2].size() > 2) return std::nullopt;
        if (const auto day = dayOf(valueOf(parts[0]), parts[1], parts[2])) date = WrittenDate{*day};
    } else if (order != DateOrder::YearMonthDay && parts[0].size() <= 2 && parts[1].size() <= 2 &&
               (parts[2].size() == 4 || parts[2].size() == 2)) {
        constexpr int firstOfLastCentury = 30; // a year of two digits, as everywhere in the program
        int year = valueOf(parts[2]);
        if (parts[2].size() == 2) year += year < firstOfLastCentury ? 2000 : 1900;
        const bool isDayFirst = order == DateOrder::DayMonthYear;
        if (const auto day = dayOf(year, parts[isDayFirst ? 1 : 0], parts[isDayFirst ? 0 : 1]))
            date = WrittenDate{*day, false, false};
    }
    if (date) date->bTime = hasTime;
    return date;
}

CheckedCell readCell(const SheetCell& cell, const ReadAs& as, year_month_day today) {
    if (as.bToTheLetter || as.type == ColumnType::Text || as.type == ColumnType::Picture ||
        as.type == ColumnType::Calculation)
        return checkedCell(ColumnType::Text, cell.text, today);
    if (core::trim(cell.text).empty()) return {};
    const bool isDate = as.type == ColumnType::Date;
    if (cell.text.view().find(core::itemSeparator) == std::string_view::npos)
        return isDate ? dateCell(cell, as) : numberCell(cell, as, today);
    // The values of an invoice's item rows, each with the separator behind it.
    CheckedCell all;
    std::vector<std::string_view> values = core::split(cell.text, core::itemSeparator);
    if (values.back().empty()) values.pop_back();
    for (const std::string_view value : values) {
        const SheetCell one{SheetCell::Kind::Text, std::string(core::trim(value))};
        if (!one.text.empty()) {
            CheckedCell read = isDate ? dateCell(one, as) : numberCell(one, as, today);
            if (!read.reason.empty()) return read;
            all.text += read.text;
        }
        all.text.push_back(core::itemSeparator);
    }
    return all;
}

} // namespace tables
