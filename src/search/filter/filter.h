#pragma once

#include "core/dates.h"
#include "core/document.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace search {

// The language of filters:
//
//   oak              "oak" stands in one of the columns, whatever its case and accents
//   oak fern         both do, each in whatever column
//   "red oak"        with the blank; "" within quotes is a quote
//   -oak             it stands in none
//   oak | fern       one of the two, also "oak or fern"; each side can have several words
//   Bed:oak          in the column Bed; [Last name]:oak or "Last name":oak where a name has blanks
//   Bed:  -Bed:      the column is filled, or empty; Bed="" is empty too
//   Price>10         also >= < <= = != (or <>), with blanks around or without
//   Price:10..20     from and to, either of which may be missing
//
// Numbers and money are compared with four decimals, dates as days; a year (2015) or a month (5/2015,
// 2015-05, "May 2015") stands for all of its days, and "today" is one. In other columns two numbers are
// compared as numbers, and all else by the folded texts. An empty cell is neither above nor below anything.
// Of a cell that has a value for each item row ("@"), one value is enough.
//
// A name that is none of a column, an operator without both sides, a quote that is not closed: these are
// words as they stand, since a filter is read with each key that is typed.

// A column that a filter can name.
struct FilterColumn {
    std::string name;
    int subItem = 1; // of the records
    core::ColumnType type = core::ColumnType::Text;
};
using FilterColumns = std::vector<FilterColumn>;

// Those of a list: all but the hidden one. Their types are those of the records' columns.
FilterColumns filterColumns(const core::Document& document, const core::RecordsList& list);

struct FilterError {
    std::size_t offset = 0, size = 0; // of what is wrong, in bytes
    std::string reason;               // "\"abc\" is no number"
    bool isUnfinished = false;        // it ends the text, and may be right with the next key
};

constexpr int anyColumn = -1;

// One thing that a record must hold, or, negated, must not.
struct FilterTerm {
    enum class Test {
        Contains, // needle, folded
        Filled,   // anything but blanks
        Equal,    // to needle
        Above,    // needle, or equal where isInclusive
        Below,
        Numbers, // from first to last, ten-thousandths
        Days,    // from first to last
    };
    static constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min() + 1;
    static constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();

    Test test = Test::Contains;
    int column = anyColumn; // its place among the columns
    bool isNegated = false;
    bool isInclusive = false;
    std::string needle;
    std::int64_t first = lowest, last = highest;

    bool operator==(const FilterTerm&) const = default;
};

struct Filter {
    struct Name { // as it is written, with its quotes or brackets
        std::size_t offset = 0, size = 0;
        int column = anyColumn;
    };
    std::vector<std::vector<FilterTerm>> alternatives; // one of which must hold, with all of its terms
    std::optional<FilterError> error;                  // and then there are no alternatives
    std::vector<Name> names;                           // in their order
    std::string rewritten; // the text with its values converted, as far as it can be read
    std::string doubt; // why nothing may be found: "There is no column "Prise"", where that is read as a word

    bool empty() const { return alternatives.empty(); } // every record passes
};

constexpr std::size_t longestFilter = 1000; // bytes

// What a value that is compared with a column is read as, or written as.
using ConvertedValue = std::function<std::string(core::ColumnType type, std::string_view value)>;

// What stands for itself applies to the scope alone, when it is the place of a column; there ">10" needs no
// name.
Filter parseFilter(std::string_view text, const FilterColumns& columns, std::chrono::year_month_day today,
                   int scope = anyColumn, const ConvertedValue& converted = {});

// Whether every record that passes "now" passes "before" as well, as far as it is easily seen.
bool isNarrower(const Filter& now, const Filter& before);

// A piece of a filter for one column, quoted as far as it has to be: filterPiece("Last name", "=", "O
// \"X\"").
std::string filterPiece(std::string_view column, std::string_view comparison, std::string_view value);

// A number in ten-thousandths; nothing for a text that is none, or that is too large.
std::optional<std::int64_t> filterNumber(std::string_view text);
// The days that a text stands for, first and last.
struct Days {
    core::DayValue first = 0, last = 0;
};
std::optional<Days> filterDays(std::string_view text, std::chrono::year_month_day today);

} // namespace search
