#pragma once

#include "file/fileHandle.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <zip.h>

namespace file {

// What libzip reads an archive from and writes it to: two descriptors, the archive as it is and the
// file that is to take its place. libzip's own way of writing a file neither syncs it nor keeps the
// owner, so it is only given the bytes to move.
class ArchiveSource {
public:
    // Without an open file: a new archive. The name is what errors tell.
    ArchiveSource(FileHandle file, const std::string& name);
    ~ArchiveSource() { zip_error_fini(&error); }
    ArchiveSource(const ArchiveSource&) = delete;
    ArchiveSource& operator=(const ArchiveSource&) = delete;

    [[nodiscard]] std::uint64_t size() const { return inputSize; }
    [[nodiscard]] int descriptor() const { return input.get(); }
    // Of the last failure to read or write, 0 for none. libzip forgets it at times, and tells that the
    // archive ended too early.
    [[nodiscard]] int failure() const { return systemError; }
    [[nodiscard]] std::int64_t modifiedAt() const { return modified; } // in seconds since 1970
    void writeInto(int fd) { output = fd; }

    // A zip_source_callback; self is an ArchiveSource, which must outlive the archive.
    static zip_int64_t respond(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command);

private:
    zip_int64_t respondReading(void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t respondWriting(void* data, zip_uint64_t length, zip_source_cmd_t command);
    zip_int64_t read(char* bytes, zip_uint64_t length);
    zip_int64_t write(const char* bytes, zip_uint64_t length);
    zip_int64_t seek(std::uint64_t& place, std::uint64_t end, void* data, zip_uint64_t length);
    zip_int64_t tellStatus(void* data, zip_uint64_t length);
    zip_int64_t fail(int zipError, int errnoValue);

    FileHandle input;
    int output = -1;
    std::uint64_t inputSize = 0, readPlace = 0, outputSize = 0, writePlace = 0;
    std::time_t modified = 0;
    int systemError = 0;
    zip_error_t error{};
};

} // namespace file
