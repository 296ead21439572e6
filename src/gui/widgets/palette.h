#pragma once

#include <QPalette>

namespace gui {

// Light text on a dark ground.
bool isDark(const QPalette& palette);

// Dark colours for the whole program, whatever the desktop says.
void useDarkColours();
void useLightColours();

} // namespace gui
