#pragma once

#include "app/app.h"

namespace entry {

// The layout page's sheet and the record that it shows.
struct Sheet {
    // The list that the record was read from, and its key in LV. Empty when the sheet shows none, or a new
    // one that is not stored yet.
    const core::RecordsList* shownList = nullptr;
    std::string shownKey;
    bool bFieldChanged = false; // the next change of a field is a deletion: no date mask
};
inline Sheet& sheet(const app::App& app) {
    return app.rooms.of<Sheet>();
}

// The record of LV behind the row that commands work on. Search results are copies: of records by their
// keys, of invoices by their texts. nullptr when there is none.
core::Item* recordOfRow(app::App& app);

// The record that the sheet may be stored into and that its buttons mean: the one behind the row, and that
// only while the page is in front and what the sheet shows was read from this very record.
core::Item* recordOnSheet(app::App& app);

// The sheet shows the record of the row, or none, from now on.
void bindSheet(app::App& app);
void unbindSheet(app::App& app);

} // namespace entry
