#include "storage/openFile.h"

#include "app/windowState.h"
#include "calc/selectedTotals.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/zip.h"
#include "file/dataReader.h"
#include "file/workFiles.h"
#include "invoice/views.h"
#include "layout/images.h"
#include "layout/rulers.h"
#include "layout/sheet.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/versions.h"

#include <filesystem>

namespace storage {

namespace {

using app::App;
using core::Document;

// The file to open, or nothing when there is none: the user cancelled, or it is not there.
std::optional<std::string> chooseFile(App& app, bool StartUp) {
    std::string path = app.document.currentFile;
    if (!StartUp) {
        const std::optional<std::string> chosen =
            app.platform.showOpen({core::tr("Open Database"), "", core::tr(platform::databaseFilter)});
        if (!chosen) {
            if (app.document.currentFile.empty()) app::enableControls(app, false);
            return std::nullopt;
        }
        path = *chosen;
    }
    if (file::fileExists(path)) return path;
    app::inform(app, StartUp ? core::tr("Previously opened file could not be found.")
                             : core::tr("File does not exist!"));
    app.document.currentFile.clear();
    return std::nullopt;
}

void showInvoiceLists(App& app) {
    Document& document = app.document;
    if (!document.bInvoiceStyle) return;
    app.mainFrm.viewOpt = document.bInvoiceView ? 0 : 1;
    if (!document.iLV.empty()) calc::list_Click(app, document.iLV);
}

void alignFields(Document& document) {
    document.layout.layoutField.forEach([&](core::LayoutField& field) {
        // A field of a column that is gone keeps the left alignment.
        const core::Column* column = document.LV.columns.find(field.Tag);
        field.align =
            column != nullptr && column->isNumeric() ? core::Alignment::Right : core::Alignment::Left;
    });
}

// A plain shift: the same file can stand in the list twice or three times.
void rememberFile(App& app, bool StartUp) {
    app::MainFrm& mainFrm = app.mainFrm;
    std::string& first = mainFrm.control("mnuFile1").Caption;
    if (StartUp) {
        if (first.empty()) first = app.document.currentFile;
        return;
    }
    mainFrm.control("mnuFile3").Caption = mainFrm.control("mnuFile2").Caption;
    mainFrm.control("mnuFile2").Caption = first;
    first = app.document.currentFile;
}

void showOpened(App& app, bool StartUp) {
    Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    calc::RefreshSelectedTotals(app.document);
    // Below two records the slider and the count keep what they showed. It is wanted so.
    if (document.LV.count() >= 3) {
        mainFrm.Slider1.Max = document.LV.count() - 1;
        app::showRecordCount(app, document.LV);
    }
    app::enableControls(app, true);
    // The button outlasts the database that it was pressed for; behind a lock it would open the design.
    if (!document.lockPassword.empty()) mainFrm.control("Design").Value = false;
    if (!document.LV.empty() && document.LV.selectedItem() == nullptr)
        document.LV.setSelectedItem(&document.LV.at(1));
    calc::list_Click(app, document.LV);
    mainFrm.panels[app::documentPanel] = core::tr("Document Opened");
    mainFrm.panels[app::stylePanel] =
        document.bInvoiceStyle ? core::tr("Database Style: Invoice") : core::tr("Database Style: Standard");
    app::showFileSize(app);
    showInvoiceLists(app);
    alignFields(document);
    rememberFile(app, StartUp);
    mainFrm.theListView = &document.LV;
    mainFrm.bListFocus = true;
}

void takeOver(App& app, const std::string& path) {
    app.document.currentFile = path;
    app::showCaption(app);
    app::showReportTab(app);
    layout::clearGuides(app);
    app.mainFrm.iFieldFocus = 0;
    app.document.searchLV.Visible = false;
    app.document.searchLV.clear();
    app.mainFrm.control("Search").Value = false;
    app.mainFrm.theListView = &app.document.LV;
    app.mainFrm.selectedRows.clear();
    app.mainFrm.bCtrlDown = false; // held for the shortcut perhaps; no row is clicked with it
    app.mainFrm.listScroll = app::ListScroll::ToCurrent;
}

void clearForReading(App& app) {
    layout::unloadObjects(app);
    app.document.bInvoiceStyle = false;
    app.document.clear();
    app.platform.clearWorkFiles();
}

void readText(App& app, std::string text) {
    Document& document = app.document;
    if (app.platform.keepsDataFile()) file::writeWorkFile(app.platform.workFolder() / "data.dat", text);
    file::readDataFile(std::move(text), document);
    if (document.LV.empty()) core::addTotalsRow(document.LV);
    document.iLV.Visible = document.bInvoiceStyle;
    if (document.bInvoiceStyle) invoice::choosePrintedCols(document);
    invoice::rebuildView(app.document);
}

} // namespace

void readArchive(App& app, const std::string& path) {
    // A database of the most records and columns, each cell a long line, stays far below it.
    constexpr std::size_t mostBytes = std::size_t{256} * 1024 * 1024;
    clearForReading(app);
    file::Zip Zip;
    Zip.OpenArchive(path);
    std::optional<std::string> text = Zip.readEntry("data.dat", mostBytes);
    const std::uint32_t checksum = Zip.checksumOf("data.dat");
    Zip.CloseArchive();
    if (!text) core::raise(core::errors::fileNotFound, "data.dat is not in the archive");
    readText(app, *std::move(text));
    noteRecords(app, checksum);
}

void replaceDocument(App& app, std::string text) {
    endUnsavedWork(app, true);
    takeOver(app, app.document.currentFile);
    clearForReading(app);
    readText(app, std::move(text));
    if (app.platform.keepsDataFile()) extractClipArt(app);
    showOpened(app, true);
    app::setDocumentModified(app, true);
}

void extractClipArt(App& app) {
    if (app.document.layout.clipPic.count() == 0) return;
    // An entry that is not there passes silently: a clone names clip art that it does not have.
    layout::ImageArchive archive(app);
    app.document.layout.clipPic.forEach([&](core::ClipPic& clip) {
        layout::fitImage(app, clip, clip.clipImage, layout::unpackedImage(app, clip.Tag, archive));
    });
}

namespace {

// What the system said when it failed to read or write a file; nothing when the file itself is at fault.
std::string faultOfSystem(const std::exception& error) {
    namespace errors = core::errors;
    const auto* known = dynamic_cast<const core::RunTimeError*>(&error);
    if (known == nullptr) return {};
    std::string text = known->what();
    for (const int number : {errors::deviceIO, errors::diskNotReady, errors::diskFull, errors::pathAccess})
        if (known->number == number && text.ends_with(')')) return text;
    return {};
}

// The records come from the archive, which is a recovery copy perhaps, and the pictures from the file of that
// path.
void openFrom(App& app, const std::string& path, const std::string& archive, bool StartUp) {
    std::string fault;
    endUnsavedWork(app, false);
    if (auto& next = openedFile(app).next) next->state = file::FileState::of(path);
    try {
        takeOver(app, path);
        readArchive(app, archive);
        if (app.platform.keepsDataFile()) extractClipArt(app);
        showOpened(app, StartUp);
    } catch (const std::exception& error) {
        fault = faultOfSystem(error);
        // Whatever is wrong with it, a file that cannot be opened ends in the empty window, without a
        // message.
        app.document.currentFile.clear();
        app::enableControls(app, false);
        app.mainFrm.theListView = &app.document.LV;
    }
    app.changes.announce(app, app::Change::Begun);
    // Of what was given up nothing is unsaved here any more, though the told flag stays as it was.
    app.changes.announce(app, app::Change::Opened);
    if (!fault.empty()) app::warn(app, core::fill(core::tr("%1 could not be opened:\n%2"), {path, fault}));
}

} // namespace

void OpenFile(App& app, bool StartUp) {
    const std::optional<std::string> chosen = chooseFile(app, StartUp);
    if (!chosen) return;
    const std::optional<std::string> path = guardOpening(app, *chosen);
    if (path)
        openFrom(app, *path, *path, StartUp);
    else if (StartUp)
        app.document.currentFile = openedFile(app).path; // it goes on as the open one
}

bool openRecovered(App& app, const std::string& file, const std::string& archive) {
    const std::optional<std::string> path = guardOpening(app, file);
    if (!path) return false;
    openFrom(app, *path, archive, true);
    return !app.document.currentFile.empty();
}

} // namespace storage
