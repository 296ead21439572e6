#include "core/format.h"

#include "core/decimal.h"
#include "core/number.h"

#include <cstdlib>

namespace core {

namespace {

// A number of a hundred digits is no amount; it is shown in its default form.
constexpr int mostDigits = 100;

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

} // namespace

std::string format(std::string_view text, Mask mask) {
    const std::optional<Decimal> number = readDecimal(text);
    if (!number || std::abs(number->point) > mostDigits) return std::string(text);
    return formatDecimal(*number, shapeOf(mask));
}

std::string format(double value, Mask mask) {
    return format(std::string_view(numberText(value)), mask);
}

} // namespace core
