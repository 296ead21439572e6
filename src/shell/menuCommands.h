#pragma once

#include "app/app.h"

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
// The Tools menu's way to the expressions.
void showExpressionEditor(app::App& app);

// The button "Properties". The menu item goes to the dialog without asking for the lock: it is wanted so.
void showProperties(app::App& app);
void showDatabaseProperties(app::App& app);

// The button "Design" has been pressed or released.
void pressDesign(app::App& app);
void toggleCalcHighlight(app::App& app);

// "Make Code" of a picture box's own menu, for its column.
// What is typed on the page stays there.
void makeCode(app::App& app);
void makeCodeOfBox(app::App& app);

// Opens the help pages that come with the program; the user is told when they are not there.
void openHelp(app::App& app);
void showAbout(app::App& app);

// The home page, or the page about the program in its help where it has none.
void visitHomepage(app::App& app);

} // namespace shell
