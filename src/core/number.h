#pragma once

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

// The longest number at the head of a text, blanks skipped; 0 where there is none. The decimal
// separator is the point; a comma or a dollar sign ends the number.
double val(std::string_view text);

// Default text: up to 15 significant digits, no separators, no trailing zeros; scientific ("1.5E+20")
// from 1E+15 on and below 0.0001.
std::string numberText(double value);
// The shortest text that reads back as the same single.
std::string numberText(float value);

double roundHalfEven(double value);
// Half to even; raise overflow.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

} // namespace core
