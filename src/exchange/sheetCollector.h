#pragma once

#include "exchange/sheet.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace exchange {

// Answers false to give up.
using Progress = std::function<bool(int percent)>;

// Raises badFileFormat: what is wrong with a table, behind the name of its file where `of` tells it.
[[noreturn]] void refuseSheet(const std::string& reason);
// Raises cancelled when the user has given up.
void tellProgress(const Progress& progress, std::size_t done, std::size_t total);

// What a table may take, more than the largest database. Together with the text that it is read from it
// stays below 256 MB.
struct SheetBounds {
    static constexpr std::size_t rows = 65'536; // up to the last one that has a cell
    static constexpr std::size_t columns = 4'096;
    static constexpr std::size_t cells = 1'700'000; // empty ones between others too
    static constexpr std::size_t textBytes = std::size_t{32} << 20U;
    static constexpr std::size_t fileBytes = std::size_t{64} << 20U; // of a text, or of an unpacked part
};

// Puts the rows of a sheet together, within the bounds. What is empty at the end of a row, or of the sheet,
// is not kept.
class SheetCollector {
public:
    // A row far below the last one, or a cell far to the right, is refused only where something stands in
    // it: spreadsheets fill up to their edges with blanks.
    void cell(SheetCell cell);
    void cell(SheetCell::Kind kind, std::string_view text) { cell({kind, text}); }
    void text(std::string_view text) { cell(SheetCell::Kind::Text, text); }
    void blanks(std::size_t count) { pendingCells_ += count; }
    // The place of the next cell, from 0.
    std::size_t column() const { return row_.size() + pendingCells_; }
    void endRow();
    void blankRows(std::size_t count) { pendingRows_ += count; }
    // The row put together so far, so many times.
    void endRow(std::size_t times);
    // Of the next row, from 0.
    std::size_t row() const { return sheet_.rows.size() + pendingRows_; }
    Sheet take() { return std::move(sheet_); }

private:
    void keep(const SheetRow& row);

    Sheet sheet_;
    SheetRow row_;
    std::size_t pendingCells_ = 0, pendingRows_ = 0;
    std::size_t cells_ = 0, textBytes_ = 0;
};

} // namespace exchange
