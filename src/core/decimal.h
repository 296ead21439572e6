#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace core {

// A number as it was written: its digits, exact, before any rounding.
struct Decimal {
    bool negative = false;
    std::string digits; // without leading zeros; empty for zero
    int point = 0;      // digits ahead of the decimal point; may lie outside the digits

    bool isZero() const { return digits.empty(); }
};

// Reads everything that passes as a number: a sign in front or behind, a decimal point, thousands
// commas anywhere between the first digit and the point, a dollar sign in front or behind, an
// exponent, parentheses for a negative, blanks around. Nothing for all else.
std::optional<Decimal> readDecimal(std::string_view text);

enum class Rounding { HalfAwayFromZero, HalfEven };

// Cuts the digits behind the given number of decimal places.
Decimal rounded(const Decimal& number, int places, Rounding rounding);

} // namespace core
