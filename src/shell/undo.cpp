#include "shell/undo.h"

#include "calc/selectedTotals.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "entry/navBar.h"
#include "entry/retrieveData.h"
#include "entry/shownRecord.h"
#include "history/stepName.h"
#include "history/undoStack.h"
#include "invoice/views.h"
#include "layout/keptPictures.h"
#include "layout/layoutPage.h"
#include "layout/selection.h"
#include "layout/sheet.h"
#include "print/reportPrinting.h"
#include "search/codes/codeRules.h"
#include "search/filter/filterMode.h"
#include "search/searchMode.h"
#include "shell/mainWindow.h"
#include "shell/typedWords.h"
#include "storage/recoveryCopies.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace shell {

using app::App;

namespace {

struct History {
    history::UndoStack stack;
    bool bRecords = false;  // they may have changed since they were last looked at
    bool bUnmarked = false; // undone to what is saved
    std::string_view command;
};

History& historyOf(const App& app) {
    return app.rooms.of<History>();
}

// What changes records is better named after the command than after what came of it.
std::string_view nameOfCommand(std::string_view key) {
    static constexpr std::array<std::array<std::string_view, 2>, 12> names = {{
        {"mnuDuplicate", core::marked("Duplicate Record")},
        {"mnuReplace", core::marked("Find And Replace")},
        {"mnuPaste", core::marked("Paste")},
        {"mnuImportTable", core::marked("Import")},
        {"mnuCut", core::marked("Cut")},
        {"mnuSetValues", core::marked("Set Values")},
        {"mnuMakeCode", core::marked("Make Code")},
        {"mnuDuplicates", core::marked("Delete Duplicates")},
        {"mnuVersions", core::marked("Restore Version")},
        {"mnuSerialAdjust", core::marked("Adjust Serial Number")},
        {"mnuCleanDatabase", core::marked("Clean Database")},
        {"mnuLabels", core::marked("Label Wizard")},
    }};
    const auto* found = std::ranges::find(names, key, [](const auto& name) { return name[0]; });
    return found == names.end() ? std::string_view() : (*found)[1];
}

// A drag is one step, and so is what is typed into a label.
bool isHalfWay(const App& app) {
    const layout::LayoutPage& page = layout::layoutPage(app);
    return page.drag != layout::LayoutPage::Drag::None || page.bEditingLabel;
}

void show(App& app, const char* key, const char* verb, const char* verbOfStep, const history::Step* step) {
    app::Control& control = app.mainFrm.control(key);
    control.Enabled = step != nullptr;
    control.Caption = step == nullptr ? core::tr(verb) : core::fill(core::tr(verbOfStep), {step->name});
}

void showSteps(App& app) {
    show(app, "mnuUndo", core::marked("&Undo"), core::marked("&Undo %1"), historyOf(app).stack.undone());
    show(app, "mnuRedo", core::marked("&Redo"), core::marked("&Redo %1"), historyOf(app).stack.redone());
}

void settle(App& app) {
    History& history = historyOf(app);
    if (!history.stack.isStarted() || isHalfWay(app)) return;
    layout::KeptPictures& pictures = layout::keptPictures(app);
    for (file::KeptEntry& entry : pictures.entries) history.stack.notePicture(std::move(entry));
    pictures.entries.clear();
    history.stack.settle(
        app.document, std::exchange(history.bRecords, false), [&](const history::Step& step) {
            const std::string_view command = nameOfCommand(history.command);
            return command.empty() ? history::nameOf(step, history.stack) : core::tr(command);
        });
}

// What is designed was marked when the design began, and no command marks it again after an undo.
void markAgain(App& app) {
    History& history = historyOf(app);
    if (!history.bUnmarked || history.stack.isSaved()) return;
    history.bUnmarked = false;
    if (!app.document.bModified) app::setDocumentModified(app, true);
}

void begin(App& app) {
    historyOf(app).stack.stop();
    historyOf(app).bUnmarked = false;
    layout::keptPictures(app) = {};
    showSteps(app);
}

bool isDocument(const App& app) {
    return !app.document.currentFile.empty() || app.document.LV.columns.count() > 1;
}

// Puts entries into the open file, in one write, and answers those that were there.
std::vector<file::KeptEntry> swapPictures(App& app, const std::vector<file::KeptEntry>& entries) {
    app.changes.announce(app, app::Change::Writing);
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    std::vector<file::KeptEntry> others;
    others.reserve(entries.size());
    for (const file::KeptEntry& entry : entries) {
        if (Zip.contains(entry.name))
            others.push_back(file::keepEntry(Zip, entry.name));
        else
            others.push_back({entry.name, {}, std::nullopt});
        file::putBack(Zip, entry);
    }
    Zip.CloseArchive();
    app.changes.announce(app, app::Change::Written);
    std::error_code none;
    for (const file::KeptEntry& entry : entries) // they are unpacked anew
        std::filesystem::remove(app.platform.tempFolder() / entry.name, none);
    return others;
}

// The page shows other objects, scrolled as it was.
void showObjects(App& app) {
    if (app.mainFrm.SSTab1 != app::layoutTab) return;
    const layout::LayoutPage& page = layout::layoutPage(app);
    const int top = page.layoutVScroll.Value;
    const int left = page.layoutHScroll.Value;
    const core::ObjectRef selected = page.selectedObject;
    layout::InitLayout(app, layout::isDesignMode(app));
    if (top != 0) layout::layoutVScroll_Change(app, top);
    if (left != 0) layout::layoutHScroll_Change(app, left);
    if (layout::isDesignMode(app) && selected.isObject() &&
        core::findObject(app.document.layout, selected) != nullptr)
        layout::select(app, selected);
}

// The list of the invoices is built for the layout as it is, but shows the columns that it had: after a
// change of the layout it is built anew no sooner than with the next record.
void refreshInvoiceRows(core::Document& document, const core::ColumnHeaders& columns) {
    if (!document.bInvoiceStyle) return;
    const core::ColumnHeaders built = std::exchange(document.iLV.columns, columns);
    if (!std::ranges::equal(built, columns, {}, &core::Column::Key, &core::Column::Key))
        document.iLV.forEach([&](core::Item& row) {
            const std::vector<core::CellText> cells = std::move(row.cells);
            row.cells.assign(static_cast<std::size_t>(columns.count() - 1), {});
            for (const core::Column& column : columns)
                if (const core::Column* source = built.find(column.Key);
                    source != nullptr && column.Index > 1)
                    row.subItem(column.Index - 1) = cells.at(static_cast<std::size_t>(source->Index - 2));
        });
    const core::Item* record = document.LV.selectedItem();
    document.iLV.clearSelection();
    document.iLV.setSelectedItem(record == nullptr ? nullptr : document.iLV.findText(record->Key));
}

void showRecords(App& app) {
    core::Document& document = app.document;
    app::showRecordCount(app, document.LV);
    app.mainFrm.Slider1.Max = std::max(document.LV.count() - 1, 1);
    calc::RefreshSelectedTotals(document);
    app.mainFrm.selectedRows.clear();
    app.mainFrm.listScroll = app::ListScroll::ToCurrent;
}

void showChanged(App& app, const TypedWords& typed, bool bColumns, bool bObjects) {
    // A record that is new on the page stays there until it is added.
    const bool bNew = entry::isSheetNew(app) && !app.document.bInvoiceStyle && !bObjects;
    app.mainFrm.viewOpt = app.document.bInvoiceView ? 0 : 1;
    typed.stay();
    const history::Selection selected = history::Selection::of(app.document.LV);
    const core::ColumnHeaders shown = app.document.iLV.columns;
    app.changes.announce(app, app::Change::Objects);
    if (bObjects) showObjects(app);
    showRecords(app);
    app.changes.announce(app, bColumns || bNew ? app::Change::Columns : app::Change::Values);
    refreshInvoiceRows(app.document, shown);
    if (app.document.searchLV.Visible && bColumns)
        search::leaveResults(app);
    else
        search::followRecords(app);
    if (!bNew) search::filterAnew(app); // a record that is back is found again
    if (app.document.searchLV.Visible) app::showRecordCount(app, app.document.searchLV);
    if (!bNew) app.changes.announce(app, app::Change::CurrentRecord);
    typed.putBack();
    // What is designed shows the names of its columns again.
    if (app.mainFrm.SSTab1 == app::layoutTab && layout::isDesignMode(app)) showObjects(app);
    selected.putInto(app.document.LV); // the page has taken one of them perhaps
    app.document.LV.MultiSelect = app.mainFrm.SSTab1 != app::layoutTab;
}

void go(App& app, bool bBack) {
    settle(app);
    history::UndoStack& stack = historyOf(app).stack;
    const history::Step* step = bBack ? stack.undone() : stack.redone();
    if (step == nullptr || isHalfWay(app)) return;
    const TypedWords typed(app);
    const search::CodesAsTheyAre codes(app); // the step has those that belong to the texts
    const auto design = stack.designPart();
    const auto objects = stack.objectsPart();
    const auto swap = [&](const auto& entries) { return swapPictures(app, entries); };
    try {
        if (bBack)
            stack.undo(app.document, swap);
        else
            stack.redo(app.document, swap);
    } catch (const core::RunTimeError& error) {
        app::warn(app, core::fill(core::tr("A picture could not be put back: %1"), {error.what()}));
        return;
    }
    const bool bColumns = stack.designPart() != design;
    showChanged(app, typed, bColumns, bColumns || stack.objectsPart() != objects);
    historyOf(app).bUnmarked = stack.isSaved();
    app::setDocumentModified(app, !stack.isSaved());
    if (bColumns) print::showReportAnew(app);
    // After a save that failed it is not known what the file holds, or whether there still is one.
    if (stack.isSaved() && !storage::unsavedWork(app).hasSaveFailed) storage::removeUnsavedWork(app);
}

} // namespace

