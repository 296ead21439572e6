#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace file {

// A part of an archive that is packed piece by piece, so that a long text need not be in memory as a whole.
// Throws std::bad_alloc.
class PackedPart {
public:
    PackedPart();
    ~PackedPart();
    PackedPart(PackedPart&&) noexcept;
    PackedPart& operator=(PackedPart&&) noexcept;

    void append(std::string_view bytes);
    // The packed bytes, divided so that a long one is never moved as a whole: all but the last have
    // pieceBytes. Nothing can be appended then.
    static constexpr std::size_t pieceBytes = std::size_t{64} * 1024;
    [[nodiscard]] std::vector<std::string> take();
    // Of the bytes as they were appended.
    [[nodiscard]] std::uint64_t size() const { return size_; }
    [[nodiscard]] std::uint32_t checksum() const { return checksum_; }

private:
    struct Stream;
    void pack(std::string_view bytes, bool bLast);

    std::unique_ptr<Stream> stream_;
    std::vector<std::string> packed_;
    std::string room_; // the piece that is filled
    std::size_t filled_ = 0;
    std::uint64_t size_ = 0;
    std::uint32_t checksum_ = 0;
};

} // namespace file
