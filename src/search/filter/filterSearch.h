#pragma once

#include "search/filter/filter.h"
#include "search/filter/foldedTexts.h"

namespace search {

// One for each record of a list: 1 when it passes.
using Passed = std::vector<char>;

// The records that pass; of those that "among" lets through, when it is given. Totals are none.
Passed passing(const Filter& filter, const FoldedTexts& texts, std::chrono::year_month_day today,
               const Passed* among = nullptr);

} // namespace search