void beforeEvent(App& app) {
    History& history = historyOf(app);
    if (!history.stack.isStarted()) {
        if (!isDocument(app)) return;
        history.stack.start(app.document, !app.document.bModified);
        layout::keptPictures(app).isKept = true;
    }
    settle(app); // what came without an event, like the width of a column
    if (!isHalfWay(app)) history.stack.noteSelection(app.document);
}

void afterEvent(App& app) {
    settle(app);
    markAgain(app);
    showSteps(app);
}

std::uint64_t stepsTaken(const App& app) {
    return historyOf(app).stack.taken();
}

void undo(App& app) {
    go(app, true);
}
void redo(App& app) {
    go(app, false);
}

RunningCommand::RunningCommand(App& app, std::string_view key)
    : app_(app), before_(std::exchange(historyOf(app).command, key)) {}

void RunningCommand::end() {
    settle(app_);
}

RunningCommand::~RunningCommand() {
    historyOf(app_).command = before_;
}

void followForUndo(app::Changes& changes) {
    using app::Change;
    changes.follow({Change::Begun}, begin);
    changes.follow({Change::Modified, Change::Columns, Change::Values, Change::Unsaved},
                   [](App& app) { historyOf(app).bRecords = true; });
    // A key in the filter bar moves to another record and changes none.
    changes.follow({Change::CurrentRecord}, [](App& app) {
        if (!search::isShowingFound(app)) historyOf(app).bRecords = true;
    });
    changes.follow({Change::Stored}, [](App& app) {
        settle(app);
        historyOf(app).stack.markSaved();
        historyOf(app).bUnmarked = false;
    });
}

} // namespace shell
