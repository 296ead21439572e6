#pragma once

#include "app/app.h"

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

// Writes a record of a standard database: the selected one, or a new one. Calculation, totals, serial
// counters, status bar, slider and the row of the search results follow. The Totals row is left
// alone. Returns the record, or nullptr when nothing was written. The 32,768th key raises overflow,
// and the document is then as it was.
core::Item* EditRecord(app::App& app, bool bUpdate, const std::vector<BoxText>& theFields,
                       const std::vector<BoxText>& pictures = {});

// Deletes the selected records. False when it stopped: the Totals row has the focus, the list is
// empty, or the user said no.
bool deleteRecords(app::App& app);

// Adds copies of a record, cells as they are, behind the others.
void duplicateRecord(app::App& app, core::Item& source, int copies);
// The Edit menu's command: asks how many copies.
void mnuDuplicate_Click(app::App& app);

} // namespace entry
