#include "cli/session.h"

#include "calc/recalculation.h"
#include "cli/output.h"
#include "core/encoding.h"
#include "shell/program.h"
#include "storage/openFile.h"
#include "storage/saveFile.h"
#include "storage/saveSearch.h"
#include "storage/versions.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace cli {

namespace fs = std::filesystem;

namespace {

bool isSameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    const fs::path first = fs::weakly_canonical(a, error);
    return !error && first == fs::weakly_canonical(b, error) && !error;
}

// The line begins with the name of the file anyway, so that "File not found: a.fwk (No such file)"
// becomes "File not found (No such file)".
std::string withoutName(const std::string& file, const std::string& reason) {
    const std::size_t place = file.empty() ? std::string::npos : reason.find(": " + file);
    if (place == std::string::npos) return reason;
    const std::string rest = reason.substr(place + 2 + file.size());
    const bool joins = rest.empty() || rest.starts_with(" (");
    return reason.substr(0, place) + (joins ? "" : ":") + rest;
}

// The end of the process gives the document back at once; to free its cells one by one would take a
// good part of the time that reading them takes.
shell::Program& untilTheEnd(std::unique_ptr<shell::Program> app) {
    static auto* const kept = new std::vector<std::unique_ptr<shell::Program>>;
    kept->push_back(std::move(app));
    return *kept->back();
}

std::atomic<file::WriterLock*> heldLock = nullptr;

extern "C" void releaseAndEnd(int signal) {
    if (file::WriterLock* lock = heldLock.exchange(nullptr)) lock->release();
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

// On this machine a lock that is left over is no obstacle, but another one has no way to tell.
void releaseWhenEnded(file::WriterLock* lock) {
    heldLock = lock;
    if (lock == nullptr) return;
    for (const int ending : {SIGINT, SIGTERM, SIGHUP, SIGQUIT})
        if (::signal(ending, releaseAndEnd) == SIG_IGN) ::signal(ending, SIG_IGN);
}

} // namespace

void tellRows(const std::string& file, const std::vector<std::string>& rows) {
    constexpr std::size_t mostRows = 20;
    const auto tell = [&](const std::string& what) {
        std::cerr << "fwk: " << printable(file + ": " + what) << '\n';
    };
    for (std::size_t i = 0; i < std::min(rows.size(), mostRows); ++i) tell(rows[i]);
    if (rows.size() > mostRows) tell("and " + std::to_string(rows.size() - mostRows) + " more");
}

Session::Session(std::string databaseFile, double wait)
    : file(std::move(databaseFile)), platform(std::cerr),
      app(untilTheEnd(std::make_unique<shell::Program>(platform))), wait_(wait) {
    platform.keepVersions();
}

Session::~Session() {
    releaseWhenEnded(nullptr);
}

void Session::open() {
    try {
        app.document.currentFile = file;
        read_ = file::FileState::of(file);
        storage::readArchive(app, file);
    } catch (const core::RunTimeError& error) {
        throw Failure(file, whyNotOpened(error));
    }
}

void Session::reserve() {
    if (!lock_) lock(file);
}

void Session::openToWrite() {
    reserve();
    open();
}

void Session::lock(const std::string& database) {
    using file::WriterLock;
    const auto wait =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::duration<double>(wait_));
    WriterLock::Outcome outcome = WriterLock::take(database, WriterLock::Force::No, wait);
    const std::string name = outcome.path.filename().string();
    switch (outcome.result) {
    case WriterLock::Result::Taken:
    case WriterLock::Result::Impossible: // the save says what is wrong with the folder
        break;
    case WriterLock::Result::Held:
        throw Failure(database, "it is being changed by " + outcome.owner.text());
    case WriterLock::Result::HeldElsewhere:
        throw Failure(database,
                      "it is being changed by " + outcome.owner.text() + "; if that is over, remove " + name);
    case WriterLock::Result::Obstructed:
        throw Failure(database,
                      "it cannot be locked: " + name + " is in the way" +
                          (outcome.error == 0 ? "" : std::string(" (") + std::strerror(outcome.error) + ")"));
    }
    lock_ = std::move(outcome.lock);
    releaseWhenEnded(lock_ ? &*lock_ : nullptr);
}

void Session::lockTarget(const std::string& target) {
    std::error_code error;
    // Any other file is refused, without waiting for who writes it.
    const bool isWritten = platform.answersYes() || isSameFile(target, file) || !fs::exists(target, error);
    if (lock_ || target.empty() || !isWritten) return;
    lock(target);
    if (isSameFile(target, file)) refuseIfChanged();
}

void Session::refuseIfChanged() const {
    // What could not be looked at when it was read has nothing to compare.
    if (read_ && read_->isThere() && read_->changeOf(file) == file::FileState::Change::Changed)
        throw Failure(file, "it was changed by another program meanwhile");
}

std::string Session::whyNotOpened(const core::RunTimeError& error) const {
    constexpr auto mostRecords = std::numeric_limits<decltype(app.document.iLastKey)>::max();
    if (error.number == core::errors::overflow && app.document.iLastKey == mostRecords)
        return "it has more than " + std::to_string(mostRecords) + " records";
    return withoutName(file, error.what());
}

