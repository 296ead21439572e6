#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

// A table cannot be read, or not without losing something. The text says where and why.
class TableError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The bytes of a table as text: they are UTF-8, or else Windows-1252. Raises TableError when they are no
// text.
std::string textOf(std::string bytes);

// A table of comma-separated values with a header line, as RFC 4180 has it; also one whose header is
// divided by ";" or by tabs, as spreadsheets write in many countries. The bytes are UTF-8, or else
// Windows-1252. A line end inside quotes becomes a line feed, the one that a cell of a database can
// hold. Lines without a character are no rows.
class CsvTable {
public:
    // Raises TableError: no header, a name left out, a quote that is not closed or that ends within a
    // cell, a row with more cells than names, more rows than a database takes, bytes that are no text.
    explicit CsvTable(std::string bytes);
    CsvTable(const CsvTable&) = delete;
    CsvTable& operator=(const CsvTable&) = delete;

    // The names, without the blanks around them.
    const std::vector<std::string_view>& header() const { return header_; }
    std::size_t rowCount() const { return lines_.size(); }
    // What a row leaves out at its end is empty.
    std::string_view cell(std::size_t row, std::size_t column) const {
        return cells_[row * header_.size() + column];
    }
    // The line of the table that the row begins with, from 1.
    std::size_t lineOf(std::size_t row) const { return lines_[row]; }

private:
    void readHeader();
    void readRows();
    bool nextRecord(std::vector<std::string_view>& cells);
    std::string_view quotedCell();
    std::string_view plainCell();
    bool atLineEnd() const;
    void skipLineEnd();

    std::string text_; // the cells point into it
    char separator_ = ',';
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t recordLine_ = 1; // that the record read last begins with
    std::vector<std::string_view> header_;
    std::vector<std::string_view> cells_; // row by row
    std::vector<std::size_t> lines_;
};

} // namespace exchange
