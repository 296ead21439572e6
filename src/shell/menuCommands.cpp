#include "shell/menuCommands.h"

#include "entry/editRecord.h"
#include "entry/invoiceRecords.h"
#include "layout/sheet.h"
#include "lock/designLock.h"
#include "print/printerCheck.h"
#include "shell/mainWindow.h"
#include "storage/openFile.h"

#ifndef FERROWICK_HOMEPAGE
#define FERROWICK_HOMEPAGE ""
#endif

namespace shell {

using app::App;

void openNamedFile(App& app, const std::string& path) {
    app.document.currentFile = path;
    storage::OpenFile(app, true);
}

void openRecentFile(App& app, std::string_view key) {
    const std::string path = app.mainFrm.control(key).Caption;
    if (!path.empty()) openNamedFile(app, path);
}

void toggleSelectedTotals(App& app) {
    app::Control& button = app.mainFrm.control("Totals");
    button.Value = !button.Value;
    app.document.LV3.Visible = button.Value;
}

void pressTotals(App& app) {
    if (app.mainFrm.control("Totals").Enabled) toggleSelectedTotals(app);
}

void showProperties(App& app) {
    if (!lock::isDesignLocked(app)) showDatabaseProperties(app);
}

void showDatabaseProperties(App& app) {
    app.platform.showForm("designFrm");
    layout::refreshLayoutButtonMenus(app);
}

void pressDesign(App& app) {
    app::Control& button = app.mainFrm.control("Design");
    if (lock::isDesignLocked(app) || !print::hasPrinter(app)) {
        button.Value = false;
        return;
    }
    button.Value = !button.Value;
    layout::refreshLayoutMode(app);
    if (app.mainFrm.SSTab1 != app::layoutTab) SSTab1_Click(app, app::layoutTab);
    app::setDocumentModified(app, true);
}

void toggleCalcHighlight(App& app) {
    app.mainFrm.bHighlightCalc = !app.mainFrm.bHighlightCalc;
    app.mainFrm.control("mnuCalcHighlight").Value = app.mainFrm.bHighlightCalc;
    layout::InitLayout(app, layout::isDesignMode(app));
}

void deleteRow(App& app) {
    if (app.mainFrm.SSTab1 != app::reportTab || app.document.searchLV.Visible) return;
    if (!app.document.bInvoiceStyle)
        entry::deleteRecords(app);
    else if (!app.document.bInvoiceView)
        entry::deleteInvoices(app);
}

void showAbout(App& app) {
    const std::string text = std::string(app::title) + "\nVersion " + FERROWICK_VERSION +
                             "\n\nA small database of your own, without learning one.\n"
                             "Free software under the MIT licence. It comes with no warranty.";
    app.platform.msgBox(text, platform::Icon::Information, std::string("About ") + app::title);
}

std::function<void(App&)> visitHomepage() {
    if (std::string_view(FERROWICK_HOMEPAGE).empty()) return {};
    return [](App& app) { app.platform.openLink(FERROWICK_HOMEPAGE); };
}

} // namespace shell
