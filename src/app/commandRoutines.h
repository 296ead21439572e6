#pragma once

#include "app/app.h"

#include <string_view>

namespace app {

// Presses a button of the main window's toolbar, for a form that has a button for the same command.
// Declared here and defined in shell/, which stands above the forms.
void Toolbar_ButtonClick(App& app, std::string_view key);

} // namespace app
