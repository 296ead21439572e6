#pragma once

#include "app/app.h"

namespace app {

// What the layout page does for other subsystems; declared here and defined in layout/ and entry/, which
// build on them.

// Shows the current record on the layout page anew, when that page is in front. Whatever makes another record
// the current one, or changes it behind the page, calls it: the sheet and its record must not part.
void refreshShownRecord(App& app);

// Shows the current record of theListView in the layout's fields, and in its picture boxes.
void showRecord(App& app);

} // namespace app
