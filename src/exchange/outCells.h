#pragma once

#include "exchange/sheet.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

// What a spreadsheet or database gets for a cell: its value, and how it shows what the cell shows. A text
// that no number shows (leading zeros, twenty digits, values of item rows) stays a text, in whatever column.
struct OutCell {
    enum class What : std::uint8_t { Text, Number, Money, Date };
    What what = What::Text;
    double value = 0; // of a date, its number of days; see daySerial
    int places = 0;   // that a number shows
    bool bLeadingZero = true;
    std::string iso;    // of a date, "2024-12-31"
    std::string digits; // of a number or money, "-1234.50"
};
OutCell outCell(core::ColumnType type, std::string_view cell);

// A cell that a row has left out is empty.
std::string_view cellIn(const OutTable& table, std::size_t row, std::size_t column);

// The calculated columns as formulas of a spreadsheet, where its arithmetic says the same as ours.
class OutFormulas {
public:
    enum class Style : std::uint8_t { Xlsx, Ods }; // "=B2*C2", "of:=[.B2]*[.C2]"
    OutFormulas(const OutTable& table, Style style);
    // Of a cell whose value is what is given; nothing where the value has to do: operands that are no
    // numbers, a column that is not in the table. Rows count from 0, without the heading.
    std::optional<std::string> at(std::size_t row, std::size_t column, const OutCell& value) const;

private:
    struct Word {
        std::string text;
        std::optional<std::size_t> column; // that it names
    };
    std::optional<std::vector<Word>> wordsOf(std::string_view expression) const;

    const OutTable& table_;
    Style style_;
    std::vector<std::optional<std::vector<Word>>> formulas_; // by column
};

// "A", "Z", "AA"
std::string columnLetters(std::size_t column);

// The file to write, and the one whose permissions a new one takes.
struct Target {
    std::filesystem::path file, like;
};
// Puts the bytes into the place of a file in one step.
void writeBytes(const Target& target, std::string_view bytes);

} // namespace exchange
