#include "core/format.h"

#include "core/number.h"

#include <array>
#include <cmath>

namespace core {

namespace {

// More digits than any double has ahead of its point: no amount, and a text of any length could ask for
// them with an exponent.
constexpr int mostWholeDigits = 309;

struct Shape {
    bool dollar = false;
    bool commas = false;
    int places = 0;
};

Shape shapeOf(Mask mask) {
    switch (mask) {
    case Mask::Money:
    case Mask::InvoiceMoney:
        return {true, true, 2};
    case Mask::TwoDecimals:
        return {false, false, 2};
    case Mask::Whole:
        return {false, false, 0};
    case Mask::WholeCommas:
        return {false, true, 0};
    }
    return {};
}

char digitAt(const Decimal& number, int place) {
    const bool isThere = place >= 0 && place < static_cast<int>(number.digits.size());
    return isThere ? number.digits[static_cast<std::size_t>(place)] : '0';
}

std::string formatDecimal(const Decimal& exact, const Shape& shape) {
    const Decimal number = rounded(exact, shape.places, Rounding::HalfAwayFromZero);
    std::string text;
    if (number.negative && !number.isZero()) text += '-';
    if (shape.dollar) text += '$';
    for (int place = 0; place < number.point; ++place) {
        if (shape.commas && place > 0 && (number.point - place) % 3 == 0) text += ',';
        text += digitAt(number, place);
    }
    if (shape.places == 0) return text;
    text += '.';
    const int first = number.isZero() ? 0 : number.point;
    for (int place = first; place < first + shape.places; ++place) text += digitAt(number, place);
    return text;
}

// Written from the end, digits with so many places as the shape has.
std::string formatDigits(std::uint64_t digits, bool negative, const Shape& shape) {
    std::array<char, 32> buffer; // 20 digits, 6 commas, a point, a dollar sign, a minus sign
    char* const end = buffer.data() + buffer.size();
    char* at = end;
    const bool isZero = digits == 0;
    for (int place = 0; place < shape.places; ++place, digits /= 10)
        *--at = static_cast<char>('0' + digits % 10);
    if (shape.places > 0) *--at = '.';
    for (int place = 0; digits > 0; ++place, digits /= 10) {
        if (shape.commas && place > 0 && place % 3 == 0) *--at = ',';
        *--at = static_cast<char>('0' + digits % 10);
    }
    if (shape.dollar) *--at = '$';
    if (negative && !isZero) *--at = '-';
    return std::string(at, end);
}

} // namespace

std::string format(std::string_view text, Mask mask) {
    const Shape shape = shapeOf(mask);
    if (const std::optional<PlainNumber> plain = readPlainNumber(text))
        if (const auto digits = plain->digitsWith(shape.places, Rounding::HalfAwayFromZero))
            return formatDigits(*digits, plain->negative, shape);
    const std::optional<Decimal> number = readDecimal(text);
    if (!number || number->point > mostWholeDigits) return std::string(text);
    return formatDecimal(*number, shape);
}

std::string format(double value, Mask mask) {
    // Fifteen digits decide how a value is rounded. Unless it lies next to a half they cannot differ from the
    // value itself, and the way through its text can be spared.
    const Shape shape = shapeOf(mask);
    constexpr double most = 1e9, nextToHalf = 1e-4;
    const double scaled = std::abs(value) * (shape.places == 0 ? 1 : 100);
    if (scaled < most) {
        const double whole = std::floor(scaled);
        const double rest = scaled - whole;
        if (std::abs(rest - 0.5) > nextToHalf)
            return formatDigits(static_cast<std::uint64_t>(whole) + (rest > 0.5 ? 1 : 0), value < 0, shape);
    }
    return format(std::string_view(numberText(value)), mask);
}

} // namespace core
