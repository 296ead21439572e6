#pragma once

#include "tables/writtenValue.h"

#include <optional>
#include <span>
#include <string>

namespace tables {

// What is known from elsewhere of how a table is written.
struct Hints {
    DateOrder dates = DateOrder::MonthDayYear; // where a column leaves it open
    char decimal = '.';
    bool bDatesTold = false, bDecimalTold = false; // by the user: no column is read otherwise
    CurrencySign sign = std::nullopt;
};

// How a column can be read.
struct Recognized {
    ReadAs as;
    bool bDatesOpen = false;   // day and month could change places, and some cells mean other days then
    bool bDecimalOpen = false; // a point or comma could divide thousands as well as the fraction
    std::string sign;          // of the currency, which the database does not keep
    std::string example;       // the first cell that is open
};

// Looks at all the cells that are not blank. A column has a type when they can all be read in it; with
// `bLenient`, in a column of ten and more, nine of ten are enough, so that what is mistyped can be told. A
// typed table has its numbers as such, so that a text of digits in it is a text; its dates may be texts.
// With a type, how the cells are best read in that one.
Recognized recognize(std::span<const exchange::SheetCell* const> cells, bool bTyped, const Hints& hints,
                     bool bLenient, std::optional<core::ColumnType> type = std::nullopt);

} // namespace tables
