#pragma once

#include "core/cellText.h"
#include "core/column.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

// A cell as its file has it.
struct SheetCell {
    enum class Kind : std::uint8_t { Empty, Text, Number, Date, Time, DateTime, Boolean };
    SheetCell() = default;
    SheetCell(Kind what, std::string_view as, bool isMoney = false) : kind(what), bMoney(isMoney), text(as) {}

    Kind kind = Kind::Empty;
    bool bMoney = false; // a number that is shown with the sign of a currency
    // Number: digits with ".", as "-1234.5"; Date "2024-12-31"; Time "13:05:00"; DateTime
    // "2024-12-31 13:05:00"; Boolean "true" or "false".
    core::CellText text;
};
using SheetRow = std::vector<SheetCell>;

struct Sheet {
    std::string name;           // of the sheet, table or view; empty where the file has but one
    std::vector<SheetRow> rows; // with the heading row, if the file has one; rows may differ in length
    bool bTyped =
        false; // the file itself says what a cell is (spreadsheets, SQLite, JSON); else all are texts
};

enum class Format { Csv, Tsv, Xlsx, Ods, Json, Sqlite, Html, Vcard };
std::optional<Format> formatOf(std::string_view fileName); // by its ending

// Names of what can be picked; one entry for formats that have one table.
std::vector<std::string> sheetNames(const std::filesystem::path& file, Format format);

// Rows, columns and sheets that are hidden in a spreadsheet are left out; of merged cells the first one has
// the value. A formula is its last value. SQLite is read as the file stands. Raises core::RunTimeError
// (badFileFormat with the reason, fileNotFound, pathAccess ...). `progress` answers false to give up (raises
// cancelled).
Sheet readSheet(const std::filesystem::path& file, Format format, std::size_t sheet,
                const std::function<bool(int percent)>& progress = {});

struct WriteOptions {
    bool bHeadings = true;
    bool bTotals = true;
};

// Columns with their types and widths, rows as cells; see writeSheet.
struct OutColumn {
    std::string name;
    core::ColumnType type;
    float widthTwips;
    std::string formula; // an expression of ours over the columns, empty for none
};

using OutRow = std::vector<core::CellText>;

struct OutTable {
    std::string title;
    std::vector<OutColumn> columns;
    std::vector<OutRow> rows;
    bool bLastIsTotals = false;
    // With the files that cells of Picture columns name, which .xlsx shows in their rows; empty for none.
    std::filesystem::path pictures = {};
};

// The formats that are texts, and such a text.
bool isTextFormat(Format format);
std::string sheetText(Format format, const OutTable& table,
                      const std::function<bool(int percent)>& progress = {});

// The file is replaced in one step or not at all. Of vCards the columns that a card has no place for are
// left out. A new file takes the permissions of `like`, where one is told.
void writeSheet(const std::filesystem::path& file, Format format, const OutTable& table,
                const std::function<bool(int percent)>& progress = {},
                const std::filesystem::path& like = {});

} // namespace exchange
