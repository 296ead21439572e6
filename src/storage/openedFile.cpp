#include "storage/openedFile.h"

#include "app/windowState.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/zip.h"
#include "file/dataWriter.h"
#include "storage/openFile.h"
#include "storage/recoveryCopies.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"
#include "storage/versions.h"

#include <filesystem>

namespace storage {

using app::App;
using file::FileState;
using file::WriterLock;

namespace {

std::string nameOf(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

bool isSameFile(const std::string& one, const std::string& other) {
    std::error_code error;
    return one == other || std::filesystem::equivalent(one, other, error);
}

// A folder that takes no lock file lets nobody write the database either.
bool isFree(const WriterLock::Outcome& outcome) {
    return outcome.result == WriterLock::Result::Taken || outcome.result == WriterLock::Result::Impossible;
}

std::string whoHolds(const std::string& path, const WriterLock::Outcome& outcome) {
    if (outcome.result == WriterLock::Result::Obstructed)
        return core::fill(core::tr("%1 cannot be locked: %2 is in the way."),
                          {nameOf(path), outcome.path.string()});
    std::string text =
        outcome.owner.isKnown()
            ? core::fill(core::tr("%1 is open elsewhere, by %2."), {nameOf(path), outcome.owner.text()})
            : core::fill(core::tr("%1 is open elsewhere."), {nameOf(path)});
    if (outcome.result == WriterLock::Result::HeldElsewhere)
        text.append("\n").append(core::tr("Whether it still is cannot be told from this machine."));
    return text;
}

// Nothing when there are none such.
std::optional<WriterLock::Outcome> tryLock(const std::string& path,
                                           WriterLock::Force force = WriterLock::Force::No) {
    try {
        return WriterLock::take(path, force);
    } catch (const core::RunTimeError&) {
        return std::nullopt; // links in a circle; the open itself has to do with it
    }
}

std::optional<std::string> openCopyOf(App& app, const std::string& path) {
    const std::optional<std::string> target = app.platform.showSave(
        {core::tr("Open a Copy As..."), core::fill(core::tr("Copy of %1"), {nameOf(path)}),
         core::tr(platform::databaseFilter)});
    if (!target || *target == path) return std::nullopt;
    try {
        const bool isWritten = writeNewFile(app, *target, [&] {
            file::Zip Zip;
            Zip.OpenArchive(path);
            Zip.CloseArchiveAs(*target, keepingVersion(app, *target));
        });
        if (!isWritten) return std::nullopt;
    } catch (const core::RunTimeError& error) {
        app::warn(app, core::fill(core::tr("%1 could not be written: %2"), {*target, error.what()}));
        return std::nullopt;
    }
    return guardOpening(app, *target);
}

void remember(App& app, const FileState& state) {
    OpenedFile& opened = openedFile(app);
    opened.state = state;
    opened.isForeign = opened.mayReplace = false;
}

bool isOfOpened(const App& app) {
    return app.platform.guardsFiles() && !app.document.currentFile.empty() &&
           openedFile(app).path == app.document.currentFile;
}

void takeNext(App& app) {
    OpenedFile& opened = openedFile(app);
    const std::string& path = app.document.currentFile;
    if (opened.next && opened.next->path == path) {
        if (opened.next->lock)
            opened.lock = std::move(opened.next->lock); // the one before is given back
        else if (!opened.next->isSame)
            opened.lock.reset();
        app.mainFrm.bReadOnly = opened.next->bReadOnly;
    } else {
        opened.lock.reset();
        app.mainFrm.bReadOnly = false;
        // A new database, which nobody else knows of yet.
        if (!path.empty())
            if (auto outcome = tryLock(path)) opened.lock = std::move(outcome->lock);
    }
    opened.next.reset();
    opened.path = path;
    app::showCaption(app); // which says whether it is read only
}

// Who has the lock that this window had, since somebody has removed its file; nobody, if it could be taken
// again.
std::string whoTookLock(OpenedFile& opened) {
    if (!opened.lock || opened.lock->isStillHeld()) return {};
    std::optional<WriterLock::Outcome> outcome = tryLock(opened.path);
    if (outcome && !isFree(*outcome)) return whoHolds(opened.path, *outcome);
    if (outcome && outcome->lock) opened.lock = std::move(outcome->lock);
    return {};
}

} // namespace

std::optional<std::string> guardOpening(App& app, const std::string& path) {
    OpenedFile& opened = openedFile(app);
    if (!app.platform.guardsFiles()) return path;
    opened.next = OpenedFile::Next{path, {}, false, isSameFile(opened.path, path), {}};
    if (opened.next->isSame && opened.lock && opened.lock->isStillHeld()) return path;
    std::optional<WriterLock::Outcome> outcome = tryLock(path);
    if (!outcome) return path;
    opened.next->lock = std::move(outcome->lock);
    if (isFree(*outcome)) return path;
    const int answer = app.platform.choose(
        whoHolds(path, *outcome) + "\n\n" +
            core::tr("What is saved here could overwrite what is saved there."),
        app::title, {core::tr("Open to &Read Only"), core::tr("Open a &Copy..."), core::tr("Open &Anyway")});
    if (answer == 0) {
        opened.next->bReadOnly = true;
        return path;
    }
    if (answer == 2) {
        if (auto forced = tryLock(path, WriterLock::Force::Yes)) opened.next->lock = std::move(forced->lock);
        return path;
    }
    opened.next.reset();
    return answer == 1 ? openCopyOf(app, path) : std::nullopt;
}

void followOpened(App& app) {
    openedFile(app).path = app.platform.guardsFiles() ? openedFile(app).path : app.document.currentFile;
    if (!app.platform.guardsFiles()) return;
    // A new database was not there yet when its place was guarded.
    const auto& next = openedFile(app).next;
    const FileState state =
        next && next->state.isThere() ? next->state : FileState::of(app.document.currentFile);
    takeNext(app);
    remember(app, state);
}

SaveWay waySave(App& app) {
    return isOfOpened(app) && app.mainFrm.bReadOnly ? SaveWay::SaveAs : waySaveOver(app);
}

SaveWay waySaveOver(App& app) {
    OpenedFile& opened = openedFile(app);
    if (!isOfOpened(app)) return SaveWay::Save;
    std::string question = whoTookLock(opened);
    if (question.empty()) {
        // A file that has gone is told by the save itself.
        const bool isForeign = opened.isForeign || changeOfOpened(app) == FileState::Change::Changed;
        if (opened.mayReplace || !isForeign) return SaveWay::Save;
        question = core::fill(core::tr("%1 was changed by somebody else since it was opened here."),
                              {nameOf(opened.path)});
    }
    const int answer = app.platform.choose(
        question + "\n\n" +
            core::tr("To overwrite it loses what they have changed. To read their state keeps yours for "
                     "recovery."),
        app::title,
        {core::tr("&Save as Another File..."), core::tr("&Overwrite"), core::tr("&Read the Other State")});
    if (answer == 1 && opened.lock && !opened.lock->isStillHeld()) opened.lock.reset(); // he knows
    if (answer == 2) readOpenedAgain(app);
    return answer == 0 ? SaveWay::SaveAs : answer == 1 ? SaveWay::Save : SaveWay::None;
}

bool guardTarget(App& app, const std::string& target) {
    OpenedFile& opened = openedFile(app);
    if (!app.platform.guardsFiles()) return true;
    opened.next = OpenedFile::Next{target, {}, false, isSameFile(opened.path, target), {}};
    if (opened.next->isSame) {
        opened.next->bReadOnly = app.mainFrm.bReadOnly;
        if (!app.mainFrm.bReadOnly) return true;
    }
    std::optional<WriterLock::Outcome> outcome = tryLock(target);
    if (!outcome) return true;
    opened.next->lock = std::move(outcome->lock);
    opened.next->bReadOnly = false;
    if (isFree(*outcome)) return true;
    if (app.platform.choose(whoHolds(target, *outcome), app::title, {core::tr("&Overwrite It Anyway")}) == 0)
        return true;
    opened.next.reset();
    return false;
}

void followStored(App& app) {
    OpenedFile& opened = openedFile(app);
    if (!app.platform.guardsFiles()) opened.path = app.document.currentFile;
    if (!app.platform.guardsFiles()) return;
    if (opened.path != app.document.currentFile || opened.next) takeNext(app);
    remember(app, opened.written ? *opened.written : FileState::of(opened.path));
    opened.written.reset();
}

// Had somebody else written it before, its records are still not ours.
void followWriting(App& app) {
    if (changeOfOpened(app) != FileState::Change::None) openedFile(app).isForeign = true;
}

void followWritten(App& app) {
    OpenedFile& opened = openedFile(app);
    if (isOfOpened(app) && !opened.isForeign) opened.state = FileState::of(opened.path);
}

FileState::Change changeOfOpened(const App& app) {
    return isOfOpened(app) ? openedFile(app).state.changeOf(openedFile(app).path) : FileState::Change::None;
}

void readOpenedAgain(App& app) {
    // What is typed too, which an open would not keep.
    if (keepUnsavedWork(app)) unsavedWork(app).isSetAside = true;
    leaveUnsavedWork(app);
    app.document.currentFile = openedFile(app).path;
    OpenFile(app, true);
}

void acceptForeignState(App& app) {
    OpenedFile& opened = openedFile(app);
    opened.state = FileState::of(opened.path);
    opened.isForeign = opened.state.isThere(); // one that has gone is told by the save
}

void replaceAtNextSave(App& app) {
    acceptForeignState(app);
    openedFile(app).mayReplace = true;
}

void writeOpenedAgain(App& app) {
    // It has come back, or its place is somebody else's meanwhile.
    if (changeOfOpened(app) != FileState::Change::Gone || !whoTookLock(openedFile(app)).empty()) {
        tellReason(app, SaveFile(app, false, false));
        return;
    }
    try {
        packAlone(app, app.document.currentFile,
                  file::encodeDataFile(file::writeDataFile(app.document, false)));
        app::setDocumentModified(app, false);
        app.changes.announce(app, app::Change::Stored);
    } catch (const core::RunTimeError& error) {
        (void)tellFailure(app, false, error);
    }
}

} // namespace storage
