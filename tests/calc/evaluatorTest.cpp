#include "calc/evaluator.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

#include <vector>

using calc::evaluate;
namespace errors = core::errors;

namespace {

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

TEST(EvaluatorTest, worksOutWhatItAccepts) {
    const std::pair<double, std::vector<std::string>> cases[] = {
        {0,
         {"0", "-0", "Price", "Größe", "Ä_1", "цена*2", "x-x", "inf", "nan", "e5", "1e-400", "Todo",
          "Android"}},
        {0.5, {".5", "0.5", "5e-1", "1/2", "1.0/2.", "-1/-2"}},
        {2,
         {"6/3", "2.", "+2", "--2", "8/2/2", "5-2-1", "1+1", "(2)", "((2))", "2*(1)", "2 ", " 2", "1 + 1"}},
        {7, {"1+2*3", "2*3+1", "10-6/2", "(1+2)*3-2", "5+-+-2", "5--2", "5-(-2)", "7+Price"}},
        {-6, {"2*-3", "-2*3", "-(2+4)", "3*(1-3)", "-12/2", "-12*2/4"}},
        {1000, {"1e3", "1E3", "1e+3", "10e2", "1000.0"}}};
    for (const auto& [value, texts] : cases)
        for (const std::string& text : texts) EXPECT_EQ(evaluate(text), value) << text;
    EXPECT_DOUBLE_EQ(evaluate("0.1+0.2"), 0.3);
}

TEST(EvaluatorTest, refusesEverythingElse) {
    const std::vector<std::string> cases = {
        "", " ", "1+", "*2", "1*/2", "1//2", "()", "(1", "1)", "(1))", "((1)", ")(", "1 2", "1Price",
        "Price 1", "Price(1)", "(1)(2)", "2(3)", "(2)3", "1.2.3", "1..2", ".", "1e", "1e+", "1e5.5", "1,2",
        "$5", "5%", "2^3", "7\\2", "1=1", "1<2", "1&2", "&H10", "\"1\"", "'1", "#1#", "1;2", "1:2", "a.b",
        "_a", "a!", "[a]", "a@", "1+\t2", "1\n", std::string("1\0", 2), std::string("\0", 1),
        // Words of the script language, and what looks like a letter and is none.
        "True", "not", "MOD", "7mod2", "Next+1", "Until", "With", "To", "5×3", "×", "÷", "€", "Preis€", "a–b",
        "“1”", "½", "x²",
        "\xA0"
        "1",
        "\xFF",
        "Gr\xF6\xDF"
        "e",
        "\xE2\x82", "a\xC2"};
    for (const std::string& text : cases)
        EXPECT_EQ(raisedBy([&] { evaluate(text); }), errors::syntax) << '"' << text << '"';
}

TEST(EvaluatorTest, divisionByZeroAndNumbersBeyondADouble) {
    for (const char* text : {"1/0", "0/0", "-1/(2-2)", "1/Price", "1/0.0", "1/1e-400", "5+3*(1/(Price))"})
        EXPECT_EQ(raisedBy([&] { evaluate(text); }), errors::divisionByZero) << text;
    for (const char* text : {"1e309", "-1e309", "1e308*10", "1e308+1e308", "-1e308-1e308", "1/1e-309"})
        EXPECT_EQ(raisedBy([&] { evaluate(text); }), errors::overflow) << text;
}

// A file can hold any text for an expression, so that neither depth nor length may end the program.
TEST(EvaluatorTest, deepAndLongTexts) {
    EXPECT_EQ(evaluate(repeated("(", 250) + "3" + repeated(")", 250)), 3);
    EXPECT_EQ(evaluate(repeated("(1)+", 1000) + "0"), 1000) << "groups side by side are no nesting";
    for (const int depth : {251, 1'000'000}) {
        EXPECT_EQ(raisedBy([&] { evaluate(repeated("(", depth)); }), errors::syntax) << depth;
        EXPECT_EQ(raisedBy([&] { evaluate(repeated("-(", depth)); }), errors::syntax) << depth;
    }
    EXPECT_EQ(evaluate("1" + repeated("+1", 500'000)), 500'001);
    EXPECT_EQ(evaluate("1" + repeated("*1/1", 250'000)), 1);
    EXPECT_EQ(evaluate(repeated("-", 1'000'001) + "1"), -1);
    EXPECT_EQ(evaluate(repeated("a", 1'000'000) + "+1"), 1);
    EXPECT_EQ(evaluate(repeated("0", 1'000'000) + "7"), 7);
}

} // namespace
