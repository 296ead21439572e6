#include "file/atomicFile.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace file {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view ending = ".saving";
constexpr std::string_view letters = "0123456789abcdefghijklmnopqrstuvwxyz";
constexpr std::size_t randomLetters = 6;
constexpr std::size_t longestNamePart = 200; // of the 255 bytes that a name may have
constexpr std::time_t staleAfterSeconds = 60;

fs::path folderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

std::string besidePrefix(const fs::path& target) {
    return "." + target.filename().string().substr(0, longestNamePart) + ".";
}

std::string randomPart() {
    static thread_local std::random_device device;
    std::uniform_int_distribution<std::size_t> letter(0, letters.size() - 1);
    std::string text(randomLetters, ' ');
    std::generate(text.begin(), text.end(), [&] { return letters[letter(device)]; });
    return text;
}

bool isBesideName(std::string_view name, std::string_view prefix) {
    return name.size() == prefix.size() + randomLetters + ending.size() && name.starts_with(prefix) &&
           name.ends_with(ending) &&
           name.substr(prefix.size(), randomLetters).find_first_not_of(letters) == std::string_view::npos;
}

// The writer holds a lock on its file, which the system releases when it ends in whatever way. The
// age covers the moment between making the file and locking it.
bool isLeftOver(const fs::path& file) {
    const FileHandle handle(::open(file.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat status {};
    return handle.isOpen() && ::fstat(handle.get(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_mtime + staleAfterSeconds < std::time(nullptr) &&
           ::flock(handle.get(), LOCK_EX | LOCK_NB) == 0;
}

// What killed writers of this target have left behind.
void removeLeftOvers(const fs::path& target) {
    std::error_code error;
    const std::string prefix = besidePrefix(target);
    for (fs::directory_iterator entry(folderOf(target), error), end; !error && entry != end;
         entry.increment(error)) {
        if (isBesideName(entry->path().filename().native(), prefix) && isLeftOver(entry->path()))
            ::unlink(entry->path().c_str());
    }
}

// False where the user may not give it, or the file system has no such owner; raises what else goes wrong.
bool give(int fd, uid_t owner, gid_t group, const fs::path& target) {
    if (::fchown(fd, owner, group) == 0) return true;
    if (errno != EPERM && errno != EINVAL && errno != EOPNOTSUPP && errno != ENOSYS)
        raiseSystemError(errno, target.string());
    return false;
}

} // namespace

// Only the last component matters: links on the way there lead to the right folder by themselves.
fs::path resolveLink(fs::path file) {
    std::error_code error;
    for (int i = 0; i < 40; ++i) {
        const fs::path next = fs::read_symlink(file, error);
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return file;
        // A link that cannot be read must not be taken for the file itself, which would take its place.
        if (error) raiseSystemError(error.value(), file.string());
        file = file.parent_path() / next;
    }
    raiseSystemError(ELOOP, file.string());
}

AtomicFile::AtomicFile(const fs::path& file, const fs::path& like) : target(resolveLink(file)) {
    checkTarget();
    if (!replaces && !like.empty()) takePermissionsOf(like);
    removeLeftOvers(target);
    createBeside();
}

AtomicFile::~AtomicFile() {
    if (!beside.empty()) ::unlink(beside.c_str());
}

void AtomicFile::checkTarget() {
    struct stat status {};
    if (::stat(target.c_str(), &status) != 0) {
        if (errno != ENOENT) raiseSystemError(errno, target.string());
        return;
    }
    if (!S_ISREG(status.st_mode))
        core::raise(core::errors::pathAccess, core::fill(core::tr("%1 is not a file"), {target.string()}));
    // Renaming over a read-only file would work, and the superuser may write to it too; but whoever took
    // the write permission away wants the file to stay as it is.
    const bool writable = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
    if (!writable)
        core::raise(core::errors::pathAccess, core::fill(core::tr("%1 is read-only"), {target.string()}));
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        raiseSystemError(errno, target.string());
    replaces = true;
    mode = status.st_mode & 07777;
    owner = status.st_uid;
    group = status.st_gid;
}

void AtomicFile::takePermissionsOf(const fs::path& like) {
    struct stat status {};
    if (::stat(like.c_str(), &status) != 0) return;
    isAlike = true;
    // A copy of a read-only database is there to be changed.
    mode = (status.st_mode & 0777) | 0600;
    owner = ::geteuid();
    group = status.st_gid;
}

void AtomicFile::createBeside() {
    // A new file gets the permissions that the user's mask leaves; one that takes others is private until
    // then.
    const mode_t initialMode = replaces || isAlike ? 0600 : 0666;
    int failure = EEXIST;
    for (int attempt = 0; attempt < 100 && failure == EEXIST; ++attempt) {
        fs::path name = folderOf(target) / (besidePrefix(target) + randomPart() + std::string(ending));
        handle.reset(::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, initialMode));
        failure = handle.isOpen() ? 0 : errno;
        if (failure == 0) beside = std::move(name);
    }
    if (failure != 0) raiseSystemError(failure, target.string());
    // Where the file system has no locks, no left-over can be told from a file in use either.
    ::flock(handle.get(), LOCK_EX | LOCK_NB);
}

void AtomicFile::takeAlikeAttributes() const {
    struct stat status {};
    if (::fstat(fd(), &status) != 0) raiseSystemError(errno, target.string());
    // What one group may do is not for another one, unless anybody may.
    const bool isOfGroup = status.st_gid == group || give(fd(), static_cast<uid_t>(-1), group, target);
    const mode_t ofGroup = isOfGroup ? mode & S_IRWXG : mode & (mode << 3U) & S_IRWXG;
    if (::fchmod(fd(), (mode & ~mode_t{S_IRWXG}) | ofGroup) == 0) return;
    // A file system without permissions of its own has given it those that all its files have.
    if (errno != EPERM && errno != EINVAL && errno != EOPNOTSUPP && errno != ENOSYS)
        raiseSystemError(errno, target.string());
}

void AtomicFile::takeOverAttributes() const {
    if (isAlike) takeAlikeAttributes();
    if (!replaces) return;
    struct stat status {};
    if (::fstat(fd(), &status) != 0) raiseSystemError(errno, target.string());
    // Another's file in a shared folder becomes ours when we may not give it back; the owner goes first,
    // since a change of owner clears bits of the mode.
    if (status.st_uid != owner || status.st_gid != group) {
        if (!give(fd(), owner, group, target)) (void)give(fd(), static_cast<uid_t>(-1), group, target);
    }
    if (::fchmod(fd(), mode) != 0) raiseSystemError(errno, target.string());
}

int AtomicFile::commit() {
    takeOverAttributes();
    if (::fsync(fd()) != 0) raiseSystemError(errno, target.string());
    if (::rename(beside.c_str(), target.c_str()) != 0) raiseSystemError(errno, target.string());
    beside.clear();
    // Some file systems refuse to sync a folder, and one that may not be read cannot be.
    const FileHandle folder(::open(folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen() || ::fsync(folder.get()) == 0) return 0;
    return errno == EIO || errno == ENOSPC || errno == EDQUOT ? errno : 0;
}

void replaceFile(const std::filesystem::path& file, std::string_view bytes,
                 const std::filesystem::path& like) {
    AtomicFile target(file, like);
    if (const int error = writeAt(target.fd(), bytes.data(), bytes.size(), 0); error != 0)
        raiseSystemError(error, file.string());
    target.commit();
}

} // namespace file
