#pragma once

#include "core/column.h"

#include <string>
#include <string_view>

namespace core {

// How a country writes dates, numbers and amounts. Cells, files and whatever is worked out from them have the
// forms mm/dd/yyyy, 1,234.50 and $1,234.50 everywhere; a form is for what a window shows and takes.
struct LocaleForm {
    enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

    DateOrder order = DateOrder::MonthDayYear;
    char dateSeparator = '/';
    std::string decimal = ".", group = ",", currency = "$"; // UTF-8; no group where digits are not grouped
    bool currencyBehind = false;                            // "5 €"
    bool currencyApart = false;                             // with a blank in between

    bool operator==(const LocaleForm&) const = default;
};

// What is shown of a cell: dates in digits with their parts in the form's order, numbers and amounts with its
// signs. What is no such value, and texts of all other columns, come back as they stand; so do the parts of
// an invoice's cell, each by itself.
std::string shownIn(const LocaleForm& form, ColumnType type, std::string_view cell);

// The value that a text means which was typed in the form. Cells in the program's own forms come back from
// shownIn as the same bytes; cells in looser forms ("1/2/24", "(5)") as the same value. Groups of digits that
// are not groups of three are none, so that a text that was copied from elsewhere stays as it is: "1.5" is
// one and a half in each form. A number without a currency loses its grouping, since sums would stop at it.
std::string cellFrom(const LocaleForm& form, ColumnType type, std::string_view typed);

// Puts the separators of a date behind the day, the month or the year that has just been typed at the end of
// the text, and takes out one that was typed as well.
std::string withDateSeparators(const LocaleForm& form, std::string_view typed);

} // namespace core
