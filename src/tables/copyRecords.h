#pragma once

#include "app/app.h"

namespace tables {

// Edit > Copy, Copy With Headings: put the selected rows of the list on view on the clipboard, their cells in
// the order on screen, as a text with tabs and as a table of HTML. Without a selected row the clipboard
// stays.
void mnuCopy_Click(app::App& app);
void mnuCopyHeadings_Click(app::App& app);

} // namespace tables
