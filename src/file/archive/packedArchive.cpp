#include "file/archive/packedArchive.h"

#include "core/translate.h"
#include "file/archive/zipEntry.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <set>
#include <unistd.h>

namespace file {

namespace fs = std::filesystem;

namespace {

constexpr int unchanged = ZIP_FL_UNCHANGED;

zip_t* openZip(ArchiveSource& source, int flags, const fs::path& file) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* made = zip_source_function_create(&ArchiveSource::respond, &source, &error);
    zip_t* zip = made == nullptr ? nullptr : zip_open_from_source(made, flags, &error);
    if (zip != nullptr) return zip;
    if (made != nullptr) zip_source_free(made);
    if (source.failure() != 0) zip_error_set(&error, ZIP_ER_READ, source.failure());
    raiseZipError(error, file.string());
}

// The packed bytes of one entry in a file of their own. It is opened when its turn comes, so that an archive
// of a thousand pictures does not need a thousand open files.
class StoredSource {
public:
    StoredSource(const PackedEntry& entry, fs::path packed) : entry_(entry), packed_(std::move(packed)) {
        zip_error_init(&error_);
    }
    ~StoredSource() { zip_error_fini(&error_); }
    StoredSource(const StoredSource&) = delete;
    StoredSource& operator=(const StoredSource&) = delete;

    static zip_int64_t respond(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
        auto* source = static_cast<StoredSource*>(self);
        if (command != ZIP_SOURCE_FREE) return source->respond(data, length, command);
        delete source;
        return 0;
    }

private:
    zip_int64_t respond(void* data, zip_uint64_t length, zip_source_cmd_t command) {
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                                  ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE, -1);
        case ZIP_SOURCE_OPEN:
            handle_.reset(::open(packed_.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
            return handle_.isOpen() ? 0 : fail(ZIP_ER_OPEN, errno);
        case ZIP_SOURCE_READ:
            for (;;) {
                const ssize_t count = ::read(handle_.get(), data, length);
                if (count >= 0) return count;
                if (errno != EINTR) return fail(ZIP_ER_READ, errno);
            }
        case ZIP_SOURCE_STAT:
            return tellStatus(data, length);
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, length);
        case ZIP_SOURCE_CLOSE:
            handle_.reset();
            return 0;
        default:
            return fail(ZIP_ER_OPNOTSUPP, 0);
        }
    }

    zip_int64_t tellStatus(void* data, zip_uint64_t length) {
        if (length < sizeof(zip_stat_t)) return fail(ZIP_ER_INVAL, 0);
        auto* status = static_cast<zip_stat_t*>(data);
        zip_stat_init(status);
        status->size = entry_.size;
        status->comp_size = entry_.packedSize;
        status->crc = entry_.checksum;
        status->comp_method = static_cast<zip_uint16_t>(entry_.method);
        status->valid |= ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
        return sizeof(zip_stat_t);
    }

    zip_int64_t fail(int zipError, int errnoValue) {
        zip_error_set(&error_, zipError, errnoValue);
        return -1;
    }

    PackedEntry entry_;
    fs::path packed_;
    FileHandle handle_;
    zip_error_t error_{};
};

FileHandle openArchive(const fs::path& file) {
    FileHandle handle = openRegularFile(file);
    // libzip takes a file without a byte for an archive without entries.
    const off_t size = ::lseek(handle.get(), 0, SEEK_END);
    if (size < 0) raiseSystemError(errno, file.string());
    if (size == 0) raiseDamaged(core::fill(core::tr("%1 is empty"), {file.string()}));
    return handle;
}

} // namespace

PackedArchive::PackedArchive(const fs::path& file)
    : file_(file), source_(openArchive(file), file.string()), zip_(openZip(source_, ZIP_RDONLY, file)) {
    std::set<std::string, std::less<>> names;
    const auto count = static_cast<zip_uint64_t>(zip_get_num_entries(zip_, unchanged));
    for (zip_uint64_t i = 0; i < count; ++i) {
        zip_stat_t status;
        zip_stat_init(&status);
        if (zip_stat_index(zip_, i, unchanged, &status) != 0 || status.name == nullptr ||
            status.encryption_method != ZIP_EM_NONE || !names.insert(status.name).second)
            continue;
        zip_uint32_t length = 0;
        const char* comment = zip_file_get_comment(zip_, i, &length, ZIP_FL_ENC_RAW);
        entries_.push_back({status.name, comment == nullptr ? "" : std::string(comment, length), status.crc,
                            status.size, status.comp_size, status.comp_method, i});
    }
}

