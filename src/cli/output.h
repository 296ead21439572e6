#pragma once

#include "exchange/jsonText.h"

#include <string>
#include <string_view>
#include <vector>

namespace cli {

// What goes to standard output is put together in one buffer and written at once.

// Raises Failure when standard output takes no more.
void writeOut(std::string_view text);
// The same for the outcome of a command that has saved: the command is done, whether it can be printed or
// not.
void writeOutcome(std::string_view text);

using exchange::appendJsonText;
// One line for people: whatever would break it or drive the terminal becomes a blank.
std::string printable(std::string_view text);

// A table for people: columns as wide as their longest text in characters.
class TextTable {
public:
    struct Heading {
        std::string text;
        bool alignRight = false;
    };

    explicit TextTable(const std::vector<Heading>& headings);

    // As many texts as there are headings.
    void row(const std::vector<std::string_view>& cells);
    // A rule between the rows so far and the next one.
    void rule() {
        if (rows_ > 0) ruleAt_ = rows_;
    }
    void appendTo(std::string& out) const;

private:
    struct Cell {
        std::string text;
        std::size_t width;
    };

    static Cell cellOf(std::string_view text);
    void appendRow(std::string& out, const Cell* cells) const;
    void appendRule(std::string& out) const;

    std::vector<Cell> headings_;
    std::vector<bool> alignRight_;
    std::vector<std::size_t> widths_;
    std::vector<Cell> cells_; // row by row
    std::size_t rows_ = 0;
    std::size_t ruleAt_ = static_cast<std::size_t>(-1);
};

} // namespace cli
