#include "calc/selectedTotals.h"
#include "print/previewPlace.h"
#include "print/printCommands.h"
#include "print/reportPrinting.h"
#include "printRecorder.h"
#include "shell/mainWindow.h"
#include "shell/start/samples.h"

namespace {

struct Report : testing::Test, PrintProgram {
    print::PreviewPage& page = print::previewPage(app);
    core::ReportData& settings = app.document.reportData;

    void showPreview() { shell::SSTab1_Click(app, app::previewTab); }
    void openList(const char* records, const char* printed, const char* title) {
        open(DataFile("Name Qty:4 Price:2", records)
                 .section("Printed Cols", printed)
                 .section("Report Data", std::string("1|1|1|1|1|1|") + title + "|False|"));
    }
};

const std::string guides =
    "; .1440,0-1440,15840; .10800,0-10800,15840; .0,1440-12240,1440; .0,14400-12240,14400";

TEST_F(Report, EverythingHasItsPlaceOnThePage) {
    openList("Bolt|12|$1.50;Nut|7|$.25", "Name|Price|", "Stock");
    showPreview();
    const std::string rows =
        "; 0,1650-12240,1650; Bolt     @1690,1660 Courier New 10  0; $1.50@3780,1660; Nut      @1690,1860; "
        "$.25@3880,1860; ------   @1690,2060; ------@3680,2060; 0,2055-12240,2055";
    const std::string title = "Stock@5870,720 Courier New 10 b 0; Name     @1690,1440";
    EXPECT_EQ(drawnOn(preview()), title + " Courier New 10  0; Price@3780,1440" +
                                      core::replaceAll(rows, " Courier New 10  0", "") + guides);
    EXPECT_TRUE(page.Visible);
    // Paper takes the same, without the dotted guides; its headings may be bold, as the title is anyway.
    settings.bReportBoldHeaders = true;
    app.mainFrm.panels[app::calculationPanel] = "Done.";
    run("mnuPrint");
    EXPECT_EQ(drawnOn(sheet(0)), title + "; Price@3780,1440" + rows);
    EXPECT_EQ(platform.printed.ends + panel(app::calculationPanel), "|.Done.");

    // Price first: 250 ahead, 1440 wide. A number too long for it begins at its left edge and is not cut.
    openList("Hexagonal bolt|12|$1,234,567,890.00;\xC3\x86\xC3\xB8|7|$.25", "Name|Qty|Price|", "");
    app.document.LV.columns.setPosition(app.document.LV.columns["Price"].Index, 2);
    showPreview();
    EXPECT_TRUE(drawnOn(preview()).ends_with(
        "; $1,234,567,890.00@1690,1660; Hexagonal@3640,1660; 12@6030,1660; $.25@2730,1860; Æø       "
        "@3380,1860; 7@5870,1860; ------@2530,2060; ------   @3380,2060; ------@5370,2060; "
        "0,2055-12240,2055" +
        guides))
        << drawnOn(preview());
    app.document.LV.columns["Name"].Width = 40; // narrower than half a character
    showPreview();
    EXPECT_EQ(wordsOf(preview()).find('H'), std::string::npos) << wordsOf(preview());
    EXPECT_EQ(told(), "");
}

// Each record stands on one page of 63 lines, and Totals behind the last record, unless that one has filled
// its page.
TEST_F(Report, ThePagesOfAPreviewHoldAllRecords) {
    const std::string first = "r1..r63>64; 5 ", only = "r1..------>1; 6 "; // a rule closes the last one
    for (const auto& [count, wanted] : {std::pair(1, only + only + only),
                                        {62, only + only + only},
                                        {63, "r1..r63>1; 6 r1..r63>1; 6 r1..r63>1; 6 "},
                                        {64, first + "r64..------>1; 6 " + first},
                                        {126, first + "r64..r126>1; 6 " + first},
                                        {150, first + "r64..r126>127; 5 r127..------>1; 6 "}}) {
        openRecords(count);
        showPreview();
        std::string all;
        for (const char* key : {"First", "Next", "Next"}) {
            all += turn(key);
            const auto isLine = [](const drawing::Drawn& each) { return each.index() == 1; };
            all += std::to_string(std::ranges::count_if(preview(), isLine)) + " ";
            EXPECT_TRUE(drawnOn(preview()).starts_with("Name      @1690,1440 ")) << "headings";
        }
        EXPECT_EQ(all, wanted) << count;
        // The keys stop at both ends, which the buttons do not, and the pages are counted ahead.
        turn("First");
        const int pages = page.place.of;
        int number = 1;
        do {
            EXPECT_EQ(print::previewPlaceText(app),
                      "Page " + std::to_string(number) + " of " + std::to_string(pages));
        } while (print::turnPreview(app, true) && ++number < 9);
        EXPECT_EQ(number, pages) << count;
        while (print::turnPreview(app, false)) --number;
        EXPECT_EQ(std::pair(number, page.iReportPageStart), std::pair(1, 1)) << count;
    }
    turn("Last");
    EXPECT_EQ(turn("Next Back Last Back Back Next First"),
              "r1..r63>64; r1..r63>64; r89..------>1; r26..r88>89; r1..r63>64; r64..r126>127; r1..r63>64; ");
    page.bReportSelectedOnly = true; // and records have gone since the page was turned
    page.iReportStartRow = 500;
    print::PrintReport(app, page.rptPreview1, app.document.LV);
    EXPECT_EQ(told(), "");
}

// Title and headings belong to the first break; from there the printer takes a sheet after the other. Each of
// these begins and ends where it can print, or a quarter of an inch from the edges where it does not tell.
TEST_F(Report, PaperBreaksOnceByItselfAndThenRunsOn) {
    openRecords(300);
    run("All_As_Report");
    std::string rows;
    for (const Page& each : platform.printed.sheets) rows += rowsOf(each) + "; ";
    EXPECT_EQ(rows + platform.printed.ends,
              "r1..r63; r64..r135; r136..r210; r211..r285; r286..------; ////|.");
    EXPECT_TRUE(drawnOn(sheet(1)).starts_with("r64       @1690,1440 Courier New 10  0; "));
    EXPECT_TRUE(drawnOn(sheet(1)).ends_with("; r135      @1690,15640"));
    EXPECT_TRUE(drawnOn(sheet(2)).starts_with("r136      @1690,360 "));
    EXPECT_TRUE(drawnOn(sheet(2)).ends_with("; r210      @1690,15160"));
    EXPECT_TRUE(app.document.LV.MultiSelect);
    printed();
    platform.printed.unprintable = {300, 400};
    run("All_As_Report");
    EXPECT_TRUE(drawnOn(sheet(1)).ends_with("; r133      @1690,15240")) << "none is lost at the first foot";
    EXPECT_TRUE(drawnOn(sheet(2)).starts_with("r134      @1690,300 "));
    EXPECT_TRUE(drawnOn(sheet(2)).ends_with("; r208      @1690,15100"));
    settings.reportOrientation = settings.reportPaperSize = 0;
    showPreview();
    EXPECT_EQ(settings.reportPaperSize, 1) << "unset paper is Letter across";
    EXPECT_EQ(placeOf(page.rptPreview1.Width, page.rptPreview1.Height), "15840,12240");
}

TEST_F(Report, TheSelectionPrintsWithItsOwnSums) {
    openList("Bolt|12|$1.50;Nut|7|$.25", "Name|Price|Qty|", "Stock");
    select({1, 2});
    calc::RefreshSelectedTotals(app.document);
    for (const int row : {1, 2})
        calc::UpdateSelectedTotals(app.document, core::TotalsMode::Add, app.document.LV, row);
    run("Print");
    EXPECT_TRUE(drawnOn(sheet(0)).ends_with(
        "; 0,2070-12240,2070;          @1690,2080; 19@4080,2080; $1.75@5470,2080"))
        << drawnOn(sheet(0));
    printed();
    select({2}); // one row is no selection for the button, but for the menu
    calc::RefreshSelectedTotals(app.document);
    run("Print");
    run("Selected_As_Report");
    EXPECT_EQ(printed(), "Stock Name Qty Price Bolt 12 $1.50 Nut 7 $.25 ------ ------ ------|.Stock Name Qty "
                         "Price Nut 7 $.25 |.");
}

TEST_F(Report, TheSamplesShowTheirCellsWholeAndFitTheirSheets) {
    for (const shell::Sample& sample : shell::samplesIn(SAMPLES_DIR)) {
        open(sample.file);
        run("All_As_Report");
        const std::string words = printed();
        const core::RecordsList& list = app.document.iLV.Visible ? app.document.iLV : app.document.LV;
        for (const auto& name : app.document.printedCols)
            list.forEach([&](const core::Item& row) {
                const std::string_view cell = core::RecordsList::cell(row, list.columns[name.item]);
                EXPECT_NE(words.find(cell), words.npos) << sample.name << cell;
            });
        run("Multiple_Layout_Preview_All");
        EXPECT_EQ(told(), "") << sample.name;
    }
}

TEST_F(Report, WhatCannotBePrintedIsToldOnce) {
    const std::string noPrinter =
        "i Printer Not Installed: You need to first install a printer on this system.";
    openRecords(2);
    // A report that fails leaves its printer unclosed, and so an older file as it was.
    for (const float margin : {1e6F, 30.0F}) {
        settings.reportLeftMargin = margin;
        run("All_As_Report");
        EXPECT_EQ(told() + printed(), noPrinter);
    }
    settings.reportLeftMargin = 1;
    settings.reportTopMargin = 10.7F; // no room for a line
    showPreview();
    turn("First Next Last Back Back");
    run("Print");
    EXPECT_LE(platform.printed.ends.size(), 4U) << platform.printed.ends;
    settings.reportTopMargin = 1;
    app.document.printedCols.clear();
    told();
    printed();
    showPreview();
    EXPECT_EQ(told(), "i You have not selected any columns to print in the page setup dialog.");
    EXPECT_FALSE(page.Visible);
    run("Print");
    EXPECT_EQ(drawnOn(sheet(0)), "0,1650-12240,1650; 0,2055-12240,2055");
    EXPECT_EQ(printed(), "|.");
    platform.hasPrinter = false;
    for (const char* key : {"Print", "PageSetup", "All_As_Report", "Multiple_Layout_Preview_All"}) {
        run(key);
        EXPECT_EQ(told() + printed(), noPrinter) << key;
    }
    shell::SSTab1_Click(app, app::reportTab);
    showPreview();
    EXPECT_EQ(app.mainFrm.SSTab1, app::reportTab);
    EXPECT_EQ(app.mainFrm.iPrintMode, app::printReport);
    EXPECT_TRUE(platform.forms.empty());
}

TEST_F(Report, ThePageStandsInItsPort) {
    openRecords(1);
    showPreview();
    // The port, the bars put where they stop or not, how far they go, and where the page stands.
    for (const auto& [width, height, across, down, wanted] :
         {std::tuple(20000, 10000, 5, 700, "0,6350 3880,-700"),
          {20000, 15500, 0, 99999, "0,850 3880,-850"},
          {9000, 20000, 99999, 3, "3750,0 -3750,0"},
          {12240, 15840, 0, 0, "0,0 0,0"}}) {
        print::rptPreview2_Resize(app, static_cast<float>(width), static_cast<float>(height), 255);
        if (page.rptHScroll1.Max > 0) print::rptHScroll1_Change(app, across);
        if (page.rptVScroll1.Max > 0) print::rptVScroll1_Change(app, down);
        EXPECT_EQ(placeOf(page.rptHScroll1.Max, page.rptVScroll1.Max) + " " + placeOf(page.Left, page.Top),
                  wanted);
    }
}

} // namespace
