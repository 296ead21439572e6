#include "core/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace core {

namespace {

constexpr char32_t highestAscii = 0x7F;
constexpr char32_t behindUnicode = 0x110000;

std::size_t sequenceLength(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 1;
}

std::size_t characterLength(std::string_view text, std::size_t offset) {
    const std::size_t size = sequenceLength(static_cast<unsigned char>(text[offset]));
    if (size == 1 || offset + size > text.size()) return 1;
    for (std::size_t i = 1; i < size; ++i)
        if ((static_cast<unsigned char>(text[offset + i]) & 0xC0) != 0x80) return 1;
    return size;
}

std::size_t offsetOfCharacter(std::string_view text, std::size_t characters) {
    std::size_t offset = 0;
    while (characters > 0 && offset < text.size()) {
        offset += characterLength(text, offset);
        --characters;
    }
    return offset;
}

char upperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isWithin(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

char32_t upperLatin(char32_t c) {
    if (isWithin(c, 0xE0, 0xFE) && c != 0xF7) return c - 0x20;
    if (c == 0xFF) return 0x178;
    if (c == 0x131 || c == 0x138 || c == 0x149) return c;
    const bool oddIsLower = isWithin(c, 0x100, 0x137) || isWithin(c, 0x14A, 0x177);
    if (oddIsLower) return c & ~char32_t{1};
    const bool evenIsLower = isWithin(c, 0x139, 0x148) || isWithin(c, 0x179, 0x17E);
    if (evenIsLower && c % 2 == 0) return c - 1;
    return c;
}

char32_t upperGreek(char32_t c) {
    switch (c) {
    case 0x3AC:
        return 0x386;
    case 0x3AD:
    case 0x3AE:
    case 0x3AF:
        return c - 0x25;
    case 0x3C2:
        return 0x3A3; // the sigma at a word's end
    case 0x3CC:
        return 0x38C;
    case 0x3CD:
    case 0x3CE:
        return c - 0x3F;
    default:
        return isWithin(c, 0x3B1, 0x3CB) ? c - 0x20 : c;
    }
}

char32_t upperCyrillic(char32_t c) {
    if (isWithin(c, 0x430, 0x44F)) return c - 0x20;
    if (isWithin(c, 0x450, 0x45F)) return c - 0x50;
    const bool oddIsLower =
        isWithin(c, 0x460, 0x481) || isWithin(c, 0x48A, 0x4BF) || isWithin(c, 0x4D0, 0x52F);
    if (oddIsLower) return c & ~char32_t{1};
    if (c == 0x4CF) return 0x4C0;
    return isWithin(c, 0x4C1, 0x4CE) && c % 2 == 0 ? c - 1 : c;
}

char32_t upperOf(char32_t c) {
    if (c < 0x180) return upperLatin(c);
    if (c < 0x400) return upperGreek(c);
    if (c < 0x530) return upperCyrillic(c);
    return c;
}

// The upper-cased character at an offset, as a number that orders like its bytes.
char32_t nextUpper(std::string_view text, std::size_t& offset) {
    const auto lead = static_cast<unsigned char>(text[offset]);
    if (lead <= highestAscii) return static_cast<unsigned char>(upperAscii(text[offset++]));
    const std::size_t from = offset;
    const char32_t c = nextCodePoint(text, offset);
    // A stray byte is no letter: it must not pass for the letter of the same number.
    return offset - from == 1 ? behindUnicode + lead : upperOf(c);
}

} // namespace

std::size_t asciiLength(std::string_view text) {
    std::size_t at = 0;
    for (std::uint64_t eight = 0; at + sizeof eight <= text.size(); at += sizeof eight) {
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if ((eight & 0x8080808080808080U) != 0) break;
    }
    while (at < text.size() && static_cast<unsigned char>(text[at]) <= highestAscii) ++at;
    return at;
}

std::string_view ltrim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? text.substr(text.size()) : text.substr(first);
}

std::string_view rtrim(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view trim(std::string_view text) {
    return ltrim(rtrim(text));
}

char32_t nextCodePoint(std::string_view text, std::size_t& offset) {
    const std::size_t size = characterLength(text, offset);
    const auto lead = static_cast<unsigned char>(text[offset]);
    char32_t codePoint = lead;
    if (size > 1) {
        codePoint = lead & (0xFFU >> (size + 1));
        for (std::size_t i = 1; i < size; ++i)
            codePoint = codePoint << 6 | (static_cast<unsigned char>(text[offset + i]) & 0x3FU);
    }
    offset += size;
    return codePoint;
}

void appendCodePoint(std::string& out, char32_t c) {
    const auto put = [&](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (c <= highestAscii) {
        put(c);
    } else if (c <= 0x7FF) {
        put(0xC0 | c >> 6);
        put(0x80 | (c & 0x3F));
    } else if (c <= 0xFFFF) {
        put(0xE0 | c >> 12);
        put(0x80 | (c >> 6 & 0x3F));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xF0 | c >> 18);
        put(0x80 | (c >> 12 & 0x3F));
        put(0x80 | (c >> 6 & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

void appendUpper(std::string& out, std::string_view text) {
    const std::size_t from = out.size();
    const std::size_t ascii = from + asciiLength(text);
    out.append(text);
    for (std::size_t offset = from; offset < ascii; ++offset) out[offset] = upperAscii(out[offset]);
    // All letters with an upper case have two bytes, and so has that.
    for (std::size_t offset = ascii; offset < out.size();) {
        const std::size_t start = offset;
        const char32_t letter = nextUpper(out, offset);
        if (offset - start == 2) {
            out[start] = static_cast<char>(0xC0 | letter >> 6);
            out[start + 1] = static_cast<char>(0x80 | (letter & 0x3F));
        } else if (letter <= highestAscii) {
            out[start] = static_cast<char>(letter);
        }
    }
}

void upperInto(std::string& out, std::string_view text) {
    out.clear();
    appendUpper(out, text);
}

std::string upper(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    appendUpper(out, text);
    return out;
}

int compareNoCase(std::string_view a, std::string_view b) {
    std::size_t atA = 0;
    std::size_t atB = 0;
    while (atA < a.size() && atB < b.size()) {
        const char32_t inA = nextUpper(a, atA);
        const char32_t inB = nextUpper(b, atB);
        if (inA != inB) return inA < inB ? -1 : 1;
    }
    if (atA < a.size()) return 1;
    return atB < b.size() ? -1 : 0;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && compareNoCase(a, b) == 0;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, from)) {
        pieces.push_back(text.substr(from, at - from));
        from = at + 1;
    }
    pieces.push_back(text.substr(from));
    return pieces;
}

std::size_t length(std::string_view text) {
    const std::size_t ascii = asciiLength(text);
    std::size_t characters = ascii;
    for (std::size_t offset = ascii; offset < text.size(); offset += characterLength(text, offset))
        ++characters;
    return characters;
}

std::string_view left(std::string_view text, std::size_t characters) {
    return text.substr(0, offsetOfCharacter(text, characters));
}

std::string_view right(std::string_view text, std::size_t characters) {
    const std::size_t all = length(text);
    return all <= characters ? text : text.substr(offsetOfCharacter(text, all - characters));
}

std::string_view mid(std::string_view text, std::size_t start, std::size_t characters) {
    if (start == 0) return {};
    return left(text.substr(offsetOfCharacter(text, start - 1)), characters);
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string out;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, from)) {
        out.append(text.substr(from, at - from)).append(with);
        from = at + what.size();
    }
    return out.append(text.substr(from));
}

} // namespace core
