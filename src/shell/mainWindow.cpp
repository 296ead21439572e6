#include "shell/mainWindow.h"

#include "core/translate.h"
#include "invoice/views.h"
#include "layout/sheet.h"
#include "print/previewNavigation.h"
#include "print/printerCheck.h"
#include "search/searchMode.h"
#include "shell/settings.h"
#include "shell/start/recoveryOffer.h"
#include "shell/start/templates.h"
#include "storage/openFile.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"

namespace shell {

using app::App;
using core::Document;
using core::RecordsList;

namespace {

void showStartTexts(App& app) {
    app.mainFrm.panels[app::calculationPanel] = core::tr("Calculation Status:");
    app.mainFrm.panels[app::fileSizePanel] = core::tr("Filesize:");
    app.mainFrm.panels[app::documentPanel] = core::tr("No Open Document");
    app.mainFrm.panels[app::stylePanel] = core::tr("Database Style:");
    app::showCaption(app);
}

// On the layout page of an invoice database the record is the one behind the selected row. False when
// there is none to show.
bool selectInvoice(core::Document& document) {
    const bool results = document.searchLV.Visible;
    const RecordsList& shown = results ? document.searchLV : document.iLV;
    if (shown.count() < 2) return !results;
    if (const core::Item* row = shown.selectedItem())
        if (core::Item* record = document.LV.find(row->Text)) document.LV.setSelectedItem(record);
    return true;
}

void arriveAtLayout(App& app) {
    app.mainFrm.iPrintMode = app::printLayout;
    RecordsList& list = *app.mainFrm.theListView;
    list.MultiSelect = false;
    list.setSelectedItem(list.selectedItem()); // one row stays selected: the one that is shown
    if (app.document.bInvoiceStyle && !selectInvoice(app.document)) {
        app::showReportTab(app);
        return;
    }
    layout::InitLayout(app, layout::isDesignMode(app));
}

} // namespace

void Form_Load(App& app, std::string_view Command, const std::function<void()>& show) {
    showStartTexts(app);
    readSettings(app);
    findTemplates(app, templateFolder());
    if (!app.mainFrm.bDisclaimerSeen) {
        app.platform.showForm("disclaimFrm");
        app.mainFrm.bDisclaimerSeen = true;
    }
    app.mainFrm.iPrintMode = app::printReport;
    app.mainFrm.theListView = &app.document.LV;
    show();
    std::string& currentFile = app.document.currentFile;
    currentFile = Command.empty()
                      ? app.platform.getSetting("defaultFile", "")
                      : std::string(Command.substr(1, std::max<std::size_t>(Command.size(), 2) - 2));
    app::enableControls(app, false);
    // A first start with "auto-load" on has nothing to load and nothing to say about it.
    if (!currentFile.empty() && (app.mainFrm.bAutoLoad || !Command.empty()))
        storage::OpenFile(app, true);
    else
        currentFile.clear();
    offerRecovery(app);
}

std::string commandLineFor(std::string_view path) {
    if (path.empty()) return {};
    if (path.size() > 1 && path.front() == '"' && path.back() == '"') return std::string(path);
    return '"' + std::string(path) + '"';
}

void Form_QueryUnload(App& app) {
    writeSettings(app);
    bool bGivenUp = app.document.bModified && !app.mainFrm.bSavePrompt; // the user does not want to be asked
    if (app.document.bModified && app.mainFrm.bSavePrompt) {
        const platform::Answer answer =
            app.platform.msgBox(core::tr("Save current document?"), platform::Icon::Question, app::title,
                                platform::Buttons::YesNo);
        bGivenUp = answer == platform::Answer::No;
        if (!bGivenUp) storage::tellReason(app, storage::SaveFile(app, false, false));
    }
    // After a save that failed, now or before, the copy is all there is.
    storage::endUnsavedWork(app, bGivenUp);
    storage::openedFile(app).lock.reset();
    app.mainFrm.unloaded = true;
}

void keepForTheEnd(App& app) {
    storage::keepUnsavedWork(app);
    writeSettings(app);
}

void endAtOnce(App& app) {
    keepForTheEnd(app);
    storage::openedFile(app).lock.reset();
}

void SSTab1_Click(App& app, int tab) {
    if (tab != app::reportTab && !print::hasPrinter(app)) return;
    if (tab == app::reportTab) {
        app::showReportTab(app);
        return;
    }
    app.mainFrm.SSTab1 = tab;
    app.mainFrm.invoiceFrameVisible = false;
    if (tab == app::layoutTab) arriveAtLayout(app);
    if (tab == app::previewTab && !print::showPreview(app)) return;
    app::enableTabButtons(app);
}

void viewOpt_Click(App& app, int index) {
    Document& document = app.document;
    const bool items = index == 0;
    // What is left behind is the other view, so its columns' places are what iLV shows now.
    core::NamedCollection& leaving = items ? document.invoiceCols : document.itemLevelCols;
    document.bInvoiceView = items;
    app.mainFrm.viewOpt = index;
    leaving.clear();
    for (const core::Column& column : document.iLV.columns) leaving.add(std::to_string(column.Position));
    app.mainFrm.control("Search").Value = false;
    // Commands work on the records again; on results out of sight they would change what nobody sees.
    if (document.searchLV.Visible) search::showAllRecords(app);
    invoice::rebuildView(app.document);
    app::enableControls(app, true);
    invoice::choosePrintedCols(document);
}

} // namespace shell
