#include "storage/newDatabase.h"

#include "app/windowState.h"
#include "calc/selectedTotals.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/zip.h"
#include "file/workFiles.h"
#include "invoice/views.h"
#include "layout/rulers.h"
#include "layout/sheet.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"
#include "storage/versions.h"

#include <filesystem>
#include <optional>

namespace storage {

namespace {

using app::App;
using core::Document;

std::optional<std::string> askForName(App& app) {
    app.mainFrm.bDatabaseTypeChosen = false;
    app.platform.showForm("databaseTypeFrm");
    if (!app.mainFrm.bDatabaseTypeChosen) return std::nullopt;
    // An open dialog, not a save dialog: the name need not exist.
    return app.platform.showNew(
        {core::tr("Specify Name For New Database"), "", core::tr(platform::databaseFilter)});
}

} // namespace

void offerToSave(App& app) {
    const std::string& currentFile = app.document.currentFile;
    if (currentFile.empty() || !app.document.bModified) return;
    const platform::Answer answer =
        app.platform.msgBox(core::fill(core::tr("Save current file %1?"), {currentFile}),
                            platform::Icon::None, app::title, platform::Buttons::YesNo);
    if (answer != platform::Answer::No)
        tellReason(app, SaveFile(app, false, false));
    else
        endUnsavedWork(app, true);
}

namespace {

void clearDocument(App& app) {
    endUnsavedWork(app, false);
    Document& document = app.document;
    document.iLV.Visible = document.bInvoiceStyle;
    document.clear();
    document.searchLV.Visible = false;
    document.searchLV.clear();
    app.mainFrm.control("Search").Value = false;
    app.mainFrm.theListView = &document.LV;
    app.mainFrm.iFieldFocus = 0;
    app.mainFrm.selectedRows.clear();
    app.changes.announce(app, app::Change::Begun);
}

void make(App& app, const std::string& path, bool bStartUp) {
    app::showReportTab(app);
    offerToSave(app);
    clearDocument(app);
    if (path.empty()) return;
    if (file::fileExists(path) &&
        !app::askYesNo(app, core::tr("Overwrite Existing File?"), platform::Icon::Critical)) {
        // The document is cleared already, and currentFile still names the old file. It is wanted so.
        if (bStartUp) app::enableControls(app, false);
        return;
    }
    if (!guardTarget(app, path)) return;
    createEmptyArchive(app, path);
    app.changes.announce(app, app::Change::Opened);
    app.mainFrm.panels[app::fileSizePanel].clear();
    app.mainFrm.panels[app::documentPanel].clear();
    app.platform.showForm("designFrm");
    finishNewDatabase(app);
    app::enableControls(app, true);
}

} // namespace

void createEmptyArchive(App& app, const std::string& path) {
    // Named first: when the archive cannot be made, the next save must not write the emptied document
    // into the file that was open before.
    app.document.currentFile = path;
    app::showCaption(app);
    file::Zip Zip;
    Zip.CreateArchive(path, "");
    Zip.CloseArchive(keepingVersion(app, path));
}

void finishNewDatabase(App& app) {
    Document& document = app.document;
    core::addTotalsRow(document.LV);
    calc::RefreshSelectedTotals(app.document);
    const auto paper = static_cast<std::int16_t>(app.platform.localePaper());
    document.layoutOptions = {};
    document.layoutOptions.layoutPaperSize = paper;
    layout::unloadObjects(app);
    layout::clearGuides(app);
    document.reportData = {};
    document.reportData.reportPaperSize = paper;
    document.iLastKey = 0;
    app.mainFrm.panels[app::stylePanel] =
        document.bInvoiceStyle ? core::tr("Database Style: Invoice") : core::tr("Database Style: Standard");
    document.iLV.Visible = document.bInvoiceStyle;
    document.bInvoiceView = false;
    app.mainFrm.viewOpt = 1;
    invoice::rebuildView(app.document);
    app.changes.announce(app, app::Change::Begun);
}

void newDatabase(App& app, bool bStartUp) {
    const std::optional<std::string> path = askForName(app);
    if (!path) return;
    try {
        make(app, *path, bStartUp);
    } catch (const core::RunTimeError&) {
        // The routine ends without a word. It is wanted so.
    }
}

} // namespace storage
