#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace core {

// Dates are read in the US forms, whatever the locale: month, day, year in numbers with "/" or "-",
// month names in front of or behind the day, years of two digits (00 to 29 are 2000 to 2029) or four,
// a year in front, no year at all (this year), a time behind the date or alone. When the month cannot
// be one, day and month change places. A plain number is no date.

// Days since 12/30/1899, which is what a time alone counts as.
using DayValue = long;

bool isDate(std::string_view text, std::chrono::year_month_day today);
std::optional<DayValue> dateValue(std::string_view text, std::chrono::year_month_day today);
// Raises typeMismatch for a text that is no date.
DayValue dateValueOrRaise(std::string_view text, std::chrono::year_month_day today);

// As cells hold it: mm/dd/yyyy.
std::string formatDate(int year, unsigned month, unsigned day);

} // namespace core
