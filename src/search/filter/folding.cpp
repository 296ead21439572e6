#include "search/filter/folding.h"

#include "core/text.h"

#include <array>

namespace search {

namespace {

// The letters below the accents; a point where there is none of the alphabet, or more than one.
constexpr char32_t latinFrom = 0xC0;
constexpr std::string_view latin = "AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY..AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY.Y"
                                   "AAAAAACCCCCCCCDDDDEEEEEEEEEEGGGGGGGGHHHHIIIIIIIIII..JJKKKLLLLLLL"
                                   "LLLNNNNNNNNNOOOOOO..RRRRRRSSSSSSSSTTTTTTUUUUUUUUUUUUWWYYYZZZZZZS"
                                   "B........D........F....I..L.....OO.............UU....ZZ........."
                                   ".............AAIIOOUUUUUUUUUU.AAAA..GGGGKKOOOO..J...GG..NNAA...."
                                   "AAAAEEEEIIIIOOOORRRRUUUUSSTT..HH......AAEEOOOOOOOOYY......ACCL.."
                                   "...BU.EEJJ..RRYY";
constexpr char32_t latinMoreFrom = 0x1E00;
constexpr std::string_view latinMore = "AABBBBBBCCDDDDDDDDDDEEEEEEEEEEFFGGHHHHHHHHHHIIIIKKKKKKLLLLLLLLMM"
                                       "MMMMNNNNNNNNOOOOOOOOPPPPRRRRRRRRSSSSSSSSSSTTTTTTTTUUUUUUUUUUVVVV"
                                       "WWWWWWWWWWXXXXYYZZZZZZHTWY......AAAAAAAAAAAAAAAAAAAAAAAAEEEEEEEE"
                                       "EEEEEEEEIIIIOOOOOOOOOOOOOOOOOOOOOOOOUUUUUUUUUUUUUUYYYYYYYY......";

char letterIn(std::string_view table, char32_t from, char32_t c) {
    return c >= from && c - from < table.size() ? table[c - from] : '.';
}

constexpr char upperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c < ' ' || c == 0x7F ? ' ' : c;
}

constexpr std::array<char, 128> asciiTable = [] {
    std::array<char, 128> table{};
    for (int c = 0; c < 128; ++c) table.at(static_cast<std::size_t>(c)) = upperAscii(static_cast<char>(c));
    return table;
}();

void appendAscii(std::string& out, std::string_view text) {
    const std::size_t from = out.size();
    out.resize(from + text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        out[from + i] = asciiTable[static_cast<unsigned char>(text[i])];
}

// Of what is no letter with an accent; nullptr for all else.
const char* otherForm(char32_t c) {
    switch (c) {
    case 0xA0:
    case 0x2009:
    case 0x202F:
        return " ";
    case 0xC6:
    case 0xE6:
        return "AE";
    case 0xDE:
    case 0xFE:
        return "TH";
    case 0xDF:
        return "SS";
    case 0x132:
    case 0x133:
        return "IJ";
    case 0x152:
    case 0x153:
        return "OE";
    case 0x2010:
    case 0x2011:
    case 0x2012:
    case 0x2013:
    case 0x2014:
        return "-";
    case 0x2018:
    case 0x2019:
    case 0x201A:
        return "'";
    case 0x201C:
    case 0x201D:
    case 0x201E:
        return "\"";
    default:
        return nullptr;
    }
}

// Greek letters with a tonos or dialytika, and the Cyrillic Io.
char32_t withoutMark(char32_t c) {
    switch (c) {
    case 0x386:
        return 0x391;
    case 0x388:
        return 0x395;
    case 0x389:
        return 0x397;
    case 0x38A:
    case 0x390:
    case 0x3AA:
        return 0x399;
    case 0x38C:
        return 0x39F;
    case 0x38E:
    case 0x3AB:
    case 0x3B0:
        return 0x3A5;
    case 0x38F:
        return 0x3A9;
    case 0x401:
        return 0x415;
    default:
        return c;
    }
}

void appendCharacter(std::string& out, std::string_view character, char32_t c) {
    for (const char letter : {letterIn(latin, latinFrom, c), letterIn(latinMore, latinMoreFrom, c)})
        if (letter != '.') {
            out.push_back(letter);
            return;
        }
    constexpr char32_t firstMark = 0x300, lastMark = 0x36F; // accents that stand behind their letter
    if (c >= firstMark && c <= lastMark) return;
    if (const char* form = otherForm(c)) {
        out.append(form);
        return;
    }
    const std::size_t from = out.size();
    core::appendUpper(out, character);
    std::size_t offset = from;
    const char32_t capital = core::nextCodePoint(out, offset);
    if (const char32_t plain = withoutMark(capital); plain != capital) {
        out.resize(from);
        core::appendCodePoint(out, plain);
    }
}

} // namespace

void appendFolded(std::string& out, std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        const std::size_t plain = core::asciiLength(text.substr(offset));
        appendAscii(out, text.substr(offset, plain));
        offset += plain;
        if (offset == text.size()) return;
        const std::size_t from = offset;
        const char32_t c = core::nextCodePoint(text, offset);
        if (offset - from == 1)
            out.push_back(text[from]); // a stray byte is no letter
        else
            appendCharacter(out, text.substr(from, offset - from), c);
    }
}

std::string folded(std::string_view text) {
    std::string out;
    appendFolded(out, text);
    return out;
}

} // namespace search
