#include "storage/recoveryCopies.h"

#include "core/runTimeError.h"
#include "file/archive/zip.h"
#include "file/dataWriter.h"
#include "file/fileState.h"
#include "storage/openedFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace storage {

namespace fs = std::filesystem;

using app::App;
using Clock = UnsavedWork::Clock;

namespace {

constexpr auto quietTime = std::chrono::seconds(2);
constexpr auto longestTime = std::chrono::seconds(10);
constexpr std::size_t mostNoteBytes = std::size_t{16} << 20;
constexpr std::size_t longestStem = 100;
constexpr const char* noteEntry = "recovery.txt";
constexpr const char* archiveEnding = ".fwk";
constexpr const char* lockEnding = ".lock";

// For this user alone, whatever his mask says.
class PrivateFiles {
public:
    PrivateFiles() : before_(::umask(0077)) {}
    ~PrivateFiles() { ::umask(before_); }
    PrivateFiles(const PrivateFiles&) = delete;
    PrivateFiles& operator=(const PrivateFiles&) = delete;

private:
    mode_t before_;
};

// Empty where none is kept.
fs::path recoveryFolder(App& app) {
    const fs::path state = app.platform.stateFolder();
    return state.empty() ? state : state / "recovery";
}

void makeFolder(const fs::path& folder) {
    if (::mkdir(folder.c_str(), 0700) == 0) return;
    struct stat status {};
    if (errno != EEXIST || ::lstat(folder.c_str(), &status) != 0)
        file::raiseSystemError(errno, folder.string());
    if (!S_ISDIR(status.st_mode)) core::raise(core::errors::pathAccess, folder.string() + " is no folder");
}

fs::path lockOf(fs::path archive) {
    return archive.replace_extension(lockEnding);
}

std::string randomName(const std::string& file) {
    std::string stem = fs::path(file).stem().string().substr(0, longestStem);
    if (stem.empty()) stem = "Untitled";
    std::random_device device;
    return stem + "-" + std::to_string(device() % 1'000'000);
}

// The place of a new copy, with its lock.
RecoveryCopy newCopy(const fs::path& folder, const std::string& file) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        RecoveryCopy copy;
        copy.archive = folder / (randomName(file) + archiveEnding);
        copy.lock.reset(
            ::open(lockOf(copy.archive).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!copy.lock.isOpen() && errno == EEXIST) continue;
        if (!copy.lock.isOpen()) file::raiseSystemError(errno, folder.string());
        ::flock(copy.lock.get(), LOCK_EX | LOCK_NB); // where there are no locks the process number tells
        return copy;
    }
    core::raise(core::errors::pathAccess, folder.string());
}

bool isAnything(const App& app) {
    return !openedFile(app).path.empty() || app.document.LV.columns.count() > 1;
}

RecoveryNote makeNote(const App& app) {
    const core::Document& document = app.document;
    const UnsavedWork& work = unsavedWork(app);
    const file::FileState& state = openedFile(app).state;
    // Not currentFile: another one is named before it is known whether it can be opened.
    const std::string& file = openedFile(app).path;
    RecoveryNote note{file,
                      state.modified(),
                      state.size(),
                      std::time(nullptr),
                      std::max(document.LV.count() - 1, 0),
                      ::getpid(),
                      work.isTyped,
                      0,
                      {},
                      {}};
    const auto rowOf = [&](const std::string& key) {
        const core::Item* record = document.LV.find(key);
        return record == nullptr ? 0 : document.LV.indexOf(*record);
    };
    if (work.typedInForm) {
        TypedInForm typed = work.typedInForm();
        note.row = rowOf(typed.key);
        note.boxes = std::move(typed.boxes);
    }
    if (!work.isTyped) return note;
    note.row = rowOf(work.typedKey);
    document.layout.layoutField.forEach(
        [&](const core::LayoutField& field) { note.fields.emplace_back(field.Index, field.Text); });
    return note;
}