// What the user can do something about is told in his words, the rest as the system tells it.
std::string Session::whyNotWritten(const std::string& target, const core::RunTimeError& error) {
    if (error.number == core::errors::diskFull) return "writing failed; the disk may be full";
    std::string reason = withoutName(target, error.what());
    if (error.number != core::errors::pathAccess && error.number != core::errors::fileNotFound) return reason;
    const fs::path folder = fs::path(target).parent_path();
    const char* place = folder.empty() ? "." : folder.c_str();
    struct stat status {};
    if (::stat(place, &status) != 0 || !S_ISDIR(status.st_mode)) return "its folder does not exist";
    if (::stat(target.c_str(), &status) != 0 && errno == ELOOP) return "its link leads nowhere";
    if (::stat(target.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode)) return "it is a folder";
        if (!S_ISREG(status.st_mode)) return "it is no ordinary file";
        const bool writable = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
        if (!writable || ::access(target.c_str(), W_OK) != 0) return "it is read-only";
    }
    if (::access(place, W_OK) != 0) return "its folder is read-only";
    return reason;
}

void Session::change(const std::function<void()>& routine) const {
    try {
        routine();
    } catch (const core::RunTimeError& error) {
        throw Failure(file, withoutName(file, error.what()));
    }
}

void Session::changeAndCalculate(const std::function<void()>& routine) const {
    const int messages = platform.exclamations();
    change(routine);
    if (platform.exclamations() == messages) return;
    change([this] {
        std::vector<std::string> rows;
        for (const calc::Uncalculated& row : calc::recalculateEveryRow(app))
            rows.push_back(row.key + " cannot be calculated (" + row.reason + ")");
        tellRows(file, rows);
    });
}

void Session::save() {
    refuseIfChanged();
    run(file, [this] { return storage::SaveFile(app, false, false); });
}

void Session::saveAs(const std::string& target) {
    // The routine compares names as texts; a file has more than one of them.
    const std::string& current = app.document.currentFile;
    platform.setSaveName(isSameFile(target, current) ? current : target);
    lockTarget(target);
    // The pictures come from the file. It is not locked for that: whoever reads one has all of it, since it
    // is replaced in one step; but records and pictures are read one after the other.
    refuseIfChanged();
    run(target, [this] { return storage::SaveFile(app, true, false); });
}

void Session::clone(const std::string& target) {
    platform.setSaveName(target);
    lockTarget(target);
    run(target, [this] { return storage::SaveFile(app, false, true); });
}

void Session::saveSearch(const std::string& target) {
    const bool itself = isSameFile(target, file);
    platform.setSaveName(itself ? app.document.currentFile : target);
    if (!itself) lockTarget(target);
    run(target, [this] { return storage::saveSearchResults(app); });
    if (itself) throw Failure(target, "is the database that was searched");
}

void Session::refuseAsOutput(const std::string& output) const {
    std::error_code none; // a file that is not there is no database
    if (fs::equivalent(file, output, none)) throw Failure(output, "is the database itself");
}

void Session::run(const std::string& target, const std::function<std::optional<core::RunTimeError>()>& save) {
    if (target.empty()) throw Failure("a database needs a file name");
    const int refusals = platform.refusedQuestions();
    const std::optional<core::RunTimeError> error = save();
    tellNoted();
    if (platform.refusedQuestions() != refusals)
        throw Failure(target, "it exists already, --yes overwrites it");
    if (error) throw Failure(target, "could not be saved: " + whyNotWritten(target, *error));
}

void Session::tellNoted() const {
    std::string text = storage::takeNoted(app);
    if (text.empty()) return;
    text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    std::cerr << "fwk: " << printable(text) << '\n';
}

core::Column& Session::column(std::string_view name) {
    core::Column* column = app.document.LV.columns.find(name);
    if (column == nullptr || column->Index == 1)
        throw Failure(file, "no column \"" + std::string(name) + "\"");
    return *column;
}

std::vector<const core::Column*> Session::columns(const std::vector<std::string>& names) {
    std::vector<const core::Column*> chosen;
    chosen.reserve(names.size());
    for (const std::string& name : names) chosen.push_back(&column(name));
    if (!names.empty()) return chosen;
    for (const core::Column& column : app.document.LV.columns)
        if (column.Index != 1) chosen.push_back(&column);
    return chosen;
}

core::Item& Session::record(const std::string& key) {
    core::Item* record = app.document.LV.find(key);
    if (record == nullptr || record->isTotals()) throw Failure(file, "no record \"" + key + "\"");
    return *record;
}

std::string Session::typed(const std::string& argument) const {
    if (argument.find_first_of("\r\n") != std::string::npos)
        throw Failure(file, "\"" + argument + "\" is more than one line");
    if (core::sanitizeUtf8(argument) != argument)
        throw Failure(file, "\"" + core::sanitizeUtf8(argument) + "\" is not UTF-8");
    return argument;
}

std::string Session::typedInList(const std::string& argument) const {
    if (argument.find('|') != std::string::npos)
        throw Failure(file,
                      "\"" + argument + "\" holds a \"|\", which divides names and expressions in the file");
    return typed(argument);
}

} // namespace cli
