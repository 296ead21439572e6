#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace core {

// An amount in fixed point with four decimals, from -922337203685477.5808 to 922337203685477.5807.
class Currency {
public:
    constexpr Currency() = default;
    static constexpr Currency fromTenThousandths(std::int64_t value) { return Currency(value); }

    // Takes all that isNumeric takes, exactly; a longer fraction is rounded to four places, a half to
    // the even one. Raises typeMismatch and overflow.
    static Currency parse(std::string_view text);

    // Without separators and trailing zeros: "1234.5".
    std::string text() const;
    double toDouble() const { return static_cast<double>(value_) / 10000; }
    std::int64_t tenThousandths() const { return value_; }

    // Raise overflow.
    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    bool operator==(const Currency&) const = default;

private:
    explicit constexpr Currency(std::int64_t value) : value_(value) {}

    std::int64_t value_ = 0;
};

} // namespace core