PackedArchive::~PackedArchive() {
    zip_discard(zip_);
}

const PackedEntry* PackedArchive::find(std::string_view name) const {
    const auto found = std::ranges::find(entries_, name, &PackedEntry::name);
    return found == entries_.end() ? nullptr : &*found;
}

void PackedArchive::copy(const PackedEntry& entry, int fd, const fs::path& file) const {
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> packed(
        zip_fopen_index(zip_, entry.place, ZIP_FL_COMPRESSED | unchanged), &zip_fclose);
    if (!packed) raiseZipError(*zip_get_error(zip_), file_.string());
    std::vector<char> chunk(std::min<std::uint64_t>(chunkBytes, entry.packedSize + 1));
    long long place = 0;
    for (;;) {
        const zip_int64_t count = zip_fread(packed.get(), chunk.data(), chunk.size());
        if (count < 0) raiseZipError(*zip_file_get_error(packed.get()), file_.string());
        if (count == 0) break;
        if (const int failure = writeAt(fd, chunk.data(), static_cast<std::size_t>(count), place))
            raiseSystemError(failure, file.string());
        place += count;
    }
    if (static_cast<std::uint64_t>(place) != entry.packedSize)
        raiseDamaged(core::fill(core::tr("%1 ended too early"), {file_.string()}));
}

PackedWriter::PackedWriter()
    : target_(FileHandle(), {}), zip_(openZip(target_, ZIP_CREATE | ZIP_TRUNCATE, {})) {}

PackedWriter::~PackedWriter() {
    if (zip_ != nullptr) zip_discard(zip_);
}

void PackedWriter::add(const PackedArchive& from, const PackedEntry& entry) {
    put(entry, zip_source_zip(zip_, from.zip_, entry.place, unchanged, 0, -1));
}

void PackedWriter::add(const PackedEntry& entry, const fs::path& packed) {
    auto source = std::make_unique<StoredSource>(entry, packed);
    zip_source_t* made = zip_source_function(zip_, &StoredSource::respond, source.get());
    if (made != nullptr) static_cast<void>(source.release());
    put(entry, made);
}

void PackedWriter::add(const std::string& name, std::string_view bytes) {
    void* copy = bytes.empty() ? nullptr : std::malloc(bytes.size()); // libzip frees it
    if (copy == nullptr && !bytes.empty()) throw std::bad_alloc();
    if (copy != nullptr) std::memcpy(copy, bytes.data(), bytes.size());
    zip_source_t* source = zip_source_buffer(zip_, copy, bytes.size(), copy == nullptr ? 0 : 1);
    if (source == nullptr) std::free(copy);
    PackedEntry entry;
    entry.name = name;
    entry.method = ZIP_CM_DEFLATE;
    put(entry, source);
}

void PackedWriter::put(const PackedEntry& entry, zip_source_t* source) {
    if (source == nullptr) raiseZipError(*zip_get_error(zip_), entry.name);
    const zip_int64_t place = zip_file_add(zip_, entry.name.c_str(), source, ZIP_FL_ENC_GUESS);
    if (place < 0) {
        zip_source_free(source);
        raiseZipError(*zip_get_error(zip_), entry.name);
    }
    const auto index = static_cast<zip_uint64_t>(place);
    if ((!entry.comment.empty() &&
         zip_file_set_comment(zip_, index, entry.comment.data(),
                              static_cast<zip_uint16_t>(entry.comment.size()), 0) != 0) ||
        zip_set_file_compression(zip_, index, entry.method, 0) != 0 ||
        zip_file_set_external_attributes(zip_, index, 0, ZIP_OPSYS_UNIX, 0100644U << 16U) != 0)
        raiseZipError(*zip_get_error(zip_), entry.name);
}

void PackedWriter::finish(int fd, const fs::path& file) {
    target_.writeInto(fd);
    if (zip_close(zip_) != 0) raiseZipError(*zip_get_error(zip_), file.string());
    zip_ = nullptr;
}

} // namespace file
