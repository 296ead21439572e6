#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <sys/stat.h>

namespace file {

// What a database file was when it was read or written, to notice before it is written again, or while it is
// open, that somebody else has changed it. Nothing is raised: a file that cannot be looked at counts as one
// that is not there.
//
// Taken before the file is read, no later change is missed. Zip::state() is that of the very file which is
// read, and what its CloseArchive() answers that of the file which it wrote.
class FileState {
public:
    enum class Change {
        None,    // the same bytes, though perhaps touched, copied back, or under other permissions
        Changed, // other bytes
        Gone,    // there is no such file any more
    };

    FileState() = default; // of no file

    [[nodiscard]] static FileState of(const std::filesystem::path& file);
    [[nodiscard]] static FileState of(int fd);

    [[nodiscard]] bool isThere() const { return isThere_; }
    // What has become of it. Costs no more than a look at the file's status, unless that is another one.
    [[nodiscard]] Change changeOf(const std::filesystem::path& file) const;
    [[nodiscard]] bool hasChanged(const std::filesystem::path& file) const {
        return changeOf(file) != Change::None;
    }
    // When it was written last, in nanoseconds since 1970, and its size in bytes.
    [[nodiscard]] std::int64_t modified() const { return modified_; }
    [[nodiscard]] std::int64_t size() const { return size_; }

private:
    explicit FileState(const struct stat& status);
    [[nodiscard]] bool hasStatusOf(const FileState& other) const;

    bool isThere_ = false;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    std::int64_t size_ = 0, modified_ = 0, statusChanged_ = 0;
    // Of names, sizes and checksums of all entries, as the archive's directory has them; none for what is no
    // archive, or too large a one for a quick look: any other status is a change then.
    std::optional<std::uint64_t> directory_;
};

} // namespace file
