#include "file/fileHandle.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace file {

namespace {

// Past a limit on file size the system would end the program; ignored, the write fails.
void surviveFileSizeLimit() {
    static const bool once = [] {
        struct sigaction ignore {};
        ignore.sa_handler = SIG_IGN;
        return sigaction(SIGXFSZ, &ignore, nullptr) == 0;
    }();
    (void)once;
}

int errorNumberOf(int errnoValue) {
    switch (errnoValue) {
    case ENOSPC:
    case EDQUOT:
        return core::errors::diskFull;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ELOOP:
    case ETXTBSY:
        return core::errors::pathAccess;
    case ENOENT:
    case ENOTDIR:
        return core::errors::fileNotFound;
    case ENAMETOOLONG:
        return core::errors::badFileName;
    case ENOMEDIUM:
    case ENXIO:
    case ENODEV:
        return core::errors::diskNotReady;
    default:
        return core::errors::deviceIO;
    }
}

} // namespace

void FileHandle::reset(int descriptor) {
    if (fd >= 0) ::close(fd);
    fd = descriptor;
}

void raiseSystemError(int errnoValue, const std::string& detail) {
    const int number = errorNumberOf(errnoValue);
    if (number == core::errors::fileNotFound) core::raise(number, detail);
    core::raise(number, detail + " (" + std::generic_category().message(errnoValue) + ")");
}

FileHandle openRegularFile(const std::filesystem::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0) raiseSystemError(errno, file.string());
    if (!S_ISREG(status.st_mode))
        core::raise(core::errors::pathAccess, core::fill(core::tr("%1 is not a file"), {file.string()}));
    // Should a pipe take its place in between, opening it does not block.
    FileHandle handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!handle.isOpen()) raiseSystemError(errno, file.string());
    if (::fstat(handle.get(), &status) != 0) raiseSystemError(errno, file.string());
    if (!S_ISREG(status.st_mode))
        core::raise(core::errors::pathAccess, core::fill(core::tr("%1 is not a file"), {file.string()}));
    return handle;
}

int writeAt(int fd, const char* bytes, std::size_t count, long long place) {
    surviveFileSizeLimit();
    while (count > 0) {
        const ssize_t written = ::pwrite(fd, bytes, count, place);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return errno;
        if (written == 0) return ENOSPC;
        bytes += written;
        place += written;
        count -= static_cast<std::size_t>(written);
    }
    return 0;
}

std::optional<std::string> readSmallFile(const std::filesystem::path& file, std::size_t maxBytes) {
    const FileHandle handle = openRegularFile(file);
    std::string bytes;
    char chunk[8192];
    for (;;) {
        const ssize_t count = ::read(handle.get(), chunk, sizeof chunk);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) raiseSystemError(errno, file.string());
        if (count == 0) return bytes;
        bytes.append(chunk, static_cast<std::size_t>(count));
        if (bytes.size() > maxBytes) return std::nullopt;
    }
}

} // namespace file
