#include "summary/amount.h"

#include "core/decimal.h"
#include "core/format.h"
#include "core/number.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace summary {

namespace {

constexpr int mostPlaces = 9;
constexpr int moneyPlaces = 2;
constexpr double mostExact = 1e20;
constexpr int mostExactDigits = 20; // ahead of the point
constexpr double mostPlain = 1e15;

constexpr std::array<std::int64_t, mostPlaces + 1> powersOfTen = [] {
    std::array<std::int64_t, mostPlaces + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
}();

std::int64_t powerOfTen(int exponent) {
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

Amount::Integer roundedQuotient(Amount::Integer value, std::int64_t divisor) {
    const Amount::Integer half = divisor / 2;
    return (value < 0 ? value - half : value + half) / divisor;
}

Amount::Integer flooredQuotient(Amount::Integer value, Amount::Integer divisor) {
    const Amount::Integer quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

std::optional<Amount> moneyIn(std::string_view cell) {
    using core::Rounding;
    if (const auto plain = core::readPlainNumber(cell))
        if (const auto cents = plain->digitsWith(moneyPlaces, Rounding::HalfAwayFromZero))
            return Amount::of(*cents, moneyPlaces, plain->negative);
    const std::optional<Amount> number = numberIn(cell);
    if (number) return number->rounded(moneyPlaces);
    const double head = core::val(cell);
    return head == 0 ? std::nullopt : std::optional(Amount::ofDouble(head));
}

} // namespace

Amount Amount::of(std::uint64_t digits, int places, bool negative) {
    Integer value = static_cast<Integer>(digits);
    if (places <= mostPlaces) {
        value *= powerOfTen(mostPlaces - places);
    } else {
        for (; places > mostPlaces + 1; --places) value /= 10;
        value = roundedQuotient(value, 10);
    }
    return Amount(negative ? -value : value);
}

Amount Amount::of(const core::Decimal& number) {
    Integer value = 0;
    for (int place = 0; place < number.point + mostPlaces; ++place) {
        const auto at = static_cast<std::size_t>(place);
        value = value * 10 + (at < number.digits.size() ? number.digits[at] - '0' : 0);
    }
    // Digits behind more zeros than there are places stand for nothing.
    return Amount(number.negative ? -value : value);
}

Amount Amount::ofDouble(double value) {
    Amount amount;
    if (std::abs(value) < mostExact)
        amount.billionths_ = static_cast<Integer>(
            std::round(static_cast<long double>(value) * static_cast<long double>(unit)));
    else
        amount.large_ = value;
    return amount;
}

Amount Amount::dividedBy(std::int64_t count) const {
    Amount result(roundedQuotient(billionths_, count));
    result.large_ = large_ / static_cast<double>(count);
    return result;
}

Amount Amount::rounded(int places) const {
    const std::int64_t step = powerOfTen(mostPlaces - places);
    Amount result(roundedQuotient(billionths_, step) * step);
    result.large_ = large_;
    return result;
}

Amount Amount::floorTo(const Amount& width) const {
    if (large_ != 0 || width.billionths_ <= 0) return *this;
    return Amount(flooredQuotient(billionths_, width.billionths_) * width.billionths_);
}

int Amount::places() const {
    int places = mostPlaces;
    while (places > 0 && billionths_ % powerOfTen(mostPlaces - places + 1) == 0) --places;
    return places;
}

double Amount::toDouble() const {
    return static_cast<double>(static_cast<long double>(billionths_) / static_cast<long double>(unit)) +
           large_;
}

std::string Amount::text() const {
    const double value = toDouble();
    if (std::abs(value) >= mostPlain) return core::numberText(value);
    const Integer size = billionths_ < 0 ? -billionths_ : billionths_;
    std::string text = billionths_ < 0 ? "-" : "";
    text.append(std::to_string(static_cast<std::uint64_t>(size / unit)));
    const int decimals = places();
    if (decimals == 0) return text;
    const std::string fraction = std::to_string(static_cast<std::uint64_t>(size % unit) + unit);
    return text.append(".").append(fraction, 1, static_cast<std::size_t>(decimals)); // behind the unit's 1
}

std::string Amount::money() const {
    return core::format(std::string_view(text()), core::Mask::Money);
}

bool isMoney(std::string_view cell, core::ColumnType type) {
    return type == core::ColumnType::Currency ||
           (type == core::ColumnType::Calculation && cell.find('.') != std::string_view::npos);
}

std::optional<Amount> amountIn(std::string_view cell, core::ColumnType type) {
    if (isMoney(cell, type)) return moneyIn(cell);
    // A comma or a dollar sign ends a number that is no money.
    if (cell.find_first_of(",$") == std::string_view::npos) {
        if (const std::optional<Amount> number = numberIn(cell)) return number;
    }
    const double head = core::val(cell);
    if (head != 0) return Amount::ofDouble(head);
    return core::isNumeric(cell) ? std::optional(Amount()) : std::nullopt;
}

std::optional<Amount> numberIn(std::string_view cell) {
    if (const auto plain = core::readPlainNumber(cell))
        return Amount::of(plain->digits, plain->places, plain->negative);
    const std::optional<core::Decimal> decimal = core::readDecimal(cell);
    if (!decimal) return std::nullopt;
    if (decimal->point > mostExactDigits) {
        const std::optional<double> value = core::toDouble(cell);
        return value ? std::optional(Amount::ofDouble(*value)) : std::nullopt;
    }
    return Amount::of(core::rounded(*decimal, mostPlaces, core::Rounding::HalfAwayFromZero));
}

} // namespace summary
