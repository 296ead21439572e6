#include "file/fileState.h"

#include "file/fileHandle.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace file {

namespace {

constexpr std::size_t endRecordBytes = 22;
constexpr std::size_t longestComment = 0xffff;
constexpr std::size_t entryRecordBytes = 46;
constexpr std::uint32_t mostDirectoryBytes = 16U << 20U;

std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t count) {
    std::uint32_t number = 0;
    for (std::size_t i = count; i-- > 0;)
        number = number << 8U | static_cast<unsigned char>(bytes[place + i]);
    return number;
}

std::optional<std::string> bytesAt(int fd, std::int64_t place, std::size_t count) {
    std::string bytes(count, '\0');
    for (std::size_t filled = 0; filled < count;) {
        const ssize_t part = ::pread(fd, bytes.data() + filled, count - filled,
                                     static_cast<off_t>(place + static_cast<std::int64_t>(filled)));
        if (part < 0 && errno == EINTR) continue;
        if (part <= 0) return std::nullopt;
        filled += static_cast<std::size_t>(part);
    }
    return bytes;
}

// The archive's directory: what stands before the record that ends it.
std::optional<std::string> readDirectory(int fd, std::int64_t size) {
    const auto tailBytes = static_cast<std::size_t>(
        std::min<std::int64_t>(size, static_cast<std::int64_t>(endRecordBytes + longestComment)));
    const std::optional<std::string> tail =
        bytesAt(fd, size - static_cast<std::int64_t>(tailBytes), tailBytes);
    if (!tail || tailBytes < endRecordBytes) return std::nullopt;
    for (std::size_t place = tailBytes - endRecordBytes + 1; place-- > 0;) {
        if (tail->compare(place, 4, "PK\5\6") != 0) continue;
        if (place + endRecordBytes + numberAt(*tail, place + 20, 2) != tailBytes) continue;
        const std::uint32_t bytes = numberAt(*tail, place + 12, 4);
        const std::uint32_t begin = numberAt(*tail, place + 16, 4);
        if (bytes > mostDirectoryBytes || std::int64_t{begin} + bytes > size) return std::nullopt;
        return bytesAt(fd, begin, bytes);
    }
    return std::nullopt;
}

class Sum {
public:
    void add(std::string_view bytes) {
        for (const char c : bytes) {
            value_ ^= static_cast<unsigned char>(c);
            value_ *= 0x100000001b3U;
        }
    }
    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xcbf29ce484222325U;
};

// Of the names, comments, sizes and checksums of the entries; where they lie and how they are packed is no
// matter.
std::optional<std::uint64_t> directorySum(std::string_view directory) {
    Sum sum;
    for (std::size_t place = 0; place < directory.size();) {
        const std::string_view entry = directory.substr(place);
        if (entry.size() < entryRecordBytes || !entry.starts_with("PK\1\2")) return std::nullopt;
        const std::size_t name = numberAt(entry, 28, 2);
        const std::size_t extra = numberAt(entry, 30, 2);
        const std::size_t comment = numberAt(entry, 32, 2);
        const std::size_t all = entryRecordBytes + name + extra + comment;
        if (all > entry.size()) return std::nullopt;
        sum.add(entry.substr(16, 4));
        sum.add(entry.substr(24, 4));
        sum.add(entry.substr(28, 2)); // so that no name runs into the next entry
        sum.add(entry.substr(32, 2));
        sum.add(entry.substr(entryRecordBytes, name));
        sum.add(entry.substr(entryRecordBytes + name + extra, comment));
        place += all;
    }
    return sum.value();
}

std::int64_t nanoseconds(const struct timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

} // namespace

FileState::FileState(const struct stat& status)
    : isThere_(S_ISREG(status.st_mode)), device_(status.st_dev), inode_(status.st_ino), size_(status.st_size),
      modified_(nanoseconds(status.st_mtim)), statusChanged_(nanoseconds(status.st_ctim)) {}

FileState FileState::of(int fd) {
    struct stat status {};
    if (::fstat(fd, &status) != 0) return {};
    FileState state(status);
    if (!state.isThere_) return {};
    if (const std::optional<std::string> directory = readDirectory(fd, state.size_))
        state.directory_ = directorySum(*directory);
    return state;
}

FileState FileState::of(const std::filesystem::path& file) {
    const FileHandle handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    return handle.isOpen() ? of(handle.get()) : FileState();
}

FileState::Change FileState::changeOf(const std::filesystem::path& file) const {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return isThere_ ? Change::Gone : Change::None;
    if (isThere_ && hasStatusOf(FileState(status))) return Change::None;
    const FileState now = of(file);
    if (isThere_ && directory_ && now.directory_ == directory_) return Change::None;
    return now.isThere_ || !isThere_ ? Change::Changed : Change::Gone;
}

bool FileState::hasStatusOf(const FileState& other) const {
    return device_ == other.device_ && inode_ == other.inode_ && size_ == other.size_ &&
           modified_ == other.modified_ && statusChanged_ == other.statusChanged_;
}

} // namespace file
