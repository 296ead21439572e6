#pragma once

#include "core/document.h"

#include <string>
#include <string_view>
#include <vector>

namespace calc {

constexpr std::size_t mostColumns = 50; // of a database, the hidden one left out

// Adds a column with an empty cell in every record; `tag` is its type code as text. Raises
// keyNotUnique for a name that is there in whatever case.
core::Column& addColumn(core::Document& document, std::string_view name, std::string_view tag);

// Gives a column another name in the column table, the formulas and the column lists. The formulas
// are changed by plain substrings with a blank beside them: a longer name that ends or begins alike
// is touched too, and an expression that is the old name alone is not. It is wanted so.
void renameColumn(core::Document& document, const std::string& oldName, const std::string& newName);

// Takes a column out with its cells, its layout objects and the formulas that depend on it, directly
// or through others; the cells of those columns become "Undefined".
void removeColumn(core::Document& document, const std::string& name);

// The columns with an entry option. Number columns among them get a serial counter, and counters of
// columns that are not among them go.
void setOptionedColumns(core::Document& document, const std::vector<std::string>& names);

} // namespace calc
