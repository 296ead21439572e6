#include "core/format.h"
#include "core/number.h"
#include "readings.h"

#include <cmath>
#include <random>

using namespace core;

namespace {

constexpr Mask allMasks[] = {Mask::Money, Mask::TwoDecimals, Mask::Whole, Mask::WholeCommas,
                             Mask::InvoiceMoney};

TEST(Format, WritesEveryMask) {
    for (const auto& c :
         table("0 -> $.00 -> .00; -0 -> $.00 -> .00; 0.5 -> $.50 -> .50 -> 1 -> 1; -0.5 -> -$.50 -> -.50 -> "
               "-1 -> -1; -0.001 -> $.00 -> .00; -0.005 -> -$.01 -> -.01; 0.49 -> $.49 "
               "-> .49; 1.005 -> $1.01 -> 1.01 -> 1 -> 1; -2.5 -> -$2.50 -> -2.50 -> -3 -> -3; 999.995 -> "
               "$1,000.00 -> 1000.00 -> 1000 -> 1,000;   $1,234.5  -> $1,234.50 -> 1234.50 -> 1235 -> 1,235; "
               "(1234567) -> -$1,234,567.00 -> -1234567.00 -> -1234567 -> -1,234,567; 1,2.34 -> $12.34 -> "
               "12.34 -> 12 -> 12; 1e3 -> $1,000.00 "
               "-> 1000.00 -> 1000 -> 1,000; 5e-3 -> $.01 -> .01; -1e-200 -> $.00 -> "
               ".00; 999999999999999.995 -> $1,000,000,000,000,000.00 -> 1000000000000000.00 -> "
               "1000000000000000 -> 1,000,000,000,000,000; 12345678901234567890.125 -> "
               "$12,345,678,901,234,567,890.13 -> 12345678901234567890.13 -> 12345678901234567890 -> "
               "12,345,678,901,234,567,890",
               5)) {
        SCOPED_TRACE(c[0]);
        for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(format(c[0], allMasks[i]), c[i + 1]);
        EXPECT_EQ(format(c[0], Mask::InvoiceMoney), c[1]);
    }
    EXPECT_EQ(format("1e308", Mask::Whole), "1" + std::string(308, '0'));
    // What is no number, or one of too many digits, comes back as it stands.
    for (const std::string_view text : split("|   |------| abc |1/5/2004|5 apples|(5|1e309|1e99999", '|'))
        for (const Mask mask : allMasks) EXPECT_EQ(format(text, mask), text);
}

// The plain forms have a faster way of their own; with an exponent a number takes the other.
TEST(Format, BothWaysOfWritingAgree) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 5000; ++i) {
        std::string text = std::to_string(random() >> random() % 64);
        text.insert(text.size() - std::min<std::size_t>(text.size(), random() % 6), ".");
        for (const Mask mask : allMasks)
            EXPECT_EQ(format("-" + text, mask), format("-" + text + "e0", mask)) << text;
    }
}

// A value goes a shorter way than its text does, and must come out alike, next to a half above all.
TEST(Format, OfAValueIsThatOfItsText) {
    EXPECT_EQ(format(1.2649999999999999, Mask::Money) + format(434.99999999999994, Mask::Money),
              "$1.27$435.00");
    for (int i = -3000; i < 3000; ++i)
        for (const double scale : {1.0, 1.0 / 3, 1.0 / 200, 1e-7, 1e5 + 0.01, 1e8 + 0.5}) {
            const double value = i * scale;
            for (const double near : {value, std::nextafter(value, 1e300), value + 0.005, value + 1e-13})
                for (const Mask mask : allMasks)
                    ASSERT_EQ(format(near, mask), format(std::string_view(numberText(near)), mask)) << near;
        }
}

} // namespace
