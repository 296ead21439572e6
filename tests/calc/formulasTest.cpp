#include "calc/formulas.h"

#include "calc/evaluator.h"
#include "calcProgram.h"
#include "core/number.h"
#include "core/runTimeError.h"

using namespace std::string_literals;

namespace {

// The value, or what is wrong.
std::string outcome(const std::string& text) {
    const std::string longer = text + " 1"; // what stands behind the text in memory does not belong to it
    try {
        return core::numberText(calc::evaluate(std::string_view(longer).substr(0, text.size())));
    } catch (const core::RunTimeError& error) {
        return std::string(error.what()).substr(0, 8);
    }
}

TEST(Evaluator, Expressions) {
    // Between two "~" stands one text. Refused are also words of the script language, and what looks like a
    // letter and is none.
    const std::pair<const char*, std::string> cases[] = {
        {"0", "0~-0~A~Zz~aZ~z~Größe~Ä_1~цена*2~x-x~inf~nan~e5~1e-400~Todo~Android~ª~µ~º~À"},
        {"0.5", ".5~0.5~5e-1~1/2~1.0/2.~-1/-2"},
        {"0.3", "0.1+0.2"},
        {"2", "6/3~2.~+2~--2~8/2/2~5-2-1~1+1~((2))~2*(1)~2 ~ 2~1 + 1"},
        {"7", "1+2*3~2*3+1~10-6/2~(1+2)*3-2~5+-+-2~5--2~5-(-2)~7+Price"},
        {"-6", "2*-3~-2*3~-(2+4)~3*(1-3)~-12/2~-12*2/4"},
        {"1000", "1e3~1E3~1e+3~10e2~1000.0~9+991"},
        {"Syntax e", "~ ~1+~*2~1*/2~1//2~()~(1~1)~(1))~((1)~)(~1 2~1Price~Price "
                     "1~Price(1)~(1)(2)~2(3)~(2)3~1.2.3~1..2~.~1e~1e+~1e5.5~1,2~$5~5%~2^3~7\\2~1=1~1<2~1&2~&"
                     "H10~\"1\"~'1~#1#~1;2~1:2~a.b~_a~1_~a!~[a]~a@~{~`~1+\t2~1\n~True~not~MOD~7mod2~Next+1~"
                     "With~To~5×3~×~÷~€~Preis€~a–b~“1”~½~x²~\xA0"
                     "1~\xFF~Gr\xF6\xDF"
                     "e~\xE2\x82~a\xC2~1\0~\0001"s},
        {"Division", "1/0~0/0~-1/(2-2)~1/Price~1/0.0~1/1e-400~5+3*(1/(Price))"},
        {"Overflow", "1e309~-1e309~1e308*10~1e308+1e308~-1e308-1e308~1/1e-309"}};
    for (const auto& [expected, texts] : cases)
        for (const std::string_view text : core::split(texts, '~'))
            EXPECT_EQ(outcome(std::string(text)), expected) << '"' << text << '"';
}

// A file can hold any text for an expression, so that neither depth nor length may end the program.
TEST(Evaluator, DeepAndLongTexts) {
    const auto text = [](int times, char c) { return std::string(static_cast<std::size_t>(times), c); };
    EXPECT_EQ(outcome(text(250, '(') + "3" + text(250, ')')), "3");
    EXPECT_EQ(outcome(text(251, '(') + "3" + text(251, ')')), "Syntax e");
    EXPECT_EQ(outcome(core::replaceAll(text(1000, '1'), "1", "(1)+") + "0"), "1000") << "side by side";
    EXPECT_EQ(outcome(text(1'000'001, '-') + text(1'000'000, '0') + "7"), "-7");
}

using Formulas = CalcTest;

TEST_F(Formulas, ResultsByWhatTheCellsHold) {
    // An expression, its result, the quantity, the price. Whole results stand as they are, fractions are
    // money, and so is all with a point in the expression or in any cell, or of a Currency column. Cells may
    // have blanks, commas, signs, exponents and parentheses; they are taken to four decimals, a half to the
    // even one. What is no number leaves the name, which is worth 0. A further comma ends the expression; a
    // token with its sign is no column's name. What fails leaves the cell. Next is a word of the script
    // language, and its cell a number.
    // Of several, each reads what the ones before it have written, and the first that fails is the last. What
    // goes wrong ahead of the first evaluation is no wrong expression.
    for (const auto& c :
         table("6 / 3 -> 2; 7 / 2 -> $3.50; 2 / 3 -> $.67; 0 - 7 / 2 -> -$3.50; 1 / 100000 -> 1E-05; 1000000 "
               "* 1000000000 -> 1E+15; 1234567.891 * 1000 -> $1,234,567,891.00; 1.0 - 1 -> $.00; Price -> "
               "$1,234.50 ->  -> $1,234.50; Price * 2 -> $20.00 ->  -> 10; Price - 5 -> -$7.50 ->  -> "
               "($2.50); Qty + Qty -> $5.00 -> 2.5; Qty + 1 -> $1.00 -> approx.; Name + 1 -> 1; Qty -> 7 ->  "
               " 7 ; Qty * 2 -> 2000 -> 1e3; Qty * 10000 -> $2.00 -> 0.00015; Qty * 10000 -> $2.00 -> "
               "0.00025; Qty * 2 -> 0; Qty + 3 -> 3 -> a dozen; Day + 3 -> 3; qTY * 2 -> 8 -> 4; PriceQty + "
               "1 -> 1 -> 4 -> $2.00; 1 2 + 3 -> 15; Qty Qty -> -8 -> -4;  ( Qty + 2 )  / 2   -> 3 -> 4; Qty "
               "+ 1,5 -> 5 -> 4; Index + 1 -> 1; 2 * -Qty -> 0; Undefined -> Undefined; 1 / Qty -> told a -> "
               "0; 5 Qty -> told a;  -> told a; 1e308 * 10 -> told a; Next + Day -> 4; B,A + 1|A,Qty / 2|C,A "
               "* 2| -> $1.50|1|$3.00 -> 3; A,Qty + 1|B,1 / Qty|C,2| -> told 1|b|c -> 0; A,Undefined|B,1 + "
               "1|C,fUndefinedx| -> Undefined|2|Undefined; A,Undefined|C,1 Qty +| -> told Undefined|b|c -> "
               "1; B,2|Gone,1| -> told a|2|c; Gone,Undefined| -> Element not found: Gone; A,Undefined|C,Qty "
               "+ 1| -> Overflow: 1e15 -> 1e15; B,2|C,Qty + 1| -> told a|2|c -> 1e15",
               4)) {
        SCOPED_TRACE(c[0] + " of " + c[2] + " and " + c[3]);
        const bool isOne = c[0].find('|') == std::string::npos;
        const std::string before = c[3] + "|" + c[2] + "|Bolt|01/02/2003|4|";
        open(DataFile("Price:2 Qty:4 Name Day:1 Next:4 A:5 B:5 C:5", before + "a|b|c")
                 .section("Formulas", isOne ? "A," + c[0] + "|" : c[0]));
        LV.at(1).Text = "99";     // the hidden column
        LV.at(1).cells[1] = c[2]; // with its blanks
        try {
            calc::CalculateRow(app, 1, LV);
        } catch (const core::RunTimeError& error) {
            EXPECT_EQ(error.what(), c[1]);
            continue;
        }
        const std::string said = told().starts_with(syntaxMessage) ? "told " : "";
        EXPECT_EQ(std::exchange(app.mainFrm.bCalcError, false), !said.empty());
        EXPECT_EQ(said + cells(LV.at(1)).substr(before.size()), c[1] + (isOne ? "|b|c|" : "|"));
    }
}

TEST_F(Formulas, TheOrderOfEvaluationIsOneExchangePass) {
    // An exchange brings another entry to the end, and its name is looked for from there on; a full sort by
    // dependency would put B ahead of C. Any substring counts, in the name too, but not in another case.
    for (const auto& c :
         table(" -> ; A,A + 1 -> A,A + 1; A,B + 1|B,2 -> B,2|A,B + 1; A,1|B,A -> A,1|B,A; X,Y|W,X|Y,1 -> "
               "Y,1|X,Y|W,X; X,Y|Z,W|Y,Z -> Z,W|Y,Z|X,Y; C,B|B,A|A,1 -> C,B|A,1|B,A; TaxRate,1|Tax,2 -> "
               "Tax,2|TaxRate,1; A,tax|Tax,1 -> A,tax|Tax,1; A,1|comma -> A,1|comma")) {
        std::vector<std::string> formulas;
        for (const std::string_view entry : core::split(c[0], '|')) formulas.emplace_back(entry);
        calc::SortFormulas(formulas);
        std::string sorted;
        for (const std::string& entry : formulas) sorted += (sorted.empty() ? "" : "|") + entry;
        EXPECT_EQ(sorted, c[1]) << c[0];
    }
}

TEST_F(Formulas, WhatIsWrongForEveryRecord) {
    open(DataFile("Qty:4", ""));
    for (const auto& c : table("Qty + 1 -> yes; Gone + 1 -> yes; 1 / 0 -> yes; Qty Qty -> yes; Qty + -> no"))
        EXPECT_EQ(calc::isExpression(LV, calc::Formula("A," + c[0])), c[1] == "yes") << c[0];
}

} // namespace
