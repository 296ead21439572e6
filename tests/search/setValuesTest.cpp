#include "calc/recalculation.h"
#include "search/setValuesFrm.h"
#include "searchProgram.h"

#include <random>

using namespace search;

namespace {

// "=text" is an expression. Answers the cells that the column has then, or "! why not" and "!i2 why not".
std::string set(Program& program, const std::string& column, const std::string& text,
                Scope scope = allRecords) {
    const bool isExpression = text.starts_with("=");
    const NewValue value{column, text.substr(isExpression ? 1 : 0), isExpression};
    ValueMaker maker(program.app, value);
    if (maker.fault()) return "! " + *maker.fault();
    const SetOutcome outcome = setValues(program.app, maker, recordsIn(program.app, scope));
    if (outcome.refused != nullptr) return "!" + outcome.refused->Key.str() + " " + outcome.reason;
    std::string cells;
    for (int row = 1; row < program.app.document.LV.count(); ++row)
        cells += (row == 1 ? "" : "|") + program.cell(row, column.c_str());
    return cells;
}

TEST(SetValues, WhatACellGetsOrWhyNot) {
    const std::string records = "Bolt|$1.50|3|1/2/99|a.jpg|$4.50;2/3/04|n/a|-.5||| ;|$2,000.00|0|5/6/07||";
    for (const auto& c : table(
             "Name -> x y -> x y|x y|x y; Name ->  -> ||; Price -> 1234.567 -> "
             "$1,234.57|$1,234.57|$1,234.57; "
             "Price ->   -> $.00|$.00|$.00; Price -> 5 x -> ! \"5 x\" is no number; Qty ->  -> 0|0|0; "
             "Qty -> 1,5 -> 1,5|1,5|1,5; Qty -> x -> ! \"x\" is no number; Day ->  -> ||; "
             "Day -> Jan 5 2004 -> Jan 5 2004|Jan 5 2004|Jan 5 2004; Day -> 13/13/13 -> ! \"13/13/13\" is no "
             "date; "
             "Line -> 1 -> ! \"Line\" is calculated and takes no value; "
             "Photo -> a.jpg -> ! \"Photo\" holds pictures, which are chosen on the layout page; "
             // Cells that are no numbers are worth 0, as to a calculation; a name alone copies texts and
             // dates.
             "Name -> =price -> $1.50|n/a|$2,000.00; Name -> =Price * 2 -> $3.00|$.00|$4,000.00; "
             "Qty -> =Price * 1.5 -> 2.25|0|3000; Price -> =Qty / 3 -> $1.00|-$.17|$.00; Qty -> =Name -> "
             "0|0|0; "
             "Day -> =day -> 1/2/99||5/6/07; Day -> =Name -> !i1 \"Bolt\" is no date; "
             "Day -> =1 + 1 -> ! A date is set to a date or to a column of dates, and cannot be worked out; "
             "Qty -> =Price / Qty -> !i3 Division by zero; Qty -> =( 1 - 1 ) / ( 1 - 1 ) -> !i1 Division by "
             "zero; "
             "Qty -> = -> ! There is no expression; Qty -> =Index -> "
             "! \"Index\" is neither a column nor a number (character 1); "
             "Qty -> =2 * Prise -> ! \"Prise\" is neither a column nor a number (character 5); "
             "Qty -> =2 * (Price+1) -> ! \"Price\" needs a blank on either side (character 5); "
             "Qty -> =Price Qty -> ! \"Qty\" is out of place (character 7); "
             "Qty -> =é -> ! \"é\" is neither a column nor a number (character 1); "
             "Qty -> =Price * ) -> ! \")\" is out of place (character 9); "
             "Qty -> =( 1e3 -> ! The expression is not complete (character 6); Qty -> =- -2 -> 2|2|2",
             3)) {
        SCOPED_TRACE(c[0] + " " + c[1]);
        Program program(DataFile("Name Price:2 Qty:4 Day:1 Photo:7 Line:5", records)
                            .sections("Formulas=Line,Price * Qty|"));
        const std::string before = program.cells();
        const std::string cells = set(program, c[0], c[1]);
        EXPECT_EQ(cells, c[2]);
        EXPECT_TRUE(!cells.starts_with("!") ||
                    (program.cells() == before && !program.app.document.bModified));
    }
    Program deep(DataFile("A:4", "1"));
    EXPECT_TRUE(set(deep, "A", "=" + std::string(9999, '(') + "1").starts_with("! "));
}

// What is set is what a calculation column of the same expression shows, and the sums are those of a
// recalculation of all records.
TEST(SetValues, AsACalculationColumnWouldWithItsSums) {
    std::mt19937 random(7);
    std::string records;
    for (int i = 0; i < 40; ++i)
        records += std::to_string(random() % 90) + "|$" + std::to_string(random() % 9) + ".25|x||;";
    Program program(
        DataFile("A:4 B:2 C Copy Sum:5", records).sections("Formulas=Sum,1|;Totaled Cols=A|B|Sum|"));
    calc::recalculateAfterDialog(program.app);
    for (int round = 0; round < 60; ++round) {
        std::string expression = "7";
        for (unsigned terms = random() % 5; terms > 0; --terms)
            expression += std::array{" + ", " - ", " * "}[random() % 3] +
                          std::string(std::array{"A", "B", "C", "( B - 2.5 )", "3"}[random() % 5]);
        program.app.document.formulas.clear();
        program.formula("Sum", expression);
        calc::recalculateAfterDialog(program.app);
        set(program, "Copy", "=" + expression);
        for (int row = 1; row <= 40; ++row)
            ASSERT_EQ(program.cell(row, "Copy"), program.cell(row, "Sum")) << expression;
        program.select({1 + static_cast<int>(random() % 40), 7});
        set(program, round % 2 == 0 ? "A" : "B", std::to_string(random() % 100), selectedRecords);
        const std::string after = program.cells();
        calc::recalculateAfterDialog(program.app);
        ASSERT_EQ(program.cells(), after) << expression;
    }
}

TEST(SetValues, ResultsFollowInBothStyles) {
    SearchProgram program(DataFile("Name Qty:4 Twice:5", "Bolt|1|2;Nut|2|4;bolt|3|6")
                              .sections("Formulas=Twice,Qty * 2|;Totaled Cols=Qty|Twice|"));
    core::Document& document = program.app.document;
    EXPECT_EQ(program.find("Name = bolt"), "i1 i3");
    document.searchLV.clearSelection();
    document.searchLV.at(2).Selected = true;
    EXPECT_EQ(set(program, "Qty", "=Qty + 4", foundRecords), "5|2|7");
    EXPECT_EQ(set(program, "Name", "x", selectedRecords), "Bolt|Nut|x");
    EXPECT_EQ(Program::cells(document.searchLV), "Bolt|5|10|;x|7|14|;------|12|24|;");

    const char* fields = "F|No|1|2|3|4;F|Item|1|2|3|4;F|Item|1|2|3|4;F|Paid|1|2|3|4";
    program.open(DataFile("No:4 Item Paid:2", "1|a@b@|$1.00;2|b@c@|$2.00;3|c@d@|$3.00")
                     .objects(fields)
                     .sections("DatabaseStyle=True;Invoice Cols=1|2|3|4|;Item Cols=1|2|3|4|"));
    EXPECT_EQ(set(program, "Item", "x"),
              "! \"Item\" has a value for each item row, which are typed on the layout page");
    EXPECT_EQ(set(program, "No", "=Item"), "! \"Item\" has a value for each item row");
    EXPECT_EQ(program.find("Paid >= 2"), "i2 i3");
    EXPECT_EQ(set(program, "Paid", "12345", foundRecords), "$1.00|$123.45|$123.45"); // as the layout reads it
    const core::Column& paid = document.searchLV.columns["Paid"];
    EXPECT_EQ(core::RecordsList::cell(document.searchLV.at(2), paid), "$123.45");
    EXPECT_EQ(core::RecordsList::cell(document.iLV.at(2), document.iLV.columns["Paid"]), "$123.45");
}

TEST(SetValues, TheDialogTellsWhatWillHappen) {
    Program program(DataFile("Name Price:2 Day:1 Ratio:5", "Bolt|$1.00||;Nut|$.00||;Saw|$2.00||")
                        .sections("Formulas=Ratio,1 / Price|"));
    const auto shown = [](const setValuesFrm& form) {
        std::string text = form.Label1 + (form.OKButtonEnabled ? "" : " no") + " [" + form.Label2 + "]";
        for (const auto& row : form.preview) text += " " + row.Record + ":" + row.Before + ">" + row.After;
        return text;
    };
    program.select({1, 2});
    setValuesFrm form(program.app);
    EXPECT_EQ(shown(form), "Set Name in 2 records [] Bolt:Bolt> Nut:Nut>");
    EXPECT_FALSE(form.Opt1[foundRecords].Enabled);
    form.List1_Click(1);
    form.Text1_Change("1234");
    EXPECT_EQ(shown(form), "Set Price in 2 records [] Bolt:$1.00>$12.34 Nut:$.00>$12.34");
    form.Text1_Change("12x");
    form.OKButton_Click();
    EXPECT_EQ(shown(form), "Set Price in 2 records no [\"12x\" is no number] Bolt:$1.00> Nut:$.00>");
    form.List1_Click(2);
    form.Text1_Change("");
    form.Text1_Change("12");
    EXPECT_EQ(form.Text1.Text, "12/");
    form.Text1_Change("12"); // Backspace
    EXPECT_EQ(form.Text1.Text + (form.unloaded ? "!" : ""), "12");
    // What the first five records do not show stops all the same.
    form.List1_Click(0);
    form.Opt1_Click(allRecords);
    form.Opt2_Click(true);
    form.Text1_Change("1 / Price");
    EXPECT_EQ(shown(form),
              "Set Name in 3 records no [Nut: Division by zero] Bolt:Bolt>$1.00 Nut:Nut> Saw:Saw>$.50");
    form.List1_Click(1);
    form.Text1_Change("Price - 1");
    form.OKButton_Click();
    EXPECT_EQ(program.told(),
              "! The values have been set, but 1 record could not be calculated: Division by zero.");
    EXPECT_EQ(program.cells(),
              "Bolt|$.00|||;Nut|-$1.00||-$1.00|;Saw|$1.00||$1.00|;------|------|------|------|;");
    EXPECT_TRUE(form.unloaded && program.app.document.bModified);
}

// Enter alone empties nothing, and nothing is set where one record would get no value.
TEST(SetValues, AsksBeforeItEmptiesAndRefusesAsAWhole) {
    SearchProgram program(DataFile("Name Price:2", "a|$1.00;b|$1.00;c|$1.00;d|$1.00;e|$1.00;f|$.00;g|$2.00"));
    program.find("Price <= 1");
    setValuesFrm form(program.app);
    const auto pressed = [&] {
        form.OKButton_Click();
        return program.told() + " " + program.cell(1, "Name") + program.cell(1, "Price");
    };
    program.platform.answers = {platform::Answer::No, platform::Answer::Yes};
    EXPECT_EQ(pressed(), "? Set Values: Do you want to empty Name in 6 records? No a$1.00");
    form.Opt2_Click(true);
    form.Text1_Change("1 / Price"); // the record is not among those that are shown
    EXPECT_EQ(pressed(),
              "! Nothing has been set.  The record \"f\" would get no value: Division by zero. a$1.00");
    form.Opt2_Click(false);
    form.Text1_Change("");
    EXPECT_EQ(pressed(), "? Set Values: Do you want to empty Name in 6 records? No $1.00");
    form.List1_Click(1);
    form.Text1_Change("1234");
    EXPECT_EQ(pressed() + " " + form.Text1.Text, " $12.34 12.34");
}

} // namespace
