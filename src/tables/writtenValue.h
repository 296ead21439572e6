#pragma once

#include "core/column.h"
#include "exchange/sheet.h"
#include "tables/cellCheck.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tables {

enum class DateOrder : std::uint8_t { DayMonthYear, MonthDayYear, YearMonthDay };

// What may stand ahead of a number or behind it: nothing for any sign that is widely known, an empty text for
// no sign at all.
using CurrencySign = std::optional<std::string>;
// Those that can be told, the widely known ones first.
std::span<const std::string_view> currencySigns();

// How the cells of a column are read.
struct ReadAs {
    core::ColumnType type = core::ColumnType::Text;
    DateOrder dates = DateOrder::MonthDayYear;
    char decimal = '.';        // or ','; the other one, blanks and apostrophes divide thousands
    bool bToTheLetter = false; // cells whose type the table tells, in this program's own form
    CurrencySign sign = std::nullopt;
    bool operator==(const ReadAs&) const = default;
};

// A number as people write it, with thousands and a currency sign.
struct WrittenNumber {
    std::string digits; // "-1234.50"
    std::string sign;   // of the currency, as it is written; empty without one
    std::size_t places = 0;
    bool bGrouped = false;
};
// Nothing for other texts, and for codes: a needless zero in front, more digits than a sum keeps.
std::optional<WrittenNumber> writtenNumber(std::string_view text, char decimal,
                                           const CurrencySign& sign = std::nullopt);
// Whether a text is digits alone with a needless zero in front.
bool isCode(std::string_view text);

// A date in numbers; a year of four digits in front is one in whatever order. A name of a month is English.
struct WrittenDate {
    std::chrono::year_month_day day;
    bool bTime = false; // of day, other than midnight, stands behind it
    bool bFixed = true; // nothing else could be meant: a year in front, the name of a month
};
std::optional<WrittenDate> writtenDate(std::string_view text, DateOrder order);

// What a cell becomes in a column that is read so: amounts and dates in the program's own form.
CheckedCell readCell(const exchange::SheetCell& cell, const ReadAs& as, std::chrono::year_month_day today);

} // namespace tables
