#include "core/number.h"
#include "core/currency.h"
#include "raised.h"
#include "readings.h"

#include <charconv>
#include <random>

using namespace core;
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
               "Overflow -> "
               "922337203685477.5808|-922337203685477.5809|922337203685477.58075|999999999999999999|1e15|"
               "1e999999; Type mismatch -> |abc|1/5/2004|------|(5",
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

// The plain forms have a faster way of their own; written as rarer forms, the same numbers take the other.
TEST(Number, BothWaysOfReadingAgree) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 5000; ++i) {
        std::string digits = std::to_string(random() >> random() % 64);
        const std::size_t places = random() % 8;
        if (places < digits.size()) digits.insert(digits.size() - places, ".");
        if (random() % 4 == 0) digits.back() = '5';
        const std::string plain = (random() % 2 == 0 ? "-" : "") + digits;
        SCOPED_TRACE(plain);
        EXPECT_EQ(toDouble(plain), stod(plain));
        EXPECT_EQ(toDouble(plain + "e0"), stod(plain));
        EXPECT_EQ(val(plain), val(" " + plain + "e0"));
        if (digits.find('.') > 14) continue;
        EXPECT_EQ(Currency::parse(plain).text(), Currency::parse(plain + "e0").text());
    }
}

} // namespace
