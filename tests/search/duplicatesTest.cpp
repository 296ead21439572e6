#include "calc/recalculation.h"
#include "invoice/views.h"
#include "search/duplicatesFrm.h"
#include "search/serialCheckFrm.h"
#include "searchProgram.h"

#include <random>

using namespace search;

namespace {

// Each record is in the group of all that are equal to it, or in none.
TEST(Duplicates, FindsWhatALoopFinds) {
    std::mt19937 random(3);
    std::string records;
    for (int i = 0; i < 150; ++i)
        for (const char* end : {"|", ";"})
            records += std::array{"a", "A", " a ", "", "é", "É", "ab"}[random() % 7] + std::string(end);
    Program program(DataFile("A B", records));
    const core::RecordsList& list = program.app.document.LV;
    const std::vector<const core::Column*> both = {list.columns.find("A"), list.columns.find("B")};
    for (const bool bIgnoreCase : {false, true}) {
        const auto isEqual = [&](const core::Item& a, const core::Item& b) {
            return std::ranges::all_of(both, [&](const core::Column* column) {
                const auto text = [&](const core::Item& item) {
                    const std::string cell = core::RecordsList::cell(item, *column).str();
                    return bIgnoreCase ? core::upper(core::trim(cell)) : cell;
                };
                return text(a) == text(b);
            });
        };
        std::vector<EqualRecords> wanted;
        for (int row = 1; row < list.count(); ++row) {
            const auto group = std::ranges::find_if(
                wanted, [&](const EqualRecords& known) { return isEqual(*known.front(), list.at(row)); });
            if (group == wanted.end())
                wanted.push_back({&list.at(row)});
            else
                group->push_back(&list.at(row));
        }
        std::erase_if(wanted, [](const EqualRecords& group) { return group.size() < 2; });
        EXPECT_EQ(findDuplicates(list, both, bIgnoreCase), wanted);
    }
    EXPECT_TRUE(findDuplicates(list, {}, false).empty());
}

TEST(Duplicates, AreShownWalkedAndDeleted) {
    SearchProgram program(DataFile("No:4 Name Qty:4", "1|Bolt|2;2|Nut|3;3|bolt |2;4|Bolt|2;5|Saw|1;6|Nut|3")
                              .sections("Optioned Cols=No|;Increments=No,6|;Totaled Cols=Qty|"));
    calc::recalculateAfterDialog(program.app);
    duplicatesFrm form(program.app);
    const auto shown = [&] {
        std::string text = form.Label1;
        for (const auto& group : form.List2)
            text += " " + std::to_string(group.Records) + "=" + group.Values + (group.Selected ? "*" : "");
        return text + ": " + program.found();
    };
    EXPECT_EQ(shown(), "2 groups, 2 records behind the first of each 2=Bolt, 2* 2=Nut, 3: -");
    form.Check1_Click(true);
    EXPECT_EQ(shown(), "2 groups, 3 records behind the first of each 3=Bolt, 2* 2=Nut, 3: -");
    form.previousBtn_Click();
    EXPECT_EQ(shown(), "2 groups, 3 records behind the first of each 3=Bolt, 2 2=Nut, 3*: i2 i6");
    form.nextBtn_Click();
    form.List2_Select({0, 1});
    form.showBtn_Click();
    EXPECT_EQ(program.found() + " " + program.panel(app::recordsPanel), "i1 i3 i4 i2 i6 5 records.");
    EXPECT_EQ(program.app.mainFrm.theListView, &program.app.document.searchLV);
    form.deleteBtn_Click();
    EXPECT_EQ(program.told(), "! Confirm Deletion: Delete 3 records and keep the first of 2 groups?");
    program.platform.answers = {platform::Answer::Yes};
    form.deleteBtn_Click();
    EXPECT_EQ(program.cells(), "1|Bolt|2|;2|Nut|3|;5|Saw|1|;------|------|6|;");
    EXPECT_EQ(Program::cells(program.app.document.searchLV), "1|Bolt|2|;2|Nut|3|;------|------|5|;");
    EXPECT_TRUE(program.app.mainFrm.bConfirmDelete && program.app.document.bModified);
    EXPECT_EQ(shown(), "No two records are equal in these columns.: i1 i2");
    for (const std::size_t column : {1U, 2U}) form.List1_Check(column, false);
    EXPECT_EQ(form.Label1, "Choose the columns to compare.");
}

// One result is one to show.
TEST(Duplicates, LeaveTheFirstOnShow) {
    SearchProgram program(DataFile("Name", "Bolt;Nut;Bolt"));
    program.app.mainFrm.bConfirmDelete = false;
    duplicatesFrm form(program.app);
    form.showBtn_Click();
    form.deleteBtn_Click();
    EXPECT_EQ(program.app.mainFrm.theListView, &program.app.document.searchLV);
    EXPECT_EQ(program.found(), "i1");
}

// In both views of an invoice database; each row of an invoice that is shown goes with it.
TEST(Duplicates, OfInvoices) {
    for (const bool bItems : {false, true}) {
        SearchProgram program(DataFile("Who Item", "Poe|a@b@;Poe|a@b@;Eco|c@")
                                  .objects("F|Who|1|2|3|4;F|Item|1|2|3|4;F|Item|1|2|3|4")
                                  .sections("DatabaseStyle=True"));
        program.app.document.bInvoiceView = bItems;
        invoice::rebuildView(program.app.document);
        program.app.mainFrm.bConfirmDelete = false;
        duplicatesFrm form(program.app);
        form.showBtn_Click();
        EXPECT_EQ(program.found(), bItems ? "i1 i1 i2 i2" : "i1 i2");
        form.deleteBtn_Click();
        EXPECT_EQ(program.found() + " " + program.cells(),
                  (bItems ? "i1 i1" : "i1") + std::string(" Poe|a@b@|;Eco|c@|;------|------|;"));
        EXPECT_EQ(program.told(), "");
        const auto& view = program.app.document.iLV;
        EXPECT_EQ(Program::cells(view).find("Poe") == Program::cells(view).rfind("Poe"), !bItems);
    }
}

TEST(SerialCheck, GapsAndRepeats) {
    for (const auto& c :
         table("1;2;3 -> Each number is there once.; 9;7;9;12;9 -> 1 repeat, 2 gaps/9 occurs 3 times: "
               "records r0, r2, r4/8 missing/10 to 11 missing; 1;;x;1;1.5;3.0 -> 1 repeat, 1 gap/1 "
               "twice: records r0, r3/2 missing/No whole number: records r1, r2, r4; "
               "-1000000000000000;1000000000000000;9e99 -> 0 repeats, 1 gap/-999999999999999 to "
               "999999999999999 missing/No whole number: records r2")) {
        std::string records;
        int row = 0;
        for (const std::string_view number : core::split(c[0], ';'))
            records += "r" + std::to_string(row++) + "|" + std::string(number) + ";";
        Program program(DataFile("Name No:4", records).sections("Optioned Cols=No|;Increments=No,6|"));
        serialCheckFrm form(program.app);
        std::string told = form.Label1;
        for (const std::string& finding : form.List2) told += "/" + finding;
        EXPECT_EQ(told, c[1]);
        form.selectBtn_Click();
        std::string selected;
        program.app.document.LV.forEach(
            [&](const core::Item& item) { selected += item.Selected ? item.cells[0].str() : ""; });
        const std::string repeats = c[0].starts_with("9") ? "r0r2r4" : "r0r3";
        EXPECT_EQ(selected == repeats, form.selectBtnEnabled) << selected;
    }
}

} // namespace