void writeCopy(const fs::path& archive, core::Document& document, const RecoveryNote& note) {
    const PrivateFiles guard;
    file::Zip Zip;
    Zip.CreateArchive(archive);
    Zip.addBuffer("data.dat", file::encodeDataFile(file::writeDataFile(document, false)), "Main Data File");
    Zip.addBuffer(noteEntry, noteText(note), "");
    Zip.CloseArchive();
}

// What a killed writer has left goes as well; it would be nobody's.
void removeFiles(const fs::path& archive) noexcept {
    std::error_code error;
    const std::string hidden = "." + archive.filename().string() + ".";
    for (fs::directory_iterator entry(archive.parent_path(), error), end; !error && entry != end;
         entry.increment(error))
        if (entry->path().filename().native().starts_with(hidden)) ::unlink(entry->path().c_str());
    ::unlink(archive.c_str());
    ::unlink(lockOf(archive).c_str()); // last: without it the archive would be taken for a left one
}

// False as long as the program runs that keeps it.
bool takeLock(RecoveryCopy& copy) {
    copy.lock.reset(::open(lockOf(copy.archive).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!copy.lock.isOpen()) return false;
    if (::flock(copy.lock.get(), LOCK_EX | LOCK_NB) == 0) return true;
    if (errno == EWOULDBLOCK) return false;
    const auto process = static_cast<pid_t>(copy.note.process);
    return process != ::getpid() && ::kill(process, 0) != 0 && errno == ESRCH;
}

// False for what is no copy.
bool readCopy(RecoveryCopy& copy) {
    try {
        file::Zip Zip;
        Zip.OpenArchive(copy.archive);
        const std::optional<std::string> text = Zip.readEntry(noteEntry, mostNoteBytes);
        if (!text || !Zip.contains("data.dat")) return false;
        copy.note = readNote(*text);
        return true;
    } catch (const core::RunTimeError&) {
        return false; // damaged, or gone meanwhile
    }
}

// Where to write to; false when nothing is to be kept.
bool prepare(App& app) {
    UnsavedWork& work = unsavedWork(app);
    if (!isAnything(app)) return false;
    const fs::path folder = recoveryFolder(app);
    if (folder.empty()) return false;
    makeFolder(folder);
    if (work.copy.archive.empty()) work.copy = newCopy(folder, openedFile(app).path);
    return true;
}

// A copy that could not be kept is tried again, though not at once: the disk may be full.
void endKeeping(UnsavedWork& work, int failure, Clock::time_point now) {
    work.keepFailure = failure;
    if (failure == 0) work.isFailureTold = false;
    if (failure == 0 || work.isStale) return;
    work.isStale = true;
    work.first = now;
    work.last = now + longestTime - quietTime;
}

void keepInBackground(App& app, Clock::time_point now) {
    UnsavedWork& work = unsavedWork(app);
    if (!prepare(app)) return;
    work.copy.note = makeNote(app);
    const auto write = [&] { writeCopy(work.copy.archive, app.document, work.copy.note); };
    work.isWriting = work.writer.start(write);
    if (work.isWriting) return;
    write();
    endKeeping(work, 0, now);
}

} // namespace

bool hasUnsavedWork(const App& app) {
    const UnsavedWork& work = unsavedWork(app);
    return work.isChanged || work.isTyped || work.isReplaced || work.hasSaveFailed || work.typedInForm;
}

void followModified(App& app) {
    if (!app.document.bModified) return; // whether it is stored is another question: the save may fail yet
    unsavedWork(app).isChanged = true;
    unsavedWork(app).isTyped = false;
    unsavedWork(app).typedInForm = nullptr;
    markUnsaved(app);
}

void markUnsaved(App& app, Clock::time_point now) {
    UnsavedWork& work = unsavedWork(app);
    work.last = now;
    if (!std::exchange(work.isStale, true)) work.first = now;
}

