#include "file/archive/packedPart.h"

#include <algorithm>
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

std::vector<std::string> PackedPart::take() {
    pack({}, true);
    room_.resize(filled_);
    packed_.push_back(std::move(room_));
    return std::move(packed_);
}

void PackedPart::pack(std::string_view bytes, bool bLast) {
    z_stream& state = stream_->state;
    state.next_in = reinterpret_cast<const Bytef*>(bytes.data());
    state.avail_in = static_cast<uInt>(bytes.size());
    size_ += bytes.size();
    if (!bytes.empty())
        checksum_ = static_cast<std::uint32_t>(crc32(checksum_, state.next_in, state.avail_in));
    do {
        if (filled_ == room_.size()) {
            if (!room_.empty()) packed_.push_back(std::move(room_));
            room_.assign(pieceBytes, '\0');
            filled_ = 0;
        }
        state.next_out = reinterpret_cast<Bytef*>(room_.data()) + filled_;
        state.avail_out = static_cast<uInt>(room_.size() - filled_);
        deflate(&state, bLast ? Z_FINISH : Z_NO_FLUSH);
        filled_ = room_.size() - state.avail_out;
    } while (state.avail_out == 0);
}

} // namespace file
