#include "exchange/formats/mergedCells.h"

#include "core/translate.h"
#include "exchange/sheetCollector.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace exchange {

std::optional<CellPlace> placeOf(std::string_view text) {
    constexpr std::size_t letters = 26;
    std::size_t at = 0, column = 0, row = 0;
    for (; at < text.size() && text[at] >= 'A' && text[at] <= 'Z'; ++at) {
        column = column * letters + static_cast<std::size_t>(text[at] - 'A' + 1);
        if (column > SheetBounds::columns * letters) return std::nullopt;
    }
    const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), row);
    if (error != std::errc() || end != text.data() + text.size() || row == 0 || column == 0)
        return std::nullopt;
    return CellPlace{row - 1, column - 1};
}

void MergedCells::add(std::string_view range) {
    const std::size_t colon = range.find(':');
    if (colon == std::string_view::npos) return;
    const auto first = placeOf(range.substr(0, colon)), last = placeOf(range.substr(colon + 1));
    if (!first || !last || first->column > last->column || first->row > last->row) return;
    if (ranges_.size() >= SheetBounds::rows) refuseSheet(core::tr("it has too many merged cells"));
    ranges_.push_back({*first, *last});
}

void MergedCells::goTo(std::size_t row) {
    const auto rowOf = [](const Range& range) { return range.first.row; };
    if (next_ == 0) std::ranges::sort(ranges_, {}, rowOf);
    for (; next_ < ranges_.size() && ranges_[next_].first.row <= row; ++next_) {
        const Range& range = ranges_[next_];
        // What still stands there has ended above.
        begun_.erase(begun_.lower_bound(range.first.column), begun_.upper_bound(range.last.column));
        begun_.emplace(range.first.column, range);
    }
}

bool MergedCells::covers(CellPlace place) {
    if (ranges_.empty()) return false;
    goTo(place.row);
    auto found = begun_.upper_bound(place.column);
    if (found == begun_.begin()) return false;
    const Range& range = std::prev(found)->second;
    const bool bFirst = place.row == range.first.row && place.column == range.first.column;
    return !bFirst && place.row <= range.last.row && place.column <= range.last.column;
}

} // namespace exchange
