#include "shell/start/recoveryOffer.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "entry/entryFrm.h"
#include "entry/navBar.h"
#include "file/archive/zip.h"
#include "file/fileState.h"
#include "file/workFiles.h"
#include "shell/mainWindow.h"
#include "shell/menuCommands.h"
#include "storage/openFile.h"
#include "storage/openedFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveSteps.h"
#include "storage/versions.h"

#include <array>
#include <ctime>
#include <filesystem>
#include <set>
#include <utility>

namespace shell {

namespace fs = std::filesystem;

using app::App;
using storage::RecoveryCopy;
using storage::RecoveryNote;

namespace {

constexpr std::size_t mostBytes = std::size_t{256} << 20; // as an open takes

struct Offers {
    bool isOffering = false; // a restored copy is opened, which would offer the next one
    std::set<fs::path> left; // for later
};

bool isChangedSince(const RecoveryNote& note) {
    const file::FileState now = file::FileState::of(note.file);
    return now.isThere() && (now.modified() != note.modified || now.size() != note.size);
}

std::string timeText(std::int64_t seconds) {
    const std::time_t time = seconds;
    std::tm local{};
    std::array<char, 32> text{};
    ::localtime_r(&time, &local);
    std::strftime(text.data(), text.size(), "%m/%d/%Y %H:%M:%S", &local);
    return text.data();
}

std::string offerText(const RecoveryNote& note) {
    std::string text = core::fill(
        core::tr("This work was never saved. It can be restored.\n\nFile: %1\nTime: %2\nRecords: %3"),
        {note.file.empty() ? core::tr("(none yet)") : note.file, timeText(note.time),
         std::to_string(note.records)});
    if (isChangedSince(note))
        text.append("\n\n").append(core::tr("The file itself was changed after that work was begun."));
    return text.append("\n\n").append(core::tr("What is restored is not saved until you save it."));
}

// A new archive of the records, with the pictures of the file that they belong to.
void packAsFile(App& app, const RecoveryCopy& copy, const std::string& target) {
    file::Zip records;
    records.OpenArchive(copy.archive);
    const std::string text = records.readEntry("data.dat", mostBytes).value_or(std::string());
    records.CloseArchive();
    file::Zip Zip;
    try {
        Zip.OpenArchive(copy.note.file);
    } catch (const core::RunTimeError&) {
        // Without pictures, when the file has gone or is damaged, and for this user alone, as the copy is.
        Zip.CreateArchive(target, "", copy.archive);
    }
    Zip.addBuffer("data.dat", text, "Main Data File");
    Zip.CloseArchiveAs(target, storage::keepingVersion(app, target));
}

bool writeAsFile(App& app, const RecoveryCopy& copy, const std::string& target) {
    return storage::writeNewFile(app, target, [&] { packAsFile(app, copy, target); });
}

bool lookAtCopy(App& app, const RecoveryCopy& copy) {
    const std::string stem = fs::path(copy.note.file).stem().string();
    const std::optional<std::string> target = app.platform.showSave(
        {core::tr("Save the Copy As..."),
         core::fill(core::tr("%1 (recovered).fwk"), {stem.empty() ? core::tr("Untitled") : stem}),
         core::tr(platform::databaseFilter)});
    if (!target) return false;
    try {
        if (!writeAsFile(app, copy, *target)) return false;
    } catch (const core::RunTimeError& error) {
        app::warn(app, core::fill(core::tr("%1 could not be written: %2"), {*target, error.what()}));
        return false;
    }
    openNamedFile(app, *target);
    return true;
}

bool isArchive(const std::string& file) {
    try {
        file::Zip Zip;
        Zip.OpenArchive(file);
        return true;
    } catch (const core::RunTimeError&) {
        return false;
    }
}

// What was typed on the sheet or in the Entry Form and not stored is shown there again.
void showTyped(App& app, const RecoveryNote& note) {
    core::RecordsList& records = app.document.LV;
    if (note.row < 0 || note.row >= records.count()) return;
    if (note.row > 0) {
        core::Item& record = records.at(note.row);
        records.setSelectedItem(&record);
        // The page of an invoice database follows the list on show.
        if (app.document.bInvoiceStyle)
            if (core::Item* row = app.document.iLV.findText(record.Key))
                app.document.iLV.setSelectedItem(row);
    }
    if (!note.isTyped) {
        app.rooms.of<entry::TypedBefore>().boxes = note.boxes;
        app.platform.showForm("entryFrm");
        return;
    }
    SSTab1_Click(app, app::layoutTab);
    if (note.row == 0 && !entry::isSheetNew(app)) entry::layoutNavBar_ButtonClick(app, "New");
    for (const auto& [index, text] : note.fields)
        if (core::LayoutField* field = app.document.layout.layoutField.find(index)) field->Text = text;
    app.changes.announce(app, app::Change::Unsaved);
}

bool restore(App& app, RecoveryCopy& copy) {
    const RecoveryNote note = copy.note;
    const bool isThere = file::fileExists(note.file);
    try {
        if (!isThere && !note.file.empty() && !writeAsFile(app, copy, note.file)) return false;
    } catch (const core::RunTimeError&) { // NOLINT(bugprone-empty-catch): the folder has gone; another place
                                          // is asked for
    }
    if (!isArchive(note.file)) {
        app::inform(
            app, core::tr("The file itself cannot be opened. Please choose a place for the restored one."));
        return lookAtCopy(app, copy);
    }
    const bool isForeign = isThere && isChangedSince(note);
    if (!storage::openRecovered(app, note.file, copy.archive.string())) return false;
    const bool isTyped = (note.isTyped || !note.boxes.empty()) && note.file == app.document.currentFile;
    storage::adoptRecoveryCopy(app, std::move(copy));
    storage::openedFile(app).isForeign = isForeign;
    app::setDocumentModified(app, true);
    if (isTyped) showTyped(app, note);
    return true;
}

// False when no more is to be offered now.
bool offer(App& app, RecoveryCopy& copy) {
    const fs::path archive = copy.archive;
    switch (
        app.platform.choose(offerText(copy.note), core::tr("Restore Unsaved Work"),
                            {core::tr("&Restore"), core::tr("&Look at a Copy..."), core::tr("&Discard")})) {
    case 0:
        return !restore(app, copy);
    case 1:
        app.rooms.of<Offers>().left.insert(archive);
        return !lookAtCopy(app, copy);
    case 2:
        storage::discardRecoveryCopy(std::move(copy));
        return true;
    default:
        app.rooms.of<Offers>().left.insert(archive);
        return true;
    }
}

} // namespace

void offerRecovery(App& app, const std::string& file) {
    Offers& offers = app.rooms.of<Offers>();
    if (std::exchange(storage::unsavedWork(app).isSetAside, false)) return;
    if (std::exchange(offers.isOffering, true)) return;
    for (RecoveryCopy& copy : storage::findRecoveryCopies(app, file)) {
        if (file.empty() && offers.left.contains(copy.archive)) continue;
        if (!offer(app, copy)) break;
    }
    offers.isOffering = false;
}

} // namespace shell
