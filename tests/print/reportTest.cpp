#include "calc/selectedTotals.h"
#include "print/previewNavigation.h"
#include "print/printCommands.h"
#include "print/reportPrinting.h"
#include "printRecorder.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

using platform::Drawn;
using platform::DrawnText;
using testing::ElementsAre;
using Lines = std::vector<std::string>;

namespace {

class Report : public testing::Test, protected PrintProgram {
protected:
    app::PreviewPage& page = app.mainFrm.previewPage;

    void showPreview() { shell::SSTab1_Click(app, app::previewTab); }
    void click(const char* key) { print::reportToolbar_ButtonClick(app, key); }
    // What the rows of a page hold, title and headings left out: "r1..r63".
    static std::string rowsOf(const std::vector<Drawn>& sheet) {
        Lines rows;
        for (const DrawnText& text : drawnOf<DrawnText>(sheet))
            if (text.text.starts_with("r") || text.text.starts_with("-"))
                rows.emplace_back(core::rtrim(text.text));
        return rows.empty() ? "" : rows.front() + ".." + rows.back();
    }
    void openPriceList() {
        open(DataFile{}.text());
        for (const char* column : {"Name", "Price"}) app.document.printedCols.add(column);
        app.document.reportData.reportOrientation = 1;
        app.document.reportData.reportTitle = "Stock";
    }
};

TEST_F(Report, EverythingHasItsPlaceOnThePage) {
    openPriceList();
    showPreview();
    EXPECT_THAT(textsOf(preview()),
                ElementsAre("Stock@5870,720", "Name     @1690,1440", "Price@3780,1440", "Bolt     @1690,1660",
                            "$1.50@3780,1660", "Nut      @1690,1860", "$.25@3880,1860", "------   @1690,2060",
                            "------@3680,2060"));
    EXPECT_THAT(linesOf(preview()),
                ElementsAre("0,1650-12240,1650", "0,2055-12240,2055", ".1440,0-1440,15840",
                            ".10800,0-10800,15840", ".0,1440-12240,1440", ".0,14400-12240,14400"));
    const auto texts = drawnOf<DrawnText>(preview());
    EXPECT_TRUE(texts[0].font.FontBold) << "the title is bold, whatever the headings are";
    EXPECT_FALSE(texts[1].font.FontBold);
    EXPECT_EQ(texts[3].font.FontName, "Courier New");
    EXPECT_EQ(texts[3].font.FontSize, 10);
    EXPECT_TRUE(page.Visible);

    // Paper takes the same, without the dotted guides; its headings may be bold.
    app.document.reportData.bReportBoldHeaders = true;
    shell::runCommand(app, "mnuPrint");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    EXPECT_EQ(textsOf(platform.printed.sheets[0]), textsOf(preview()));
    EXPECT_THAT(linesOf(platform.printed.sheets[0]), ElementsAre("0,1650-12240,1650", "0,2055-12240,2055"));
    EXPECT_TRUE(drawnOf<DrawnText>(platform.printed.sheets[0])[1].font.FontBold);
    EXPECT_FALSE(drawnOf<DrawnText>(platform.printed.sheets[0])[3].font.FontBold);
    EXPECT_THAT(platform.printed.jobs, ElementsAre(1U));
    EXPECT_TRUE(platform.printed.closed);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Report, ColumnsComeInTheOrderOfTheScreenAndTextsAreCut) {
    DataFile file;
    file.rows = "Hexagonal bolt|12|$1,234,567,890.00|\r\n\xC6\xF8|7|$.25|\r\n------|19|------|\r\n";
    open(file.text());
    for (const char* column : {"Name", "Qty", "Price"}) app.document.printedCols.add(column);
    app.document.reportData.reportOrientation = 1;
    app.document.LV.columns.setPosition(app.document.LV.columns["Price"].Index, 2);
    showPreview();
    const Lines texts = textsOf(preview());
    // Price first: 250 ahead, 1440 wide. A number too long for it begins at its left edge and is not cut.
    EXPECT_THAT(Lines(texts.begin() + 3, texts.end()),
                ElementsAre("$1,234,567,890.00@1690,1660", "Hexagonal@3640,1660", "12@6030,1660",
                            "$.25@2730,1860", "Æø       @3380,1860", "7@5870,1860", "------@2530,2060",
                            "------   @3380,2060", "19@5770,2060"));
}

// Where the rows begin and end on the pages of a preview, and what the buttons do.
TEST_F(Report, ThePreviewTurnsItsPages) {
    openRecords(150);
    showPreview();
    EXPECT_EQ(page.iReportLinesPerPage, 63);
    struct Step {
        const char* key;
        const char* rows;
        int start; // of the next page
    };
    constexpr Step steps[] = {{"Next", "r64..r126", 127}, {"Next", "r127..------", 1},
                              {"Next", "r1..r63", 64},    {"Back", "r1..r63", 64},
                              {"Last", "r89..------", 1}, {"Back", "r26..r88", 89},
                              {"Back", "r1..r63", 64},    {"First", "r1..r63", 64}};
    EXPECT_EQ(rowsOf(preview()), "r1..r63");
    for (const Step& step : steps) {
        click(step.key);
        EXPECT_EQ(rowsOf(preview()), step.rows) << step.key;
        EXPECT_EQ(page.iReportStartRow, step.start) << step.key;
        EXPECT_EQ(textsOf(preview())[0], "Name      @1690,1440") << "each page has the headings";
    }
    showPreview(); // from the start again
    EXPECT_EQ(page.iReportPageStart, 1);
}

TEST_F(Report, APageThatIsFullAheadOfTheTotalsRowClosesWithoutIt) {
    openRecords(63);
    showPreview();
    EXPECT_EQ(rowsOf(preview()), "r1..r63");
    EXPECT_EQ(page.iReportStartRow, 1);
    EXPECT_EQ(linesOf(preview())[1], "0,14055-12240,14055"); // above the last record
}

// Title, headings and margins belong to the first break; from there sheets are filled to the edges.
TEST_F(Report, PaperBreaksOnceByItselfAndThenRunsOn) {
    openRecords(300);
    app.mainFrm.panels[app::calculationPanel] = "Done.";
    shell::runCommand(app, "All_As_Report");
    const auto& sheets = platform.printed.sheets;
    ASSERT_EQ(sheets.size(), 5U);
    EXPECT_EQ(rowsOf(sheets[0]), "r1..r63");
    EXPECT_EQ(rowsOf(sheets[1]), "r64..r135");
    EXPECT_EQ(textsOf(sheets[1]).front(), "r64       @1690,1440");
    EXPECT_EQ(textsOf(sheets[1]).back(), "r135      @1690,15640");
    EXPECT_EQ(textsOf(sheets[2]).front(), "r136      @1690,0");
    EXPECT_EQ(rowsOf(sheets[2]), "r136..r214");
    EXPECT_EQ(rowsOf(sheets[4]), "r294..------");
    EXPECT_THAT(platform.printed.jobs, ElementsAre(5U));
    EXPECT_EQ(app.mainFrm.panels[app::calculationPanel], "Done.");
    EXPECT_TRUE(app.document.LV.MultiSelect);
}

TEST_F(Report, TheSelectionPrintsWithItsOwnSums) {
    openPriceList();
    app.document.printedCols.add("Qty");
    select({1, 2});
    calc::RefreshSelectedTotals(app);
    for (const int row : {1, 2}) calc::UpdateSelectedTotals(app, core::TotalsMode::Add, app.document.LV, row);
    shell::runCommand(app, "Print");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    const Lines texts = textsOf(platform.printed.sheets[0]);
    EXPECT_THAT(Lines(texts.end() - 3, texts.end()),
                ElementsAre("         @1690,2080", "19@4080,2080", "$1.75@5470,2080"));
    EXPECT_THAT(linesOf(platform.printed.sheets[0]), ElementsAre("0,1650-12240,1650", "0,2070-12240,2070"));

    // One row is no selection: all records print, and the Totals row.
    select({2});
    shell::runCommand(app, "Print");
    EXPECT_NE(wordsOf(platform.printed.sheets[1]).find("Bolt"), std::string::npos);
    // The menu takes it as one.
    shell::runCommand(app, "Selected_As_Report");
    EXPECT_EQ(wordsOf(platform.printed.sheets[2]).find("Bolt"), std::string::npos);
    EXPECT_NE(wordsOf(platform.printed.sheets[2]).find("Nut"), std::string::npos);
}

TEST_F(Report, UnsetPaperIsLetterAcross) {
    openRecords(1);
    app.document.reportData.reportOrientation = 0;
    app.document.reportData.reportPaperSize = 0;
    showPreview();
    EXPECT_EQ(app.document.reportData.reportOrientation, 2);
    EXPECT_EQ(app.document.reportData.reportPaperSize, 1);
    EXPECT_EQ(page.rptPreview1.Width, 15840);
    EXPECT_EQ(page.rptPreview1.Height, 12240);
}

TEST_F(Report, WithoutAPrinterThereIsAMessageAndNothingElse) {
    openRecords(3);
    platform.hasPrinter = false;
    for (const char* key : {"Print", "PageSetup", "All_As_Report", "Multiple_Layout_Preview_All"}) {
        platform.messages.clear();
        shell::runCommand(app, key);
        ASSERT_EQ(platform.messages.size(), 1U) << key;
        EXPECT_EQ(platform.messages[0].text, "You need to first install a printer on this system.");
        EXPECT_EQ(platform.messages[0].caption, "Printer Not Installed");
    }
    showPreview();
    EXPECT_EQ(app.mainFrm.SSTab1, app::reportTab);
    EXPECT_EQ(app.mainFrm.iPrintMode, app::printReport);
    EXPECT_TRUE(preview().empty());
    EXPECT_TRUE(platform.printed.sheets.empty());
    EXPECT_TRUE(platform.forms.empty());
}

TEST_F(Report, WithoutColumnsThePreviewSaysSoAndPaperIsEmptyLines) {
    openRecords(2);
    app.document.printedCols.clear();
    showPreview();
    EXPECT_EQ(platform.lastMessage(), "You have not selected any columns to print in the page setup dialog.");
    EXPECT_TRUE(preview().empty());
    shell::runCommand(app, "Print");
    ASSERT_EQ(platform.printed.sheets.size(), 1U);
    EXPECT_TRUE(textsOf(platform.printed.sheets[0]).empty());
    EXPECT_THAT(linesOf(platform.printed.sheets[0]), ElementsAre("0,1650-12240,1650", "0,2055-12240,2055"));
}

// Margins beyond 16 bits, and a page without room for a line.
TEST_F(Report, ImpossibleMarginsEnd) {
    openRecords(5);
    app.document.reportData.reportLeftMargin = 30;
    showPreview();
    EXPECT_EQ(platform.messages.back().caption, "Printer Not Installed");
    app.document.reportData.reportLeftMargin = 1;
    app.document.reportData.reportTopMargin = 10.7F;
    for (const char* key : {"First", "Next", "Last", "Back", "Back"}) click(key);
    shell::runCommand(app, "Print");
    EXPECT_LE(platform.printed.sheets.size(), 3U);
}

TEST_F(Report, AnInvoiceDatabaseReportsItsInvoices) {
    openCopyOf("invoices.fwk");
    EXPECT_EQ(&print::reportList(app), &app.document.iLV);
    app.document.printedCols.clear();
    for (const core::Column& column : app.document.iLV.columns)
        if (column.Index != 1) app.document.printedCols.add(column.Text);
    showPreview();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_NE(wordsOf(preview()).find("Ærø"), std::string::npos) << wordsOf(preview());
    app.document.searchLV.Visible = true;
    EXPECT_EQ(&print::reportList(app), app.mainFrm.theListView);
}

TEST_F(Report, ThePageStandsInItsPort) {
    openRecords(1);
    showPreview();
    print::rptPreview2_Resize(app, 20000, 10000, 255);
    EXPECT_EQ(page.Left, (20000 - 12240) / 2);
    EXPECT_EQ(page.rptHScroll1.Max, 0);
    EXPECT_EQ(page.rptVScroll1.Max, 15840 - 10000 + 2 * 255);
    print::rptVScroll1_Change(app, 700);
    EXPECT_EQ(page.Top, -700);
    print::rptPreview2_Resize(app, 9000, 20000, 255);
    EXPECT_EQ(page.Top, 0);
    EXPECT_EQ(page.rptHScroll1.Max, 12240 - 9000 + 2 * 255);
    print::rptHScroll1_Change(app, 99999);
    EXPECT_EQ(page.Left, -page.rptHScroll1.Max);
}

} // namespace
