#include "file/archive/zip.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/archive/archiveSource.h"
#include "file/archive/deflatedSource.h"
#include "file/archive/zipEntry.h"
#include "file/atomicFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace file {

namespace fs = std::filesystem;

namespace {

// One below zlib's usual level: a third less time for files that are about one part in a hundred larger.
constexpr int compressionLevel = 5;
// Of the large texts, which libdeflate packs. It takes a fifth of the time of zlib's usual level; the text
// becomes about eight parts in a hundred larger.
constexpr int largeTextLevel = 1;
constexpr std::size_t smallestDeflated = std::size_t{64} * 1024;
constexpr std::size_t maxCommentBytes = 0xffff;

} // namespace

struct Zip::Archive {
    Archive(fs::path path, FileHandle handle, int flags)
        : file(std::move(path)), source(std::move(handle), file.string()) {
        zip_error_t error;
        zip_error_init(&error);
        zip_source_t* created = zip_source_function_create(&ArchiveSource::respond, &source, &error);
        if (created) zip = zip_open_from_source(created, flags, &error);
        if (!zip) {
            if (created) zip_source_free(created);
            raiseZipError(error, file.string());
        }
        originalCount = static_cast<zip_uint64_t>(zip_get_num_entries(zip, 0));
        for (zip_uint64_t i = 0; i < originalCount; ++i) living.push_back(i);
    }
    ~Archive() {
        if (zip) zip_discard(zip);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    // Whether the archive has that very entry already; a save of what has not changed then writes nothing.
    [[nodiscard]] bool hasUnchanged(const std::string& name, std::string_view bytes,
                                    std::string_view comment) const {
        const zip_int64_t place = zip_name_locate(zip, name.c_str(), 0);
        return place >= 0 && static_cast<zip_uint64_t>(place) < originalCount &&
               isUnchangedEntry(zip, static_cast<zip_uint64_t>(place), bytes, comment);
    }

    // Puts a source in as an entry. The source is libzip's from here on, also on failure.
    void put(const std::string& name, zip_source_t* bytes, std::string_view comment) {
        if (!bytes) raiseZipError(*zip_get_error(zip), name);
        zip_int64_t place = zip_name_locate(zip, name.c_str(), 0);
        const bool isReplaced = place >= 0;
        if (!isReplaced) place = zip_file_add(zip, name.c_str(), bytes, ZIP_FL_ENC_UTF_8);
        const auto index = static_cast<zip_uint64_t>(place);
        if (isReplaced ? !replace(index, bytes, comment) : place < 0) {
            zip_source_free(bytes);
            failPut(name);
        }
        if (!isReplaced) living.push_back(index);
        if (isReplaced) replaced.insert(index);
        changed = true;
        if ((!isReplaced && !setComment(index, comment)) ||
            zip_set_file_compression(zip, index, methodFor(index),
                                     static_cast<zip_uint32_t>(compressionLevel)) != 0 ||
            zip_file_set_external_attributes(zip, index, 0, ZIP_OPSYS_UNIX, 0100644U << 16U) != 0)
            failPut(name);
        // The old entry's additional fields (dates, mostly) would contradict the new one.
        if (isReplaced)
            zip_file_extra_field_delete(zip, index, ZIP_EXTRA_FIELD_ALL, ZIP_FL_CENTRAL | ZIP_FL_LOCAL);
    }

    // While an entry has other changes, libzip 1.7 frees the comment that the entry was read with when it
    // is given another one, and frees it again on closing. So the entry goes back to what was read, for
    // one that is replaced twice, and the comment comes before all else.
    [[nodiscard]] bool replace(zip_uint64_t index, zip_source_t* bytes, std::string_view comment) const {
        return (index >= originalCount || zip_unchange(zip, index) == 0) && setComment(index, comment) &&
               zip_file_replace(zip, index, bytes, 0) == 0;
    }

    // libzip 1.7 forgets the level, and takes the slowest one, when an entry is given the method that it was
    // read with; the default method is deflate too.
    [[nodiscard]] zip_int32_t methodFor(zip_uint64_t index) const {
        zip_stat_t status;
        zip_stat_init(&status);
        const bool wasDeflated = index < originalCount &&
                                 zip_stat_index(zip, index, ZIP_FL_UNCHANGED, &status) == 0 &&
                                 status.comp_method == ZIP_CM_DEFLATE;
        return wasDeflated ? ZIP_CM_DEFAULT : ZIP_CM_DEFLATE;
    }

    [[nodiscard]] bool setComment(zip_uint64_t index, std::string_view comment) const {
        return comment.size() <= maxCommentBytes &&
               zip_file_set_comment(zip, index, comment.data(), static_cast<zip_uint16_t>(comment.size()),
                                    0) == 0;
    }

    [[noreturn]] void failPut(const std::string& name) {
        zip_error_t& error = *zip_get_error(zip);
        if (zip_error_code_zip(&error) == ZIP_ER_INVAL) core::raise(core::errors::badFileName, name);
        raiseZipError(error, name);
    }

    // What libzip takes for a damaged archive may be a disk that cannot be read.
    template <typename Reading>
    auto reading(const Reading& routine) const {
        try {
            return routine();
        } catch (const core::RunTimeError&) {
            if (source.failure() != 0) raiseSystemError(source.failure(), file.string());
            throw;
        }
    }

    // Before the archive is written, which ends libzip's knowledge of it.
    [[nodiscard]] std::set<std::string> staying() const {
        std::set<std::string> names;
        for (const zip_uint64_t index : living)
            if (index < originalCount && !replaced.contains(index))
                if (const char* name = zip_get_name(zip, index, 0)) names.insert(name);
        return names;
    }

    FileState writeTo(const fs::path& target, const BeforeReplacing& beforeReplacing) {
        AtomicFile result(target, isNew ? like : file);
        std::set<std::string> same;
        if (beforeReplacing && target == file) same = staying();
        if (living.empty()) {
            int length = 0;
            const char* comment = zip_get_archive_comment(zip, &length, ZIP_FL_ENC_RAW);
            writeEmptyArchive(result.fd(),
                              comment ? std::string(comment, static_cast<std::size_t>(length)) : "",
                              target.string());
        } else if (!changed) {
            copyFile(source.descriptor(), result.fd(), source.size(), target.string());
        } else {
            source.writeInto(result.fd());
            if (zip_close(zip) != 0) raiseZipError(*zip_get_error(zip), target.string());
            zip = nullptr;
        }
        if (beforeReplacing) beforeReplacing(same);
        folderError = result.commit();
        return FileState::of(result.fd());
    }

    fs::path file;
    fs::path like;        // of a new archive
    ArchiveSource source; // outlives zip, which the destructor gives up first
    zip_t* zip = nullptr;
    std::vector<zip_uint64_t> living; // the entries that are not deleted, in order
    std::set<zip_uint64_t> replaced;
    zip_uint64_t originalCount = 0;
    bool isNew = false;
    bool changed = false;
    int folderError = 0;
};

Zip::Zip() = default;
Zip::~Zip() = default;

void Zip::SetBaseFolder(const fs::path& folder) {
    baseFolder = folder;
}

void Zip::OpenArchive(const fs::path& file) {
    archive.reset();
    FileHandle handle = openRegularFile(file);
    // libzip takes a file without a byte for an archive without entries.
    const off_t size = ::lseek(handle.get(), 0, SEEK_END);
    if (size < 0) raiseSystemError(errno, file.string());
    if (size == 0) raiseDamaged(core::fill(core::tr("%1 is empty"), {file.string()}));
    archive = std::make_unique<Archive>(file, std::move(handle), 0);
}

void Zip::CreateArchive(const fs::path& file, std::string_view comment, const fs::path& like) {
    archive.reset();
    auto fresh = std::make_unique<Archive>(file, FileHandle(), ZIP_CREATE | ZIP_TRUNCATE);
    const auto length = static_cast<zip_uint16_t>(comment.size());
    if (comment.size() > maxCommentBytes || zip_set_archive_comment(fresh->zip, comment.data(), length) != 0)
        core::raise(core::errors::badFileFormat, core::fill(core::tr("%1: bad comment"), {file.string()}));
    fresh->isNew = true;
    fresh->like = like;
    archive = std::move(fresh);
}

FileState Zip::state() const {
    return FileState::of(open().source.descriptor());
}

FileState Zip::write(Archive& closing, const fs::path& target, const BeforeReplacing& beforeReplacing) {
    const FileState state = closing.writeTo(target, beforeReplacing);
    folderError_ = closing.folderError;
    return state;
}

FileState Zip::CloseArchive(const BeforeReplacing& beforeReplacing) {
    const std::unique_ptr<Archive> closing = takeOpen();
    if (!closing->changed && !closing->isNew) return FileState::of(closing->source.descriptor());
    std::error_code error;
    if (!closing->isNew && !fs::exists(closing->file, error))
        raiseSystemError(error ? error.value() : ENOENT, closing->file.string());
    return write(*closing, closing->file, beforeReplacing);
}

FileState Zip::CloseArchiveAs(const fs::path& target, const BeforeReplacing& beforeReplacing) {
    const std::unique_ptr<Archive> closing = takeOpen();
    return write(*closing, target, beforeReplacing);
}

void Zip::AddFile(const fs::path& file, std::string_view comment) {
    Archive& target = open();
    const std::string name = file.filename().string();
    if (!isSafeEntryName(name)) core::raise(core::errors::badFileName, file.string());
    const fs::path path = inBaseFolder(file);
    FileHandle handle = openRegularFile(path);
    struct stat status {};
    if (::fstat(handle.get(), &status) != 0) raiseSystemError(errno, path.string());
    if (static_cast<std::uint64_t>(status.st_size) > maxFileBytes)
        raiseDamaged(core::fill(core::tr("%1 is too large"), {path.string()}));
    std::FILE* stream = ::fdopen(handle.get(), "rb");
    if (!stream) raiseSystemError(errno, path.string());
    handle.release();
    zip_source_t* bytes = zip_source_filep(target.zip, stream, 0, -1);
    if (!bytes) std::fclose(stream);
    target.put(name, bytes, comment);
}

void Zip::addBuffer(const std::string& name, std::string_view bytes, std::string_view comment) {
    if (!isSafeEntryName(name)) core::raise(core::errors::badFileName, name);
    if (open().hasUnchanged(name, bytes, comment)) return;
    putBytes(name, bytes, comment);
}

void Zip::putBytes(const std::string& name, std::string_view bytes, std::string_view comment) {
    Archive& target = open();
    // Larger than the counters of the packing take, or so small that packing needs no help.
    if (bytes.size() >= smallestDeflated && bytes.size() <= maxFileBytes) {
        target.put(name, makeDeflatedSource(target.zip, bytes, largeTextLevel), comment);
        return;
    }
    void* copy = bytes.empty() ? nullptr : std::malloc(bytes.size()); // libzip frees it
    if (!copy && !bytes.empty()) throw std::bad_alloc();
    if (copy) std::memcpy(copy, bytes.data(), bytes.size());
    zip_source_t* source = zip_source_buffer(target.zip, copy, bytes.size(), copy ? 1 : 0);
    if (!source) std::free(copy);
    target.put(name, source, comment);
}

void Zip::addPart(const std::string& name, std::string_view bytes, bool bUnpacked) {
    putBytes(name, bytes, {});
    Archive& target = open();
    const zip_int64_t place = zip_name_locate(target.zip, name.c_str(), 0);
    if (bUnpacked && (place < 0 || zip_set_file_compression(target.zip, static_cast<zip_uint64_t>(place),
                                                            ZIP_CM_STORE, 0) != 0))
        target.failPut(name);
}

void Zip::addPart(const std::string& name, PackedPart part) {
    open().put(name, makeDeflatedSource(open().zip, std::move(part)), {});
}

void Zip::DeleteFile(const std::string& name) {
    Archive& target = open();
    const zip_int64_t place = zip_name_locate(target.zip, name.c_str(), 0);
    if (place < 0) return;
    const auto index = static_cast<zip_uint64_t>(place);
    if (zip_delete(target.zip, index) != 0) raiseZipError(*zip_get_error(target.zip), name);
    target.living.erase(std::ranges::lower_bound(target.living, index)); // they stand in order
    target.changed = true;
}

void Zip::ExtractFile(const std::string& name) {
    Archive& from = open();
    if (!isSafeEntryName(name)) return;
    const zip_int64_t place = zip_name_locate(from.zip, name.c_str(), 0);
    if (place < 0) return;
    const fs::path file = baseFolder / name;
    // Made anew, so that a link that lies there is not followed.
    if (::unlink(file.c_str()) != 0 && errno != ENOENT) raiseSystemError(errno, file.string());
    const FileHandle handle(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!handle.isOpen()) raiseSystemError(errno, file.string());
    try {
        from.reading([&] {
            EntryReader entry(from.zip, static_cast<zip_uint64_t>(place), from.source.size(), maxFileBytes);
            unpackInto(handle.get(), entry, file);
        });
    } catch (...) {
        ::unlink(file.c_str());
        throw;
    }
}

int Zip::FileCount() const {
    return static_cast<int>(open().living.size());
}

std::string Zip::FileNameAt(int index) const {
    const char* name = zip_get_name(open().zip, entryAt(index), 0);
    return name ? name : "";
}

std::string Zip::commentAt(int index) const {
    zip_uint32_t length = 0;
    const char* comment = zip_file_get_comment(open().zip, entryAt(index), &length, 0);
    return comment ? std::string(comment, length) : "";
}

std::uint64_t Zip::sizeAt(int index) const {
    zip_stat_t status;
    zip_stat_init(&status);
    if (zip_stat_index(open().zip, entryAt(index), 0, &status) != 0) return 0;
    return status.size;
}

std::uint32_t Zip::checksumOf(const std::string& name) const {
    zip_stat_t status;
    zip_stat_init(&status);
    return zip_stat(open().zip, name.c_str(), 0, &status) == 0 ? status.crc : 0;
}

std::string Zip::commentOf(const std::string& name) const {
    const zip_int64_t place = zip_name_locate(open().zip, name.c_str(), 0);
    if (place < 0) return {};
    zip_uint32_t length = 0;
    const char* comment = zip_file_get_comment(open().zip, static_cast<zip_uint64_t>(place), &length, 0);
    return comment ? std::string(comment, length) : "";
}

bool Zip::contains(const std::string& name) const {
    return zip_name_locate(open().zip, name.c_str(), 0) >= 0;
}

std::optional<Zip::Unpacking> Zip::openEntry(const std::string& name, std::uint64_t maxBytes) const {
    Archive& from = open();
    const zip_int64_t place = zip_name_locate(from.zip, name.c_str(), 0);
    if (place < 0) return std::nullopt;
    return from.reading([&] {
        const auto entry = std::make_shared<EntryReader>(from.zip, static_cast<zip_uint64_t>(place),
                                                         from.source.size(), maxBytes);
        return std::optional(Unpacking{entry->size(), [&from, entry](char* bytes, std::size_t most) {
                                           return from.reading([&] { return entry->read(bytes, most); });
                                       }});
    });
}

std::optional<std::string> Zip::readEntry(const std::string& name, std::uint64_t maxBytes) const {
    const std::optional<Unpacking> entry = openEntry(name, maxBytes);
    if (!entry) return std::nullopt;
    std::string bytes(entry->size, '\0');
    std::size_t filled = 0;
    while (filled < bytes.size())
        filled += entry->read(bytes.data() + filled, std::min(chunkBytes, bytes.size() - filled));
    char beyond = 0;
    entry->read(&beyond, 1); // asks for the end, where the checksum is compared
    return bytes;
}

Zip::Archive& Zip::open() const {
    if (!archive) core::raise(core::errors::badFileName, core::tr("no archive is open"));
    return *archive;
}

std::unique_ptr<Zip::Archive> Zip::takeOpen() {
    (void)open();
    return std::move(archive);
}

std::uint64_t Zip::entryAt(int index) const {
    const auto& living = open().living;
    if (index < 0 || static_cast<std::size_t>(index) >= living.size())
        core::raise(core::errors::subscriptOutOfRange, core::tr("archive entry"));
    return living[static_cast<std::size_t>(index)];
}

fs::path Zip::inBaseFolder(const fs::path& name) const {
    return name.is_absolute() ? name : baseFolder / name;
}

} // namespace file
