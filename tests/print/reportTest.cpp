#include "calc/selectedTotals.h"
#include "print/previewNavigation.h"
#include "print/printCommands.h"
#include "print/reportPrinting.h"
#include "printRecorder.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

using drawing::DrawnText;
using testing::ElementsAre;
using Lines = std::vector<std::string>;

namespace {

class Report : public testing::Test, protected PrintProgram {
protected:
    app::PreviewPage& page = app.mainFrm.previewPage;
    core::ReportData& settings = app.document.reportData;

    void showPreview() { shell::SSTab1_Click(app, app::previewTab); }
    // The first and the last row of a page, title and headings left out: "r1..r63".
    static std::string rowsOf(const std::vector<drawing::Drawn>& sheet) {
        Lines rows;
        for (const DrawnText& text : drawnOf<DrawnText>(sheet))
            if (text.text.starts_with("r") || text.text.starts_with("-"))
                rows.emplace_back(core::rtrim(text.text));
        return rows.empty() ? "" : rows.front() + ".." + rows.back();
    }
    void openList(const char* records, const char* printed, const char* title) {
        open(DataFile("Name Qty:4 Price:2", records)
                 .section("Printed Cols", printed)
                 .section("Report Data", std::string("1|1|1|1|1|1|") + title + "|False|"));
    }
    void openPriceList() { openList("Bolt|12|$1.50;Nut|7|$.25", "Name|Price|", "Stock"); }
};

const Lines rules = {"0,1650-12240,1650", "0,2055-12240,2055"};
const Lines guides = {".1440,0-1440,15840", ".10800,0-10800,15840", ".0,1440-12240,1440",
                      ".0,14400-12240,14400"};

TEST_F(Report, EverythingHasItsPlaceOnThePage) {
    openPriceList();
    showPreview();
    EXPECT_THAT(textsOf(preview()),
                ElementsAre("Stock@5870,720", "Name     @1690,1440", "Price@3780,1440", "Bolt     @1690,1660",
                            "$1.50@3780,1660", "Nut      @1690,1860", "$.25@3880,1860", "------   @1690,2060",
                            "------@3680,2060"));
    Lines lines = rules;
    lines.insert(lines.end(), guides.begin(), guides.end());
    EXPECT_EQ(linesOf(preview()), lines);
    EXPECT_TRUE(page.Visible);
    // Paper takes the same, without the dotted guides; its headings may be bold, as the title is anyway.
    const auto faces = [](const std::vector<drawing::Drawn>& sheet) {
        std::string bold;
        for (const DrawnText& text : drawnOf<DrawnText>(sheet)) bold += text.font.FontBold ? 'b' : '.';
        return bold + " " + drawnOf<DrawnText>(sheet)[3].font.FontName;
    };
    EXPECT_EQ(faces(preview()), "b........ Courier New");
    settings.bReportBoldHeaders = true;
    app.mainFrm.panels[app::calculationPanel] = "Done.";
    run("mnuPrint");
    EXPECT_EQ(textsOf(sheet(0)), textsOf(preview()));
    EXPECT_EQ(linesOf(sheet(0)), rules);
    EXPECT_EQ(faces(sheet(0)), "bbb...... Courier New");
    EXPECT_TRUE(platform.printed.closed);
    EXPECT_EQ(panel(app::calculationPanel), "Done.");

    // Price first: 250 ahead, 1440 wide. A number too long for it begins at its left edge and is not cut.
    openList("Hexagonal bolt|12|$1,234,567,890.00;\xC3\x86\xC3\xB8|7|$.25", "Name|Qty|Price|", "");
    app.document.LV.columns.setPosition(app.document.LV.columns["Price"].Index, 2);
    showPreview();
    const Lines texts = textsOf(preview());
    EXPECT_THAT(Lines(texts.begin() + 3, texts.end()),
                ElementsAre("$1,234,567,890.00@1690,1660", "Hexagonal@3640,1660", "12@6030,1660",
                            "$.25@2730,1860", "Æø       @3380,1860", "7@5870,1860", "------@2530,2060",
                            "------   @3380,2060", "------@5370,2060"));
    EXPECT_EQ(told(), "");
}

// Whatever their number, each record stands on one page of 63 lines, and Totals behind the last record,
// unless that one has filled its page.
TEST_F(Report, ThePagesOfAPreviewHoldAllRecords) {
    for (const int count : {1, 61, 62, 63, 64, 125, 126, 127, 200}) {
        SCOPED_TRACE(count);
        openRecords(count);
        showPreview();
        for (int first = 1; first <= count; first += 63) {
            const bool isLast = first + 63 > count;
            const bool isFull = first + 62 == count;
            const int last = isLast ? count : first + 62;
            EXPECT_EQ(page.iReportPageStart, first);
            EXPECT_EQ(rowsOf(preview()), "r" + std::to_string(first) + ".." +
                                             (isLast && !isFull ? "------" : "r" + std::to_string(last)));
            EXPECT_EQ(textsOf(preview())[0], "Name      @1690,1440") << "each page has the headings";
            EXPECT_EQ(linesOf(preview()).size(), isLast ? 6U : 5U) << "a rule closes the last page";
            walk("Next", [] { return ""; });
        }
        EXPECT_EQ(page.iReportPageStart, 1) << "round again";
        walk("Last", [] { return ""; });
        EXPECT_EQ(page.iReportPageStart, std::max(1, count + 1 - 62));
        EXPECT_EQ(linesOf(preview()).size(), 6U);
    }
}

TEST_F(Report, TheButtonsTurnThePages) {
    openRecords(150);
    showPreview();
    // Each page with the record that the next one begins with.
    EXPECT_EQ(
        walk("Next Next Next Back Last Back Back Next First",
             [&] { return rowsOf(preview()) + ">" + std::to_string(page.iReportStartRow); }),
        "r64..r126>127; r127..------>1; r1..r63>64; r1..r63>64; r89..------>1; r26..r88>89; r1..r63>64; "
        "r64..r126>127; r1..r63>64");
}

// Title, headings and margins belong to the first break; from there sheets are filled to the edges.
TEST_F(Report, PaperBreaksOnceByItselfAndThenRunsOn) {
    openRecords(300);
    run("All_As_Report");
    std::string rows;
    for (const auto& each : platform.printed.sheets) rows += rowsOf(each) + "; ";
    EXPECT_EQ(rows, "r1..r63; r64..r135; r136..r214; r215..r293; r294..------; ");
    EXPECT_EQ(textsOf(sheet(1)).front(), "r64       @1690,1440");
    EXPECT_EQ(textsOf(sheet(1)).back(), "r135      @1690,15640");
    EXPECT_EQ(textsOf(sheet(2)).front(), "r136      @1690,0");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(5U));
    EXPECT_TRUE(app.document.LV.MultiSelect);
    settings.reportOrientation = settings.reportPaperSize = 0;
    showPreview();
    EXPECT_EQ(settings.reportPaperSize, 1) << "unset paper is Letter across";
    EXPECT_EQ(placeOf(page.rptPreview1.Width, page.rptPreview1.Height), "15840,12240");
}

