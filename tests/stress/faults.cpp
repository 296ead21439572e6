// Preloaded into a program, makes one of its calls of the system fail: the FAULT_AT-th of those that it makes
// on files whose path contains FAULT_PATH, with the error FAULT_ERRNO. Calls are counted from 1. A run that
// makes fewer calls leaves no file FAULT_DONE; one in which the call was made to fail writes its name there.
// close() closes all the same, as the system does when it reports an error of an earlier write.

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <string>
#include <utility>

namespace {

// All of them take numbers and pointers, at most six, and fail with -1. So one type does for all: what a
// function does not take is in registers that it does not look at. Looked up by name each time: the functions
// are few and the programs short.
template <typename... Arguments>
long real(const char* name, Arguments... arguments) {
    return reinterpret_cast<long (*)(Arguments...)>(::dlsym(RTLD_NEXT, name))(arguments...);
}

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::atomic<int> calls{0};
thread_local bool isWithin = false;

// Of a call on that path, or on that open file.
bool concerns(bool isOpen, long where) {
    char path[4096] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(static_cast<int>(where)),
                      part = setting("FAULT_PATH");
    if (isOpen) real("readlink", link.c_str(), path, sizeof path - 1);
    const char* named = isOpen ? path : reinterpret_cast<const char*>(where);
    return !part.empty() && named != nullptr && std::strstr(named, part.c_str()) != nullptr;
}

template <typename... Arguments>
long call(const char* name, bool isOpen, long where, Arguments... arguments) {
    const int before = errno;
    bool hit = false;
    if (!std::exchange(isWithin, true)) {
        hit = concerns(isOpen, where) && ++calls == std::stoi("0" + setting("FAULT_AT"));
        if (hit) std::ofstream(setting("FAULT_DONE")) << name;
        isWithin = false;
    }
    errno = before;
    const bool isDone = !hit || std::strcmp(name, "close") == 0;
    const long result = isDone ? real(name, arguments...) : -1;
    if (hit) errno = std::stoi(setting("FAULT_ERRNO"));
    return hit ? -1 : result;
}

} // namespace

// Under a name of its own, since the system's headers know the functions by other types.
#define FORWARD(NAME, IS_OPEN, WHERE)                                                                        \
    extern "C" long faulty_##NAME(long a, long b, long c, long d, long e, long f) __asm__(#NAME);            \
    long faulty_##NAME(long a, long b, long c, long d, long e, long f) {                                     \
        return call(#NAME, IS_OPEN, WHERE, a, b, c, d, e, f);                                                \
    }
#define ON_PATH(NAME) FORWARD(NAME, false, a)
#define ON_OPEN(NAME) FORWARD(NAME, true, a)

// clang-format off
ON_PATH(open) ON_PATH(open64) ON_PATH(stat) ON_PATH(stat64) ON_PATH(lstat) ON_PATH(lstat64) ON_PATH(access)
ON_PATH(readlink) ON_PATH(rename) ON_PATH(link) ON_PATH(unlink) ON_PATH(mkdir) FORWARD(faccessat, false, b)
ON_OPEN(read) ON_OPEN(pread) ON_OPEN(pread64) ON_OPEN(write) ON_OPEN(pwrite) ON_OPEN(pwrite64) ON_OPEN(lseek)
ON_OPEN(lseek64) ON_OPEN(fsync) ON_OPEN(fdatasync) ON_OPEN(ftruncate) ON_OPEN(fstat) ON_OPEN(fstat64)
ON_OPEN(fchmod) ON_OPEN(fchown) ON_OPEN(flock) ON_OPEN(close) FORWARD(mmap, true, e)
