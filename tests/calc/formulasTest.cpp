#include "calc/formulas.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

namespace errors = core::errors;

namespace {

constexpr const char* syntaxMessage =
    "An error has occured during one of your calculations.  It appears that an expression is incorrectly "
    "defined.  Please check your syntax.";

struct Sale : RecordsProgram {
    Sale() : RecordsProgram({{"Price", "2"}, {"Qty", "4"}, {"Name", "3"}, {"Day", "1"}, {"Result", "5"}}) {}
};

struct Chain : RecordsProgram {
    Chain() : RecordsProgram({{"Qty", "4"}, {"A", "5"}, {"B", "5"}, {"C", "5"}}) {}

    std::string calculate(int row = 1) {
        calc::CalculateRow(app, row, LV);
        return cell(row, "A") + "|" + cell(row, "B") + "|" + cell(row, "C");
    }
};

TEST(FormulasTest, resultsByWhatTheCellsHold) {
    struct Case {
        const char *expression, *price, *qty, *result;
    };
    // Whole results stand as they are, fractions are money, and so is all with a point in the expression or
    // in any cell, or of a Currency column. Cells may have blanks, commas, signs, exponents and parentheses;
    // they are taken to four decimals, a half to the even one. What is no number leaves the name, which is
    // worth 0. A further comma ends the expression; a token with its sign is no column's name.
    const Case cases[] = {
        {"6 / 3", "", "", "2"},
        {"6/3", "", "", "2"},
        {"7 / 2", "", "", "$3.50"},
        {"1 / 2", "", "", "$.50"},
        {"2 / 3", "", "", "$.67"},
        {"1 - 2", "", "", "-1"},
        {"0 - 7 / 2", "", "", "-$3.50"},
        {"12345 * 1000", "", "", "12345000"},
        {"1 / 100000", "", "", "1E-05"},
        {"1000000 * 1000000000", "", "", "1E+15"},
        {"1234567.891 * 1000", "", "", "$1,234,567,891.00"},
        {"0.5 + 0.5", "", "", "$1.00"},
        {"1.0 - 1", "", "", "$.00"},
        {"Price", "$1,234.50", "", "$1,234.50"},
        {"Price * 2", "10", "", "$20.00"},
        {"Price * 2", "", "", "$.00"},
        {"Price - 5", "($2.50)", "", "-$7.50"},
        {"Price", "(1,000)", "", "-$1,000.00"},
        {"Qty + Qty", "", "2.5", "$5.00"},
        {"Qty + 1", "", "approx.", "$1.00"},
        {"Name + 1", "", "", "1"},
        {"Qty", "", "  7 ", "7"},
        {"Qty", "", "1,234", "1234"},
        {"Qty", "", "$7", "7"},
        {"Qty * 2", "", "1e3", "2000"},
        {"10 - Qty", "", "-5", "15"},
        {"10 - Qty", "", "(5)", "15"},
        {"10 - Qty", "", "5-", "15"},
        {"10 * Qty", "", "-2", "-20"},
        {"Qty * 10000", "", "0.00015", "$2.00"},
        {"Qty * 10000", "", "0.00025", "$2.00"},
        {"Qty * 2", "", "", "0"},
        {"Qty * 2", "", "   ", "0"},
        {"Qty + 3", "", "a dozen", "3"},
        {"Qty + 3", "", "1@2@", "3"},
        {"Day + 3", "", "", "3"},
        {"qTY * 2", "", "4", "8"},
        {"Qty5 + 1", "", "4", "1"},
        {"PriceQty + 1", "$2.00", "4", "1"},
        {"1 2 + 3", "", "", "15"},
        {"Qty 5", "", "4", "45"},
        {"Qty Qty", "", "-4", "-8"},
        {" ( Qty + 2 )  / 2  ", "", "4", "3"},
        {"Qty + 1,5", "", "4", "5"},
        {"Index + 1", "", "", "1"},
        {"2 * -Qty", "", "", "0"},
    };
    for (const Case& c : cases) {
        Sale sale;
        sale.record({c.price, c.qty, "Bolt", "01/02/2003", "old"}).Text = "99";
        sale.formula("Result", c.expression);
        calc::CalculateRow(sale.app, 1, sale.LV);
        EXPECT_EQ(sale.cell(1, "Result"), c.result) << c.expression << " of " << c.price << " and " << c.qty;
        EXPECT_FALSE(sale.app.mainFrm.bCalcError) << c.expression;
        EXPECT_TRUE(sale.platform.messages.empty()) << c.expression;
    }
}

TEST(FormulasTest, aFailureIsToldAndLeavesTheCell) {
    const std::pair<const char*, const char*> cases[] = {
        {"1 / Qty", "0"}, {"1 / Qty", ""},    {"1 / Qty", "0.00001"}, {"1 +", ""}, {"( 1", ""},
        {"5 Qty", ""},    {"Qty Qty )", "1"}, {"1 + + * 2", ""},      {"", ""},    {"Qty ^ 2", "3"},
        {"#!", ""},       {"Mod", ""},        {"1e308 * 10", ""}};
    for (const auto& [expression, qty] : cases) {
        Sale sale;
        sale.record({"", qty, "", "", "$9.99"});
        sale.formula("Result", expression);
        calc::CalculateRow(sale.app, 1, sale.LV);
        EXPECT_EQ(sale.cell(1, "Result"), "$9.99") << expression;
        EXPECT_TRUE(sale.app.mainFrm.bCalcError) << expression;
        ASSERT_EQ(sale.platform.messages.size(), 1U) << expression;
        EXPECT_EQ(sale.platform.told(), std::string("2|Ferrowick|") + syntaxMessage);
    }
}

TEST(FormulasTest, aColumnWithTheNameOfAKeywordFailsOnlyWhileItsCellIsEmpty) {
    RecordsProgram program({{"Next", "4"}, {"Result", "5"}});
    program.formula("Result", "Next + 1");
    program.record({"4", ""});
    program.record({"", ""});
    calc::CalculateRow(program.app, 1, program.LV);
    EXPECT_EQ(program.cell(1, "Result"), "5");
    calc::CalculateRow(program.app, 2, program.LV);
    EXPECT_TRUE(program.app.mainFrm.bCalcError);
}

TEST(FormulasTest, undefinedAnywhereInTheEntryIsWritten) {
    RecordsProgram program({{"A", "5"}, {"Undefined_Sum", "5"}, {"undefined_sum2", "5"}});
    program.record({"1", "2", "3"});
    program.formula("A", "Undefined");
    program.formula("Undefined_Sum", "1 + 1");
    program.formula("undefined_sum2", "1 + 1");
    calc::CalculateRow(program.app, 1, program.LV);
    EXPECT_EQ(program.cells(program.LV), "Undefined|Undefined|2|;------|------|------|;");
}

TEST(FormulasTest, aFormulaReadsWhatTheOnesBeforeItWrote) {
    Chain chain;
    chain.record({"3", "1", "1", "1"});
    chain.formula("B", "A + 1"); // ahead of A, so that it sees the cell of the time before
    chain.formula("A", "Qty / 2");
    chain.formula("C", "A * 2");
    EXPECT_EQ(chain.calculate(), "$1.50|2|$3.00");
    EXPECT_EQ(chain.calculate(), "$1.50|$2.50|$3.00");
}

TEST(FormulasTest, aFailureEndsTheRow) {
    Chain chain;
    chain.record({"0", "a", "b", "c"});
    chain.formula("A", "Qty + 1");
    chain.formula("B", "1 / Qty");
    chain.formula("C", "2");
    EXPECT_EQ(chain.calculate(), "1|b|c");
    EXPECT_EQ(chain.platform.messages.size(), 1U);
}

// What goes wrong ahead of the first evaluation is no wrong expression.
TEST(FormulasTest, errorsAreCaughtFromTheFirstEvaluationOn) {
    struct Case {
        const char *name, *expression, *qty;
        int error;
    };
    const Case cases[] = {{"Gone", "1", "1", errors::elementNotFound},
                          {"Gone", "Undefined", "1", errors::elementNotFound},
                          {"C", "Qty + 1", "1e15", errors::overflow},
                          {"C", "Qty + 1", "1e999", errors::overflow}};
    for (const Case& c : cases) {
        Chain first;
        first.record({c.qty, "a", "b", "c"});
        first.formula("A", "Undefined"); // evaluates nothing
        first.formula(c.name, c.expression);
        EXPECT_EQ(raisedBy([&] { first.calculate(); }), c.error) << c.name << " " << c.qty;
        EXPECT_TRUE(first.platform.messages.empty());

        Chain later;
        later.record({c.qty, "a", "b", "c"});
        later.formula("B", "2");
        later.formula(c.name, c.expression);
        EXPECT_EQ(later.calculate(), "a|2|c") << c.name << " " << c.qty;
        EXPECT_EQ(later.platform.lastMessage(), syntaxMessage);
    }
}

TEST(FormulasTest, theOrderOfEvaluationIsOneExchangePass) {
    using Formulas = std::vector<std::string>;
    const std::pair<Formulas, Formulas> cases[] = {
        {{}, {}},
        {{"A,A + 1"}, {"A,A + 1"}},
        {{"A,B + 1", "B,2"}, {"B,2", "A,B + 1"}},
        {{"A,1", "B,A"}, {"A,1", "B,A"}},
        // An exchange brings another entry to the end, and its name is looked for from there on.
        {{"X,Y", "W,X", "Y,1"}, {"Y,1", "X,Y", "W,X"}},
        {{"X,Y", "Z,W", "Y,Z"}, {"Z,W", "Y,Z", "X,Y"}},
        // A full sort by dependency would put B ahead of C.
        {{"C,B", "B,A", "A,1"}, {"C,B", "A,1", "B,A"}},
        // Any substring counts, in the name too, but not in another case.
        {{"TaxRate,1", "Tax,2"}, {"Tax,2", "TaxRate,1"}},
        {{"A,tax", "Tax,1"}, {"A,tax", "Tax,1"}},
        {{"Sum,Undefined", "fin,1"}, {"fin,1", "Sum,Undefined"}},
        {{"A,B", "B,A"}, {"B,A", "A,B"}},
        {{"A,1", "no comma"}, {"A,1", "no comma"}}};
    for (const auto& [before, after] : cases) {
        Formulas formulas = before;
        calc::SortFormulas(formulas);
        EXPECT_EQ(formulas, after) << testing::PrintToString(before);
    }
}

} // namespace
