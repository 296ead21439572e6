#pragma once

#include "app/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace search {

// Records that are equal in some columns, in the order of the list.
using EqualRecords = std::vector<const core::Item*>;

// The groups of two or more records of LV that have equal cells in all of the columns, in the order of their
// first records. When case is ignored, so are blanks at the ends. No columns have no groups.
std::vector<EqualRecords> findDuplicates(const core::RecordsList& records,
                                         const std::vector<const core::Column*>& columns, bool bIgnoreCase);

// The columns that tell records apart to a user: all but those that the program fills, which are serial
// numbers, dates of entry and calculations.
bool isComparedAtFirst(const core::Document& document, const core::Column& column);

// Puts the rows of records in place of the list, group by group, as a search puts what it has found.
void showRecords(app::App& app, const std::vector<EqualRecords>& groups);

// Deletes all but the first record of each group; the totals, the lists of invoices and the results follow.
// Answers how many went.
int deleteAllButFirst(app::App& app, const std::vector<EqualRecords>& groups);

} // namespace search
