#include "file/deflatedSource.h"

#include "core/runTimeError.h"

#include <algorithm>
#include <cstring>
#include <future>
#include <libdeflate.h>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <thread>
#include <vector>
#include <zlib.h>

namespace file {

namespace {

constexpr std::size_t smallestPiece = std::size_t{256} * 1024;

struct Piece {
    std::string packed;
    std::size_t length = 0; // unpacked
    uLong checksum = 0;
    bool ok = false;
};

// Where the final block of a stream begins and where it ends, counted in bits.
struct FinalBlock {
    std::size_t begin = 0, end = 0;
};

// Blocks say how they are packed, but not how long they are; only unpacking finds the next one.
class BlockFinder {
public:
    explicit BlockFinder(std::string& packed) : packed_(packed) {
        constexpr int rawStream = -15;
        isOpen_ = inflateInit2(&stream_, rawStream) == Z_OK;
        stream_.next_in = reinterpret_cast<Bytef*>(packed.data());
        stream_.avail_in = static_cast<uInt>(packed.size());
    }
    ~BlockFinder() {
        if (isOpen_) inflateEnd(&stream_);
    }
    BlockFinder(const BlockFinder&) = delete;
    BlockFinder& operator=(const BlockFinder&) = delete;

    std::optional<FinalBlock> find() {
        FinalBlock block;
        while (isOpen_ && block.begin / 8 < packed_.size()) {
            const bool isFinal =
                ((static_cast<unsigned char>(packed_[block.begin / 8]) >> block.begin % 8) & 1U) != 0;
            if (!passBlock()) return std::nullopt;
            block.end = stream_.total_in * 8 - static_cast<unsigned>(stream_.data_type & unusedBits);
            if (isFinal) return block;
            block.begin = block.end;
        }
        return std::nullopt;
    }

private:
    static constexpr int unusedBits = 7; // of the last byte taken
    static constexpr int atBlockEnd = 128;

    bool passBlock() {
        do {
            stream_.next_out = unpacked_.data();
            stream_.avail_out = static_cast<uInt>(unpacked_.size());
            if (inflate(&stream_, Z_BLOCK) != Z_OK) return false;
        } while ((stream_.data_type & atBlockEnd) == 0);
        return true;
    }

    std::string& packed_;
    z_stream stream_{};
    std::vector<Bytef> unpacked_ = std::vector<Bytef>(smallestPiece);
    bool isOpen_ = false;
};

// Makes the stream one that goes on with the next byte: its final block becomes one among others, and an
// empty stored block, which begins anywhere and ends with a byte, fills up what is left of the last byte.
bool leaveOpen(std::string& packed) {
    const std::optional<FinalBlock> block = BlockFinder(packed).find();
    if (!block) return false;
    char& header = packed[block->begin / 8];
    header = static_cast<char>(static_cast<unsigned char>(header) & ~(1U << block->begin % 8));
    packed.resize((block->end + 7) / 8);
    if (const auto used = block->end % 8; used != 0)
        packed.back() = static_cast<char>(static_cast<unsigned char>(packed.back()) & ((1U << used) - 1));
    constexpr std::size_t headerBits = 3; // all zero
    packed.resize((block->end + headerBits + 7) / 8, '\0');
    packed.append("\0\0\xff\xff", 4);
    return true;
}

Piece pack(std::string_view bytes, int level, bool isLast) {
    Piece piece;
    piece.length = bytes.size();
    piece.checksum = checksum(bytes);
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(level), &libdeflate_free_compressor);
    if (!compressor) throw std::bad_alloc();
    const std::size_t most = libdeflate_deflate_compress_bound(compressor.get(), bytes.size());
    // Not a string, which would fill all of it with zeros first.
    const auto room = std::make_unique_for_overwrite<char[]>(most);
    const std::size_t size =
        libdeflate_deflate_compress(compressor.get(), bytes.data(), bytes.size(), room.get(), most);
    piece.packed.assign(room.get(), size);
    piece.ok = size > 0 && (isLast || leaveOpen(piece.packed));
    return piece;
}

// Where each piece ends. All but the last are gone through once more, so that the last is given more.
std::vector<std::size_t> pieceEnds(std::size_t size, std::size_t pieces) {
    constexpr double lastShare = 1.6;
    std::vector<std::size_t> ends;
    for (std::size_t i = 1; i < pieces; ++i)
        ends.push_back(static_cast<std::size_t>(static_cast<double>(size * i) /
                                                (static_cast<double>(pieces - 1) + lastShare)));
    ends.push_back(size);
    return ends;
}

std::vector<Piece> packPieces(std::string_view bytes, int level) {
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t pieces = std::clamp<std::size_t>(bytes.size() / smallestPiece, 1, cores);
    const std::vector<std::size_t> ends = pieceEnds(bytes.size(), pieces);
    std::vector<std::future<Piece>> others;
    for (std::size_t i = 1; i < pieces; ++i)
        // Where the system has no thread left, the piece is packed when it is asked for.
        others.push_back(std::async(std::launch::async | std::launch::deferred, pack,
                                    bytes.substr(ends[i - 1], ends[i] - ends[i - 1]), level,
                                    i + 1 == pieces));
    std::vector<Piece> packed;
    packed.push_back(pack(bytes.substr(0, ends[0]), level, pieces == 1));
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
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

zip_source_t* makeDeflatedSource(zip_t* archive, std::string_view bytes, int level) {
    auto source = std::make_unique<DeflatedSource>(bytes, level);
    zip_source_t* made = zip_source_function(archive, &DeflatedSource::respond, source.get());
    if (made != nullptr) static_cast<void>(source.release());
    return made;
}

} // namespace file
