#include "layout/copiedObjects.h"

#include "core/objectRef.h"
#include "core/runTimeError.h"
#include "file/layoutLines.h"
#include "file/lineReader.h"

#include <cmath>
#include <cstdint>

namespace layout {

namespace {

constexpr std::string_view firstLine = "ferrowick-layout|1";
constexpr std::string_view pictureWord = "I|";
constexpr std::size_t mostBytes = std::size_t{64} << 20;
constexpr std::size_t mostLineBytes = std::size_t{64} << 10; // of one object
constexpr int mostObjects = 1000;
constexpr float mostTwips = 500 * 1440; // twips; no sheet is as long

constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned bitsOfByte = 8, bitsOfDigit = 6, maskOfDigit = 63;

void appendBase64(std::string& out, std::string_view bytes) {
    std::uint32_t pending = 0;
    unsigned bits = 0;
    const std::size_t begin = out.size();
    for (const char byte : bytes) {
        pending = pending << bitsOfByte | static_cast<unsigned char>(byte);
        for (bits += bitsOfByte; bits >= bitsOfDigit; bits -= bitsOfDigit)
            out += digits[pending >> (bits - bitsOfDigit) & maskOfDigit];
    }
    if (bits > 0) out += digits[pending << (bitsOfDigit - bits) & maskOfDigit];
    while ((out.size() - begin) % 4 != 0) out += '=';
}

std::string fromBase64(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t pending = 0;
    unsigned bits = 0;
    for (const char digit : text.substr(0, text.find('='))) {
        const std::size_t value = digits.find(digit);
        if (value == std::string_view::npos) core::raise(core::errors::badFileFormat, "picture");
        pending = pending << bitsOfDigit | static_cast<std::uint32_t>(value);
        bits += bitsOfDigit;
        if (bits < bitsOfByte) continue;
        bits -= bitsOfByte;
        bytes += static_cast<char>(pending >> bits);
    }
    return bytes;
}

// A name may hold a separator, the digits never do.
CopiedObjects::Picture readPicture(std::string_view line) {
    line.remove_prefix(pictureWord.size());
    const std::size_t bar = line.rfind('|');
    if (bar == std::string_view::npos) core::raise(core::errors::badFileFormat, "picture");
    return {std::string(line.substr(0, bar)), fromBase64(line.substr(bar + 1))};
}

// Not a number is none of these either.
bool isPlaced(const core::LayoutObject& object) {
    return object.Width >= 0 && object.Width <= mostTwips && object.Height >= 0 &&
           object.Height <= mostTwips && std::abs(object.Left) <= mostTwips &&
           std::abs(object.Top) <= mostTwips;
}

void readLine(std::string_view line, CopiedObjects& copied) {
    if (line.starts_with(pictureWord))
        copied.pictures.push_back(readPicture(line));
    else if (line.size() > mostLineBytes || !file::readLayoutLine(line, copied.layout))
        core::raise(core::errors::badFileFormat, "no object");
    if (copied.layout.count() + static_cast<int>(copied.pictures.size()) > mostObjects)
        core::raise(core::errors::overflow, "objects");
}

} // namespace

std::string linesOf(const CopiedObjects& copied, std::string_view lineEnd) {
    std::string text;
    file::writeLayoutLines(text, copied.layout, lineEnd);
    return text;
}

std::string wholeTextOf(const CopiedObjects& copied) {
    constexpr std::string_view lineEnd = "\r\n";
    std::string text(firstLine);
    text.append(lineEnd).append(linesOf(copied, lineEnd));
    for (const CopiedObjects::Picture& picture : copied.pictures) {
        text.append(pictureWord).append(picture.name).push_back('|');
        appendBase64(text, picture.bytes);
        text.append(lineEnd);
    }
    return text;
}

std::optional<CopiedObjects> readCopied(std::string_view text) {
    if (text.size() > mostBytes) return std::nullopt;
    CopiedObjects copied;
    try {
        file::LineReader lines(text);
        auto line = lines.nextFilled();
        if (line == firstLine) line = lines.nextFilled();
        for (; line; line = lines.nextFilled()) readLine(*line, copied);
    } catch (const core::RunTimeError&) {
        return std::nullopt;
    }
    bool arePlaced = copied.layout.count() > 0;
    for (const core::Family each : core::allFamilies)
        visitFamily(copied.layout, each, [&](const auto& family) {
            family.forEach(
                [&](const core::LayoutObject& object) { arePlaced = arePlaced && isPlaced(object); });
        });
    if (!arePlaced) return std::nullopt;
    return copied;
}

} // namespace layout
