#include "exchange/imageSize.h"

#include "file/fileHandle.h"

#include <array>
#include <string_view>
#include <unistd.h>

namespace exchange {

namespace {

// The bytes of a file at a place; short at its end.
class Bytes {
public:
    explicit Bytes(int file) : file_(file) {}

    bool readAt(std::uint64_t place) {
        const ssize_t count = ::pread(file_, bytes_.data(), bytes_.size(), static_cast<off_t>(place));
        return count == static_cast<ssize_t>(bytes_.size());
    }
    bool has(std::size_t at, std::string_view bytes) const {
        return std::string_view(bytes_.data(), bytes_.size()).substr(at, bytes.size()) == bytes;
    }
    std::size_t high(std::size_t at, std::size_t count) const { // the highest byte first
        std::size_t value = 0;
        for (std::size_t i = 0; i < count; ++i) value = value << 8U | byte(at + i);
        return value;
    }
    std::size_t low(std::size_t at, std::size_t count) const {
        std::size_t value = 0;
        for (std::size_t i = count; i > 0; --i) value = value << 8U | byte(at + i - 1);
        return value;
    }

private:
    unsigned char byte(std::size_t at) const { return static_cast<unsigned char>(bytes_.at(at)); }

    int file_;
    std::array<char, 26> bytes_{};
};

// The frame stands behind segments of any length.
std::optional<ImageSize> jpegSize(Bytes& bytes) {
    constexpr int mostSegments = 1'000;
    std::uint64_t place = 2;
    for (int i = 0; i < mostSegments; ++i) {
        if (!bytes.readAt(place) || bytes.low(0, 1) != 0xFF) return std::nullopt;
        const std::size_t kind = bytes.low(1, 1);
        const bool bFrame = kind >= 0xC0 && kind <= 0xCF && kind != 0xC4 && kind != 0xC8 && kind != 0xCC;
        if (bFrame) return ImageSize{bytes.high(7, 2), bytes.high(5, 2)};
        place += 2 + bytes.high(2, 2);
    }
    return std::nullopt;
}

} // namespace

std::optional<ImageSize> imageSize(const std::filesystem::path& file) {
    std::optional<ImageSize> size;
    const file::FileHandle handle = file::openRegularFile(file);
    Bytes bytes(handle.get());
    if (!bytes.readAt(0)) return std::nullopt;
    if (bytes.has(0, "\x89PNG\r\n\x1A\n"))
        size = {bytes.high(16, 4), bytes.high(20, 4)};
    else if (bytes.has(0, "GIF8"))
        size = {bytes.low(6, 2), bytes.low(8, 2)};
    else if (bytes.has(0, "BM"))
        size = {bytes.low(18, 4), bytes.low(22, 4)};
    else if (bytes.has(0, "\xFF\xD8"))
        size = jpegSize(bytes);
    constexpr std::size_t most = 65'535;
    const bool bSound =
        size && size->width > 0 && size->height > 0 && size->width <= most && size->height <= most;
    return bSound ? size : std::nullopt;
}

} // namespace exchange
