#include "core/currency.h"

#include "core/number.h"
#include "core/runTimeError.h"
#include "core/translate.h"

#include <limits>

namespace core {

namespace {

constexpr int currencyPlaces = 4;
constexpr int mostTenThousandths = 19; // of the number of ten thousandths
constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());

} // namespace

Currency Currency::parse(std::string_view text) {
    if (const std::optional<PlainNumber> plain = readPlainNumber(text)) {
        const std::optional<std::uint64_t> units = plain->digitsWith(currencyPlaces, Rounding::HalfEven);
        if (units && *units <= largest) {
            const auto value = static_cast<std::int64_t>(*units);
            return Currency(plain->negative ? -value : value);
        }
    }
    const std::optional<Decimal> read = readDecimal(text);
    if (!read) raise(errors::typeMismatch, core::fill(core::tr("\"%1\" is no amount"), {text}));
    const Decimal number = rounded(*read, currencyPlaces, Rounding::HalfEven);
    if (number.isZero()) return {};
    const int digits = number.point + currencyPlaces;
    if (digits > mostTenThousandths) raise(errors::overflow, std::string(text));
    // A number of 19 digits fits into the unsigned type, and may be beyond the signed one.
    std::uint64_t magnitude = 0;
    for (int i = 0; i < digits; ++i) {
        const auto place = static_cast<std::size_t>(i);
        magnitude = magnitude * 10 +
                    (place < number.digits.size() ? static_cast<unsigned>(number.digits[place] - '0') : 0U);
    }
    if (magnitude > largest + (number.negative ? 1 : 0)) raise(errors::overflow, std::string(text));
    return Currency(static_cast<std::int64_t>(number.negative ? ~magnitude + 1 : magnitude));
}

std::string Currency::text() const {
    const bool negative = value_ < 0;
    const auto bits = static_cast<std::uint64_t>(value_);
    const std::uint64_t magnitude = negative ? ~bits + 1 : bits;
    std::string fraction = std::to_string(10000 + magnitude % 10000).substr(1);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    std::string text = (negative ? "-" : "") + std::to_string(magnitude / 10000);
    if (!fraction.empty()) text.append(".").append(fraction);
    return text;
}

Currency Currency::operator+(Currency other) const {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(value_, other.value_, &sum))
        raise(errors::overflow, core::tr("sum of amounts"));
    return Currency(sum);
}

Currency Currency::operator-(Currency other) const {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(value_, other.value_, &difference))
        raise(errors::overflow, core::tr("sum of amounts"));
    return Currency(difference);
}

} // namespace core
