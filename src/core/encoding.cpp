#include "core/encoding.h"

#include "core/text.h"

#include <algorithm>
#include <array>

namespace core {

namespace {

// The characters of the bytes 0x80 to 0x9F.
constexpr std::array<char32_t, 32> windowsBlock = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr char32_t replacement = 0xFFFD;

std::optional<unsigned char> windowsByte(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<unsigned char>(c);
    const auto place = std::ranges::find(windowsBlock, c);
    if (place != windowsBlock.end()) return static_cast<unsigned char>(0x80 + (place - windowsBlock.begin()));
    return std::nullopt;
}

// Takes the ASCII characters at an offset over as they are: nearly all text is made of them.
void takeAscii(std::string& out, std::string_view text, std::size_t& offset) {
    const std::string_view run = text.substr(offset, asciiLength(text.substr(offset)));
    out.append(run);
    offset += run.size();
}

bool isWellFormed(char32_t c, std::size_t size) {
    if (size == 1) return c < 0x80;
    if (size == 3) return c >= 0x800 && (c < 0xD800 || c > 0xDFFF);
    if (size == 4) return c >= 0x10000 && c <= 0x10FFFF;
    return true;
}

} // namespace

bool isAscii(std::string_view bytes) {
    return asciiLength(bytes) == bytes.size();
}

bool hasUtf8Mark(std::string_view bytes) {
    return bytes.starts_with("\xEF\xBB\xBF");
}

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    std::size_t offset = 0;
    for (takeAscii(text, bytes, offset); offset < bytes.size(); takeAscii(text, bytes, offset)) {
        const auto byte = static_cast<unsigned char>(bytes[offset++]);
        appendCodePoint(text, byte < 0xA0 ? windowsBlock[byte - 0x80U] : byte);
    }
    return text;
}

std::optional<std::string> toWindows1252(std::string_view text) {
    std::optional<std::string> bytes(text);
    if (!intoWindows1252(*bytes)) bytes.reset();
    return bytes;
}

bool intoWindows1252(std::string& text) {
    const std::string_view all = text;
    for (std::size_t at = asciiLength(all); at < all.size(); at += asciiLength(all.substr(at)))
        if (!windowsByte(nextCodePoint(all, at))) return false;
    std::size_t to = 0;
    for (std::size_t from = 0; from < all.size();) {
        const std::string_view run = all.substr(from, asciiLength(all.substr(from)));
        std::ranges::copy(run, text.data() + to); // never to the right
        from += run.size();
        to += run.size();
        if (from < all.size()) text[to++] = static_cast<char>(*windowsByte(nextCodePoint(all, from)));
    }
    text.resize(to);
    return true;
}

std::string sanitizeUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    std::size_t offset = 0;
    for (takeAscii(text, bytes, offset); offset < bytes.size(); takeAscii(text, bytes, offset)) {
        const std::size_t from = offset;
        const char32_t c = nextCodePoint(bytes, offset);
        if (isWellFormed(c, offset - from))
            text.append(bytes.substr(from, offset - from));
        else
            appendCodePoint(text, replacement);
    }
    return text;
}

} // namespace core
