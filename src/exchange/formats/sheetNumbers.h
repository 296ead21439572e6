#pragma once

#include "exchange/sheet.h"

#include <optional>
#include <string>
#include <string_view>

namespace exchange {

// How a spreadsheet shows the numbers of a cell.
struct NumberShape {
    enum class What : std::uint8_t { Number, Date, Time, DateTime };
    What what = What::Number;
    int places = 0;           // at least so many behind the point
    bool bLeadingZero = true; // "0.5", not ".5"
    bool bMoney = false;      // with the sign of a currency
};
// "mm/dd/yyyy", "#,##0.00", "[h]:mm:ss"
NumberShape shapeOf(std::string_view formatCode);
// Of the formats that .xlsx knows by a number alone.
NumberShape builtInShape(std::size_t id);

// "-1234.50": 15 digits, as spreadsheets count, never with an exponent.
std::string numberDigits(double value, int places = 0, bool bLeadingZero = true);
// The digits with the zeros that the shown text has more, "12.5" and "12,50 kg" make "12.50".
std::string digitsAsShown(std::string digits, std::string_view shown);
// Nothing for a text that is no number at all.
std::optional<double> doubleIn(std::string_view text);

// A number as its shape shows it; what is no date for its size stays a number. Days count from 1900, with a
// 29th of February that year, or from 1904.
SheetCell shapedCell(double serial, const NumberShape& shape, bool b1904);
// The number of a day of a cell, "12/31/2024"; nothing for days before March 1900, which programs count
// differently.
std::optional<int> daySerial(std::string_view cell);
// "12/31/2024" as "2024-12-31".
std::string isoDate(std::string_view cell);

// "2024-12-31", "2024-12-31T13:05:00", "13:05:00"; a text where it is none of them.
SheetCell isoCell(std::string_view text);
// "PT13H05M00S"
SheetCell durationCell(std::string_view text);

} // namespace exchange
