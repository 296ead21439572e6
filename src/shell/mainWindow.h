#pragma once

#include "app/app.h"
#include "app/windowState.h"

#include <functional>
#include <string>
#include <string_view>

namespace shell {

// Starts the program: settings, the disclaimer on the first start, and the file that the command
// line names or the last run remembered. `Command` is one path with a quote at each end, or empty;
// whatever stands first and last is taken for the quotes. `show` puts the window on the screen.
void Form_Load(app::App& app, std::string_view Command, const std::function<void()>& show);

// The command line for a path that a desktop or a shell passes, with or without quotes of its own.
std::string commandLineFor(std::string_view path);

// Ends the program, whichever way the window is closed: keeps the settings and offers to save.
// It cannot be cancelled.
void Form_QueryUnload(app::App& app);

// The system may end the program soon: keeps the unsaved work for the next start, and the settings. Asks
// nothing, and takes less than a second.
void keepForTheEnd(app::App& app);
// It ends it now.
void endAtOnce(app::App& app);

// A tab has been chosen.
void SSTab1_Click(app::App& app, int tab);

// The option buttons over the invoice list: 1 the invoices, 0 the items.
void viewOpt_Click(app::App& app, int index);

} // namespace shell