TEST_F(Report, TheSelectionPrintsWithItsOwnSums) {
    openPriceList();
    app.document.printedCols.add("Qty");
    select({1, 2});
    calc::RefreshSelectedTotals(app);
    for (const int row : {1, 2}) calc::UpdateSelectedTotals(app, core::TotalsMode::Add, app.document.LV, row);
    run("Print");
    const Lines texts = textsOf(sheet(0));
    EXPECT_THAT(Lines(texts.end() - 3, texts.end()),
                ElementsAre("         @1690,2080", "19@4080,2080", "$1.75@5470,2080"));
    EXPECT_THAT(linesOf(sheet(0)), ElementsAre("0,1650-12240,1650", "0,2070-12240,2070"));
    printed();
    select({2}); // one row is no selection for the button, but for the menu
    calc::RefreshSelectedTotals(app);
    run("Print");
    run("Selected_As_Report");
    EXPECT_EQ(printed(), "Stock Name Qty Price Bolt 12 $1.50 Nut 7 $.25 ------ ------ ------/"
                         "Stock Name Qty Price Nut 7 $.25 ");
}

constexpr const char* noPrinter =
    "i Printer Not Installed: You need to first install a printer on this system.";

TEST_F(Report, WhatCannotBePrintedIsToldOnce) {
    openRecords(2);
    // A report that fails leaves its printer unclosed, and so an older file as it was.
    for (const float margin : {1e6F, 30.0F}) {
        settings.reportLeftMargin = margin;
        run("All_As_Report");
        EXPECT_EQ(told(), noPrinter);
        EXPECT_FALSE(platform.printed.closed);
    }
    settings.reportLeftMargin = 1;
    settings.reportTopMargin = 10.7F; // no room for a line
    showPreview();
    walk("First Next Last Back Back", [] { return ""; });
    run("Print");
    EXPECT_LE(platform.printed.sheets.size(), 3U);
    EXPECT_TRUE(platform.printed.closed);

    settings.reportTopMargin = 1;
    app.document.printedCols.clear();
    told();
    printed();
    page.Visible = true;
    showPreview();
    EXPECT_EQ(told(), "i You have not selected any columns to print in the page setup dialog.");
    EXPECT_FALSE(page.Visible);
    run("Print");
    EXPECT_EQ(linesOf(sheet(0)), rules);
    EXPECT_EQ(printed(), "");

    platform.hasPrinter = false;
    for (const char* key : {"Print", "PageSetup", "All_As_Report", "Multiple_Layout_Preview_All"}) {
        run(key);
        EXPECT_EQ(told(), noPrinter) << key;
    }
    shell::SSTab1_Click(app, app::reportTab);
    showPreview();
    EXPECT_EQ(app.mainFrm.SSTab1, app::reportTab);
    EXPECT_EQ(app.mainFrm.iPrintMode, app::printReport);
    EXPECT_TRUE(platform.printed.sheets.empty() && platform.forms.empty());
}

