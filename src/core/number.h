#pragma once

#include "core/decimal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace core {

// Whether a text reads as a number: with a sign, a decimal point, thousands commas, a dollar sign, an
// exponent, or parentheses for a negative. The empty text and dates do not.
bool isNumeric(std::string_view text);
// The value of a text that isNumeric holds for; nothing for others, and for those beyond a double.
std::optional<double> toDouble(std::string_view text);

// The longest number at the head of a text, blanks, tabs and line ends skipped wherever they stand; 0
// where there is none. The decimal separator is the point; a comma or a dollar sign ends the number.
// What is too large for a double counts as the largest one.
double val(std::string_view text);

// Default text: up to 15 significant digits, no separators, no trailing zeros; scientific ("1.5E+20")
// from 1E+15 on and below 0.0001. What is no finite number reads "0".
std::string numberText(double value);
// The shortest text that reads back as the same single.
std::string numberText(float value);

double roundHalfEven(double value);
// Half to even; raise overflow.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

// A number as nearly all cells hold it: a minus and a dollar sign in front, thousands commas, a point,
// at most 18 digits. It is read and rounded without a text in between, since a recalculation or a
// search does so for every cell; all rarer forms go through Decimal, with the same results.
struct PlainNumber {
    bool negative = false;
    std::uint64_t digits = 0; // the point left out
    int places = 0;           // digits behind the point

    // The digits with so many behind the point; nothing when they are too many to count.
    std::optional<std::uint64_t> digitsWith(int wantedPlaces, Rounding rounding) const;
};
std::optional<PlainNumber> readPlainNumber(std::string_view text);

} // namespace core
