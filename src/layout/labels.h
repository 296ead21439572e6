#pragma once

#include "app/app.h"

#include <string_view>

namespace layout {

// The back colour that shows a selected label: the system's, which the view knows.
constexpr std::int32_t selectedLabelColor = static_cast<std::int32_t>(0x80000000);

// A label is locked until it is opened by a double click in design mode.
void tLabel_DblClick(app::App& app, int index);
void tLabel_LostFocus(app::App& app, int index);
void tLabel_Change(core::Document& document, int index, std::string_view text);
// False when the key is not to reach the label: a line break.
bool tLabel_KeyPress(app::App& app, int KeyAscii);

// Asks for the link of the selected label.
void setLabelLink(app::App& app);

} // namespace layout
