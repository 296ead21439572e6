#pragma once

#include "summary/summary.h"

namespace summary {

// Sorts the groups by a column of their table (see tableOf): what they are grouped by, their records or a
// figure. Groups that are equal there stay in the order of what they are grouped by, and those that have no
// such figure come last, whatever the direction.
void sortGroups(Summary& summary, std::size_t column, bool bDescending, std::chrono::year_month_day today);

} // namespace summary
