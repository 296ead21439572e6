#pragma once

#include "core/column.h"
#include "exchange/csvReader.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

// A column that a table tells of.
struct TableColumn {
    std::string name;
    core::ColumnType type = core::ColumnType::Text;
    bool isGuessed = false;
};

// The name of a column as a header cell gives it: a blank cannot stand in one and becomes "_", as in
// Database Properties, and so does a line end.
std::string columnName(std::string_view headerCell);

// "Price:Currency", the form in which a column goes out with its type. A name may hold a colon.
std::string typedHeader(const core::Column& column);
// What a header cell of that form tells; nothing for another one.
std::optional<TableColumn> typedColumn(std::string_view headerCell);
// The columns of a table whose header cells all have that form; nothing for other tables.
std::optional<std::vector<TableColumn>> typedColumns(const CsvTable& table);
// The columns of any table, with guessed types where the header has none: Number, Currency or Date
// when all cells that are not blank read as such, and show in that type what the table shows; else
// Text. So what is a code and no number ("00123", "1e5", twenty digits) stays as it is written. In an
// invoice a cell has a value for each of its item rows.
std::vector<TableColumn> columnsOf(const CsvTable& table, bool hasItemRows = false);

// What a cell becomes in a column of a guessed type: an amount has its cents and commas, a date its
// leading zeros, and blanks around both are gone. Cells of told types stay to the letter.
std::string storedCell(const TableColumn& column, std::string_view cell);

} // namespace exchange
