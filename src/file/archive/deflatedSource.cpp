#include "file/archive/deflatedSource.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <algorithm>
#include <cstring>
#include <libdeflate.h>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace file {

namespace {

std::string pack(std::string_view bytes, int level) {
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), &libdeflate_free_compressor);
    if (!compressor) throw std::bad_alloc();
    const std::size_t most = libdeflate_deflate_compress_bound(compressor.get(), bytes.size());
    // Not a string, which would fill all of it with zeros first.
    const auto room = std::make_unique_for_overwrite<char[]>(most);
    const std::size_t size =
        libdeflate_deflate_compress(compressor.get(), bytes.data(), bytes.size(), room.get(), most);
    if (size == 0) core::raise(core::errors::deviceIO, core::tr("packing"));
    return {room.get(), size};
}

class DeflatedSource {
public:
    // Each piece but the last has so many bytes.
    DeflatedSource(std::vector<std::string> pieces, std::size_t pieceBytes, std::uint64_t size,
                   std::uint32_t checksum)
        : pieces_(std::move(pieces)), pieceBytes_(pieceBytes), size_(size), checksum_(checksum) {
        for (const std::string& piece : pieces_) packedBytes_ += piece.size();
        zip_error_init(&error_);
    }
    ~DeflatedSource() { zip_error_fini(&error_); }
    DeflatedSource(const DeflatedSource&) = delete;
    DeflatedSource& operator=(const DeflatedSource&) = delete;

    static zip_int64_t respond(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
        auto* source = static_cast<DeflatedSource*>(self);
        if (command == ZIP_SOURCE_FREE) {
            delete source;
            return 0;
        }
        return source->respond(data, length, command);
    }

private:
    zip_int64_t respond(void* data, zip_uint64_t length, zip_source_cmd_t command) {
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                                  ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE,
                                                  ZIP_SOURCE_SEEK, ZIP_SOURCE_TELL, ZIP_SOURCE_SUPPORTS, -1);
        case ZIP_SOURCE_OPEN:
            place_ = 0;
            return 0;
        case ZIP_SOURCE_READ: {
            if (place_ >= packedBytes_) return 0;
            const std::string_view piece =
                std::string_view(pieces_[place_ / pieceBytes_]).substr(place_ % pieceBytes_);
            const std::uint64_t count = std::min<std::uint64_t>(length, piece.size());
            std::memcpy(data, piece.data(), count);
            place_ += count;
            return static_cast<zip_int64_t>(count);
        }
        case ZIP_SOURCE_SEEK: {
            const zip_int64_t target =
                zip_source_seek_compute_offset(place_, packedBytes_, data, length, &error_);
            if (target >= 0) place_ = static_cast<std::uint64_t>(target);
            return target < 0 ? -1 : 0;
        }
        case ZIP_SOURCE_TELL:
            return static_cast<zip_int64_t>(place_);
        case ZIP_SOURCE_STAT:
            return tellStatus(data, length);
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, length);
        case ZIP_SOURCE_CLOSE:
            return 0;
        default:
            zip_error_set(&error_, ZIP_ER_OPNOTSUPP, 0);
            return -1;
        }
    }

    zip_int64_t tellStatus(void* data, zip_uint64_t length) {
        if (length < sizeof(zip_stat_t)) {
            zip_error_set(&error_, ZIP_ER_INVAL, 0);
            return -1;
        }
        auto* status = static_cast<zip_stat_t*>(data);
        zip_stat_init(status);
        status->size = size_;
        status->comp_size = packedBytes_;
        status->crc = checksum_;
        status->comp_method = ZIP_CM_DEFLATE;
        status->valid |= ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
        return sizeof(zip_stat_t);
    }

    std::vector<std::string> pieces_;
    std::size_t pieceBytes_;
    std::uint64_t packedBytes_ = 0;
    std::uint64_t size_;
    zip_uint32_t checksum_;
    std::uint64_t place_ = 0;
    zip_error_t error_{};
};

} // namespace

std::uint32_t checksum(std::string_view bytes) {
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

namespace {

zip_source_t* sourceOf(zip_t* archive, std::unique_ptr<DeflatedSource> source) {
    zip_source_t* made = zip_source_function(archive, &DeflatedSource::respond, source.get());
    if (made != nullptr) static_cast<void>(source.release());
    return made;
}

} // namespace

zip_source_t* makeDeflatedSource(zip_t* archive, std::string_view bytes, int level) {
    std::vector<std::string> packed{pack(bytes, level)};
    const std::size_t size = packed.front().size();
    return sourceOf(archive,
                    std::make_unique<DeflatedSource>(std::move(packed), size, bytes.size(), checksum(bytes)));
}

zip_source_t* makeDeflatedSource(zip_t* archive, PackedPart part) {
    std::vector<std::string> packed = part.take();
    return sourceOf(archive, std::make_unique<DeflatedSource>(std::move(packed), PackedPart::pieceBytes,
                                                              part.size(), part.checksum()));
}

} // namespace file
