#include "exchange/delimited.h"

#include "core/encoding.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/csvReader.h"

#include <algorithm>
#include <array>
#include <map>

namespace exchange {

namespace {

// More than the largest database holds. The bounds keep a hostile file from taking all memory.
constexpr std::size_t mostDelimitedCells = 2'000'000;
constexpr std::size_t mostLines = 100'000;
constexpr std::size_t sampleBytes = std::size_t{64} << 10U; // that recognition looks at
constexpr std::string_view markLe = "\xFF\xFE";
constexpr std::string_view markBe = "\xFE\xFF";

class DelimitedReader {
public:
    DelimitedReader(std::string_view text, Delimiters delimiters) : text_(text), delimiters_(delimiters) {}

    bool isAtEnd() const { return at_ >= text_.size(); }
    std::size_t at() const { return at_; }

    SheetRow nextRow() {
        SheetRow row;
        ++line_;
        if (atRowEnd()) {
            skipRowEnd();
            return row;
        }
        for (;;) {
            if (++cells_ > mostDelimitedCells)
                throw TableError(
                    core::fill(core::tr("it has more than %1 cells"), {std::to_string(mostDelimitedCells)}));
            std::string cell = nextCell();
            row.push_back({cell.empty() ? SheetCell::Kind::Empty : SheetCell::Kind::Text, std::move(cell)});
            if (isAtEnd() || atRowEnd()) break;
            ++at_; // the separator
        }
        skipRowEnd();
        return row;
    }

private:
    bool atRowEnd() const { return at_ < text_.size() && (text_[at_] == '\n' || text_[at_] == '\r'); }
    void skipRowEnd() {
        if (!isAtEnd()) at_ += text_.compare(at_, 2, "\r\n") == 0 ? 2 : 1;
    }

    std::string nextCell() {
        std::string cell;
        if (delimiters_.quote != 0 && !isAtEnd() && text_[at_] == delimiters_.quote) cell = quoted();
        const std::size_t from = at_;
        while (!isAtEnd() && text_[at_] != delimiters_.separator && !atRowEnd()) ++at_;
        const std::string_view rest = text_.substr(from, at_ - from);
        if (from == 0 || !core::trim(rest).empty() || text_[from - 1] != delimiters_.quote) cell += rest;
        return cell;
    }

    std::string quoted() {
        std::string cell;
        const std::size_t line = line_;
        ++at_;
        while (!isAtEnd()) {
            const char c = text_[at_];
            if (c == delimiters_.quote) {
                ++at_;
                if (isAtEnd() || text_[at_] != delimiters_.quote) return cell;
            } else if (atRowEnd()) {
                skipRowEnd();
                ++line_;
                cell.push_back('\n');
                continue;
            }
            cell.push_back(c);
            ++at_;
        }
        throw TableError(
            core::fill(core::tr("line %1: a quote is opened and never closed"), {std::to_string(line)}));
    }

