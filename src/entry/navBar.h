#pragma once

#include "app/app.h"

#include <span>
#include <string_view>

namespace entry {

// layoutNavBar and the record slider of the layout page.

struct NavButton {
    std::string_view key;
    std::string_view tip;
    std::string_view icon;
};
std::span<const NavButton> navButtons(); // in their order
bool isNavButtonEnabled(const app::App& app, std::string_view key);

// A record that is being typed and is not stored yet is on the sheet.
bool isSheetNew(const app::App& app);

void layoutNavBar_ButtonClick(app::App& app, std::string_view key);
void Slider1_Change(app::App& app, int value);

} // namespace entry
