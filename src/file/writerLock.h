#pragma once

#include "file/fileHandle.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace file {

// Who holds a database for writing, as its lock file tells it. All of it is empty or 0 when the file tells
// nothing that can be understood. The texts are UTF-8 without control characters.
struct LockOwner {
    std::string user, machine;
    long long process = 0;
    std::string since; // UTC, "2026-03-14T09:26:53Z"

    [[nodiscard]] static LockOwner thisProcess();
    [[nodiscard]] bool isKnown() const { return !machine.empty(); }
    [[nodiscard]] bool isOfThisMachine() const;
    // For a message: "anna on desk (process 4711) since 2026-03-14 09:26:53 UTC", or "another program".
    [[nodiscard]] std::string text() const;
};

// The line of a lock file, and back. What is no such line becomes an unknown owner.
[[nodiscard]] std::string lockLine(const LockOwner& owner);
[[nodiscard]] LockOwner readLockLine(std::string_view line);

// That this process alone writes a database, for as long as the object lives. Beside the database lies a file
// (".~lock.books.fwk#") that says who it is, and on that file is a lock of the system, which ends with its
// owner in whatever way. So a lock of this machine that nobody holds is left over, whatever process number
// stands in it. Where the file system has no such locks, the process number has to tell.
class WriterLock {
public:
    enum class Result {
        Taken,         // ours
        Held,          // somebody else's who is alive; no force takes it
        HeldElsewhere, // it names another machine, or nothing that is understood, and whether that one is
                       // alive cannot be told from here; Force::Yes takes it
        Impossible, // the folder takes no lock file (it may not be written, the disk is full); a save there
                    // tells why itself, so that going on without a lock is right
        Obstructed, // what lies in the lock's place is no lock file, or is one that we may not remove
    };
    enum class Force { No, Yes };
    struct Outcome;

    // Tries until it is taken or impossible or the time is over, at least once.
    [[nodiscard]] static Outcome take(const std::filesystem::path& database, Force force = Force::No,
                                      std::chrono::milliseconds wait = {});
    // Where the lock of a database lies: beside what a link leads to. Raises what resolveLink does.
    [[nodiscard]] static std::filesystem::path pathFor(const std::filesystem::path& database);

    ~WriterLock() { release(); }
    WriterLock(WriterLock&& other) noexcept = default;
    WriterLock& operator=(WriterLock&& other) noexcept;
    WriterLock(const WriterLock&) = delete;
    WriterLock& operator=(const WriterLock&) = delete;

    // False when the file is no longer the one that was taken: somebody has removed it, or taken it by force.
    [[nodiscard]] bool isStillHeld() const;
    // Removes the lock file, if it is still ours, and gives the lock back.
    void release();

private:
    WriterLock(std::filesystem::path path, FileHandle handle)
        : path_(std::move(path)), handle_(std::move(handle)) {}

    class Attempt;

    std::filesystem::path path_;
    FileHandle handle_;
};

struct WriterLock::Outcome {
    Result result = Result::Impossible;
    std::optional<WriterLock> lock; // with Taken
    LockOwner owner;                // with Held and HeldElsewhere
    std::filesystem::path path;     // the lock file
    int error = 0;                  // with Impossible and Obstructed: what the system said, or 0
};

} // namespace file
