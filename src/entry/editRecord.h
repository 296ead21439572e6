#pragma once

#include "app/app.h"
#include "calc/formulas.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace entry {

// What a set of entry boxes holds for one column.
struct BoxText {
    std::string Tag; // the column's name
    std::string Text;
};

// The cell that a record gets from an entry box.
std::string cellText(core::ColumnType type, std::string_view text);

// Raises overflow when there are fewer keys left than that.
void requireKeys(const core::Document& document, int records);

// Writes a record of a standard database: the selected one, or a new one. Calculation, totals, serial
// counters, status bar, slider and the row of the search results follow. The Totals row is left
// alone. Returns the record, or nullptr when nothing was written. The 32,768th key raises overflow,
// and the document is then as it was.
core::Item* EditRecord(app::App& app, bool bUpdate, const std::vector<BoxText>& theFields,
                       const std::vector<BoxText>& pictures = {});

// Writes many new records of a standard database, each as EditRecord does, and puts the list, its totals
// and the status bar in order once at the end. `fill` puts what the row, from 0, is to hold into the
// boxes, which keep what they held for the row before. Keys that would run out raise overflow before anything
// is written. Answers the records that could not be calculated, without a message; they are stored as well.
// What `fill` raises leaves none of them, and no key or serial number used up.
std::vector<calc::Uncalculated>
addRecords(app::App& app, int count, const std::function<void(int row, std::vector<BoxText>& boxes)>& fill);

// The row that a delete makes the current one: the next that stays, or at the end the last. nullptr when no
// record stays.
core::Item* nextThatStays(core::RecordsList& list, const core::Item& from,
                          const std::function<bool(const core::Item&)>& goes);

// Deletes the selected records. False when it stopped: the Totals row has the focus, the list is
// empty, or the user said no.
bool deleteRecords(app::App& app);

// Adds copies of a record, cells as they are, behind the others.
void duplicateRecord(app::App& app, core::Item& source, int copies);
// The Edit menu's command: asks how many copies.
void mnuDuplicate_Click(app::App& app);

} // namespace entry