    std::string_view text_;
    Delimiters delimiters_;
    std::size_t at_ = 0, line_ = 0, cells_ = 0;
};

// How many of the first lines have as many of the separator as most have.
std::size_t evenLines(std::string_view sample, Delimiters delimiters) {
    constexpr std::size_t lines = 100;
    std::map<std::size_t, std::size_t> linesByCells;
    try {
        DelimitedReader reader(sample, delimiters);
        for (std::size_t line = 0; line < lines && !reader.isAtEnd(); ++line)
            ++linesByCells[reader.nextRow().size()];
    } catch (const TableError&) {
        // The sample ends within a quote.
    }
    std::size_t most = 0;
    for (const auto& [cells, count] : linesByCells)
        if (cells > 1) most = std::max(most, count);
    return most;
}

std::size_t quotesAtCells(std::string_view sample, char quote) {
    std::size_t count = 0;
    for (std::size_t at = sample.find(quote); at != std::string_view::npos; at = sample.find(quote, at + 1))
        count += at == 0 || std::string_view(",;\t|\n\r").find(sample[at - 1]) != std::string_view::npos;
    return count;
}

std::string fromUtf16(std::string_view bytes, bool isLittle) {
    const auto unit = [&](std::size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return static_cast<char32_t>(isLittle ? first | second << 8U : first << 8U | second);
    };
    constexpr char32_t unknown = 0xFFFD;
    const auto isHigh = [](char32_t c) { return c >= 0xD800 && c < 0xDC00; };
    const auto isLow = [](char32_t c) { return c >= 0xDC00 && c < 0xE000; };
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t c = unit(at);
        if (isHigh(c) && at + 3 < bytes.size() && isLow(unit(at + 2))) {
            at += 2;
            c = 0x10000 + ((c - 0xD800) << 10U) + (unit(at) - 0xDC00);
        } else if (isHigh(c) || isLow(c)) {
            c = unknown;
        }
        if (c != 0xFEFF || at > 0) core::appendCodePoint(text, c);
    }
    return text;
}

} // namespace

Encoding recognizedEncoding(std::string_view bytes) {
    if (bytes.starts_with(markLe)) return Encoding::Utf16Le;
    if (bytes.starts_with(markBe)) return Encoding::Utf16Be;
    if (core::hasUtf8Mark(bytes)) return Encoding::Utf8;
    // Most tables have a letter or a digit of ASCII in every other place.
    const std::string_view sample = bytes.substr(0, sampleBytes);
    std::array<std::size_t, 2> zeros{};
    for (std::size_t at = 0; at < sample.size(); ++at) zeros.at(at % 2) += sample[at] == '\0';
    if (zeros[1] * 4 > sample.size() && zeros[0] * 4 < zeros[1]) return Encoding::Utf16Le;
    if (zeros[0] * 4 > sample.size() && zeros[1] * 4 < zeros[0]) return Encoding::Utf16Be;
    return core::isAscii(bytes) || core::sanitizeUtf8(bytes) == bytes ? Encoding::Utf8
                                                                      : Encoding::Windows1252;
}

std::string decodedText(std::string_view bytes, Encoding encoding) {
    std::string text;
    if (encoding == Encoding::Utf16Le || encoding == Encoding::Utf16Be)
        text = fromUtf16(bytes, encoding == Encoding::Utf16Le);
    else if (encoding == Encoding::Windows1252)
        text = core::fromWindows1252(bytes);
    else
        text = core::sanitizeUtf8(core::hasUtf8Mark(bytes) ? bytes.substr(3) : bytes);
    if (text.find('\0') != std::string::npos) throw TableError(core::tr("it is no text"));
    return text;
}

Delimiters recognizedDelimiters(std::string_view text) {
    const std::string_view sample = text.substr(0, sampleBytes);
    Delimiters best;
    if (quotesAtCells(sample, '\'') > 0 && quotesAtCells(sample, '"') == 0) best.quote = '\'';
    // Commas come last: they stand in numbers too, as evenly as what divides these.
    std::size_t most = 0;
    for (const char separator : {'\t', ';', '|', ','}) {
        const std::size_t even = evenLines(sample, {separator, best.quote});
        if (even <= most) continue;
        most = even;
        best.separator = separator;
    }
    return best;
}

std::vector<SheetRow> readDelimited(std::string_view text, Delimiters delimiters, const Progress& progress) {
    constexpr std::size_t rowsBetween = 500;
    std::vector<SheetRow> rows;
    DelimitedReader reader(text, delimiters);
    while (!reader.isAtEnd()) {
        if (rows.size() == mostLines)
            throw TableError(core::fill(core::tr("it has more than %1 lines"), {std::to_string(mostLines)}));
        if (rows.size() % rowsBetween == 0) tellProgress(progress, reader.at(), text.size());
        rows.push_back(reader.nextRow());
    }
    return rows;
}

} // namespace exchange
