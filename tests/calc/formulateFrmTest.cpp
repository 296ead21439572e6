#include "calc/formulateFrm.h"

#include "calc/serialFrm.h"
#include "calc/serialNumbers.h"
#include "calcProgram.h"

using calc::formulateFrm;

namespace {

struct FormulateFrm : CalcTest {
    // Presses what the words stand for: a row of the columns ("#1"), a button, keys of the keypad, an
    // operator, or an entry of the field list. What the box holds in the end, and the expressions that have
    // changed.
    std::string press(formulateFrm& form, const std::string& keys) {
        const std::vector<formulateFrm::Row> before = form.colList;
        for (const std::string_view key : core::split(keys, ' ')) {
            if (key.starts_with('#')) form.colList_Click(std::stoi(std::string(key.substr(1))));
            if (key == "Back") form.backBtn_Click();
            if (key == "Clear") form.clearBtn_Click();
            if (key == "Apply") form.addCalcBtn_Click();
            if (key.size() == 1) form.NumKey_Click(key == "." ? 10 : key[0] - '0');
            const auto field = std::ranges::find(form.fieldList, key) - form.fieldList.begin();
            form.fieldList_Click(static_cast<std::size_t>(field)); // beyond the end for what is no field
            form.operatorBtn_Click(key);
        }
        std::string all = form.expTxt;
        for (std::size_t i = 0; i < before.size(); ++i)
            if (form.colList[i].Formula != before[i].Formula)
                all += " / " + form.colList[i].Name + "=" + form.colList[i].Formula;
        return all + (told().empty() ? "" : " told");
    }
};

TEST_F(FormulateFrm, Buttons) {
    // Nothing looks at what went before, but digits join the number across the blanks behind it. Back from
    // the first edit on forgets that too. An expression that goes takes with it what hangs on it, by any
    // substring; a name that is part of the word "Undefined" would find the rows marked already for ever.
    for (const auto& c :
         table("Price 5 Apply -> 5; #0 -> Price * Qty; #1 -> ; #1 Left Price Add 1 Right Divide 2 Subtract 3 "
               "->  ( Price + 1 )  / 2 - 3; #1 . 5 0 -> .50; #1 0 1 9 Multiply Add -> 019 *  + ; #1 Qty 5 "
               "Qty -> Qty5Qty; #0 7 -> A + 17 -> Sum,A + 1  ; #0 7 -> A +  7 -> Sum,A +  ; #0 7 -> 1. 7 -> "
               "Sum,1. ; #0 7 ->    7 -> Sum,   ; #0 Add 5 Back -> Price * Qty + ; #0 Add 5 Back Back -> "
               "Price * Qty; #0 Add 5 Back Back Back -> ; #0 Back 5 -> 5; #0 Back 5 Back Back Back -> ; #1 1 "
               "2 Clear 3 Back -> ; #0 1 2 #1 Back -> ; #1 5 #-1 #4 6 -> 56; #0 Clear Tax ->  told; #0 Clear "
               "Sum -> Sum; #0 Add 1 Apply ->  / Sum=Price * Qty + 1; #1 Left Sum Right Apply Back ->  / "
               "Tax= ( Sum ); #1 9 Apply Tax -> Tax / Tax=9; #0 Clear Apply ->  / Sum=Undefined / "
               "Tax=Undefined / Rate=Undefined -> Sum,1|Tax,Sum + 1|Rate,Tax * 2|fin,5; #2 Clear Apply ->  / "
               "Sum=Undefined / Rate=Undefined -> Sum,TaxRate|Tax,rate|Rate,3; #0 Clear Apply ->  / "
               "Sum=Undefined / Tax=Undefined -> Sum,Tax|Tax,Sum|Rate,3; #3 Clear Apply ->  / Sum=Undefined "
               "/ Rate=Undefined / fin=Undefined -> Sum,fin|Tax,1|Rate,Sum|fin,2",
               3)) {
        open(DataFile("Price:2 Name Qty:4 Day:1 Sum:5 Tax:5 Rate:5 fin:5 Img:7", "")
                 .section("Formulas", c[2].empty() ? "Sum,Price * Qty|" : c[2] + "|"));
        formulateFrm form(app);
        EXPECT_EQ(form.fieldList, (std::vector<std::string>{"Price", "Qty", "Sum", "Tax", "Rate", "fin"}));
        EXPECT_EQ(press(form, c[0]), c[1]) << c[0];
        EXPECT_EQ(form.fieldListEnabled && form.addCalcBtnEnabled, c[0].starts_with('#'));
    }
}

TEST_F(FormulateFrm, Closing) {
    open(DataFile("A:5 B:5 C:5 Qty:4", "old|old|old|2")
             .section("Totaled Cols", "A|")
             .section("Formulas", "Stale,1|A,B + 1|B,2|"));
    const SavedState before = saved();
    formulateFrm form(app);
    form.Form_Activate(); // which has columns, and stays
    form.donebtn_Click();
    // Sorted, and the missing ones named; nothing was applied, so that nothing is worked out.
    EXPECT_EQ(changesSince(before), "Formulas: B,2|A,B + 1|C,Undefined|\n");
    EXPECT_EQ(document.formulas.find("b")->item, "B,2");
    formulateFrm again(app);
    press(again, "#2 Qty Multiply . 1 0 Apply");
    EXPECT_FALSE(document.bModified || cell(1, "C") != "old");
    again.Form_QueryUnload();
    EXPECT_EQ(changesSince(before),
              "Begin Data: 3|2|$.20|2|;3|------|------|------|;\nFormulas: B,2|A,B + 1|C,Qty * .10|\n");
    EXPECT_TRUE(document.bModified && again.unloaded);
    EXPECT_EQ(panel(app::calculationPanel) + told(), "Done.");

    app::setDocumentModified(app, false);
    open(DataFile("Qty:4", "1").section("Formulas", "Stale,1|"));
    formulateFrm closing(app);
    closing.Form_Activate();
    closing.Form_QueryUnload(); // once is enough
    EXPECT_EQ(told(), "- There are no calculation columns in the current database.");
    EXPECT_TRUE(closing.unloaded && document.formulas.empty() && !document.bModified);
}

struct Serials : CalcTest {};

TEST_F(Serials, SetChangesTheCounterOfTheChosenColumn) {
    open(DataFile("No:4 Ticket:4 Day:1", "").section("Increments", "No,0|Ticket,41|"));
    calc::serialFrm form(app);
    form.List1_Click(1);
    EXPECT_EQ(form.Text1, "41");
    // The entry, what is typed, and what is stored; the number is looked at ahead of the entry.
    for (const auto& c :
         table("0 ->   100  -> No,100|Ticket,41|; 1 -> -5 -> No,100|Ticket,-5|; 1 -> 1.50 -> "
               "No,100|Ticket,1.50|; 1 -> $7 -> No,100|Ticket,7|; 1 -> 1,000 -> No,100|Ticket,1000|; -1 -> "
               "8; 2 -> 8; -1 -> x -> no; 1 ->  -> no; 0 -> 5 apples -> no; 1 -> --5 -> no",
               3)) {
        const SavedState before = saved();
        const bool isSet = c[2].size() > 2;
        app::setDocumentModified(app, false);
        form.text1HasFocus = false;
        form.List1_Click(std::stoi(c[0]));
        form.Text1 = c[1];
        form.setBtn_Click();
        EXPECT_EQ(changesSince(before), isSet ? "Increments: " + c[2] + "\n" : "") << c[1];
        const std::string done = (c[0] == "0" ? "No" : "Ticket") + ("'s value has been set to " + form.Text1);
        EXPECT_EQ(told(), isSet ? "- " + done : c[2].empty() ? "" : "i You entered a non numeric value.");
        EXPECT_TRUE(document.bModified == isSet && form.text1HasFocus == isSet) << c[1];
    }
}

TEST_F(Serials, WhatANewRecordProposes) {
    open(DataFile("No:4 Day:1 Name", "").section("Optioned Cols", "Day|").section("Increments", "No,7|"));
    for (const auto& c :
         table(" -> 1; 100 -> 101; -5 -> -4; 1.5 -> 2.5; 1,000 -> 2; 32767 -> 32768; 1e3 -> 1001")) {
        document.SerialsLV.at(1).subItem(1) = c[0];
        EXPECT_EQ(calc::proposedValue(app, "no"), c[1]) << "even where no option is on";
        EXPECT_EQ(saved()["Increments"], "No," + c[0] + "|") << "proposing uses up nothing";
        for (const char* column : {"No", "Day"}) calc::advanceSerial(document, column); // one has no counter
        EXPECT_EQ(saved()["Increments"], "No," + c[1] + "|");
    }
    for (const auto& c : table("Day -> 03/14/2026; Name -> none; day -> none"))
        EXPECT_EQ(calc::proposedValue(app, c[0]).value_or("none"), c[1]);
}

} // namespace
