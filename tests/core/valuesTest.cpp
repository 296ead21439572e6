#include "core/currency.h"
#include "core/dates.h"
#include "core/format.h"
#include "core/number.h"
#include "raised.h"
#include "readings.h"

#include <charconv>
#include <cmath>
#include <random>

using namespace core;
using namespace std::chrono;
using namespace std::string_literals;
using std::stod;

namespace {

// The shortest text that leads to that very value.
std::string exact(double value) {
    char text[32];
    return {text, std::to_chars(std::begin(text), std::end(text), value + 0.0).ptr};
}

TEST(Number, ReadsAllFormsOfANumberAndNothingElse) {
    expectEach(
        "0 -> 0|$0|-0|1e-400|1e-330|0e999; 0.5 -> .5|+.5|5e-1|$.50|0.5000; 5 -> 5.|5$|5 $|$ 5|+5|5 "
        "+|5,|000000000000000000000000005; -7 -> -7|- 7|7-| 7 - |(7)|$-7|-$7|$(7)|($7)|-7$|(-7)|-(7); "
        "1234 -> 1,234|12,34|1,2,3,4|1.234e3|1.234D+03|1234E0| 1234 ; 12.34 -> 1,2.34|$12.34; "
        "-1234567.89 -> -$1,234,567.89|($1,234,567.89); 12345678901234567168 -> "
        "12345678901234567890|12,345,678,901,234,567,890; 0.30000000000000004 -> 0.30000000000000004; "
        "9007199254740992 -> 9007199254740993; 1e+308 -> 1e308|100000000e300; 1.5e-300 -> 15e-301; "
        "too large -> 1e309|-9e999999999999; "
        "no number -> | |.|-|+|$|()|-.|$.|(5|5)|((5))|-5-|--5|+-5|$$5|$5$|e5|1e|1e+|1e5.5|1 e5|1.2.3|1.5,0|,5|1 234|&H10|&O7|0x10|inf|nan|12a|a12|------|1/5/2004|1-5|10:30|5%|€5|Jan 5|1'000|1_000|1\0|5 ()|(5-)|(5$"s,
        [](const std::string& text) -> std::string {
            const std::optional<double> value = toDouble(text);
            if (!isNumeric(text)) return value ? "a value" : "no number";
            return value ? exact(*value) : "too large";
        });
}

TEST(Number, ValReadsTheHeadOfAText) {
    expectEach("0 -> | |abc|------|-|+|.|-.|$5|(5)|,5|&H10|inf|nan|e5|1e-999; 1 -> "
               "1|1,234|1e|1e+|1ex|1/5/2004|1@2|01|1-|+1|1:30; -12.5 -> -12.5|  -12.50kg|- 12.5|-1 2 . "
               "5|-125e-1|-12.5.6|-12.5 $; 123.5 -> 1\t2\r\n3 . 5|123.5,6|\t123.5; 0.25 -> .25|.25@|0.25-|25 "
               "E - 2|25d-2; 1000 -> 1e3|1 E + 3|10d2|1D3|1 000|1000.; 12345678901234567168 -> "
               "12345678901234567890|12345678901234567890,5; 0.12345678901234568 -> 0.1234567890123456789; "
               "1.7976931348623157e+308 -> 1e999; -1.7976931348623157e+308 -> -1e999",
               [](const std::string& text) { return exact(val(text)); });
    EXPECT_EQ(val("0." + std::string(400, '0') + "1") + val("1" + std::string(400, '0') + "e-400"), 1);
}

TEST(Number, WritesFifteenDigits) {
    expectEach("0 -> 0|-0|nan|inf|-inf; 0.3 -> 0.3|0.30000000000000004; -1.5 -> -1.5; 100 -> 100; 1 -> 1; -1 "
               "-> -1; 0.666666666666667 -> 0.66666666666666663; 123456789.123457 -> 123456789.123456789; "
               "1.0001 -> 1.0001; -2.25 -> -2.25; 123456789012345 -> 123456789012345|123456789012345.25; "
               "999999999999999 -> 999999999999999; 1E+15 -> 1e15|999999999999999.9; -1.23456789012346E+15 "
               "-> -1234567890123456; 1.5E+300 -> 1.5e300; 0.0001 -> 0.0001; 0.00012345 -> 0.00012345; 1E-05 "
               "-> 0.00001; -1.5E-07 -> -0.00000015; 4.94065645841247E-324 -> 5e-324; 1E+100 -> 1e100",
               [](const std::string& text) { return numberText(std::strtod(text.c_str(), nullptr)); });
    expectEach(
        "0.15 -> 0.15; 1 -> 1; 8.5 -> 8.5; -0.1 -> -0.1; 1E-05 -> 1e-5; 0 -> 0|nan; 16777216 -> 16777216",
        [](const std::string& text) { return numberText(std::stof(text)); });
    for (float value = 1e-3F; value < 1e9F; value *= -1.0173F)
        EXPECT_EQ(static_cast<float>(val(numberText(value))), value);
}

TEST(Number, RoundsHalvesToEven) {
    expectEach("0 -> 0.5|-0.5|0.49999999999999994|-0.2; 2 -> 1.5|2.5|2.4; -2 -> -1.5|-2.5; -3 -> -2.6; "
               "4503599627370497 -> 4503599627370497",
               [](const std::string& text) { return exact(roundHalfEven(stod(text))); });
    expectEach("32766 -> 32766.5; 32767 -> 32767.4; -32768 -> -32768.5; Overflow -> 32767.5|-32769|1e300|nan",
               [](const std::string& text) { return std::to_string(toInt16(stod(text))); });
    expectEach(
        "2147483647 -> 2147483647.4; -2147483648 -> -2147483648.5; Overflow -> 2147483647.5|-2147483649",
        [](const std::string& text) { return std::to_string(toInt32(stod(text))); });
}

TEST(Currency, HoldsFourDecimals) {
    expectEach("1234.5 -> $1,234.50|1234.5000|1.2345e3; -12 -> (12)|-12|12-|-11.99999; 0.5 -> "
               ".5|$0.50|0.50005|0.49995; -0.5 -> -.5; 0 -> 0|-0|0.00005|-0.00005|1e-99999; 0.0001 -> "
               "0.00006|1e-4; 0.0002 -> 0.00015|0.00025|15e-5|25e-5|0.0002499999999999999999999; 0.0003 -> "
               "0.000250000000000000000000001; -1.2346 -> -1.23455; -1.2344 -> -1.23445; 10 -> "
               "9.99995|99999.5e-4|1e1|000000000000000000000010; 922337203685477.5807 -> "
               "922337203685477.5807|922337203685477.58074; -922337203685477.5808 -> -922337203685477.5808; "
               "Overflow -> 922337203685477.5808|-922337203685477.5809|922337203685477.58075|"
               "999999999999999999|1e15|1e999999; Type mismatch -> |abc|1/5/2004|------|(5",
               [](const std::string& text) { return Currency::parse(text).text(); });
    const Currency most = Currency::parse("922337203685477.5807"), step = Currency::parse("0.0001");
    Currency sum;
    for (int i = 0; i < 1000; ++i) sum = sum + Currency::parse("0.1");
    EXPECT_EQ(sum, Currency::parse("100"));
    EXPECT_EQ((sum - Currency::parse("100.1")).toDouble(), -0.1);
    EXPECT_EQ(most - step + step, most);
    EXPECT_EQ(raisedBy([&] { (void)(most + step); }), errors::overflow);
    EXPECT_EQ(raisedBy([&] { (void)(Currency::parse("-922337203685477.5808") - step); }), errors::overflow);
}

const Mask allMasks[] = {Mask::Money, Mask::TwoDecimals, Mask::Whole, Mask::WholeCommas, Mask::InvoiceMoney};

TEST(Format, WritesEveryMask) {
    for (const auto& c : table(
             "0 -> $.00 -> .00; -0 -> $.00 -> .00; 0.5 -> $.50 -> .50 -> 1 -> 1; -0.5 -> -$.50 -> -.50 -> "
             "-1 -> -1; -0.001 -> $.00 -> .00; -0.005 -> -$.01 -> -.01; 0.49 -> $.49 "
             "-> .49; 1.005 -> $1.01 -> 1.01 -> 1 -> 1; -2.5 -> -$2.50 -> -2.50 -> -3 -> -3; 999.995 -> "
             "$1,000.00 -> 1000.00 -> 1000 -> 1,000;   $1,234.5  -> $1,234.50 -> 1234.50 -> 1235 -> 1,235; "
             "(1234567) -> -$1,234,567.00 -> -1234567.00 -> -1234567 -> -1,234,567; 1,2.34 -> $12.34 -> "
             "12.34 -> 12 -> 12; 1e3 -> $1,000.00 -> 1000.00 -> 1000 -> 1,000; 5e-3 -> $.01 -> .01; -1e-200 "
             "-> $.00 -> .00; 999999999999999.995 -> $1,000,000,000,000,000.00 -> 1000000000000000.00 -> "
             "1000000000000000 -> 1,000,000,000,000,000; 12345678901234567890.125 -> "
             "$12,345,678,901,234,567,890.13 -> 12345678901234567890.13 -> 12345678901234567890 -> "
             "12,345,678,901,234,567,890",
             5)) {
        SCOPED_TRACE(c[0]);
        for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(format(c[0], allMasks[i]), c[i % 4 + 1]);
    }
    EXPECT_EQ(format("1e308", Mask::Whole), "1" + std::string(308, '0'));
    // What is no number, or one of too many digits, comes back as it stands.
    for (const std::string_view text : split("|   |------| abc |1/5/2004|5 apples|(5|1e309|1e99999", '|'))
        for (const Mask mask : allMasks) EXPECT_EQ(format(text, mask), text);
}

// A value goes a shorter way than its text does, and must come out alike, next to a half above all.
TEST(Format, OfAValueIsThatOfItsText) {
    EXPECT_EQ(format(1.2649999999999999, Mask::Money) + format(434.99999999999994, Mask::Money),
              "$1.27$435.00");
    for (int i = -3000; i < 3000; i += 3)
        for (const double scale : {1.0, 1.0 / 3, 1.0 / 200, 1e-7, 1e5 + 0.01, 1e8 + 0.5}) {
            const double value = i * scale;
            for (const double near : {value, std::nextafter(value, 1e300), value + 0.005, value + 1e-13})
                for (const Mask mask : allMasks)
                    ASSERT_EQ(format(near, mask), format(std::string_view(numberText(near)), mask)) << near;
        }
}

// The plain forms have a faster way of their own; written as rarer forms, the same numbers take the other.
TEST(Number, BothWaysOfReadingAndWritingAgree) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 5000; ++i) {
        std::string plain = std::to_string(random() >> random() % 64);
        plain.insert(plain.size() - std::min<std::size_t>(plain.size(), random() % 8), ".");
        if (random() % 4 == 0) plain.back() = '5';
        if (random() % 2 == 0) plain.insert(0, "-");
        const std::string rare = plain + "e0";
        SCOPED_TRACE(plain);
        EXPECT_EQ(toDouble(plain), stod(plain));
        EXPECT_EQ(toDouble(rare), stod(plain));
        EXPECT_EQ(val(plain), val(" " + rare));
        for (const Mask mask : allMasks) EXPECT_EQ(format(plain, mask), format(rare, mask));
        if (plain.find('.') > 14) continue;
        EXPECT_EQ(Currency::parse(plain).text(), Currency::parse(rare).text());
    }
}

