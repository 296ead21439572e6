#include "print/reportPrinting.h"
#include "print/previewPage.h"

#include "core/number.h"
#include "print/margins.h"
#include "print/previewNavigation.h"
#include "print/previewPlace.h"
#include "print/printerCheck.h"
#include "print/progress.h"
#include "print/reportColumns.h"
#include "print/reportFit.h"
#include "print/reportSheets.h"

#include <algorithm>

namespace print {

using app::App;
using core::Column;
using core::Item;
using core::RecordsList;
using drawing::DrawTarget;

namespace {

// One run of PrintReport.
class Report {
public:
    Report(App& app, DrawTarget& target, RecordsList& theList)
        : app_(app), document_(app.document), page_(previewPage(app)), target_(target), theList_(theList),
          columns_(reportColumns(app.document, theList)) {}

    void print();

private:
    void readMargins();
    void measurePage();
    drawing::SheetEnds overflowEnds();
    void printTitle();
    void goToTopLeft();
    void printRows();
    template <typename TextOf>
    void printLine(TextOf&& textOf) {
        printReportLine(document_, target_, columns_, [&](const ReportColumn& column) {
            return fittingText(column, textOf(*column.column));
        });
    }
    void printHeadings();
    void closeList();
    void fullWidthLine() { target_.Line(0, target_.CurrentY, target_.Width, target_.CurrentY); }
    void goToLeftMargin() {
        target_.CurrentX = static_cast<float>(settings().reportLeftMargin * twipsPerInch);
    }
    const core::ReportData& settings() const { return document_.reportData; }