bool tendUnsavedWork(App& app, Clock::time_point now) noexcept {
    UnsavedWork& work = unsavedWork(app);
    const bool wasWriting = std::exchange(work.isWriting, work.writer.isRunning());
    if (work.isWriting) return true;
    if (wasWriting) endKeeping(work, work.writer.failure(), now);
    if (!work.isStale) return false;
    if (now - work.last < quietTime && now - work.first < longestTime) return true;
    work.isStale = false;
    try {
        if (hasUnsavedWork(app)) keepInBackground(app, now);
    } catch (const core::RunTimeError& error) {
        endKeeping(work, error.number, now);
    } catch (const std::exception&) {
        endKeeping(work, EXIT_FAILURE, now);
    }
    return work.isWriting || work.isStale;
}

bool keepUnsavedWork(App& app) noexcept {
    UnsavedWork& work = unsavedWork(app);
    try {
        work.writer.stop();
        work.isWriting = false;
        if (!hasUnsavedWork(app) || !prepare(app)) return false;
        work.copy.note = makeNote(app);
        writeCopy(work.copy.archive, app.document, work.copy.note);
        work.isStale = false;
        return true;
    } catch (const std::exception&) {
        return false; // the copy before it is still there
    }
}

void removeUnsavedWork(App& app) noexcept {
    UnsavedWork& work = unsavedWork(app);
    work.writer.stop();
    work.isWriting = false;
    if (!work.copy.archive.empty()) removeFiles(work.copy.archive);
    leaveUnsavedWork(app);
}

void followStoredWork(App& app) noexcept {
    UnsavedWork& work = unsavedWork(app);
    const bool isTyped = work.isTyped && app.mainFrm.SSTab1 == app::layoutTab;
    auto typedInForm = std::move(work.typedInForm);
    removeUnsavedWork(app);
    work.isTyped = isTyped;
    work.typedInForm = std::move(typedInForm);
    if (hasUnsavedWork(app)) markUnsaved(app);
}

void leaveUnsavedWork(App& app) noexcept {
    UnsavedWork& work = unsavedWork(app);
    work.copy = RecoveryCopy();
    work.keepFailure = 0;
    work.isStale = work.isChanged = work.isTyped = work.isReplaced = work.hasSaveFailed = false;
    work.typedInForm = nullptr;
}

void endUnsavedWork(App& app, bool bGivenUp) noexcept {
    UnsavedWork& work = unsavedWork(app);
    work.isTyped = false; // leaving a sheet without storing it gives up what is typed there
    if (bGivenUp || !hasUnsavedWork(app)) {
        removeUnsavedWork(app);
        return;
    }
    if (work.isStale || work.copy.archive.empty() || work.writer.isRunning()) keepUnsavedWork(app);
    leaveUnsavedWork(app);
}

std::vector<RecoveryCopy> findRecoveryCopies(App& app, const std::string& file) {
    std::vector<RecoveryCopy> copies;
    const fs::path folder = recoveryFolder(app);
    std::error_code error;
    if (folder.empty()) return copies;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        RecoveryCopy copy;
        copy.archive = entry->path();
        if (copy.archive.extension() != archiveEnding || copy.archive.filename().native().front() == '.')
            continue;
        if (!readCopy(copy) || (!file.empty() && copy.note.file != file) || !takeLock(copy)) continue;
        // It may have been removed or written anew by its program just before that one ended.
        if (readCopy(copy)) copies.push_back(std::move(copy));
    }
    std::ranges::sort(copies, std::ranges::greater(),
                      [](const RecoveryCopy& copy) { return copy.note.time; });
    return copies;
}

void discardRecoveryCopy(RecoveryCopy copy) noexcept {
    removeFiles(copy.archive);
}

void adoptRecoveryCopy(App& app, RecoveryCopy copy) {
    unsavedWork(app).copy = std::move(copy);
}

} // namespace storage