constexpr year_month_day today = 2023y / 6 / 15;

std::string written(DayValue day) {
    const year_month_day date(sys_days(1899y / 12 / 30) + days(day));
    return formatDate(int(date.year()), unsigned(date.month()), unsigned(date.day()));
}

TEST(Dates, ReadTheWrittenFormsAndNothingElse) {
    expectEach("01/05/2004 -> 01/05/2004|  1/5/2004  |1-5-2004|1 / 5 / 2004|1/5/4|2004-01-05|2004/1/5|Jan 5 "
               "2004|january 5, 2004|5 JAN 2004|5-Jan-04|2004-Jan-05|5Jan2004|1/5/2004 10:30:15 PM|5 - Jan - "
               "2004 10 : 30 : 15 pm; 01/05/2023 -> 1/5|Jan 5|1/5 3 PM|Jan 5 10:30; 12/25/2023 -> "
               "12/25|25/12|25-dec; 12/31/2004 -> 12/31/2004|31/12/2004; 02/29/2004 -> 2/29/2004|29/2/2004; "
               "02/29/2000 -> 2/29/2000|2/29/00; 01/01/2004 -> 1/2004|Jan 2004|2004-1-1; 01/05/2029 -> "
               "1/5/29; 01/05/1930 -> 1/5/30; 05/31/1999 -> may 31, 99|5/31/99; 01/31/2023 -> Jan 31; "
               "01/01/1932 -> Jan 32; 01/05/0100 -> 1/5/100; 12/31/9999 -> 12/31/9999; 12/12/2023 -> 12/12; "
               "12/30/1899 -> 12/30/1899|0:00|23:59:59|3PM|12:00 am|10:30:15 PM; "
               // No dates are numbers and texts; marks that are too many, missing or mixed; days that no
               // calendar has; months and times.
               "Type mismatch -> | "
               "|5|1.5|1,234|-5|5-|1e5|abc|------|1@2@|$1/5/2004|٣/٤/2004|/|1/|/1|12//|1/5/|1//2004|1/5/2004/"
               "6|1/5-2004|1 5 2004|1,5,2004|1.5.2004|1\t/5/2004|1/5/2004x|1 1 1 1 1 1 1 1 1 1 1 1 1 "
               "1|0/5/2004|1/0/2004|2/30/2004|2/29/2003|2/29/1900|2/29|4/31/2004|13/13/2004|31/4/"
               "2004|2004-13-05|13/2004|Jan 32 2004|1/5/099|1/5/99999|Jan|Foo 5 2004|Janu 5|Jan Feb 5|Jan 5 "
               "6 7|5 6 Jan|Jan 2004 5 6|PM|24:00|10:60|10:30:60|10:30:15:1|10:|:30|13 PM|0 AM|10:30 XM|5 "
               "10:30|10:30 5|10:30 1/5|1/5/2004 25:00|1/5/2004 10:3x",
               [](const std::string& text) {
                   EXPECT_EQ(isDate(text, today), dateValue(text, today).has_value());
                   return written(dateValueOrRaise(text, today));
               });
    EXPECT_TRUE(isDate("1/5/" + std::string(32, ' ') + "2004", today));
    for (DayValue day = -3000; day < 73000; day += 13) EXPECT_EQ(dateValue(written(day), today), day);
    // A day without a year follows the year that it is read in.
    EXPECT_EQ(written(dateValueOrRaise("2/29", 2024y / 1 / 1)), "02/29/2024");
}

} // namespace
