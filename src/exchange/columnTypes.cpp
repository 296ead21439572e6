#include "exchange/columnTypes.h"

#include "core/cellText.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>

namespace exchange {

namespace {

using core::ColumnType;

constexpr std::array types = {ColumnType::Text, ColumnType::Number,  ColumnType::Currency,
                              ColumnType::Date, ColumnType::Picture, ColumnType::Calculation};
constexpr std::size_t mostDigits = 15; // that a sum keeps

// How many digits stand at the head.
std::size_t digitsAt(std::string_view text) {
    const auto end = std::ranges::find_if_not(text, core::isDigit);
    return static_cast<std::size_t>(end - text.begin());
}

bool skip(std::string_view& text, char c) {
    if (!text.starts_with(c)) return false;
    text.remove_prefix(1);
    return true;
}

bool hasNeedlessZero(std::string_view digits) {
    return digits.size() > 1 && digits.front() == '0';
}

// As a program writes it: "-12.50", ".5", and no sign, zero, comma or exponent more.
bool isNumber(std::string_view text) {
    skip(text, '-');
    const std::size_t whole = digitsAt(text);
    if (hasNeedlessZero(text.substr(0, whole))) return false;
    text.remove_prefix(whole);
    std::size_t places = 0;
    if (skip(text, '.')) {
        places = digitsAt(text);
        if (places == 0) return false;
        text.remove_prefix(places);
    }
    return text.empty() && whole + places > 0 && whole + places <= mostDigits;
}

// Thousands have commas everywhere or nowhere.
bool isGrouped(std::string_view whole) {
    constexpr std::size_t group = 3;
    const std::vector<std::string_view> groups = core::split(whole, ',');
    if (groups.size() > 1 && (groups[0].empty() || groups[0].size() > group)) return false;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (digitsAt(groups[i]) != groups[i].size()) return false;
        if (i > 0 && groups[i].size() != group) return false;
    }
    return true;
}

// Dollars, with cents or without: "$5", "-$1,234.50", "$.05".
bool isAmount(std::string_view text) {
    skip(text, '-');
    if (!skip(text, '$')) return false;
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view cents = point < text.size() ? text.substr(point + 1) : std::string_view("00");
    const auto digits = static_cast<std::size_t>(std::ranges::count_if(text, core::isDigit));
    return digits > 0 && digits <= mostDigits && isGrouped(whole) && !hasNeedlessZero(whole) &&
           !cents.empty() && cents.size() <= 2 && digitsAt(cents) == cents.size();
}

int number(std::string_view digits) {
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

// Month, day and year of four digits: the one form that a Date column sorts by. A date of another form
// would show otherwise than in the table, and a day in front could be meant for a month.
std::optional<std::string> readDate(std::string_view text) {
    constexpr std::size_t yearDigits = 4;
    const std::vector<std::string_view> parts = core::split(text, '/');
    if (parts.size() != 3) return std::nullopt;
    for (const std::string_view part : parts)
        if (part.empty() || digitsAt(part) != part.size()) return std::nullopt;
    if (parts[0].size() > 2 || parts[1].size() > 2 || parts[2].size() != yearDigits) return std::nullopt;
    const auto month = static_cast<unsigned>(number(parts[0]));
    const auto day = static_cast<unsigned>(number(parts[1]));
    const int year = number(parts[2]);
    if (!std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(month),
                                     std::chrono::day(day))
             .ok())
        return std::nullopt;
    return core::formatDate(year, month, day);
}

ColumnType guess(const CsvTable& table, std::size_t column, bool hasItemRows) {
    bool numbers = true, amounts = true, dates = true, isBlank = true;
    const auto look = [&](std::string_view value) {
        if (value.empty()) return;
        isBlank = false;
        numbers = numbers && isNumber(value);
        amounts = amounts && isAmount(value);
        dates = dates && readDate(value).has_value();
    };
    for (std::size_t row = 0; row < table.rowCount() && (numbers || amounts || dates); ++row) {
        const std::string_view cell = table.cell(row, column);
        if (!hasItemRows || cell.find(core::itemSeparator) == std::string_view::npos)
            look(core::trim(cell));
        else
            for (const std::string_view value : core::split(cell, core::itemSeparator))
                look(core::trim(value));
    }
    if (isBlank) return ColumnType::Text;
    if (numbers) return ColumnType::Number;
    if (amounts) return ColumnType::Currency;
    return dates ? ColumnType::Date : ColumnType::Text;
}

std::string storedValue(ColumnType type, std::string_view value) {
    if (type == ColumnType::Currency) return core::format(value, core::Mask::Money);
    if (type == ColumnType::Date) return readDate(value).value_or(std::string(value));
    return std::string(value);
}

ColumnType typeNamed(std::string_view name) {
    const auto found = std::ranges::find_if(
        types, [&](ColumnType type) { return core::equalsNoCase(core::typeName(type), name); });
    return found == types.end() ? ColumnType::None : *found;
}

} // namespace

std::string columnName(std::string_view headerCell) {
    std::string name(core::trim(headerCell));
    std::ranges::replace_if(
        name, [](char c) { return c == ' ' || c == '\n'; }, '_');
    return name;
}

std::string typedHeader(const core::Column& column) {
    // A damaged file can have columns of no type.
    const bool hasType = column.type() != ColumnType::None;
    return column.Text + ":" + std::string(core::typeName(hasType ? column.type() : ColumnType::Text));
}

std::optional<TableColumn> typedColumn(std::string_view headerCell) {
    const std::size_t colon = headerCell.rfind(':');
    if (colon == 0 || colon == std::string_view::npos) return std::nullopt;
    const ColumnType type = typeNamed(headerCell.substr(colon + 1));
    if (type == ColumnType::None) return std::nullopt;
    return TableColumn{std::string(headerCell.substr(0, colon)), type, false};
}

std::optional<std::vector<TableColumn>> typedColumns(const CsvTable& table) {
    std::vector<TableColumn> columns;
    for (const std::string_view cell : table.header()) {
        auto column = typedColumn(cell);
        if (!column) return std::nullopt;
        columns.push_back(*std::move(column));
    }
    return columns;
}

std::vector<TableColumn> columnsOf(const CsvTable& table, bool hasItemRows) {
    if (auto typed = typedColumns(table)) return *std::move(typed);
    std::vector<TableColumn> columns;
    for (std::size_t i = 0; i < table.header().size(); ++i)
        columns.push_back({columnName(table.header()[i]), guess(table, i, hasItemRows), true});
    return columns;
}

std::string storedCell(const TableColumn& column, std::string_view cell) {
    if (!column.isGuessed || column.type == ColumnType::Text) return std::string(cell);
    std::string stored;
    bool isFirst = true;
    for (const std::string_view value : core::split(cell, core::itemSeparator)) {
        if (!isFirst) stored.push_back(core::itemSeparator);
        stored.append(storedValue(column.type, core::trim(value)));
        isFirst = false;
    }
    return stored;
}

} // namespace exchange
