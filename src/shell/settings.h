#pragma once

#include "app/app.h"

namespace shell {

// The user's settings, read at the start and written at the end of the program.
void readSettings(app::App& app);
void writeSettings(app::App& app);

} // namespace shell
