#include "codes/gif.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace codes {

namespace {

constexpr int startBits = 2; // the format has no smaller one, though a pixel is one bit
constexpr int clearCode = 1 << startBits, endCode = clearCode + 1, firstCode = clearCode + 2;
constexpr int mostCodes = 4096;

// Codes of growing width behind one another, the lowest bit first.
class BitWriter {
public:
    void put(int code, int width) {
        pending_ |= static_cast<std::uint32_t>(code) << count_;
        for (count_ += width; count_ >= 8; count_ -= 8, pending_ >>= 8U)
            bytes_.push_back(static_cast<char>(pending_ & 0xFFU));
    }
    std::string takeBytes() {
        if (count_ > 0) bytes_.push_back(static_cast<char>(pending_ & 0xFFU));
        return std::move(bytes_);
    }

private:
    std::string bytes_;
    std::uint32_t pending_ = 0;
    int count_ = 0;
};

// The LZW of the format. What is read next is one of two pixels, so the dictionary is a tree with two
// branches.
class PixelPacker {
public:
    std::string pack(std::string_view pixels) {
        begin();
        int prefix = valueOf(pixels.front());
        for (const char pixel : pixels.substr(1)) {
            const int value = valueOf(pixel);
            int& longer = branch(prefix, value);
            if (longer != 0) {
                prefix = longer;
                continue;
            }
            out_.put(prefix, width_);
            if (next_ == mostCodes)
                begin();
            else
                grow(longer);
            prefix = value;
        }
        out_.put(prefix, width_);
        if (next_ == 1 << width_ && next_ < mostCodes) ++width_; // as who reads it counts
        out_.put(endCode, width_);
        return out_.takeBytes();
    }

private:
    static int valueOf(char pixel) { return pixel == '1' ? 1 : 0; }
    int& branch(int prefix, int value) {
        return branches_[static_cast<std::size_t>(prefix)][static_cast<std::size_t>(value)];
    }
    void begin() {
        out_.put(clearCode, width_);
        width_ = startBits + 1;
        next_ = firstCode;
        branches_.assign(mostCodes, {});
    }
    void grow(int& longer) {
        if (next_ == 1 << width_) ++width_;
        longer = next_++;
    }

    BitWriter out_;
    int width_ = startBits + 1;
    int next_ = firstCode;
    std::vector<std::array<int, 2>> branches_;
};

void putNumber(std::string& out, int number) {
    out.push_back(static_cast<char>(number & 0xFF));
    out.push_back(static_cast<char>((number >> 8) & 0xFF));
}

void putBlocks(std::string& out, std::string_view bytes) {
    constexpr std::size_t most = 255;
    for (std::size_t from = 0; from < bytes.size(); from += most) {
        const std::string_view block = bytes.substr(from, most);
        out.push_back(static_cast<char>(block.size()));
        out.append(block);
    }
    out.push_back('\0');
}

} // namespace

std::string blackAndWhiteGif(std::string_view pixels, int width, int height) {
    std::string out = "GIF87a";
    putNumber(out, width);
    putNumber(out, height);
    out.append("\x80\0\0", 3);                 // a table of two colours: white and black
    out.append("\xFF\xFF\xFF\x00\x00\x00", 6); // NOLINT(bugprone-string-literal-with-embedded-nul)
    out.append(",\0\0\0\0", 5);
    putNumber(out, width);
    putNumber(out, height);
    out.push_back('\0');
    out.push_back(static_cast<char>(startBits));
    if (!pixels.empty()) putBlocks(out, PixelPacker().pack(pixels));
    out.push_back(';');
    return out;
}

} // namespace codes
