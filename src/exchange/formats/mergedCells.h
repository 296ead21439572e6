#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace exchange {

// A place in a sheet, from 0.
struct CellPlace {
    std::size_t row = 0, column = 0;
};
// "BC12"; nothing for what is no place.
std::optional<CellPlace> placeOf(std::string_view text);

// What other cells of a sheet are merged over: it stands in the file, but the sheet does not show it.
class MergedCells {
public:
    // "B2:C4"; what is no range is left out. Raises badFileFormat for more than a sheet has rows.
    void add(std::string_view range);
    bool empty() const { return ranges_.empty(); }
    // When all are added. Rows are asked for from the top down.
    bool covers(CellPlace place);

private:
    struct Range {
        CellPlace first, last;
    };
    void goTo(std::size_t row);

    std::vector<Range> ranges_; // downwards by their first rows, once they are asked for
    std::size_t next_ = 0;      // the first that begins further down
    // Of those that have begun, by their first columns: no two of them lie over each other.
    std::map<std::size_t, Range> begun_;
};

} // namespace exchange
