#include "exchange/csvReader.h"

#include "core/encoding.h"
#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace exchange {

namespace {

constexpr std::size_t mostRows = std::numeric_limits<std::int16_t>::max(); // of a database
// Far beyond what a database has. The bound keeps a hostile line from taking all memory.
constexpr std::size_t mostCells = 4096;

[[noreturn]] void refuse(std::size_t line, const std::string& what) {
    throw TableError(core::fill(core::tr("line %1: %2"), {std::to_string(line), what}));
}

bool isLineEnd(char c) {
    return c == '\n' || c == '\r';
}

// The one that the first line has most of, quoted texts left out.
char separatorOf(std::string_view text) {
    constexpr std::array<char, 3> candidates = {',', ';', '\t'};
    std::array<std::size_t, 3> counts{};
    bool inQuotes = false;
    std::size_t at = text.find_first_not_of("\r\n");
    for (; at < text.size() && (inQuotes || !isLineEnd(text[at])); ++at) {
        if (text[at] == '"') inQuotes = !inQuotes;
        for (std::size_t i = 0; i < candidates.size() && !inQuotes; ++i)
            if (text[at] == candidates[i]) ++counts[i];
    }
    std::size_t most = 0;
    for (std::size_t i = 1; i < counts.size(); ++i)
        if (counts[i] > counts[most]) most = i;
    return candidates[most];
}

} // namespace

std::string textOf(std::string bytes) {
    if (core::hasUtf8Mark(bytes)) bytes.erase(0, 3);
    if (bytes.find('\0') != std::string::npos)
        throw TableError(core::tr("it is no text in UTF-8 or Windows-1252"));
    if (core::isAscii(bytes) || core::sanitizeUtf8(bytes) == bytes) return bytes;
    return core::fromWindows1252(bytes);
}

CsvTable::CsvTable(std::string bytes) : text_(textOf(std::move(bytes))), separator_(separatorOf(text_)) {
    readHeader();
    readRows();
}

void CsvTable::readHeader() {
    nextRecord(header_);
    for (std::string_view& name : header_) name = core::trim(name);
    // Spreadsheets hand on columns that nobody has filled in.
    while (!header_.empty() && header_.back().empty()) header_.pop_back();
    if (header_.empty()) throw TableError(core::tr("it has no header line"));
    for (std::size_t i = 0; i < header_.size(); ++i)
        if (header_[i].empty())
            throw TableError(core::fill(core::tr("its column %1 has no name"), {std::to_string(i + 1)}));
}

void CsvTable::readRows() {
    std::vector<std::string_view> row;
    while (nextRecord(row)) {
        // Spreadsheets hand on rows of separators alone, as long as their widest row.
        const bool isOther = row.size() > header_.size() || (row.size() == 1 && header_.size() > 1);
        const bool isBlankLine =
            isOther && std::ranges::all_of(row, [](const auto& cell) { return core::trim(cell).empty(); });
        if (isBlankLine) continue;
        if (lines_.size() == mostRows)
            throw TableError(core::fill(core::tr("it has more than %1 rows"), {std::to_string(mostRows)}));
        for (std::size_t i = header_.size(); i < row.size(); ++i)
            if (!core::trim(row[i]).empty())
                refuse(recordLine_, core::tr("more cells than the header has names"));
        row.resize(header_.size());
        cells_.insert(cells_.end(), row.begin(), row.end());
        lines_.push_back(recordLine_);
    }
}

// False at the end of the text.
bool CsvTable::nextRecord(std::vector<std::string_view>& cells) {
    cells.clear();
    while (atLineEnd()) skipLineEnd();
    if (at_ == text_.size()) return false;
    recordLine_ = line_;
    for (;;) {
        if (cells.size() == mostCells)
            refuse(recordLine_, core::fill(core::tr("more than %1 cells"), {std::to_string(mostCells)}));
        const bool isQuoted = at_ < text_.size() && text_[at_] == '"';
        cells.push_back(isQuoted ? quotedCell() : plainCell());
        if (at_ == text_.size() || atLineEnd()) break;
        ++at_; // the separator
    }
    if (atLineEnd()) skipLineEnd();
    return true;
}

// A quote inside an unquoted cell (a 5" bolt) is a character like any other.
std::string_view CsvTable::plainCell() {
    const std::size_t from = at_;
    while (at_ < text_.size() && text_[at_] != separator_ && !isLineEnd(text_[at_])) ++at_;
    return std::string_view(text_).substr(from, at_ - from);
}

// The text is put together in its place, since it only gets shorter.
std::string_view CsvTable::quotedCell() {
    const std::size_t line = line_;
    const std::size_t from = ++at_;
    std::size_t to = from;
    for (;; ++to) {
        if (at_ == text_.size()) refuse(line, core::tr("a quote is opened and never closed"));
        if (atLineEnd()) {
            skipLineEnd();
            text_[to] = '\n';
            continue;
        }
        if (text_[at_] == '"' && (++at_ == text_.size() || text_[at_] != '"')) break;
        text_[to] = text_[at_++];
    }
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    if (at_ < text_.size() && text_[at_] != separator_ && !atLineEnd())
        refuse(line_, core::tr("text behind the closing quote of a cell"));
    return std::string_view(text_).substr(from, to - from);
}

bool CsvTable::atLineEnd() const {
    return at_ < text_.size() && isLineEnd(text_[at_]);
}

void CsvTable::skipLineEnd() {
    at_ += text_.compare(at_, 2, "\r\n") == 0 ? 2 : 1;
    ++line_;
}

} // namespace exchange
