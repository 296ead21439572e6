#pragma once

#include "app/app.h"

namespace entry {

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
