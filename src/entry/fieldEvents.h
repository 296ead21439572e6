#pragma once

#include "app/app.h"

#include <string_view>

namespace entry {

// Events of the layout's fields while records are browsed.

void layoutField_GotFocus(app::App& app, int index);
void layoutField_LostFocus(app::App& app, int index);

constexpr int backspaceKey = 8;
constexpr int enterKey = 13;

// Backspace is told ahead of the character: the date mask then leaves the next change alone.
void layoutField_KeyDown(app::App& app, int KeyCode);
// False when the character is not to reach the field. Numeric fields take digits and the point alone;
// even Backspace is dropped, and Delete is the way to erase. It is wanted so.
bool layoutField_KeyPress(app::App& app, int index, char32_t character);
// The user has changed the text. Returns where the caret is to stand, in characters, or -1 when it stays.
int layoutField_Change(app::App& app, int index, std::string_view text);

} // namespace entry
