#include "core/locale/localeForm.h"

#include "core/cellText.h"
#include "core/dates.h"
#include "core/number.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <optional>
#include <vector>

namespace core {

namespace {

using DateOrder = LocaleForm::DateOrder;

// Takes a beginning off a text.
bool take(std::string_view& text, std::string_view beginning) {
    if (beginning.empty() || !text.starts_with(beginning)) return false;
    text.remove_prefix(beginning.size());
    return true;
}

std::string_view takeDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && isDigit(text[count])) ++count;
    const std::string_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

// --- dates ---

struct DateParts {
    std::array<std::string_view, 3> part;
    char separator = 0;
};

// Three numbers with the same separator between them, which blankSigns may follow, and one may stand at the
// end.
std::optional<DateParts> readParts(std::string_view text, std::string_view separators) {
    DateParts parts;
    for (std::size_t place = 0; place < 3; ++place) {
        parts.part.at(place) = takeDigits(text);
        if (parts.part.at(place).empty() || parts.part.at(place).size() > 4) return std::nullopt;
        if (place == 2 || text.empty()) break;
        if (place == 0 && separators.find(text.front()) != std::string_view::npos)
            parts.separator = text.front();
        if (text.front() != parts.separator) return std::nullopt;
        text.remove_prefix(1);
        while (take(text, " ")) {
        }
    }
    take(text, std::string_view(&parts.separator, 1));
    return text.empty() ? std::optional(parts) : std::nullopt;
}

unsigned numberOf(std::string_view digits) {
    unsigned value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

// Years of two digits as everywhere in the program.
std::optional<int> yearOf(std::string_view digits) {
    constexpr unsigned lastOf2000s = 29;
    const unsigned year = numberOf(digits);
    if (digits.size() == 4) return static_cast<int>(year);
    if (digits.size() != 2) return std::nullopt;
    return static_cast<int>(year <= lastOf2000s ? 2000 + year : 1900 + year);
}

std::optional<std::chrono::year_month_day> dateOf(std::string_view year, std::string_view month,
                                                  std::string_view day) {
    const std::optional<int> counted = yearOf(year);
    if (!counted || month.size() > 2 || day.size() > 2) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*counted), std::chrono::month(numberOf(month)),
                                           std::chrono::day(numberOf(day))};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::optional<std::chrono::year_month_day> readDate(DateOrder order, const DateParts& parts) {
    const auto& [first, second, third] = parts.part;
    if (first.size() == 4 || order == DateOrder::YearMonthDay) return dateOf(first, second, third);
    if (order == DateOrder::DayMonthYear) return dateOf(third, second, first);
    return dateOf(third, first, second);
}

void appendNumber(std::string& text, unsigned value, std::size_t digits) {
    const std::string number = std::to_string(value);
    if (number.size() < digits) text.append(digits - number.size(), '0');
    text += number;
}

std::string shownDate(const LocaleForm& form, std::string_view cell) {
    const std::optional<DateParts> parts = readParts(cell, "/-");
    if (!parts || cell.back() == parts->separator) return std::string(cell);
    std::optional<std::chrono::year_month_day> date = readDate(DateOrder::MonthDayYear, *parts);
    if (!date) date = readDate(DateOrder::DayMonthYear, *parts); // as dates of cells are read
    if (!date) return std::string(cell);
    const unsigned year = static_cast<unsigned>(static_cast<int>(date->year()));
    const auto month = static_cast<unsigned>(date->month()), day = static_cast<unsigned>(date->day());
    std::string text;
    if (form.order == DateOrder::YearMonthDay) {
        appendNumber(text, year, 4);
        text += form.dateSeparator;
    }
    const bool dayFirst = form.order == DateOrder::DayMonthYear;
    appendNumber(text, dayFirst ? day : month, 2);
    text += form.dateSeparator;
    appendNumber(text, dayFirst ? month : day, 2);
    if (form.order == DateOrder::YearMonthDay) return text;
    text += form.dateSeparator;
    appendNumber(text, year, 4);
    return text;
}

std::string cellOfDate(const LocaleForm& form, std::string_view typed) {
    const std::optional<DateParts> parts = readParts(trim(typed), "./-");
    const auto date = parts ? readDate(form.order, *parts) : std::nullopt;
    if (!date) return std::string(typed);
    return formatDate(static_cast<int>(date->year()), static_cast<unsigned>(date->month()),
                      static_cast<unsigned>(date->day()));
}

// --- numbers ---

struct Amount {
    bool negative = false, currency = false, grouped = false, point = false;
    std::string whole; // digits alone
    std::string_view fraction, exponent;
};

constexpr std::array<std::string_view, 4> blankSigns = {" ", "\u00A0", "\u202F", "\u2009"};
constexpr std::array<std::string_view, 2> apostrophes = {"'", "\u2019"};

bool takeBlank(std::string_view& text) {
    return std::ranges::any_of(blankSigns, [&](std::string_view blank) { return take(text, blank); });
}

bool takeGroup(std::string_view& text, std::string_view group) {
    // Keyboards have one blank and one apostrophe; countries write with several.
    if (std::ranges::find(blankSigns, group) != blankSigns.end()) return takeBlank(text);
    if (std::ranges::find(apostrophes, group) != apostrophes.end())
        return std::ranges::any_of(apostrophes, [&](std::string_view each) { return take(text, each); });
    return take(text, group);
}

void takeSign(std::string_view& text, Amount& amount) {
    if (!amount.negative) amount.negative = take(text, "-") || take(text, "\u2212");
}

bool takeCurrency(std::string_view& text, Amount& amount, std::string_view currency) {
    if (amount.currency) return false;
    amount.currency = take(text, currency) || take(text, "$");
    return amount.currency;
}

// The digits in front of the point. Loose groups are as cells may have them: separators anywhere.
bool takeWhole(std::string_view& text, Amount& amount, std::string_view group, bool looseGroups) {
    std::vector<std::size_t> sizes(1);
    while (!text.empty()) {
        if (isDigit(text.front())) {
            amount.whole += text.front();
            text.remove_prefix(1);
            ++sizes.back();
            continue;
        }
        std::string_view rest = text;
        // A blank behind the last digit is no separator.
        if (!takeGroup(rest, group) || (!looseGroups && (rest.empty() || !isDigit(rest.front())))) break;
        text = rest;
        sizes.push_back(0);
    }
    amount.grouped = sizes.size() > 1 && sizes.front() >= 1 && sizes.front() <= 3 &&
                     std::all_of(sizes.begin() + 1, sizes.end(), [](std::size_t size) { return size == 3; });
    return looseGroups || amount.grouped || sizes.size() == 1;
}

std::string_view takeExponent(std::string_view& text) {
    const std::string_view whole = text;
    std::string_view rest = text;
    if (!take(rest, "E") && !take(rest, "e")) return {};
    if (!take(rest, "+")) take(rest, "-");
    if (takeDigits(rest).empty()) return {};
    text = rest;
    return whole.substr(0, whole.size() - rest.size());
}

std::optional<Amount> readAmount(std::string_view text, const LocaleForm& form, bool isCell) {
    Amount amount;
    while (takeBlank(text)) {
    }
    const bool inParentheses = isCell && take(text, "(");
    amount.negative = inParentheses;
    takeSign(text, amount);
    if (takeCurrency(text, amount, form.currency))
        while (takeBlank(text)) {
        }
    takeSign(text, amount);
    if (!takeWhole(text, amount, form.group, isCell)) return std::nullopt;
    amount.point = take(text, form.decimal);
    if (amount.point) amount.fraction = takeDigits(text);
    if (amount.whole.empty() && amount.fraction.empty()) return std::nullopt;
    amount.exponent = takeExponent(text);
    while (takeBlank(text)) {
    }
    if (takeCurrency(text, amount, form.currency))
        while (takeBlank(text)) {
        }
    if (inParentheses && !take(text, ")")) return std::nullopt;
    return text.empty() ? std::optional(amount) : std::nullopt;
}

void appendDigits(std::string& text, const Amount& amount, std::string_view group) {
    for (std::size_t place = 0; place < amount.whole.size(); ++place) {
        if (place > 0 && amount.grouped && (amount.whole.size() - place) % 3 == 0) text += group;
        text += amount.whole[place];
    }
}

std::string shownAmount(const LocaleForm& form, std::string_view cell) {
    if (!isNumeric(cell)) return std::string(cell);
    std::optional<Amount> amount = readAmount(cell, LocaleForm(), true);
    std::string plain; // of a form that nobody writes, "7-" or "1.5D+03"
    if (!amount) {
        plain = numberText(toDouble(cell).value_or(0));
        amount = readAmount(plain, LocaleForm(), true);
        if (!amount || !toDouble(cell)) return std::string(cell);
        amount->currency = cell.find('$') != std::string_view::npos;
    }
    std::string text;
    if (amount->negative) text += '-';
    if (amount->currency && !form.currencyBehind) {
        text += form.currency;
        if (form.currencyApart) text += "\u00A0";
    }
    // The mask of amounts has no zero in front of the point, which is odd to all eyes but its own.
    if (amount->currency && amount->whole.empty()) text += '0';
    appendDigits(text, *amount, form.group);
    if (amount->point) text += form.decimal;
    text += amount->fraction;
    text += amount->exponent;
    if (amount->currency && form.currencyBehind) {
        if (form.currencyApart) text += "\u00A0";
        text += form.currency;
    }
    return text;
}

std::string cellOfAmount(const LocaleForm& form, std::string_view typed) {
    std::optional<Amount> amount = readAmount(typed, form, false);
    if (!amount) return std::string(typed);
    std::string text;
    if (amount->negative) text += '-';
    if (amount->currency) text += '$';
    if (!amount->currency) amount->grouped = false;
    if (amount->currency && amount->point && amount->whole == "0") amount->whole.clear();
    appendDigits(text, *amount, ",");
    if (amount->point) text += '.';
    text += amount->fraction;
    text += amount->exponent;
    return text;
}

// Of each value, where an invoice's cell has several.
template <typename Converted>
std::string ofEach(std::string_view cell, Converted converted) {
    std::string text;
    std::size_t from = 0;
    for (std::size_t end = 0; (end = cell.find(itemSeparator, from)) != std::string_view::npos;
         from = end + 1) {
        text += converted(cell.substr(from, end - from));
        text += itemSeparator;
    }
    return text + converted(cell.substr(from));
}

bool isAmount(ColumnType type) {
    return type == ColumnType::Number || type == ColumnType::Currency || type == ColumnType::Calculation;
}

} // namespace

