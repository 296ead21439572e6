#pragma once

#include "app/app.h"

#include <span>
#include <string_view>

namespace layout {

struct ToolbarButton {
    std::string_view key; // "-" is a separator
    std::string_view tip;
    std::string_view icon;
    bool checkable = false;
    bool hasMenu = false; // a menu beside the click; of Field and Picture in place of it
};

// layoutToolbar, in its order. The state of a button stands in MainFrm's controls as "layoutToolbar.Key".
std::span<const ToolbarButton> toolbarButtons();

// False, too, for a button whose subsystem is not there yet.
bool isButtonEnabled(const app::App& app, std::string_view key);

void layoutToolbar_ButtonClick(app::App& app, std::string_view key);
// "AutoLabel", or a column's name.
void layoutToolbar_ButtonMenuClick(app::App& app, std::string_view key);

} // namespace layout
