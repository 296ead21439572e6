#include "platform/workFolder.h"

#include "core/runTimeError.h"
#include "platform/userFolders.h"

#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace fs = std::filesystem;

namespace {

constexpr int mostInstances = 100;
constexpr const char* tempName = "Temp";

// Makes the folder Temp, in place of whatever else bears that name: a link there would have the user's
// own files deleted with the next clearing.
bool makeTemp(const fs::path& folder) {
    const fs::path temp = folder / tempName;
    if (::mkdir(temp.c_str(), 0700) == 0) return true;
    struct stat status {};
    if (errno != EEXIST || ::lstat(temp.c_str(), &status) != 0) return false;
    if (S_ISDIR(status.st_mode)) return true;
    return ::unlink(temp.c_str()) == 0 && ::mkdir(temp.c_str(), 0700) == 0;
}

} // namespace

fs::path WorkFolder::defaultDataFolder() {
    return userFolder("XDG_DATA_HOME", ".local/share");
}

WorkFolder::WorkFolder(const fs::path& base) {
    Taking taking = base.empty() ? Taking::Unusable : Taking::Busy;
    for (int instance = 1; taking == Taking::Busy && instance <= mostInstances; ++instance)
        taking = takeInstance(instance == 1 ? base : base / ("instance-" + std::to_string(instance)));
    if (taking == Taking::Done) return;
    takePrivateFolder();
}

WorkFolder WorkFolder::scratch() {
    return WorkFolder(Lazy{});
}

WorkFolder::~WorkFolder() {
    if (!removedAtEnd) return;
    std::error_code error;
    fs::remove_all(folder, error); // removes links, does not follow them
}

WorkFolder::WorkFolder(WorkFolder&& other) noexcept
    : folder(std::exchange(other.folder, {})), lock(std::move(other.lock)),
      removedAtEnd(std::exchange(other.removedAtEnd, false)) {}

// The lock is held as long as the program lives; the system releases it after a crash too.
WorkFolder::Taking WorkFolder::takeInstance(const fs::path& candidate) {
    if (!makePrivateFolder(candidate) ||
        ::faccessat(AT_FDCWD, candidate.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        return Taking::Unusable;
    file::FileHandle held(
        ::open((candidate / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!held.isOpen()) return Taking::Unusable;
    if (::flock(held.get(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Taking::Busy : Taking::Unusable;
    if (!makeTemp(candidate)) return Taking::Unusable;
    lock = std::move(held);
    folder = candidate;
    return Taking::Done;
}

void WorkFolder::takePrivateFolder() {
    std::error_code error;
    fs::path system = fs::temp_directory_path(error);
    if (error) system = "/tmp";
    std::string name = (system / "ferrowick-XXXXXX").string();
    if (!::mkdtemp(name.data())) file::raiseSystemError(errno, system.string());
    folder = name;
    removedAtEnd = true;
    if (!makeTemp(folder)) file::raiseSystemError(errno, name);
}

const fs::path& WorkFolder::path() {
    if (folder.empty()) takePrivateFolder();
    return folder;
}

fs::path WorkFolder::temp() {
    return path() / tempName;
}

void WorkFolder::clearTemp() {
    if (folder.empty() || !makeTemp(folder)) return;
    file::FileHandle handle(
        ::open((folder / tempName).c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(handle.isOpen() ? ::fdopendir(handle.get()) : nullptr,
                                                      &::closedir);
    if (!entries) return;
    handle.release(); // closed with the listing
    while (const dirent* entry = ::readdir(entries.get()))
        ::unlinkat(::dirfd(entries.get()), entry->d_name, 0);
}

void WorkFolder::removeDataFile() {
    if (!folder.empty()) ::unlink((folder / "data.dat").c_str());
}

} // namespace platform
