#pragma once

#include "tables/importTable.h"

#include <string>
#include <vector>

namespace tables {

// A cell that cannot be stored, as it is told: where it stands in the table, and why.
struct ToldCell {
    std::string Row, Column, Value, Reason;
};

// The first of those that the table itself refuses, or that the columns of the open database do, row by row.
// Their columns are told by their names in a new database, or `byTarget` in the open one.
std::vector<ToldCell> toldCells(const ImportTable& table, std::size_t most, bool byTarget = false);
std::vector<ToldCell> toldCells(const NewRecords& records, std::size_t most);

// "row 3, "Price": "x" is no number"
std::string inWords(const ToldCell& cell);
// All of them, for who has no list to show.
template <typename Table>
std::vector<std::string> refusedInWords(const Table& table) {
    std::vector<std::string> lines;
    for (const ToldCell& cell : toldCells(table, table.refusedCount())) lines.push_back(inWords(cell));
    return lines;
}

} // namespace tables
