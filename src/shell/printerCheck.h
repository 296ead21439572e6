#pragma once

#include "app/app.h"

namespace shell {

// Asks the printer its name. Without a printer a message says so, and the command that asked stops.
bool hasPrinter(app::App& app);

} // namespace shell
