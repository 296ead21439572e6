#include "file/writerLock.h"

#include "core/runTimeError.h"
#include "file/atomicFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace file {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

constexpr std::size_t longestLockedName = 240; // of the 255 bytes that a name may have
constexpr std::size_t mostBytes = 4096;
constexpr milliseconds untilWritten{200}; // that a file which says nothing yet is given
constexpr milliseconds betweenLooks{4};
constexpr int mostRounds = 1000;

enum class Locked { Yes, No, NoSuchLocks };

// A lock that belongs to the open file: no other descriptor of this process gives it up when it is closed. It
// lies behind all that is read, since some network file systems keep others from reading what is locked.
Locked lockMark(int fd, short type) {
    struct flock mark {};
    mark.l_type = type;
    mark.l_whence = SEEK_SET;
    mark.l_start = mostBytes;
    mark.l_len = 1;
    if (::fcntl(fd, F_OFD_SETLK, &mark) == 0) return Locked::Yes;
    return errno == EAGAIN || errno == EACCES ? Locked::No : Locked::NoSuchLocks;
}

bool isAt(const fs::path& path, int fd) {
    struct stat there {};
    struct stat ours {};
    return ::lstat(path.c_str(), &there) == 0 && ::fstat(fd, &ours) == 0 && there.st_dev == ours.st_dev &&
           there.st_ino == ours.st_ino;
}

std::string contentOf(int fd) {
    std::string bytes(mostBytes, '\0');
    const ssize_t count = ::pread(fd, bytes.data(), bytes.size(), 0);
    bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return bytes;
}

// The system went down before it was on the disk: none of it, a part, or zeros in its place. What others
// would put there is a whole line.
bool isTorn(const std::string& content) {
    return content.find('\0') != std::string::npos ||
           (content.find('\n') == std::string::npos && !readLockLine(content).isKnown());
}

bool hasEnded(long long process) {
    return ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

} // namespace

// One look at the lock's place.
class WriterLock::Attempt {
public:
    enum class End {
        Over,     // the outcome tells how
        Again,    // the file was another's or gone by the time that it was locked
        Unwritten // nobody has locked it, and it says nothing yet or cannot be read yet: left over, or
                  // somebody is just making it
    };

    Attempt(const fs::path& path, Force force, bool unwrittenIsDead)
        : path_(path), force_(force), unwrittenIsDead_(unwrittenIsDead) {
        outcome.path = path;
    }

    End run() {
        FileHandle fresh(::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644));
        if (fresh.isOpen()) return fill(std::move(fresh));
        if (errno != EEXIST) return over(Result::Impossible, errno);
        return lookAtPresent();
    }

    Outcome outcome;

