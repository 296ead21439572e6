#pragma once

#include "exchange/sheet.h"

#include <string>
#include <string_view>
#include <vector>

namespace exchange {

// What a file of ours tells of its columns beside them, where the headings are for whoever looks at the
// table: "Price:Currency" of each, as properties of that name with the column's number behind it.
inline constexpr std::string_view typeProperty = "ferrowick-column-";
std::vector<std::string> typedHeadings(const OutTable& table);

// Where the headings are still among those that are told, they have their types again and the cells are those
// of the database. Otherwise the sheet stays as it is.
void restoreTypes(Sheet& sheet, const std::vector<std::string>& told);

} // namespace exchange