    App& app_;
    core::Document& document_;
    print::PreviewPage& page_;
    DrawTarget& target_;
    RecordsList& theList_;
    std::vector<ReportColumn> columns_;
    int iLeft_ = 0, iRight_ = 0, iTop_ = 0, iBottom_ = 0;
    int row_ = 1;
};

void Report::readMargins() {
    iLeft_ = core::toInt16(settings().reportLeftMargin * twipsPerInch);
    iRight_ = core::toInt32(settings().reportRightMargin * twipsPerInch);
    iTop_ = core::toInt32(settings().reportTopMargin * twipsPerInch);
    iBottom_ = core::toInt32(settings().reportBottomMargin * twipsPerInch);
}

// The lines are counted in the font of a fresh page, ahead of the report's own.
void Report::measurePage() {
    target_.FontSize = 10;
    const int usable =
        core::toInt32(target_.Height - static_cast<float>(iTop_) - static_cast<float>(iBottom_));
    page_.iReportLinesPerPage = core::toInt16(usable / static_cast<double>(target_.TextHeight("NULL")) - 2);
    target_.FontName = "Courier New";
}

// The sheets that a printer takes by itself are filled to where it can print, not to the report's margins. It
// is wanted so. A file has no such places by itself.
drawing::SheetEnds Report::overflowEnds() {
    drawing::SheetEnds ends = target_.unprintable();
    if (ends.top <= 0 && ends.bottom <= 0) ends = {customaryEdge, customaryEdge};
    const bool isRoom = ends.top + ends.bottom + target_.TextHeight("NULL") <= target_.Height;
    return isRoom ? ends : drawing::SheetEnds{};
}

void Report::printTitle() {
    const int titleWidth = core::toInt16(static_cast<double>(target_.Width) - (iLeft_ + iRight_));
    target_.CurrentY = static_cast<float>(iTop_) / 2;
    printTitleCentred(target_, target_.CurrentX + static_cast<float>(iLeft_), titleWidth,
                      settings().reportTitle);
}

void Report::goToTopLeft() {
    goToLeftMargin();
    target_.CurrentY = static_cast<float>(settings().reportTopMargin * twipsPerInch);
}

void Report::printHeadings() {
    target_.FontBold = settings().bReportBoldHeaders;
    printLine([](const Column& column) { return std::string_view(column.Text); });
    target_.FontBold = false;
    target_.CurrentY += ruleGap;
    fullWidthLine();
    target_.CurrentY += ruleGap;
    goToLeftMargin();
}

// On paper neither the count of lines nor the headings start afresh with a page: the report breaks once,
// and from there the printer takes a sheet after the other by itself. It is wanted so.
void Report::printRows() {
    const int count = theList_.count();
    Progress progress(app_, count);
    int printedLines = 0;
    bool bHeadingDone = false;
    for (; row_ <= count; ++row_) {
        const Item& item = theList_.at(row_);
        if (page_.bReportSelectedOnly && !item.Selected) continue;
        if (printedLines == page_.iReportLinesPerPage) {
            if (!target_.isPrinter()) {
                page_.iReportStartRow = row_;
                return;
            }
            target_.NewPage();
            goToTopLeft();
        }
        ++printedLines;
        if (!bHeadingDone) printHeadings();
        bHeadingDone = true;
        printLine([&](const Column& column) { return RecordsList::cell(item, column).view(); });
        if (target_.isPrinter()) progress.reached(row_);
    }
}

// A page that is full just ahead of the Totals row closes the report without it. It is wanted so.
void Report::closeList() {
    if (row_ < theList_.count()) return;
    if (page_.bReportSelectedOnly) {
        printSelectedTotals(app_.document, target_, theList_);
    } else {
        constexpr float aboveTotals = 5;
        target_.CurrentY -= target_.TextHeight("NULL") + aboveTotals;
        fullWidthLine();
    }
    page_.iReportStartRow = 1;
}

void Report::print() {
    app_.platform.printerDeviceName(); // raises without a printer, for a preview too
    readMargins();
    usePage(app_, target_, reportPage(app_));
    measurePage();
    target_.overflowEnds = overflowEnds();
    printTitle();
    goToTopLeft();
    page_.iReportPageStart = page_.iReportStartRow;
    row_ = page_.iReportStartRow;
    printRows();
    closeList();
    if (target_.isPrinter()) {
        target_.EndDoc();
        return;
    }
    noteReportPage(app_, theList_);
    drawMarginGuides(target_, {static_cast<float>(iLeft_), target_.Width - static_cast<float>(iRight_),
                               static_cast<float>(iTop_), target_.Height - static_cast<float>(iBottom_)});
}

} // namespace

drawing::PageSetup reportPage(App& app) {
    core::ReportData& settings = app.document.reportData;
    if (settings.reportOrientation == 0) settings.reportOrientation = core::landscape;
    if (settings.reportPaperSize == 0) settings.reportPaperSize = core::letterPaper;
    drawing::PageSetup setup;
    setup.PaperSize = settings.reportPaperSize;
    setup.Orientation = settings.reportOrientation;
    if (const auto paper = app.platform.paperExtent(setup.PaperSize)) {
        setup.Width = paper->Width;
        setup.Height = paper->Height;
    }
    if (setup.Orientation == core::landscape) std::swap(setup.Width, setup.Height);
    return setup;
}

RecordsList& reportList(App& app) {
    core::Document& document = app.document;
    return document.bInvoiceStyle && !document.searchLV.Visible ? document.iLV : *app.mainFrm.theListView;
}

bool isPrintedColumn(const core::Document& document, std::string_view title) {
    return document.printedCols.contains(title);
}

void printTitleCentred(DrawTarget& target, float x, int width, std::string_view text) {
    // Measured ahead of the bold face, so that a long title stands a little to the right.
    const double offset = (width - static_cast<double>(target.TextWidth(text))) / 2;
    target.CurrentX = x + static_cast<float>(std::max<int>(core::toInt16(offset), 0));
    target.FontBold = true;
    target.Print(text, true);
    target.FontBold = false;
}

void printLeftAligned(const core::Document& document, DrawTarget& target, float x, std::string_view text,
                      bool bEndOfLine) {
    target.CurrentX = x;
    target.Print(text, bEndOfLine);
    if (bEndOfLine)
        target.CurrentX += static_cast<float>(document.reportData.reportLeftMargin * twipsPerInch);
}

void printRightAligned(const core::Document& document, DrawTarget& target, float x, int width,
                       std::string_view text, bool bEndOfLine) {
    const double offset = width - static_cast<double>(target.TextWidth(text));
    printLeftAligned(document, target, x + static_cast<float>(std::max<int>(core::toInt16(offset), 0)), text,
                     bEndOfLine);
}

void printSelectedTotals(core::Document& document, DrawTarget& target, const RecordsList& theList) {
    target.CurrentY += ruleGap;
    target.Line(0, target.CurrentY, target.Width, target.CurrentY);
    target.CurrentY += ruleGap;
    target.CurrentX = static_cast<float>(document.reportData.reportLeftMargin * twipsPerInch);
    printReportLine(document, target, reportColumns(document, theList), [&](const ReportColumn& column) {
        const Item* sum = document.LV3.findText(column.column->Text);
        return sum == nullptr ? std::string_view() : sum->subItem(1).view();
    });
    target.CurrentX = 0;
}

void PrintReport(App& app, DrawTarget& target, RecordsList& theList) {
    underPrinterTrap(app, [&] { drawReport(app, target, theList); });
}

void showReportAnew(App& app) {
    PreviewPage& page = previewPage(app);
    page.iReportStartRow = 1;
    const bool isOnView = app.mainFrm.SSTab1 == app::previewTab && page.Visible;
    if (isOnView && app.mainFrm.iPrintMode == app::printReport)
        PrintReport(app, rptPreview1(app), reportList(app));
}

void drawReport(App& app, DrawTarget& target, RecordsList& theList) {
    const ReportChoices choices = reportChoices(app, theList);
    if (choices.any())
        drawReportSheets(app, target, theList, choices);
    else
        Report(app, target, theList).print();
    if (!target.isPrinter()) previewFit(app) = fitOf(app, theList);
}

} // namespace print
