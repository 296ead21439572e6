#pragma once

#include "app/app.h"

#include <string_view>

namespace search {

// A search is a mode of the main window. From the first search until the user leaves it, searchLV
// stands in place of the records, and theListView is it.

// The button "Search": pressed it opens the dialog, released it leaves the results.
void Search_ButtonClick(app::App& app);
// The menu item presses the button, whatever its state.
void mnuSearch_Click(app::App& app);

// Ends the mode, as the released button does.
void leaveResults(app::App& app);

// Clears searchLV and gives it the columns of the list that is searched.
void takeOverColumns(core::Document& document);
// Puts the records back in place of the results.
void showAllRecords(app::App& app);

// They follow whatever has become of the records: those that are gone are no results any more.
void followRecords(app::App& app);
// The results on show, and their sums, take over what has been calculated anew in the records, and what was
// written into the one column that is named.
void refreshResults(app::App& app, std::string_view written = {});

} // namespace search
