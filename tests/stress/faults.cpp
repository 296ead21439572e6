// Preloaded into a program, makes one of its calls of the system fail: the FAULT_AT-th of those that it makes
// on files whose path contains FAULT_PATH, with the error FAULT_ERRNO. Calls are counted from 1. A run that
// makes fewer calls leaves no file FAULT_DONE; one in which the call was made to fail writes its name there.
// close() closes all the same, as the system does when it reports an error of an earlier write.

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Looked up by name each time: the functions are few and the programs short.
template <typename Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

const char* setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::atomic<int> calls{0};
thread_local bool isWithin = false;

bool concerns(const char* path) {
    const char* part = setting("FAULT_PATH");
    return *part != '\0' && path != nullptr && std::strstr(path, part) != nullptr;
}

bool concerns(int fd) {
    char link[64];
    char path[4096];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length =
        real<ssize_t (*)(const char*, char*, size_t)>("readlink")(link, path, sizeof path - 1);
    if (length < 0) return false;
    path[length] = '\0';
    return concerns(path);
}

// Whether this call is the one.
template <typename Where>
bool fails(const char* name, Where where) {
    if (isWithin) return false;
    isWithin = true;
    const int before = errno;
    const bool hit = concerns(where) && ++calls == std::atoi(setting("FAULT_AT"));
    if (hit) {
        const int fd = real<int (*)(const char*, int, ...)>("open")(setting("FAULT_DONE"),
                                                                    O_WRONLY | O_CREAT | O_TRUNC, 0600);
        (void)!real<ssize_t (*)(int, const void*, size_t)>("write")(fd, name, std::strlen(name));
        real<int (*)(int)>("close")(fd);
    }
    errno = hit ? std::atoi(setting("FAULT_ERRNO")) : before;
    isWithin = false;
    return hit;
}

} // namespace

#define FORWARD(RESULT, NAME, WHERE, FAILURE, PARAMETERS, ARGUMENTS)                                         \
    extern "C" RESULT NAME PARAMETERS {                                                                      \
        if (fails(#NAME, WHERE)) return FAILURE;                                                             \
        return real<RESULT(*) PARAMETERS>(#NAME) ARGUMENTS;                                                  \
    }

#define FORWARD_BOTH(RESULT, NAME, WHERE, FAILURE, PARAMETERS, ARGUMENTS)                                    \
    FORWARD(RESULT, NAME, WHERE, FAILURE, PARAMETERS, ARGUMENTS)                                             \
    FORWARD(RESULT, NAME##64, WHERE, FAILURE, PARAMETERS, ARGUMENTS)

#define FORWARD_OPEN(NAME)                                                                                   \
    extern "C" int NAME(const char* path, int flags, ...) {                                                  \
        va_list rest;                                                                                        \
        va_start(rest, flags);                                                                               \
        const mode_t mode = (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;               \
        va_end(rest);                                                                                        \
        if (fails(#NAME, path)) return -1;                                                                   \
        return real<int (*)(const char*, int, ...)>(#NAME)(path, flags, mode);                               \
    }

FORWARD_OPEN(open)
FORWARD_OPEN(open64)
FORWARD(ssize_t, read, fd, -1, (int fd, void* bytes, size_t count), (fd, bytes, count))
FORWARD_BOTH(ssize_t, pread, fd, -1, (int fd, void* bytes, size_t count, off_t place),
             (fd, bytes, count, place))
FORWARD(ssize_t, write, fd, -1, (int fd, const void* bytes, size_t count), (fd, bytes, count))
FORWARD_BOTH(ssize_t, pwrite, fd, -1, (int fd, const void* bytes, size_t count, off_t place),
             (fd, bytes, count, place))
FORWARD_BOTH(off_t, lseek, fd, -1, (int fd, off_t place, int from), (fd, place, from))
FORWARD(int, fsync, fd, -1, (int fd), (fd))
FORWARD(int, fdatasync, fd, -1, (int fd), (fd))
FORWARD(int, ftruncate, fd, -1, (int fd, off_t size), (fd, size))
FORWARD(int, fstat, fd, -1, (int fd, struct stat* status), (fd, status))
FORWARD(int, fstat64, fd, -1, (int fd, struct stat64* status), (fd, status))
FORWARD(int, stat, path, -1, (const char* path, struct stat* status), (path, status))
FORWARD(int, stat64, path, -1, (const char* path, struct stat64* status), (path, status))
FORWARD(int, lstat, path, -1, (const char* path, struct stat* status), (path, status))
FORWARD(int, lstat64, path, -1, (const char* path, struct stat64* status), (path, status))
FORWARD(int, access, path, -1, (const char* path, int mode), (path, mode))
FORWARD(int, faccessat, path, -1, (int folder, const char* path, int mode, int flags),
        (folder, path, mode, flags))
FORWARD(ssize_t, readlink, path, -1, (const char* path, char* bytes, size_t count), (path, bytes, count))
FORWARD(int, rename, from, -1, (const char* from, const char* to), (from, to))
FORWARD(int, link, from, -1, (const char* from, const char* to), (from, to))
FORWARD(int, unlink, path, -1, (const char* path), (path))
FORWARD(int, mkdir, path, -1, (const char* path, mode_t mode), (path, mode))
FORWARD(int, fchmod, fd, -1, (int fd, mode_t mode), (fd, mode))
FORWARD(int, fchown, fd, -1, (int fd, uid_t owner, gid_t group), (fd, owner, group))
FORWARD(int, flock, fd, -1, (int fd, int operation), (fd, operation))
FORWARD(void*, mmap, fd, MAP_FAILED, (void* at, size_t length, int access, int flags, int fd, off_t place),
        (at, length, access, flags, fd, place))

extern "C" int close(int fd) {
    const bool hit = fails("close", fd);
    const int failure = errno;
    const int result = real<int (*)(int)>("close")(fd);
    if (!hit) return result;
    errno = failure;
    return -1;
}
