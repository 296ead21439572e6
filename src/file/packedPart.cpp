#include "file/packedPart.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>
#define ZLIB_CONST // its input is const then
#include <zlib.h>

namespace file {

// Behind a pointer, since its state points back to it.
struct PackedPart::Stream {
    Stream() {
        // Tables of a spreadsheet repeat themselves so much that a higher level gains little.
        constexpr int level = 2;
        constexpr int usualMemory = 8;
        // Without the frame of zlib, which an archive has not.
        if (deflateInit2(&state, level, Z_DEFLATED, -MAX_WBITS, usualMemory, Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::bad_alloc();
    }
    ~Stream() { deflateEnd(&state); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    z_stream state{};
};

PackedPart::PackedPart() : stream_(std::make_unique<Stream>()) {}
PackedPart::~PackedPart() = default;
PackedPart::PackedPart(PackedPart&&) noexcept = default;
PackedPart& PackedPart::operator=(PackedPart&&) noexcept = default;

void PackedPart::append(std::string_view bytes) {
    constexpr std::size_t most = std::size_t{1} << 20U; // below what the counters of zlib take
    for (; !bytes.empty(); bytes.remove_prefix(std::min(most, bytes.size())))
        pack(bytes.substr(0, most), false);
}

std::string PackedPart::take() {
    pack({}, true);
    return std::move(packed_);
}

void PackedPart::pack(std::string_view bytes, bool bLast) {
    constexpr std::size_t roomBytes = std::size_t{64} * 1024;
    std::array<Bytef, roomBytes> room; // NOLINT(cppcoreguidelines-pro-type-member-init): it is filled
    z_stream& state = stream_->state;
    state.next_in = reinterpret_cast<const Bytef*>(bytes.data());
    state.avail_in = static_cast<uInt>(bytes.size());
    size_ += bytes.size();
    if (!bytes.empty())
        checksum_ = static_cast<std::uint32_t>(crc32(checksum_, state.next_in, state.avail_in));
    do {
        state.next_out = room.data();
        state.avail_out = roomBytes;
        deflate(&state, bLast ? Z_FINISH : Z_NO_FLUSH);
        packed_.append(reinterpret_cast<const char*>(room.data()), roomBytes - state.avail_out);
    } while (state.avail_out == 0);
}

} // namespace file
