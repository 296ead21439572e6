#include "file/archive/zipEntry.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/checksum.h"
#include "file/fileHandle.h"

#include <cerrno>
#include <memory>
#include <new>
#include <unistd.h>
#include <vector>

namespace file {

void raiseZipError(zip_error_t& error, const std::string& detail) {
    const int code = zip_error_code_zip(&error);
    const bool bySystem = zip_error_system_type(&error) == ZIP_ET_SYS;
    const int errnoValue = zip_error_code_system(&error);
    const std::string reason = zip_error_strerror(&error);
    zip_error_fini(&error);
    if (code == ZIP_ER_MEMORY) throw std::bad_alloc();
    // A seek goes wrong only where the archive points outside itself.
    if (bySystem && errnoValue != 0 && code != ZIP_ER_SEEK) raiseSystemError(errnoValue, detail);
    core::raise(core::errors::badFileFormat, detail + " (" + reason + ")");
}

void raiseDamaged(const std::string& detail) {
    core::raise(core::errors::badFileFormat, detail);
}

EntryReader::EntryReader(zip_t* zip, zip_uint64_t index, std::uint64_t archiveSize, std::uint64_t maxBytes) {
    zip_stat_t status;
    zip_stat_init(&status);
    if (zip_stat_index(zip, index, 0, &status) != 0) raiseZipError(*zip_get_error(zip), core::tr("entry"));
    name = status.name ? status.name : "";
    constexpr std::uint64_t highestRatio = 1032; // of deflated bytes
    const bool deflated = status.comp_method == ZIP_CM_DEFLATE;
    const bool known = deflated || status.comp_method == ZIP_CM_STORE;
    if (!known || status.encryption_method != ZIP_EM_NONE)
        raiseDamaged(core::fill(core::tr("%1 is packed in an unknown way"), {name}));
    if (status.comp_size > archiveSize || status.size / (deflated ? highestRatio : 1) > status.comp_size)
        raiseDamaged(core::fill(core::tr("%1 has a wrong size"), {name}));
    if (status.size > maxBytes) raiseDamaged(core::fill(core::tr("%1 is too large"), {name}));
    declared = status.size;
    file = zip_fopen_index(zip, index, 0);
    if (!file) raiseZipError(*zip_get_error(zip), name);
}

std::size_t EntryReader::read(char* bytes, std::size_t count) {
    const zip_int64_t got = zip_fread(file, bytes, count);
    if (got < 0) raiseZipError(*zip_file_get_error(file), name);
    produced += static_cast<std::uint64_t>(got);
    if (produced > declared || (got == 0 && produced < declared))
        raiseDamaged(core::fill(core::tr("%1 has a wrong size"), {name}));
    return static_cast<std::size_t>(got);
}

namespace {

std::string unpacked(zip_t* zip, zip_uint64_t index, zip_uint64_t size) {
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> entry(zip_fopen_index(zip, index, 0),
                                                                  &zip_fclose);
    if (!entry) return {};
    std::string bytes(size, '\0');
    const zip_int64_t count = zip_fread(entry.get(), bytes.data(), bytes.size());
    return count == static_cast<zip_int64_t>(bytes.size()) ? bytes : std::string();
}

} // namespace

bool isUnchangedEntry(zip_t* zip, zip_uint64_t index, std::string_view bytes, std::string_view comment) {
    zip_stat_t now;
    zip_stat_t then;
    zip_stat_init(&now);
    zip_stat_init(&then);
    // A replaced entry tells another size, or none.
    if (zip_stat_index(zip, index, 0, &now) != 0 || zip_stat_index(zip, index, ZIP_FL_UNCHANGED, &then) != 0)
        return false;
    zip_uint32_t length = 0;
    const char* told = zip_file_get_comment(zip, index, &length, ZIP_FL_ENC_RAW);
    const std::string_view toldComment(told == nullptr ? "" : told, told == nullptr ? 0 : length);
    if (now.size != bytes.size() || then.size != bytes.size() || toldComment != comment) return false;
    return now.crc == then.crc && then.crc == checksum(bytes) && unpacked(zip, index, now.size) == bytes;
}

void unpackInto(int fd, EntryReader& entry, const std::filesystem::path& file) {
    std::vector<char> chunk(chunkBytes);
    long long place = 0;
    while (const std::size_t count = entry.read(chunk.data(), chunk.size())) {
        if (const int failure = writeAt(fd, chunk.data(), count, place))
            raiseSystemError(failure, file.string());
        place += static_cast<long long>(count);
    }
}

void copyFile(int from, int to, std::uint64_t size, const std::string& detail) {
    std::vector<char> chunk(chunkBytes);
    long long place = 0;
    while (static_cast<std::uint64_t>(place) < size) {
        const ssize_t count = ::pread(from, chunk.data(), chunk.size(), place);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) raiseSystemError(errno, detail);
        if (count == 0) raiseDamaged(core::fill(core::tr("%1 ended too early"), {detail}));
        if (const int failure = writeAt(to, chunk.data(), static_cast<std::size_t>(count), place))
            raiseSystemError(failure, detail);
        place += count;
    }
}

void writeEmptyArchive(int fd, const std::string& comment, const std::string& detail) {
    std::string record("PK\5\6\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
    record += static_cast<char>(comment.size() & 0xff);
    record += static_cast<char>(comment.size() >> 8);
    record += comment;
    if (const int failure = writeAt(fd, record.data(), record.size(), 0)) raiseSystemError(failure, detail);
}

} // namespace file
