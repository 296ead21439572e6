#pragma once

#include "core/column.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tables {

// What a cell of another program's table becomes in a column.
struct CheckedCell {
    std::string text;   // as it would be typed into the column's box
    std::string reason; // why the column cannot take the cell; empty when it can
};

// Numbers and amounts lose what is not part of their value for this program (commas, currency signs), dates
// get the form that a column of dates sorts by. Blank cells are blank in every column. Columns that are
// calculated or hold pictures take nothing that is typed, and are not asked.
CheckedCell checkedCell(core::ColumnType type, std::string_view cell, std::chrono::year_month_day today);

} // namespace tables
