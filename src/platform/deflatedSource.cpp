#include "platform/deflatedSource.h"

#include "core/runTimeError.h"

#include <algorithm>
#include <cstring>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>
#include <zlib.h>

namespace platform {

namespace {

constexpr std::size_t smallestPiece = 256 * 1024;
constexpr std::size_t window = 32 * 1024; // how far back the format can refer

struct Piece {
    std::string packed;
    std::size_t length = 0; // unpacked
    uLong checksum = 0;
    bool ok = false;
};

Piece pack(std::string_view all, std::size_t begin, std::size_t end, int level) {
    Piece piece;
    const std::string_view bytes = all.substr(begin, end - begin);
    piece.length = bytes.size();
    const auto* first = reinterpret_cast<const Bytef*>(bytes.data());
    piece.checksum = crc32(0, first, static_cast<uInt>(bytes.size()));
    z_stream stream{};
    constexpr int rawStream = -15;
    constexpr int memoryLevel = 8;
    if (deflateInit2(&stream, level, Z_DEFLATED, rawStream, memoryLevel, Z_DEFAULT_STRATEGY) != Z_OK)
        return piece;
    const std::size_t known = std::min(begin, window);
    if (known > 0)
        deflateSetDictionary(&stream, reinterpret_cast<const Bytef*>(all.data()) + begin - known,
                             static_cast<uInt>(known));
    constexpr std::size_t roomForMarks = 64;
    piece.packed.resize(deflateBound(&stream, static_cast<uLong>(bytes.size())) + roomForMarks);
    stream.next_in = const_cast<Bytef*>(first);
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(piece.packed.data());
    stream.avail_out = static_cast<uInt>(piece.packed.size());
    const bool isLast = end == all.size();
    const int result = deflate(&stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
    piece.ok = result == (isLast ? Z_STREAM_END : Z_OK) && stream.avail_in == 0;
    piece.packed.resize(piece.packed.size() - stream.avail_out);
    deflateEnd(&stream);
    return piece;
}

std::vector<Piece> packPieces(std::string_view bytes, int level) {
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t pieces = std::clamp<std::size_t>(bytes.size() / smallestPiece, 1, cores);
    const auto place = [&](std::size_t piece) { return bytes.size() / pieces * piece; };
    std::vector<std::future<Piece>> others;
    for (std::size_t i = 1; i < pieces; ++i) {
        const std::size_t end = i + 1 == pieces ? bytes.size() : place(i + 1);
        others.push_back(std::async(std::launch::async, pack, bytes, place(i), end, level));
    }
    std::vector<Piece> packed;
    packed.push_back(pack(bytes, 0, pieces == 1 ? bytes.size() : place(1), level));
    for (std::future<Piece>& other : others) packed.push_back(other.get());
    return packed;
}

class DeflatedSource {
public:
    DeflatedSource(std::string_view bytes, int level) : size_(bytes.size()) {
        zip_error_init(&error_);
        uLong sum = crc32(0, nullptr, 0);
        for (const Piece& piece : packPieces(bytes, level)) {
            if (!piece.ok) core::raise(core::errors::deviceIO, "packing");
            sum = crc32_combine(sum, piece.checksum, static_cast<z_off_t>(piece.length));
            packed_ += piece.packed;
        }
        checksum_ = static_cast<zip_uint32_t>(sum);
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
            const std::uint64_t count = std::min<std::uint64_t>(length, packed_.size() - place_);
            std::memcpy(data, packed_.data() + place_, count);
            place_ += count;
            return static_cast<zip_int64_t>(count);
        }
        case ZIP_SOURCE_SEEK: {
            const zip_int64_t target =
                zip_source_seek_compute_offset(place_, packed_.size(), data, length, &error_);
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
        status->comp_size = packed_.size();
        status->crc = checksum_;
        status->comp_method = ZIP_CM_DEFLATE;
        status->valid |= ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_CRC | ZIP_STAT_COMP_METHOD;
        return sizeof(zip_stat_t);
    }

    std::string packed_;
    std::uint64_t size_;
    std::uint64_t place_ = 0;
    zip_uint32_t checksum_ = 0;
    zip_error_t error_{};
};

} // namespace

std::uint32_t checksum(std::string_view bytes) {
    return static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
}

zip_source_t* makeDeflatedSource(zip_t* archive, std::string_view bytes, int level) {
    auto source = std::make_unique<DeflatedSource>(bytes, level);
    zip_source_t* made = zip_source_function(archive, &DeflatedSource::respond, source.get());
    if (made != nullptr) static_cast<void>(source.release());
    return made;
}

} // namespace platform
