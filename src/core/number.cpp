#include "core/number.h"

#include "core/decimal.h"
#include "core/runTimeError.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace core {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr int significantDigits = 15;

// The digits of a positive number without trailing zeros, and the power of ten of the first.
struct Scientific {
    std::string digits;
    int exponent = 0;
};

Scientific scientificOf(const char* first, const char* last) {
    Scientific result;
    const char* mark = first;
    while (*mark != 'e') {
        if (isDigit(*mark)) result.digits.push_back(*mark);
        ++mark;
    }
    const char* exponent = mark[1] == '+' ? mark + 2 : mark + 1;
    std::from_chars(exponent, last, result.exponent);
    result.digits.erase(std::max<std::size_t>(result.digits.find_last_not_of('0') + 1, 1));
    return result;
}

std::string textOf(const Scientific& number, bool negative) {
    std::string text = negative ? "-" : "";
    const auto count = static_cast<int>(number.digits.size());
    if (number.exponent >= significantDigits || number.exponent <= -5) {
        text += number.digits.substr(0, 1);
        if (count > 1) text.append(".").append(number.digits, 1);
        const std::string power = std::to_string(std::abs(number.exponent));
        return text.append(number.exponent < 0 ? "E-" : "E+")
            .append(power.size() < 2 ? "0" : "")
            .append(power);
    }
    if (number.exponent < 0)
        return text.append("0.")
            .append(static_cast<std::size_t>(-number.exponent - 1), '0')
            .append(number.digits);
    if (count <= number.exponent + 1)
        return text.append(number.digits).append(static_cast<std::size_t>(number.exponent + 1 - count), '0');
    const auto whole = static_cast<std::size_t>(number.exponent) + 1;
    return text.append(number.digits, 0, whole).append(".").append(number.digits, whole);
}

std::optional<double> parseDouble(const std::string& text) {
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) return std::nullopt;
    return value;
}

} // namespace

bool isNumeric(std::string_view text) {
    // Nearly every cell is plain digits or begins with a letter.
    bool digitsOnly = !text.empty();
    for (const char c : text) digitsOnly = digitsOnly && isDigit(c);
    return digitsOnly || readDecimal(text).has_value();
}

std::optional<double> toDouble(std::string_view text) {
    const std::optional<Decimal> decimal = readDecimal(text);
    if (!decimal) return std::nullopt;
    if (decimal->isZero() || decimal->point < -400) return 0.0;
    return parseDouble((decimal->negative ? "-." : ".") + decimal->digits + "e" +
                       std::to_string(decimal->point));
}

double val(std::string_view text) {
    std::string number;
    std::size_t at = 0;
    const auto skipBlanks = [&] {
        while (at < text.size() &&
               (text[at] == ' ' || text[at] == '\t' || text[at] == '\n' || text[at] == '\r'))
            ++at;
        return at < text.size() ? text[at] : '\0';
    };
    const auto takeDigits = [&] {
        std::size_t taken = 0;
        for (; isDigit(skipBlanks()); ++taken) number.push_back(text[at++]);
        return taken;
    };
    const char sign = skipBlanks();
    if (sign == '-' || sign == '+') {
        if (sign == '-') number.push_back('-');
        ++at;
    }
    std::size_t digits = takeDigits();
    if (skipBlanks() == '.') {
        ++at;
        number.push_back('.');
        digits += takeDigits();
    }
    if (digits == 0) return 0;
    const char mark = skipBlanks();
    if (mark == 'e' || mark == 'E' || mark == 'd' || mark == 'D') {
        ++at;
        const std::string mantissa = number;
        number.push_back('e');
        const char exponentSign = skipBlanks();
        if (exponentSign == '-' || exponentSign == '+') {
            number.push_back(exponentSign);
            ++at;
        }
        if (takeDigits() == 0) number = mantissa;
    }
    const std::optional<double> value = parseDouble(number);
    // What is too small counts as nothing, what is too large as the largest number there is.
    if (value) return *value;
    if (number.find("e-") != std::string::npos) return 0;
    const double largest = std::numeric_limits<double>::max();
    return number.front() == '-' ? -largest : largest;
}

std::string numberText(double value) {
    if (value == 0 || !std::isfinite(value)) return "0";
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                      std::chars_format::scientific, significantDigits - 1);
    return textOf(scientificOf(buffer.data(), result.ptr), value < 0);
}

std::string numberText(float value) {
    if (value == 0 || !std::isfinite(value)) return "0";
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                      std::chars_format::scientific);
    return textOf(scientificOf(buffer.data(), result.ptr), value < 0);
}

double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

namespace {

template <typename Integer>
Integer toInteger(double value) {
    const double rounded = roundHalfEven(value);
    // Written so that a value that is no number fails too.
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        raise(errors::overflow, numberText(value));
    return static_cast<Integer>(rounded);
}

} // namespace

std::int16_t toInt16(double value) {
    return toInteger<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return toInteger<std::int32_t>(value);
}

} // namespace core
