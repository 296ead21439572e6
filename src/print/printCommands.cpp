#include "print/printCommands.h"
#include "print/previewPage.h"

#include "calc/selectedTotals.h"
#include "core/translate.h"
#include "entry/retrieveData.h"
#include "print/layoutPrinting.h"
#include "print/previewNavigation.h"
#include "print/printerCheck.h"
#include "print/progress.h"
#include "print/reportPrinting.h"

#include <filesystem>
#include <functional>
#include <map>
#include <numeric>

namespace print {

using app::App;
using core::RecordsList;
using drawing::DrawTarget;

namespace {

std::string documentName(const core::Document& document) {
    return std::filesystem::path(document.currentFile).stem().string();
}

} // namespace

void printOn(App& app, const std::function<void(DrawTarget& printer)>& draw) {
    const std::unique_ptr<DrawTarget> printer = app.platform.openPrinter(documentName(app.document));
    if (!printer) return;
    const app::Hourglass hourglass(app);
    draw(*printer);
    if (printer->close()) return;
    const std::string why = printer->failure();
    app::warn(app, why.empty() ? core::tr("The print could not be written.")
                               : core::fill(core::tr("The print could not be written: %1."), {why}));
}

namespace {

void printReport(App& app, bool bSelectedOnly) {
    previewPage(app).iReportStartRow = 1;
    previewPage(app).bReportSelectedOnly = bSelectedOnly;
    // A failure leaves the printer unclosed and goes to the trap of the command, which tells it.
    printOn(app, [&](DrawTarget& printer) { drawReport(app, printer, reportList(app)); });
}

void printMultiple(App& app) {
    previewPage(app).iLayoutIndex = 0;
    printOn(app, [&](DrawTarget& printer) { PrintMultipleLayouts(app, printer); });
}

// In an invoice database the rows are invoices, unless they have been searched for.
RecordsList& layoutList(App& app) {
    return reportList(app);
}

void allAsReport(App& app) {
    printReport(app, false);
}

void selectedAsReport(App& app) {
    calc::collectSelected(app, reportList(app));
    printReport(app, true);
}

void allAsLayouts(App& app) {
    if (!showPrinterDialog(app)) return;
    printOn(app, [&](DrawTarget& printer) { printEachLayout(app, printer, layoutList(app)); });
}

void selectedAsLayouts(App& app) {
    if (!showPrinterDialog(app)) return;
    calc::collectSelected(app, layoutList(app));
    printOn(app, [&](DrawTarget& printer) {
        printEachLayout(app, printer, layoutList(app), &app.mainFrm.selectedRows);
    });
}

void printAllAsMultiple(App& app) {
    if (!showPrinterDialog(app)) return;
    previewPage(app).bLayoutSelectedOnly = false;
    printMultiple(app);
}

void printSelectedMultiple(App& app) {
    if (!showPrinterDialog(app)) return;
    calc::collectSelected(app, *app.mainFrm.theListView);
    previewPage(app).bLayoutSelectedOnly = true;
    printMultiple(app);
}

void previewMultiple(App& app, bool bSelectedOnly) {
    if (bSelectedOnly) calc::collectSelected(app, *app.mainFrm.theListView);
    previewPage(app).bLayoutSelectedOnly = bSelectedOnly;
    previewPage(app).iLayoutIndex = 0;
    app.mainFrm.iPrintMode = app::printMultipleLayouts;
    app.changes.announce(app, app::Change::Preview);
}

const std::map<std::string_view, std::function<void(App&)>>& menuActions() {
    static const std::map<std::string_view, std::function<void(App&)>> actions = {
        {"All_As_Report", allAsReport},
        {"Selected_As_Report", selectedAsReport},
        {"All_As_Layouts", allAsLayouts},
        {"Selected_As_Layouts", selectedAsLayouts},
        {"Print_All_As_Multiple_Layouts", printAllAsMultiple},
        {"Print_Selected_Multiple_Layouts", printSelectedMultiple},
        {"Multiple_Layout_Preview_All", [](App& app) { previewMultiple(app, false); }},
        {"Multiple_Layout_Preview_Selected", [](App& app) { previewMultiple(app, true); }}};
    return actions;
}

} // namespace

bool showPrinterDialog(App& app) {
    core::LayoutOptions& options = app.document.layoutOptions;
    const auto choice = app.platform.showPrinterDialog({options.layoutPaperSize, options.layoutOrientation});
    if (!choice) return false;
    options.layoutPaperSize = static_cast<std::int16_t>(choice->PaperSize);
    options.layoutOrientation = static_cast<std::int16_t>(choice->Orientation);
    return true;
}

void printEachLayout(App& app, DrawTarget& printer, RecordsList& list, const std::vector<int>* rows) {
    std::vector<int> all;
    if (rows == nullptr) {
        all.resize(static_cast<std::size_t>(list.count()));
        std::iota(all.begin(), all.end(), 1);
        rows = &all;
    }
    const bool multiSelect = list.MultiSelect;
    list.clearSelection();
    list.MultiSelect = false;
    Progress progress(app, static_cast<int>(rows->size()));
    const entry::ManyRecordsShown many(app);
    int printed = 0;
    for (const int row : *rows) {
        if (list.at(row).isTotals()) continue;
        showRecordOf(app, list, row);
        PrintLayout(app, printer);
        progress.reached(++printed);
    }
    list.MultiSelect = multiSelect;
}

void Print_Click(App& app) {
    if (!hasPrinter(app)) return;
    underPrinterTrap(app, [&] {
        if (app.mainFrm.iPrintMode == app::printReport) {
            calc::collectSelected(app, reportList(app));
            printReport(app, app.mainFrm.selectedRows.size() > 1);
        } else if (app.mainFrm.iPrintMode == app::printLayout) {
            if (showPrinterDialog(app)) printOn(app, [&](DrawTarget& printer) { PrintLayout(app, printer); });
        } else {
            previewPage(app).bLayoutSelectedOnly = app.mainFrm.selectedRows.size() >= 2;
            printMultiple(app);
        }
    });
}

void PageSetup_Click(App& app) {
    if (!hasPrinter(app)) return;
    underPrinterTrap(app, [&] {
        app.platform.showForm(app.mainFrm.iPrintMode == app::printReport ? "reportPageSetup"
                                                                         : "layoutPageSetupFrm");
    });
}

void Toolbar_ButtonMenuClick(App& app, std::string_view key) {
    const auto action = menuActions().find(key);
    if (action == menuActions().end() || !hasPrinter(app)) return;
    RecordsList& list = *app.mainFrm.theListView;
    list.MultiSelect = false;
    underPrinterTrap(app, [&] { action->second(app); });
    list.MultiSelect = true;
}

} // namespace print
