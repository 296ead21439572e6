#pragma once

#include "summary/summary.h"

namespace summary {

// What finds a group's records in the language of the filters: Bed=Hedge Planted:2015-04..2015-06. To be
// tried out, since that language knows no capitals and no item rows.
std::string filterTextOf(const core::Document& document, const Request& request, const Group& group);

// "Bed: Hedge, Planted (year): 2015", short enough for a line.
std::string wordsOf(const Request& request, const Group& group);

} // namespace summary
