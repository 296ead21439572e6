#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <zip.h>

namespace file {

// Large enough that the calls do not count, small enough that what was just unpacked is still in the
// processor's cache when its checksum is taken.
constexpr std::size_t chunkBytes = std::size_t{128} * 1024;

// Raise what libzip has told, and that an archive is damaged.
[[noreturn]] void raiseZipError(zip_error_t& error, const std::string& detail);
[[noreturn]] void raiseDamaged(const std::string& detail);

// One entry while it is unpacked. What the archive tells about its size is not trusted: not when it is
// more than the packed bytes can hold, and not when more or less comes out.
class EntryReader {
public:
    EntryReader(zip_t* zip, zip_uint64_t index, std::uint64_t archiveSize, std::uint64_t maxBytes);
    ~EntryReader() { zip_fclose(file); }
    EntryReader(const EntryReader&) = delete;
    EntryReader& operator=(const EntryReader&) = delete;

    [[nodiscard]] std::uint64_t size() const { return declared; }

    // Up to count bytes; 0 at the end, which is told only when size and checksum were right.
    std::size_t read(char* bytes, std::size_t count);

private:
    zip_file_t* file = nullptr;
    std::string name;
    std::uint64_t declared = 0, produced = 0;
};

// Whether an entry that the archive was read with is still what it was, and has these bytes and this comment.
[[nodiscard]] bool isUnchangedEntry(zip_t* zip, zip_uint64_t index, std::string_view bytes,
                                    std::string_view comment);

// Writes all of an entry into an open file.
void unpackInto(int fd, EntryReader& entry, const std::filesystem::path& file);

// Copies all of a file that has so many bytes.
void copyFile(int from, int to, std::uint64_t size, const std::string& detail);

// libzip leaves no file at all where no entry is left; an archive without entries is this record.
void writeEmptyArchive(int fd, const std::string& comment, const std::string& detail);

} // namespace file
