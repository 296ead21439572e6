#include "print/previewNavigation.h"
#include "print/previewPage.h"

#include "calc/selectedTotals.h"
#include "core/translate.h"
#include "print/layoutPrinting.h"
#include "print/printerCheck.h"
#include "print/reportPrinting.h"
#include "print/stockLabels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace print {

using app::App;
using core::RecordsList;

namespace {

// False where the button draws nothing.
bool placeReport(App& app, std::string_view key, const RecordsList& list) {
    PreviewPage& page = previewPage(app);
    const int lines = page.iReportLinesPerPage;
    if (key == "First") page.iReportStartRow = 1;
    if (key == "Last") page.iReportStartRow = list.count() > lines ? list.count() - lines + 1 : 1;
    if (key == "Back") {
        if (page.iReportPageStart == 1) return false;
        page.iReportStartRow = page.iReportPageStart - lines;
    }
    // After "Last" a page need not begin where one from the start would.
    page.iReportStartRow = std::max(page.iReportStartRow, 1);
    return true;
}

void placeRecord(App& app, std::string_view key) {
    RecordsList& list = *app.mainFrm.theListView;
    const core::Item* current = list.selectedItem();
    const int row = current == nullptr ? 1 : list.indexOf(*current);
    int wanted = 0;
    if (key == "First" && list.count() > 0) wanted = 1;
    if (key == "Back" && list.count() > 0 && row != 1) wanted = row - 1;
    // The last item, Totals, is not reached.
    if (key == "Next" && row + 1 < list.count()) wanted = row + 1;
    if (key == "Last" && list.count() >= 2) wanted = list.count() - 1;
    if (wanted != 0 && !list.MultiSelect) list.clearSelection();
    showRecordOf(app, list, wanted);
}

void placeLayouts(App& app, std::string_view key) {
    const StockLabels& labels = stockLabels(app);
    if (labels.place && labels.place(app, key)) return;
    PreviewPage& page = previewPage(app);
    const int records = app.document.LV.count() - 1;
    int& iLayoutIndex = page.iLayoutIndex;
    if (key == "First") iLayoutIndex = 0;
    if (key == "Back") iLayoutIndex = std::max(iLayoutIndex - 2 * page.iLayoutsPerPage, 0);
    if (key == "Next" && iLayoutIndex >= app.mainFrm.theListView->count() - 1) iLayoutIndex = 0;
    if (key == "Last" && records >= page.iLayoutsPerPage) iLayoutIndex = records - page.iLayoutsPerPage;
    app.mainFrm.theListView->MultiSelect = false;
}

} // namespace

drawing::DrawTarget& rptPreview1(App& app) {
    drawing::RecordedPage& page = previewPage(app).rptPreview1;
    page.measureWith(app.platform.textMetrics());
    return page;
}

void usePage(App& app, drawing::DrawTarget& target, const drawing::PageSetup& setup) {
    target.setPage(setup);
    if (target.isPrinter()) return;
    previewPage(app).Visible = true;
    previewPage(app).place = {};
    InitReportPreview(app);
}

void InitReportPreview(App& app) {
    PreviewPage& page = previewPage(app);
    const auto place = [](float pageLength, float portLength, float otherBar, PreviewPage::ScrollBar& bar,
                          float& start, bool centred) {
        if (pageLength > portLength) {
            bar.Max = static_cast<int>(std::ceil(pageLength - portLength + 2 * otherBar));
            bar.Value = std::min(bar.Value, bar.Max);
            start = -static_cast<float>(bar.Value);
        } else {
            bar.Max = bar.Value = 0;
            start = centred ? (portLength - pageLength) / 2 : 0;
        }
    };
    place(page.rptPreview1.Width, page.rptPreview2.Width, page.rptVScroll1.thickness, page.rptHScroll1,
          page.Left, true);
    place(page.rptPreview1.Height, page.rptPreview2.Height, page.rptHScroll1.thickness, page.rptVScroll1,
          page.Top, false);
}

void rptHScroll1_Change(App& app, int value) {
    PreviewPage& page = previewPage(app);
    page.rptHScroll1.Value = std::clamp(value, 0, page.rptHScroll1.Max);
    page.Left = -static_cast<float>(page.rptHScroll1.Value);
}

void rptVScroll1_Change(App& app, int value) {
    PreviewPage& page = previewPage(app);
    page.rptVScroll1.Value = std::clamp(value, 0, page.rptVScroll1.Max);
    page.Top = -static_cast<float>(page.rptVScroll1.Value);
}

void rptPreview2_Resize(App& app, float width, float height, float barThickness) {
    PreviewPage& page = previewPage(app);
    page.rptPreview2 = {width, height};
    page.rptHScroll1.thickness = page.rptVScroll1.thickness = barThickness;
    InitReportPreview(app);
}

std::span<const PreviewButton> previewButtons() {
    static constexpr std::array<PreviewButton, 4> buttons = {{{"First", core::marked("First"), "first"},
                                                              {"Back", core::marked("Back"), "back"},
                                                              {"Next", core::marked("Next"), "next"},
                                                              {"Last", core::marked("Last"), "last"}}};
    return buttons;
}

void reportToolbar_ButtonClick(App& app, std::string_view key) {
    underPrinterTrap(app, [&] {
        switch (app.mainFrm.iPrintMode) {
        case app::printReport:
            if (placeReport(app, key, reportList(app))) PrintReport(app, rptPreview1(app), reportList(app));
            break;
        case app::printLayout:
            placeRecord(app, key);
            PrintLayout(app, rptPreview1(app));
            break;
        default:
            placeLayouts(app, key);
            PrintMultipleLayouts(app, rptPreview1(app));
        }
    });
}

bool showPreview(App& app) {
    PreviewPage& page = previewPage(app);
    if (app.mainFrm.iPrintMode == app::printReport && app.document.printedCols.empty()) {
        page.Visible = false;
        app::inform(app, core::tr("You have not selected any columns to print in the page setup dialog."));
        return false;
    }
    underPrinterTrap(app, [&] {
        drawing::DrawTarget& target = rptPreview1(app);
        if (app.mainFrm.iPrintMode == app::printReport) {
            RecordsList& list = reportList(app);
            calc::collectSelected(app, list);
            page.iReportStartRow = 1;
            page.bReportSelectedOnly = app.mainFrm.selectedRows.size() > 1;
            PrintReport(app, target, list);
        } else if (app.mainFrm.iPrintMode == app::printLayout) {
            PrintLayout(app, target);
        } else {
            PrintMultipleLayouts(app, target);
        }
    });
    return true;
}

} // namespace print
