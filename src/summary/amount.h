#pragma once

#include "core/column.h"
#include "core/decimal.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace summary {

// A number in fixed point with nine decimals, so that a sum is exact in whatever order it is made. What is
// larger than 1E+20 is carried as a double beside it.
class Amount {
public:
    __extension__ using Integer = __int128;

    constexpr Amount() = default;
    static Amount of(std::uint64_t digits, int places, bool negative);
    static Amount
    of(const core::Decimal& number); // with at most nine places, and 20 digits ahead of the point
    static Amount ofDouble(double value);
    static constexpr Amount ofWhole(std::int64_t value) { return Amount(Integer{value} * unit); }

    Amount& operator+=(const Amount& other) {
        billionths_ += other.billionths_;
        large_ += other.large_;
        return *this;
    }
    bool operator<(const Amount& other) const {
        if (large_ == 0 && other.large_ == 0) return billionths_ < other.billionths_;
        return toDouble() < other.toDouble();
    }
    bool operator==(const Amount& other) const {
        return billionths_ == other.billionths_ && large_ == other.large_;
    }

    // Half away from zero.
    Amount dividedBy(std::int64_t count) const;
    Amount rounded(int places) const;
    // The multiple of a width, which is above zero, that is next below, and the one above that.
    Amount floorTo(const Amount& width) const;
    // How many decimals it has, without zeros at the end.
    int places() const;

    double toDouble() const;
    // "-1234.5": all its decimals; from 1E+15 on as numbers stand in cells.
    std::string text() const;
    // "$1,234.50"
    std::string money() const;

private:
    static constexpr std::int64_t unit = 1'000'000'000;
    explicit constexpr Amount(Integer billionths) : billionths_(billionths) {}

    Integer billionths_ = 0;
    double large_ = 0;
};

// What a cell counts for in a sum, read as the Totals row reads it: amounts are rounded to cents, other
// numbers are the longest number at the head of the cell. Nothing for a cell that begins with no number.
std::optional<Amount> amountIn(std::string_view cell, core::ColumnType type);
// Whether the Totals row takes the cell for money.
bool isMoney(std::string_view cell, core::ColumnType type);
// The number that a cell is as a whole; nothing where it is none.
std::optional<Amount> numberIn(std::string_view cell);

} // namespace summary
