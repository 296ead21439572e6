#include "calc/formulateFrm.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

using calc::formulateFrm;

namespace {

struct Shop : RecordsProgram {
    Shop()
        : RecordsProgram({{"Name", "3"},
                          {"Price", "2"},
                          {"Qty", "4"},
                          {"Day", "1"},
                          {"Sum", "5"},
                          {"Tax", "5"},
                          {"Img", "7"}}) {
        record({"Bolt", "$1.50", "2", "01/02/2003", "old", "old", ""});
        formula("Sum", "Price * Qty");
    }
};

std::string rows(const formulateFrm& form) {
    std::string all;
    for (const formulateFrm::Row& row : form.colList) all += row.Name + "=" + row.Formula + ";";
    return all;
}

// Presses what a word stands for: a keypad key, an operator, or an entry of the field list.
void press(formulateFrm& form, std::initializer_list<std::string_view> keys) {
    for (const std::string_view key : keys) {
        if (key == "Back") {
            form.backBtn_Click();
        } else if (key == "Clear") {
            form.clearBtn_Click();
        } else if (key == ".") {
            form.NumKey_Click(10);
        } else if (key.size() == 1 && key[0] >= '0' && key[0] <= '9') {
            form.NumKey_Click(key[0] - '0');
        } else if (const auto field = std::ranges::find(form.fieldList, key); field != form.fieldList.end()) {
            form.fieldList_Click(static_cast<std::size_t>(field - form.fieldList.begin()));
        } else {
            form.operatorBtn_Click(key);
        }
    }
}

TEST(FormulateFrmTest, showsCalculationColumnsAndWhatTheyMayReferTo) {
    Shop shop;
    const formulateFrm form(shop.app);
    EXPECT_EQ(rows(form), "Sum=Price * Qty;Tax=Undefined;");
    EXPECT_EQ(form.fieldList, (std::vector<std::string>{"Price", "Qty", "Sum", "Tax"}));
    EXPECT_FALSE(form.fieldListEnabled);
    EXPECT_FALSE(form.addCalcBtnEnabled);
}

TEST(FormulateFrmTest, withoutCalculationColumnsItCloses) {
    RecordsProgram program({{"Qty", "4"}});
    program.formula("Stale", "1");
    formulateFrm form(program.app);
    form.Form_Activate();
    EXPECT_EQ(program.platform.told(),
              "0|Ferrowick|There are no calculation columns in the current database.");
    EXPECT_TRUE(form.unloaded);
    EXPECT_TRUE(program.document.formulas.empty()) << "every way of closing stores the list";
    EXPECT_FALSE(program.document.bModified);
    Shop shop;
    formulateFrm other(shop.app);
    other.Form_Activate();
    EXPECT_FALSE(other.unloaded);
    EXPECT_TRUE(shop.platform.messages.empty());
}

TEST(FormulateFrmTest, whatTheButtonsWrite) {
    struct Case {
        std::initializer_list<std::string_view> keys;
        const char* expression;
    };
    const Case cases[] = {
        {{"Price", "Multiply", "Qty"}, "Price * Qty"},
        {{"Left", "Price", "Add", "1", "Right", "Divide", "2", "Subtract", "3"}, " ( Price + 1 )  / 2 - 3"},
        {{"1", "2", ".", "5", "0"}, "12.50"},
        {{".", "5"}, ".5"},
        {{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}, "0123456789"},
        {{"7", "Add", "8"}, "7 + 8"},
        {{"Add", "Add"}, " +  + "},
        {{"Price", "Qty"}, "PriceQty"}, // nothing looks at what went before
        {{"Qty", "5"}, "Qty5"},
        {{"5", "Qty"}, "5Qty"},
        {{"Right", "5"}, " ) 5"},
        {{"Modulo"}, ""}};
    for (const Case& c : cases) {
        Shop shop;
        formulateFrm form(shop.app);
        form.colList_Click(1);
        press(form, c.keys);
        EXPECT_EQ(form.expTxt, c.expression);
    }
}

TEST(FormulateFrmTest, aDigitJoinsTheNumberAcrossBlanksBehindIt) {
    const std::pair<const char*, const char*> cases[] = {
        {"A + 1  ", "A + 17"}, {"A +  ", "A +  7"}, {"1. ", "1. 7"}, {"   ", "   7"}, {"Qty2 ", "Qty27"}};
    for (const auto& [before, after] : cases) {
        Shop shop;
        shop.document.formulas.clear();
        shop.formula("Sum", before);
        formulateFrm form(shop.app);
        form.colList_Click(0);
        form.NumKey_Click(7);
        EXPECT_EQ(form.expTxt, after);
    }
}

TEST(FormulateFrmTest, backAndClear) {
    Shop shop;
    formulateFrm form(shop.app);
    form.colList_Click(0);
    press(form, {"Add", "5"});
    EXPECT_EQ(form.expTxt, "Price * Qty + 5");
    press(form, {"Back"});
    EXPECT_EQ(form.expTxt, "Price * Qty + ");
    press(form, {"Back"});
    EXPECT_EQ(form.expTxt, "Price * Qty");
    press(form, {"Back"});
    EXPECT_EQ(form.expTxt, "");
    // The last edit is forgotten with it, so that Back from here on ends in the empty box.
    press(form, {"5", "Back"});
    EXPECT_EQ(form.expTxt, "");
    press(form, {"Back", "Back"});
    EXPECT_EQ(form.expTxt, "");
    press(form, {"1", "2", "Clear", "3", "Back"});
    EXPECT_EQ(form.expTxt, "");
}

TEST(FormulateFrmTest, choosingARowStartsAfresh) {
    Shop shop;
    formulateFrm form(shop.app);
    form.colList_Click(0);
    EXPECT_EQ(form.expTxt, "Price * Qty");
    EXPECT_TRUE(form.fieldListEnabled && form.addCalcBtnEnabled);
    press(form, {"1", "2"});
    form.colList_Click(1);
    EXPECT_EQ(form.expTxt, "") << "the word for a missing expression is none";
    press(form, {"Back"});
    EXPECT_EQ(form.expTxt, "");
    for (const int row : {-1, 2}) form.colList_Click(row);
    EXPECT_EQ(form.selectedRow, 1);
}

TEST(FormulateFrmTest, anUndefinedColumnIsNoOperand) {
    Shop shop;
    formulateFrm form(shop.app);
    form.fieldList_Click(0); // disabled as yet
    form.addCalcBtn_Click();
    EXPECT_EQ(form.expTxt, "");
    form.colList_Click(0);
    press(form, {"Clear", "Tax"});
    EXPECT_EQ(form.expTxt, "");
    EXPECT_EQ(shop.platform.told(),
              "1|Ferrowick|The column you selected is an undefined calculation column.  "
              "Please define an expression for it first.");
    press(form, {"Sum"}); // its own column
    EXPECT_EQ(form.expTxt, "Sum");
    form.fieldList_Click(99);
    EXPECT_EQ(form.expTxt, "Sum");
}

TEST(FormulateFrmTest, applyStoresTheTextWithoutTrailingBlanks) {
    Shop shop;
    formulateFrm form(shop.app);
    form.colList_Click(1);
    press(form, {"Left", "Sum", "Right"});
    form.addCalcBtn_Click();
    EXPECT_EQ(rows(form), "Sum=Price * Qty;Tax= ( Sum );");
    EXPECT_EQ(form.expTxt, "");
    press(form, {"Back"});
    EXPECT_EQ(form.expTxt, "");
    EXPECT_EQ(RecordsProgram::text(shop.document.formulas), "Sum,Price * Qty|") << "until the form closes";
}

TEST(FormulateFrmTest, undefinedSpreadsByAnySubstring) {
    struct Case {
        std::vector<std::string> formulas; // of A, B, Rate, TaxRate
        int cleared;
        const char* after;
    };
    const Case cases[] = {
        {{"1", "A + 1", "B * 2", "5"}, 0, "A=Undefined;B=Undefined;Rate=Undefined;TaxRate=5;"},
        {{"1", "2", "3", "4"}, 1, "A=1;B=Undefined;Rate=3;TaxRate=4;"},
        {{"TaxRate", "rate", "3", "4"}, 2, "A=Undefined;B=rate;Rate=Undefined;TaxRate=4;"},
        {{"B", "A", "3", "4"}, 0, "A=Undefined;B=Undefined;Rate=3;TaxRate=4;"},
        {{"A", "2", "3", "4"}, 0, "A=Undefined;B=2;Rate=3;TaxRate=4;"},
        {{"TaxRate", "1", "A", "Undefined"}, 3, "A=Undefined;B=1;Rate=Undefined;TaxRate=Undefined;"}};
    for (const Case& c : cases) {
        RecordsProgram program({{"A", "5"}, {"B", "5"}, {"Rate", "5"}, {"TaxRate", "5"}});
        const char* names[] = {"A", "B", "Rate", "TaxRate"};
        for (std::size_t i = 0; i < 4; ++i) program.formula(names[i], c.formulas[i]);
        formulateFrm form(program.app);
        form.colList_Click(c.cleared);
        form.clearBtn_Click();
        form.addCalcBtn_Click();
        EXPECT_EQ(rows(form), c.after) << testing::PrintToString(c.formulas);
    }
}

// A name that is part of the word would find the rows marked already for ever.
TEST(FormulateFrmTest, undefinedEndsForANameInsideTheWord) {
    RecordsProgram program({{"fin", "5"}, {"B", "5"}});
    program.formula("fin", "1");
    program.formula("B", "fin + 1");
    formulateFrm form(program.app);
    form.colList_Click(0);
    press(form, {"Clear"});
    form.addCalcBtn_Click();
    EXPECT_EQ(rows(form), "fin=Undefined;B=Undefined;");
}

TEST(FormulateFrmTest, closingSortsTheFormulasAndNamesTheMissingOnes) {
    RecordsProgram program({{"A", "5"}, {"B", "5"}, {"C", "5"}});
    program.formula("Stale", "1");
    program.formula("A", "B + 1");
    program.formula("B", "2");
    program.record({"old", "old", "old"});
    formulateFrm form(program.app);
    form.donebtn_Click();
    EXPECT_EQ(RecordsProgram::text(program.document.formulas), "B,2|A,B + 1|C,Undefined|");
    EXPECT_EQ(program.document.formulas.find("b")->item, "B,2");
    EXPECT_FALSE(program.document.bModified) << "nothing was applied";
    EXPECT_EQ(program.cells(program.LV), "old|old|old|;------|------|------|;");
    form.Form_QueryUnload(); // closing runs its steps once
    EXPECT_EQ(program.document.formulas.count(), 3U);
}

TEST(FormulateFrmTest, closingAfterApplyRecalculates) {
    Shop shop;
    shop.total({"Sum", "Tax"});
    formulateFrm form(shop.app);
    form.colList_Click(1);
    press(form, {"Sum", "Multiply", ".", "1", "0"});
    form.addCalcBtn_Click();
    EXPECT_EQ(shop.cell(1, "Tax"), "old");
    form.Form_QueryUnload();
    EXPECT_EQ(RecordsProgram::text(shop.document.formulas), "Sum,Price * Qty|Tax,Sum * .10|");
    EXPECT_EQ(shop.cell(1, "Sum"), "$3.00");
    EXPECT_EQ(shop.cell(1, "Tax"), "$.30");
    EXPECT_EQ(shop.totals(), "------|------|------|------|$3.00|$.30|------|");
    EXPECT_TRUE(shop.document.bModified);
    EXPECT_EQ(shop.panel(app::calculationPanel), "Done.");
}

} // namespace
