#pragma once

#include "app/app.h"

#include <functional>

namespace print {

// Asks the printer its name. Without a printer a message says so, and the command that asked stops.
bool hasPrinter(app::App& app);

// Runs a part of a print command. Whatever goes wrong in it ends in the message of a missing printer; it is
// wanted so. False then.
bool underPrinterTrap(app::App& app, const std::function<void()>& part);

} // namespace print