TEST_F(Report, AnInvoiceDatabaseReportsItsInvoices) {
    openCopyOf("invoices.fwk");
    app.document.printedCols.clear();
    for (const core::Column& column : app.document.iLV.columns)
        if (column.Index != 1) app.document.printedCols.add(column.Text);
    showPreview();
    EXPECT_NE(wordsOf(preview()).find("Ærø"), std::string::npos) << wordsOf(preview());
    EXPECT_EQ(&print::reportList(app), &app.document.iLV);
    app.document.searchLV.Visible = true;
    EXPECT_EQ(&print::reportList(app), app.mainFrm.theListView);
}

TEST_F(Report, ThePageStandsInItsPort) {
    openRecords(1);
    showPreview();
    // The port, the bars put where they stop or not, how far they go, and where the page stands.
    const struct {
        float width, height;
        int across, down;
        const char *bars, *place;
    } cases[] = {{20000, 10000, 5, 700, "0,6350", "3880,-700"},
                 {20000, 15500, 0, 99999, "0,850", "3880,-850"},
                 {9000, 20000, 99999, 3, "3750,0", "-3750,0"},
                 {12240, 15840, 0, 0, "0,0", "0,0"}};
    for (const auto& c : cases) {
        print::rptPreview2_Resize(app, c.width, c.height, 255);
        if (page.rptHScroll1.Max > 0) print::rptHScroll1_Change(app, c.across);
        if (page.rptVScroll1.Max > 0) print::rptVScroll1_Change(app, c.down);
        EXPECT_EQ(std::to_string(page.rptHScroll1.Max) + "," + std::to_string(page.rptVScroll1.Max), c.bars);
        EXPECT_EQ(placeOf(page.Left, page.Top), c.place);
    }
}

} // namespace
