#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace file {

// An open file descriptor, closed at the end of its life.
class FileHandle {
public:
    explicit FileHandle(int descriptor = -1) : fd(descriptor) {}
    ~FileHandle() { reset(); }
    FileHandle(FileHandle&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        if (this != &other) reset(std::exchange(other.fd, -1));
        return *this;
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    [[nodiscard]] int get() const { return fd; }
    [[nodiscard]] bool isOpen() const { return fd >= 0; }
    int release() { return std::exchange(fd, -1); }
    void reset(int descriptor = -1);

private:
    int fd;
};

// Raises the run-time error that stands for a system error: disk full, path access, file not found,
// bad file name, or device I/O. Its text ends in what the system says, unless the error says all.
[[noreturn]] void raiseSystemError(int errnoValue, const std::string& detail);

// Opens a regular file for reading. Anything else at that path (a folder, a pipe that would block) is
// a path access error, an absent file file-not-found.
[[nodiscard]] FileHandle openRegularFile(const std::filesystem::path& file);

// Writes all bytes at the place; answers 0 or the errno of the failure.
[[nodiscard]] int writeAt(int fd, const char* bytes, std::size_t count, long long place);

// The bytes of a regular file; nothing when it is larger than maxBytes. Raises what openRegularFile does,
// and deviceIO.
[[nodiscard]] std::optional<std::string> readSmallFile(const std::filesystem::path& file,
                                                       std::size_t maxBytes);

} // namespace file
