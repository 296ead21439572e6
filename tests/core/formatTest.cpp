#include "core/format.h"

#include "core/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace core;

namespace {

TEST(FormatTest, writesEveryMask) {
    const char* cases[][5] = {{"0", "$.00", ".00", "", ""},
                              {"-0", "$.00", ".00", "", ""},
                              {"0.5", "$.50", ".50", "1", "1"},
                              {"-0.5", "-$.50", "-.50", "-1", "-1"},
                              {"0.05", "$.05", ".05", "", ""},
                              {"-0.001", "$.00", ".00", "", ""},
                              {"-0.005", "-$.01", "-.01", "", ""},
                              {"0.49", "$.49", ".49", "", ""},
                              {"1.005", "$1.01", "1.01", "1", "1"},
                              {"-2.5", "-$2.50", "-2.50", "-3", "-3"},
                              {"999.995", "$1,000.00", "1000.00", "1000", "1,000"},
                              {"  $1,234.5 ", "$1,234.50", "1234.50", "1235", "1,235"},
                              {"(1234567)", "-$1,234,567.00", "-1234567.00", "-1234567", "-1,234,567"},
                              {"1,2.34", "$12.34", "12.34", "12", "12"},
                              {"100000", "$100,000.00", "100000.00", "100000", "100,000"},
                              {"1e3", "$1,000.00", "1000.00", "1000", "1,000"},
                              {"5e-3", "$.01", ".01", "", ""},
                              {"1e-200", "$.00", ".00", "", ""},
                              {"-1e-200", "$.00", ".00", "", ""},
                              {"999999999999999.995", "$1,000,000,000,000,000.00", "1000000000000000.00",
                               "1000000000000000", "1,000,000,000,000,000"},
                              {"12345678901234567890.125", "$12,345,678,901,234,567,890.13",
                               "12345678901234567890.13", "12345678901234567890",
                               "12,345,678,901,234,567,890"}};
    for (const auto& [text, money, twoDecimals, whole, wholeCommas] : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(format(text, Mask::Money), money);
        EXPECT_EQ(format(text, Mask::InvoiceMoney), money);
        EXPECT_EQ(format(text, Mask::TwoDecimals), twoDecimals);
        EXPECT_EQ(format(text, Mask::Whole), whole);
        EXPECT_EQ(format(text, Mask::WholeCommas), wholeCommas);
    }
    EXPECT_EQ(format("1e308", Mask::Whole), "1" + std::string(308, '0'));
}

TEST(FormatTest, leavesATextThatIsNoNumber) {
    for (const char* text : {"", "   ", "------", " abc ", "1/5/2004", "5 apples", "(5", "1e99999"})
        for (const Mask mask : {Mask::Money, Mask::TwoDecimals, Mask::WholeCommas})
            EXPECT_EQ(format(text, mask), text);
}

TEST(FormatTest, roundsADoubleByItsDecimalDigits) {
    const std::pair<double, const char*> cases[] = {
        {0, "$.00"},           {1.005, "$1.01"},
        {2.675, "$2.68"},      {-8.345, "-$8.35"},
        {0.1 + 0.2, "$.30"},   {1234.5, "$1,234.50"},
        {-0.004999, "$.00"},   {4.35 * 100, "$435.00"},
        {1.1 * 1.15, "$1.27"}, {1e15, "$1,000,000,000,000,000.00"}};
    for (const auto& [value, money] : cases) EXPECT_EQ(format(value, Mask::Money), money) << value;
}

// The plain forms have a faster way of their own; with an exponent a number takes the other.
TEST(FormatTest, bothWaysOfWritingAgree) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 5000; ++i) {
        std::string text = std::to_string(random() >> random() % 64);
        text.insert(text.size() - std::min<std::size_t>(text.size(), random() % 6), ".");
        for (const Mask mask : {Mask::Money, Mask::TwoDecimals, Mask::Whole, Mask::WholeCommas})
            EXPECT_EQ(format("-" + text, mask), format("-" + text + "e0", mask)) << text;
        EXPECT_EQ(format(format(text, Mask::Money), Mask::Money), format(text, Mask::Money));
    }
}

// A value goes a shorter way than its text does, and must come out alike, next to a half above all.
TEST(FormatTest, ofAValueIsThatOfItsText) {
    for (int i = -3000; i < 3000; ++i)
        for (const double scale : {1.0, 1.0 / 3, 1.0 / 200, 1e-7, 1e5 + 0.01, 1e8 + 0.5}) {
            const double value = i * scale;
            for (const double near : {value, std::nextafter(value, 1e300), value + 0.005, value + 1e-13})
                for (const Mask mask : {Mask::Money, Mask::TwoDecimals, Mask::Whole, Mask::WholeCommas})
                    ASSERT_EQ(format(near, mask), format(std::string_view(numberText(near)), mask)) << near;
        }
}

} // namespace
