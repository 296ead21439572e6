#include "print/reportSheets.h"
#include "core/format.h"
#include "history/undoStack.h"
#include "print/reportChoicesFrm.h"
#include "print/reportFit.h"
#include "print/reportPrinting.h"
#include "printRecorder.h"
#include "shell/mainWindow.h"
#include "shell/undo.h"

#include <set>

namespace {

using print::ReportChoices;

struct Sheets : testing::Test, PrintProgram {
    void openTools(int count, const char* printed = "Name|Kind|Qty|Price|Bought|") {
        std::string records;
        for (int i = 1; i <= count; ++i) {
            records += "r" + std::to_string(i) + (i % 3 == 0 ? "|Bench" : "|Apron") + "|0.1|$1,000.05|";
            records += i % 2 == 0 ? "02/03/2024;" : "12/31/2023;";
        }
        DataFile file("Name Kind Qty:4 Price:2 Bought:1", records);
        file.widths = "1600|1600|1600|1600|1920|";
        open(file.section("Printed Cols", printed)
                 .section("Totaled Cols", "Qty|Price|")
                 .section("Report Data", "1|1|1|1|1|1|Tools|False|"));
        app.document.currentFile = "/tools.fwk"; // what is chosen is kept by the name of the file
    }
    void print(const ReportChoices& choices) {
        platform.printed = {};
        print::setReportChoices(app, choices);
        run("All_As_Report");
    }
};

// Sums are worked out here from the records that have gone by, in whole tenths and cents.
TEST_F(Sheets, NoRecordIsLostAndEachSumIsThatOfItsRecords) {
    for (const bool isGrouped : {false, true}) {
        for (const int count : {0, 1, 59, 60, 61, 62, 63, 64, 65, 200, 1000}) {
            SCOPED_TRACE(testing::Message() << count << isGrouped);
            openTools(count);
            print({true, true, true, true, isGrouped ? "Kind" : "", ""});
            int records = 0, ofGroup = 0, sums = 0;
            std::set<std::string> seen;
            const auto sumOf = [](int number) {
                const std::string tenth = number % 10 == 0 ? "" : "." + std::to_string(number % 10);
                return std::to_string(number / 10) + tenth + " " +
                       core::format(number * 1000.05, core::Mask::Money);
            };
            std::size_t sheetNumber = 0;
            for (const Page& page : platform.printed.sheets) {
                const std::string words = " " + wordsOf(page) + " ";
                const auto has = [&](const std::string& text) { return words.find(text) != words.npos; };
                ++sheetNumber;
                EXPECT_EQ(has(" Brought forward " + sumOf(records) + " "), sheetNumber > 1) << words;
                for (const std::string_view word : core::split(words, ' ')) {
                    if (word == "record" || word == "records") {
                        EXPECT_TRUE(has(" " + std::to_string(ofGroup) + " " + std::string(word) + " " +
                                        sumOf(ofGroup) + " "))
                            << ofGroup << words;
                        ofGroup = 0;
                        ++sums;
                    }
                    if (word.size() < 2 || word[0] != 'r' || !core::isDigit(word[1])) continue;
                    EXPECT_TRUE(seen.insert(std::string(word)).second) << word;
                    ++records;
                    ++ofGroup;
                }
                const bool isLast = sheetNumber == platform.printed.sheets.size();
                EXPECT_EQ(has(" Carried forward " + sumOf(records) + " "), !isLast) << words;
                EXPECT_TRUE(has(" " + std::to_string(sheetNumber) + " of " +
                                std::to_string(platform.printed.sheets.size()) + " "));
                for (const drawing::Drawn& each : page) {
                    const auto* text = std::get_if<drawing::DrawnText>(&each);
                    if (text != nullptr) {
                        EXPECT_LE(text->Top + 200, 14800) << text->text;
                    }
                }
            }
            EXPECT_EQ(records, count);
            EXPECT_EQ(sums, isGrouped ? std::min(count / 3, 1) + std::min(count, 1) : 0);
        }
    }
}

// Group headings and sums stay with records, and what the preview shows is what the paper has.
TEST_F(Sheets, ThePreviewIsThePaperWithGuides) {
    openTools(200);
    for (const ReportChoices& choices :
         std::vector<ReportChoices>{{true},
                                    {false, true},
                                    {false, false, true},
                                    {false, false, false, true},
                                    {.groupColumn = "Bought", .groupStep = "year"},
                                    {true, true, true, true, "Name", ""}}) {
        print(choices);
        const auto sheets = platform.printed.sheets;
        shell::SSTab1_Click(app, app::previewTab);
        EXPECT_EQ(print::previewPage(app).place.of, std::ssize(sheets));
        for (const Page& sheet : sheets) {
            const std::string paper = drawnOn(sheet);
            EXPECT_EQ(drawnOn(preview()).substr(0, paper.size()), paper);
            EXPECT_NE(wordsOf(sheet).find(" r"), std::string::npos) << "a sheet without a record";
            print::reportToolbar_ButtonClick(app, "Next");
        }
        EXPECT_EQ(print::previewPage(app).iReportPageStart, 1) << "round to the first one";
        print::reportToolbar_ButtonClick(app, "Last");
        EXPECT_EQ(print::previewPage(app).iReportPageStart, std::ssize(sheets));
        print::reportToolbar_ButtonClick(app, "Back");
        EXPECT_EQ(print::previewPage(app).iReportPageStart, std::ssize(sheets) - 1);
        shell::SSTab1_Click(app, app::reportTab);
    }
    print({.groupColumn = "Bought", .groupStep = "year"});
    const std::string words = wordsOf(sheet(0)) + wordsOf(sheet(1));
    EXPECT_NE(words.find("Bought: 2023 r1 Apron 0.1 $1,000.05 12/31/2023 r3 Bench"), words.npos) << words;
    EXPECT_EQ(wordsOf(sheet(1)).find("Tools"), std::string::npos) << "a title that nobody has chosen";
}

TEST_F(Sheets, WhatStandsWhere) {
    openTools(70, "Name|Qty|");
    print({.pageNumbers = true, .date = true, .sheetTotals = true});
    EXPECT_TRUE(drawnOn(sheet(0)).ends_with("; Carried forward@1690,13860; 2940,14070-4540,14070"
                                            "; 6.1@4240,14080; 03/14/2026@1440,14600; 1 of 2@10200,14600"))
        << drawnOn(sheet(0));
    EXPECT_TRUE(
        drawnOn(sheet(1)).starts_with("Brought forward@1690,1440 Courier New 10  0; 6.1@4240,1660; r62"));
    EXPECT_TRUE(drawnOn(sheet(1)).ends_with("; 0,3670-12240,3670; ------    @1690,3680; ------@3940,3680; "
                                            "03/14/2026@1440,14600; 2 of 2@10200,14600"))
        << drawnOn(sheet(1));
    // A lower margin without room for the foot gives way to it.
    app.document.reportData.reportBottomMargin = 0.1F;
    print({.pageNumbers = true});
    EXPECT_TRUE(drawnOn(sheet(0)).ends_with("0.1@4240,14860; 1 of 2@10200,15280")) << drawnOn(sheet(0));
}

// A group without a value has no subtotal, and one that has a zero has it.
TEST_F(Sheets, NothingAddsUpToNothing) {
    open(DataFile("Name Kind Qty:4 Price:2", "a|x||;b|x|1|;c|y|2|$0.00;d|y|3|$0.00")
             .section("Printed Cols", "Name|Kind|Qty|Price|")
             .section("Totaled Cols", "Qty|Price|"));
    app.document.currentFile = "/nothing.fwk";
    print({.groupColumn = "Kind"});
    EXPECT_NE(
        wordsOf(sheet(0)).find("x a x b x 1 2 records 1 Kind: y c y 2 $0.00 d y 3 $0.00 2 records 5 $.00"),
        std::string::npos)
        << wordsOf(sheet(0));
}

// The choices are kept for the file; columns that a report does not have choose nothing.
TEST_F(Sheets, TheFormKeepsTheChoices) {
    openTools(3);
    print::reportChoicesFrm form(app);
    form.headsChk = form.dateChk = true;
    form.totalsChk_Click(true);
    form.groupList_Click(5);
    EXPECT_EQ(form.groupList.at(5) + form.noteLbl, "Bought");
    form.stepList_Click(3);
    form.OKButton_Click();
    const ReportChoices kept = print::reportChoices(app);
    EXPECT_EQ(kept, (ReportChoices{true, false, true, true, "Bought", "month"}));
    EXPECT_FALSE(app.mainFrm.panels[app::documentPanel] == "Document Modified");
    app.document.printedCols.clear();
    print::reportChoicesFrm again(app);
    EXPECT_EQ(again.groupList.at(5) + again.stepList.at(3), "Boughtmonth");
    EXPECT_EQ(placeOf(again.groupIndex, again.stepIndex), "5,3");
    again.groupList_Click(4);
    again.stepTxt_Change("x5");
    EXPECT_EQ(again.noteLbl, "\"x5\" is no step: type a number above 0.");
    again.OKButton_Click();
    EXPECT_FALSE(again.unloaded);
    again.stepTxt_Change(" 2.5");
    again.OKButton_Click();
    app.rooms.of<print::ColumnsToCome>().columns = {"Price"};
    const print::reportChoicesFrm toCome(app);
    EXPECT_EQ(toCome.stepTxt + toCome.noteLbl, "2.5");
    again.groupList_Click(2);
    EXPECT_TRUE(again.stepList.empty());
    EXPECT_TRUE(again.noteLbl.starts_with("No column")) << again.noteLbl;
    app.document.LV.columns.rename(app.document.LV.columns["Price"].Index, "Got");
    EXPECT_EQ(print::reportChoices(app, app.document.LV).groupColumn, "");
    app.document.currentFile = "/other.fwk";
    EXPECT_FALSE(print::reportChoices(app).any());
}

TEST_F(Sheets, NarrowColumnsAreToldAndWidenedInOneStep) {
    // 1600 wide: ten characters of a text, sixteen of a number, each 100 wide here.
    open(DataFile("Name Qty:4 Price:2 Day:1 Lot",
                  "\xC3\x86\xC3\xB8\xC3\x86\xC3\xB8\xC3\x86\xC3\xB8\xC3\x86\xC3\xB8|12345678901234567|"
                  "$1.00|01/08/2024|" +
                      std::string(500, 'x') + ";abcdefghijklm|1||")
             .section("Printed Cols", "Name|Qty|Price|Day|Lot|"));
    core::ColumnHeaders& columns = app.document.LV.columns;
    for (core::Column& column : columns) column.Width = 1600;
    columns["Day"].Width = 1300;
    columns["Price"].Width = 560;
    const auto widths = [&] {
        std::string all;
        for (const char* name : {"Name", "Qty", "Price", "Day", "Lot"})
            all += core::numberText(columns[name].Width) + " ";
        return all;
    };
    shell::beforeEvent(app);
    shell::SSTab1_Click(app, app::previewTab);
    EXPECT_EQ(print::previewFit(app).text(), "Too narrow for the longest text: Name (10 of 13 characters), "
                                             "Qty (16 of 17 characters), Day (8 of 10 "
                                             "characters), Lot (10 of 500 characters).");
    shell::afterEvent(app);
    shell::beforeEvent(app);
    print::Widen_Click(app);
    shell::afterEvent(app);
    EXPECT_EQ(widths(), "2080 1700 560 1600 14560 ") << "as wide as the sheet at most";
    EXPECT_EQ(print::previewFit(app).text(), "Too narrow for the longest text: Lot (91 of 500 characters). "
                                             "Over the edge of the paper: Lot.");
    EXPECT_FALSE(print::previewFit(app).canWiden());
    EXPECT_EQ(panel(app::documentPanel), "Document Modified");
    shell::undo(app);
    EXPECT_EQ(widths(), "1600 1600 560 1300 1600 ");
}

} // namespace
