#pragma once

#include "app/appearance.h"

namespace gui {

// Colours the whole program at once. What the desktop says counts for Theme::Desktop alone; Qt follows it
// when it changes.
void showTheme(app::Theme theme);

} // namespace gui
