#include "print/reportPageSetup.h"
#include "print/previewPage.h"

#include "core/number.h"
#include "core/text.h"
#include "print/previewNavigation.h"
#include "print/printerCheck.h"
#include "print/reportChoicesFrm.h"
#include "print/reportPrinting.h"

#include <algorithm>

namespace print {

namespace {

float inches(const std::string& text) {
    return static_cast<float>(core::val(text));
}

} // namespace

reportPageSetup::reportPageSetup(app::App& app)
    : otherPapers(papersBesideTheOptions(app.platform, app.document.reportData.reportPaperSize)), app_(app) {
    const core::Document& document = app.document;
    const core::RecordsList& list = document.bInvoiceStyle ? document.iLV : document.LV;
    for (const int index : list.columns.displayOrder()) {
        if (index == 1) continue;
        const std::string& title = list.columns.at(index).Text;
        LV3.push_back({title, document.printedCols.contains(title)});
    }
    const core::ReportData& settings = document.reportData;
    PortraitOpt = settings.reportOrientation == core::portrait;
    letterOpt = settings.reportPaperSize == core::letterPaper;
    boldYesOpt = settings.bReportBoldHeaders;
    leftTxt = core::numberText(settings.reportLeftMargin);
    rightTxt = core::numberText(settings.reportRightMargin);
    TopTxt = core::numberText(settings.reportTopMargin);
    bottomTxt = core::numberText(settings.reportBottomMargin);
    titleTxt = settings.reportTitle;
}

core::RecordsList& reportPageSetup::shownList() const {
    core::Document& document = app_.document;
    if (document.searchLV.Visible) return document.searchLV;
    return document.bInvoiceStyle ? document.iLV : document.LV;
}

void reportPageSetup::saveReportSettings() {
    core::Document& document = app_.document;
    document.printedCols.clear();
    for (const Row& row : LV3)
        if (row.Checked) document.printedCols.add(row.Text);
    if (document.bInvoiceStyle) {
        core::NamedCollection& ofView =
            document.bInvoiceView ? document.prnItemCols : document.prnInvoiceCols;
        ofView.clear();
        for (const auto& column : document.printedCols) ofView.add(column.item);
    }
    core::ReportData& settings = document.reportData;
    settings.reportOrientation = PortraitOpt ? core::portrait : core::landscape;
    settings.reportPaperSize = letterOpt ? core::letterPaper : core::legalPaper;
    if (const std::optional<int> code = otherPapers.code())
        settings.reportPaperSize = static_cast<std::int16_t>(*code);
    settings.reportLeftMargin = inches(leftTxt);
    settings.reportRightMargin = inches(rightTxt);
    settings.reportTopMargin = inches(TopTxt);
    settings.reportBottomMargin = inches(bottomTxt);
    settings.reportTitle = core::trim(titleTxt);
    settings.bReportBoldHeaders = boldYesOpt;
    app::setDocumentModified(app_, true);
    previewPage(app_).iReportStartRow = 1;
}

void reportPageSetup::moreBtn_Click() {
    std::vector<std::string>& columns = app_.rooms.of<ColumnsToCome>().columns.emplace();
    for (const Row& row : LV3)
        if (row.Checked) columns.push_back(row.Text);
    app_.platform.showForm("reportChoicesFrm");
}

bool reportPageSetup::allChk() const {
    return std::ranges::all_of(LV3, &Row::Checked);
}

void reportPageSetup::allChk_Click(bool checked) {
    for (Row& row : LV3) row.Checked = checked;
}

void reportPageSetup::ApplyBtn_Click() {
    saveReportSettings();
    underPrinterTrap(app_, [&] { PrintReport(app_, rptPreview1(app_), shownList()); });
}

void reportPageSetup::Command1_Click() {
    ApplyBtn_Click();
    unloaded = true;
}

} // namespace print