std::string shownIn(const LocaleForm& form, ColumnType type, std::string_view cell) {
    if (type == ColumnType::Date) return ofEach(cell, [&](auto value) { return shownDate(form, value); });
    if (isAmount(type)) return ofEach(cell, [&](auto value) { return shownAmount(form, value); });
    return std::string(cell);
}

std::string cellFrom(const LocaleForm& form, ColumnType type, std::string_view typed) {
    if (type == ColumnType::Date) return cellOfDate(form, typed);
    return isAmount(type) ? cellOfAmount(form, typed) : std::string(typed);
}

std::string withDateSeparators(const LocaleForm& form, std::string_view typed) {
    const bool yearFirst = form.order == DateOrder::YearMonthDay;
    const std::string_view pattern = yearFirst ? "0000.00." : "00.00.";
    const auto follows = [&](std::string_view text) {
        return text.size() <= pattern.size() &&
               std::equal(text.begin(), text.end(), pattern.begin(), [&](char character, char wanted) {
                   return wanted == '0' ? isDigit(character) : character == form.dateSeparator;
               });
    };
    std::string text(typed);
    if (text.size() > 1 && follows(typed.substr(0, text.size() - 1))) {
        const bool isDue = text.size() <= pattern.size() && pattern[text.size() - 1] == '.';
        const bool isTyped = text.back() == form.dateSeparator;
        // The one that is due had been deleted; the one that is typed is there already.
        if (isDue && isDigit(text.back())) text.insert(text.end() - 1, form.dateSeparator);
        if (!isDue && isTyped && text[text.size() - 2] == form.dateSeparator) text.pop_back();
    }
    if (text.size() < pattern.size() && pattern[text.size()] == '.' && follows(text))
        text += form.dateSeparator;
    return text;
}

} // namespace core
