#pragma once

#include "app/app.h"

#include <functional>
#include <string>
#include <string_view>

namespace shell {

// The small commands of the menus that no subsystem owns.

// Opens the file of that path, however the user came to name it. Nobody asks about unsaved changes: it is
// wanted so.
void openNamedFile(app::App& app, const std::string& path);
// Opens the file that a recent-file entry names.
void openRecentFile(app::App& app, std::string_view key);

// The button "Totals" has been pressed or released.
void toggleSelectedTotals(app::App& app);
// The menu item presses the button.
void pressTotals(app::App& app);

// The button "Properties". The menu item goes to the dialog without asking for the lock: it is wanted so.
void showProperties(app::App& app);
void showDatabaseProperties(app::App& app);

// The button "Design" has been pressed or released.
void pressDesign(app::App& app);
void toggleCalcHighlight(app::App& app);

// The button "Delete": the selected records, where the records are on view.
void deleteRow(app::App& app);

void showAbout(app::App& app);

// Empty in a build that knows no home page.
std::function<void(app::App&)> visitHomepage();

} // namespace shell
