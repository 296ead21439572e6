#include "file/archive/archiveSource.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace file {

ArchiveSource::ArchiveSource(FileHandle file, const std::string& name) : input(std::move(file)) {
    zip_error_init(&error);
    if (!input.isOpen()) return;
    // Without a size, libzip would take the file for an archive without entries.
    struct stat status {};
    if (::fstat(input.get(), &status) != 0) raiseSystemError(errno, name);
    inputSize = static_cast<std::uint64_t>(status.st_size);
    modified = status.st_mtime;
}

zip_int64_t ArchiveSource::respond(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<ArchiveSource*>(self)->respondReading(data, length, command);
}

zip_int64_t ArchiveSource::respondReading(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_WRITABLE;
    case ZIP_SOURCE_OPEN:
        readPlace = 0;
        return 0;
    case ZIP_SOURCE_READ:
        return read(static_cast<char*>(data), length);
    case ZIP_SOURCE_SEEK:
        return seek(readPlace, inputSize, data, length);
    case ZIP_SOURCE_TELL:
        return static_cast<zip_int64_t>(readPlace);
    case ZIP_SOURCE_STAT:
        return tellStatus(data, length);
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error, data, length);
    case ZIP_SOURCE_CLOSE:
    case ZIP_SOURCE_FREE:
        return 0;
    default:
        return respondWriting(data, length, command);
    }
}

// Whether what is written takes its place is decided outside, so commit and rollback have nothing to do.
zip_int64_t ArchiveSource::respondWriting(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
    case ZIP_SOURCE_BEGIN_WRITE:
        writePlace = outputSize = 0;
        return output >= 0 ? 0 : fail(ZIP_ER_RDONLY, 0);
    case ZIP_SOURCE_WRITE:
        return write(static_cast<const char*>(data), length);
    case ZIP_SOURCE_SEEK_WRITE:
        return seek(writePlace, outputSize, data, length);
    case ZIP_SOURCE_TELL_WRITE:
        return static_cast<zip_int64_t>(writePlace);
    case ZIP_SOURCE_COMMIT_WRITE:
    case ZIP_SOURCE_ROLLBACK_WRITE:
    case ZIP_SOURCE_REMOVE:
        return 0;
    default:
        return fail(ZIP_ER_OPNOTSUPP, 0);
    }
}

zip_int64_t ArchiveSource::read(char* bytes, zip_uint64_t length) {
    ssize_t count = 0;
    do {
        count = ::pread(input.get(), bytes, length, static_cast<off_t>(readPlace));
    } while (count < 0 && errno == EINTR);
    if (count < 0) return fail(ZIP_ER_READ, errno);
    readPlace += static_cast<std::uint64_t>(count);
    return count;
}

zip_int64_t ArchiveSource::write(const char* bytes, zip_uint64_t length) {
    const int failure = writeAt(output, bytes, length, static_cast<long long>(writePlace));
    if (failure != 0) return fail(ZIP_ER_WRITE, failure);
    writePlace += length;
    outputSize = std::max(outputSize, writePlace);
    return static_cast<zip_int64_t>(length);
}

zip_int64_t ArchiveSource::seek(std::uint64_t& place, std::uint64_t end, void* data, zip_uint64_t length) {
    const zip_int64_t target = zip_source_seek_compute_offset(place, end, data, length, &error);
    if (target < 0) return -1;
    place = static_cast<std::uint64_t>(target);
    return 0;
}

zip_int64_t ArchiveSource::tellStatus(void* data, zip_uint64_t length) {
    if (length < sizeof(zip_stat_t)) return fail(ZIP_ER_INVAL, 0);
    auto* status = static_cast<zip_stat_t*>(data);
    zip_stat_init(status);
    status->size = inputSize;
    status->mtime = modified;
    status->valid |= ZIP_STAT_SIZE | ZIP_STAT_MTIME;
    return sizeof(zip_stat_t);
}

zip_int64_t ArchiveSource::fail(int zipError, int errnoValue) {
    if (errnoValue != 0) systemError = errnoValue;
    zip_error_set(&error, zipError, errnoValue);
    return -1;
}

} // namespace file
