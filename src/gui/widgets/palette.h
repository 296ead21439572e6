#pragma once

#include <QPalette>

namespace gui {

// From 1 to 21, as the web's accessibility guidelines count it; text needs 4.5.
double contrast(const QColor& text, const QColor& ground);
constexpr double leastContrast = 4.5;

// Light text on a dark ground.
bool isDark(const QPalette& palette);

// Dark colours for the whole program, whatever the desktop says.
void useDarkColours();
void useLightColours();

} // namespace gui
