#pragma once

#include "exchange/csvReader.h"

#include <string>
#include <string_view>
#include <vector>

namespace exchange {

// A row of a table as other programs hand it on: with as many cells as it happens to have.
struct TextRow {
    std::size_t number = 0; // in the table, from 1
    std::vector<std::string> cells;
};

// A row without a text is left out. Line ends within a cell are line feeds. Raises TableError for what would
// take unreasonable memory.
using TextRows = std::vector<TextRow>;

// A text with tabs between the cells, a line a row. A cell in quotes may hold tabs, line ends and doubled
// quotes; what begins with a quote and does not end as such a cell stays as it is.
TextRows readTabbedRows(std::string_view text);
// The first table of a page. What spans several columns or rows has its text in the first of them.
TextRows readHtmlRows(std::string_view html);
// Whether a text that may be either is a page.
bool isHtml(std::string_view text);

// The rows of a table that is there in both forms, each empty where it is not. The text has the cells as they
// were typed; but a program that does not quote line ends tears them apart in it, which the page does not.
TextRows readRowsOfEither(std::string_view text, std::string_view html);

// The text with "&", "<" and quotes as HTML has them, and line feeds as breaks.
void appendHtmlText(std::string& out, std::string_view text);

// Collects the rows of a table that is read.
class RowCollector {
public:
    void cell(std::string text);
    void endRow();
    std::size_t cellsInRow() const { return row_.cells.size(); }
    TextRows take() { return std::move(rows_); }

private:
    TextRows rows_;
    TextRow row_;
    std::size_t numberOfRow_ = 1;
    std::size_t cells_ = 0; // of the table so far
};

} // namespace exchange
