#pragma once

#include "app/app.h"
#include "search/filter/filter.h"
#include "search/filter/filterSearch.h"

#include <string>
#include <string_view>
#include <vector>

namespace search {

// What the bar over the records shows.
struct FilterBarState {
    bool isOn = false; // the results on show are those of the text
    std::string text;  // as typed
    std::string scope; // the column that plain words apply to; empty for all
    std::optional<FilterError> error;
    std::string doubt; // why nothing was found, perhaps
    std::string words; // what is on show in place of a filter's results, where no text says it
    int found = 0, all = 0;
    bool isOpen = false;    // the bar is there
    bool wantsKeys = false; // and takes them when it is shown next; the view takes it back

    bool narrows() const { return isOn || !words.empty(); }
};
const FilterBarState& filterBar(const app::App& app);

// The text of the bar has values in the form that the user has chosen; the filter's own text, which is kept
// and compared, has the program's.
std::string filterFromForm(app::App& app, std::string_view typed, std::string_view scope);
std::string filterInForm(app::App& app, std::string_view text, std::string_view scope);

// Shows the records that pass as a search shows what it has found; an empty filter shows all records again.
// With an error the results stay as they are. The current record stays the current one, if it is among those
// found. A record that is edited stays, whatever it says now, until the filter is set again.
void setFilter(app::App& app, const std::string& text, const std::string& scope = {});
// Shows these records of LV alone and opens the bar, which says why: by the text, when a filter of it finds
// them and no others, or else in words, with the records on show as showRecords() puts them there.
void showRecordsBy(app::App& app, const std::vector<const core::Item*>& records, const std::string& text,
                   const std::string& scope, const std::string& words);
// The same filter for what the records are now.
void filterAnew(app::App& app);

// Shows all records again. The current one is that of the results, if the user has chosen it there.
void leaveFilter(app::App& app);

// The records of LV that pass. Raises nothing: an error is in the filter, and then there are none.
Passed recordsPassing(app::App& app, const Filter& filter);
Filter parseFilter(const app::App& app, const core::RecordsList& list, std::string_view text,
                   std::string_view scope = {});

// Whether the change that is being told is that other records are on show, and nothing else.
bool isShowingFound(const app::App& app);
// Opens the bar over the records.
void mnuFilter_Click(app::App& app);
bool canFilter(const app::App& app);
// Shows all records and puts the bar away.
void closeFilterBar(app::App& app);
// The bar has the keys, or will have them.
bool takeFilterKeys(app::App& app);

// Other results take the place of the filter's.
void forgetFilter(app::App& app);
// Follow the changes: the one the results, which may be gone, and the other the records.
void followResultsForFilter(app::App& app);
void followRecordsForFilter(app::App& app);
// Makes the next key as quick as those after it.
void prepareFilter(app::App& app);

constexpr std::string_view filterSetting = "filter."; // and its name
// Filters that the user keeps for the open database, by name, in the order in which they were kept first.
std::vector<std::string> keptFilters(const app::App& app);
// Asks for the name; says so when it cannot be kept, as for a document that has no file yet.
void keepFilter(app::App& app);
void useKeptFilter(app::App& app, std::string_view name);
void removeKeptFilter(app::App& app, std::string_view name);

} // namespace search