private:
    End over(Result result, int error = 0) {
        outcome.result = result;
        outcome.error = error;
        return End::Over;
    }

    End fill(FileHandle fresh) {
        // Whoever opened it in between takes it for left over and has it locked for a moment.
        Locked locked = lockMark(fresh.get(), F_WRLCK);
        for (int i = 0; i < 50 && locked == Locked::No; ++i) {
            std::this_thread::sleep_for(milliseconds(1));
            locked = lockMark(fresh.get(), F_WRLCK);
        }
        if (locked == Locked::No || !isAt(path_, fresh.get())) return End::Again;
        // Others have to read who it is, whatever the user's mask takes from new files.
        (void)::fchmod(fresh.get(), 0644);
        const std::string line = lockLine(LockOwner::thisProcess());
        if (const int error = writeAt(fresh.get(), line.data(), line.size(), 0)) {
            ::unlink(path_.c_str());
            return over(Result::Impossible, error);
        }
        // File systems of a network write out what they hold back when a lock is set.
        (void)lockMark(fresh.get(), F_WRLCK);
        // Without locks somebody may have taken it for left over before it said anything.
        if (locked == Locked::NoSuchLocks && !isAt(path_, fresh.get())) return End::Again;
        outcome.lock = WriterLock(path_, std::move(fresh));
        return over(Result::Taken);
    }

    End lookAtPresent() {
        constexpr int flags = O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;
        FileHandle present(::open(path_.c_str(), O_RDWR | flags));
        const bool mayWrite = present.isOpen();
        if (!mayWrite && (errno == EACCES || errno == EPERM || errno == EROFS))
            present.reset(::open(path_.c_str(), O_RDONLY | flags));
        if (!present.isOpen() && errno == ENOENT) return End::Again;
        // Under a strict mask nobody else can read a new one until its permissions are set.
        if (!present.isOpen() && errno == EACCES && !unwrittenIsDead_) return End::Unwritten;
        if (!present.isOpen()) return over(Result::Obstructed, errno);
        struct stat status {};
        if (::fstat(present.get(), &status) != 0 || !S_ISREG(status.st_mode)) return over(Result::Obstructed);
        // What belongs to another user may be locked for reading only. That keeps its owner from locking it,
        // but not a third user from doing the same as we, for which there is another kind of lock.
        const Locked locked = lockMark(present.get(), mayWrite ? F_WRLCK : F_RDLCK);
        if (locked == Locked::Yes && !mayWrite && ::flock(present.get(), LOCK_EX | LOCK_NB) != 0)
            return errno == EWOULDBLOCK ? End::Again : over(Result::Obstructed, errno);
        if (locked != Locked::No && !isAt(path_, present.get())) return End::Again;
        return judge(present.get(), locked);
    }

    End judge(int fd, Locked locked) {
        const std::string content = contentOf(fd);
        outcome.owner = readLockLine(content);
        if (locked == Locked::No) return over(Result::Held);
        const bool isUnwritten = isTorn(content);
        if (isUnwritten && !unwrittenIsDead_) return End::Unwritten;
        const bool isOurMachine = outcome.owner.isOfThisMachine();
        const bool isAlive =
            isOurMachine && locked == Locked::NoSuchLocks && !hasEnded(outcome.owner.process);
        if (isAlive) return over(Result::Held);
        if (!isUnwritten && !isOurMachine && force_ == Force::No) return over(Result::HeldElsewhere);
        // Without locks its owner may have removed it before he ended, and somebody else made another one.
        if (locked == Locked::NoSuchLocks && !isAt(path_, fd)) return End::Again;
        // Removed while it is locked and made anew, never written into: it can be another name of any file.
        if (::unlink(path_.c_str()) != 0 && errno != ENOENT) return over(Result::Obstructed, errno);
        return End::Again;
    }

    const fs::path& path_;
    Force force_;
    bool unwrittenIsDead_;
};

fs::path WriterLock::pathFor(const fs::path& database) {
    std::error_code error;
    fs::path file = resolveLink(database);
    if (const fs::path whole = fs::absolute(file, error); !error) file = whole;
    return file.parent_path() / (".~lock." + file.filename().string().substr(0, longestLockedName) + "#");
}

WriterLock::Outcome WriterLock::take(const fs::path& database, Force force, milliseconds wait) {
    Outcome outcome;
    try {
        outcome.path = pathFor(database);
    } catch (const core::RunTimeError&) {
        return outcome; // a link that leads nowhere, which whoever opens the database tells
    }
    const fs::path path = outcome.path;
    const auto begin = steady_clock::now();
    std::optional<steady_clock::time_point> unwrittenSince;
    for (int round = 0;;) {
        const auto now = steady_clock::now();
        const bool isDead = unwrittenSince && now - *unwrittenSince > untilWritten;
        Attempt attempt(path, force, isDead);
        const Attempt::End end = attempt.run();
        outcome = std::move(attempt.outcome);
        if (end == Attempt::End::Again) {
            if (++round == mostRounds) {
                outcome.result = Result::Obstructed;
                return outcome;
            }
            std::this_thread::yield();
            continue;
        }
        round = 0;
        const bool isHeld = outcome.result == Result::Held || outcome.result == Result::HeldElsewhere;
        if (end == Attempt::End::Over && !isHeld) return outcome;
        const bool isUnwritten = end == Attempt::End::Unwritten;
        if (!isUnwritten) unwrittenSince.reset();
        if (isUnwritten && !unwrittenSince) unwrittenSince = now;
        // Its owner is about to say who he is, or somebody else is looking whether it is left over.
        const bool isBetween = outcome.result == Result::Held && now - begin < untilWritten &&
                               (!outcome.owner.isKnown() ||
                                (outcome.owner.isOfThisMachine() && hasEnded(outcome.owner.process)));
        if (!isUnwritten && !isBetween && now - begin >= wait) return outcome;
        std::this_thread::sleep_for(betweenLooks);
    }
}

WriterLock& WriterLock::operator=(WriterLock&& other) noexcept {
    if (this == &other) return *this;
    release();
    path_ = std::move(other.path_);
    handle_ = std::move(other.handle_);
    return *this;
}

bool WriterLock::isStillHeld() const {
    return handle_.isOpen() && isAt(path_, handle_.get());
}

void WriterLock::release() {
    if (isStillHeld()) ::unlink(path_.c_str());
    handle_.reset();
}

} // namespace file
