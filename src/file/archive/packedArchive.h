#pragma once

#include "file/archive/archiveSource.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace file {

// An entry as an archive has it, packed.
struct PackedEntry {
    std::string name, comment;
    std::uint32_t checksum = 0;
    std::uint64_t size = 0, packedSize = 0;
    int method = 0;          // of packing, as the archive numbers it
    std::uint64_t place = 0; // among the entries of its archive
};

// An archive whose entries are copied as they are, without being unpacked.
class PackedArchive {
public:
    // Raises what Zip::OpenArchive does.
    explicit PackedArchive(const std::filesystem::path& file);
    ~PackedArchive();
    PackedArchive(const PackedArchive&) = delete;
    PackedArchive& operator=(const PackedArchive&) = delete;

    // Of two entries of one name the first. Encrypted ones, which nothing here can read, are left out.
    [[nodiscard]] const std::vector<PackedEntry>& entries() const { return entries_; }
    [[nodiscard]] const PackedEntry* find(std::string_view name) const;
    // What the system said when it could not be read; 0 where it could.
    [[nodiscard]] int failure() const { return source_.failure(); }
    [[nodiscard]] std::uint64_t bytes() const { return source_.size(); }
    [[nodiscard]] std::int64_t modified() const { return source_.modifiedAt(); } // in seconds since 1970
    // Writes the packed bytes of an entry into an open file. Raises diskFull, deviceIO, badFileFormat.
    void copy(const PackedEntry& entry, int fd, const std::filesystem::path& file) const;

private:
    friend class PackedWriter;

    std::filesystem::path file_;
    ArchiveSource source_; // outlives zip_
    zip_t* zip_ = nullptr;
    std::vector<PackedEntry> entries_;
};

// Makes an archive of entries that are packed already. Where they come from must stay until finish().
class PackedWriter {
public:
    PackedWriter();
    ~PackedWriter();
    PackedWriter(const PackedWriter&) = delete;
    PackedWriter& operator=(const PackedWriter&) = delete;

    void add(const PackedArchive& from, const PackedEntry& entry);
    // Its packed bytes are all that is in the file.
    void add(const PackedEntry& entry, const std::filesystem::path& packed);
    void add(const std::string& name, std::string_view bytes); // which are copied and packed
    // Writes the archive into an open, empty file. Raises diskFull, deviceIO, fileNotFound, badFileFormat.
    void finish(int fd, const std::filesystem::path& file);

private:
    void put(const PackedEntry& entry, zip_source_t* source);

    ArchiveSource target_; // outlives zip_
    zip_t* zip_ = nullptr;
};

} // namespace file
