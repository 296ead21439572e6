#include "search/replaceWords.h"

#include "core/text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace search {

namespace {

constexpr std::array<std::string_view, 3> wordEnds = {"", ",", "."};

} // namespace

WordReplacer::WordReplacer(std::string_view find, std::string_view replacement)
    : find_(core::trim(core::upper(find))), replacement_(replacement) {}

bool WordReplacer::isEqual(std::string_view word, std::string_view end) {
    if (word.size() != find_.size() + end.size() || !word.ends_with(end)) return false;
    core::upperInto(folded_, word.substr(0, find_.size()));
    return folded_ == find_;
}

// Nearly every cell holds no match, and is passed over without taking it apart.
bool WordReplacer::hasMatch(std::string_view cell) {
    for (std::size_t from = 0;;) {
        const std::size_t blank = std::min(cell.find(' ', from), cell.size());
        const std::string_view word = cell.substr(from, blank - from);
        for (const std::string_view end : wordEnds)
            if (isEqual(word, end)) return true;
        if (blank == cell.size()) return false;
        from = blank + 1;
    }
}

// The three tests follow each other on the word as it then stands: a replacement that ends in a comma
// can match again.
void WordReplacer::replaceWord(std::string& word) {
    for (const std::string_view end : wordEnds) {
        if (!isEqual(core::trim(word), end)) continue;
        word = replacement_;
        word.append(end);
    }
}

bool WordReplacer::replaceInCell(core::CellText& cell) {
    if (cell.empty() || !hasMatch(cell)) return false; // an empty text has no words, not even an empty one
    std::string text;
    bool isFirst = true;
    for (const std::string_view piece : core::split(cell, ' ')) {
        if (!isFirst) text.push_back(' ');
        isFirst = false;
        std::string word(piece);
        replaceWord(word);
        text.append(word);
    }
    if (cell == text) return false;
    cell = text;
    return true;
}

int WordReplacer::replaceInList(core::RecordsList& list, const std::function<bool(int subItem)>& takesPart) {
    std::vector<std::size_t> places;
    for (int subItem = 1; subItem < list.columns.count(); ++subItem)
        if (takesPart(subItem)) places.push_back(static_cast<std::size_t>(subItem - 1));
    int changed = 0;
    list.forEach([&](core::Item& item) {
        for (const std::size_t place : places) {
            if (place >= item.cells.size()) break;
            core::CellText& cell = item.cells[place];
            if (cell.size() < find_.size()) continue;
            if (replaceInCell(cell)) ++changed;
        }
    });
    return changed;
}

} // namespace search
