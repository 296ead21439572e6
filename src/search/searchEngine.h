#pragma once

#include "app/app.h"
#include "search/criterion.h"

#include <array>
#include <vector>

namespace search {

using Groups = std::array<Group, 3>;

// The list that is searched: the records, or in an invoice database the list of the view on show.
core::RecordsList& sourceList(core::Document& document);

// Fills searchLV with copies of the records that all groups hold for, shows it in place of the records
// and makes it the list that commands work on. A blank group ends the chain; a blank first group finds
// nothing and leaves the status bar alone, as does a search without a match. Every search starts
// afresh. searchLV has the columns of the source already.
void findRecords(app::App& app, const Groups& groups);

// The same for rows of the source list that were found in another way, in their order.
void showRows(app::App& app, const std::vector<const core::Item*>& rows);

} // namespace search
