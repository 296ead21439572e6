#pragma once

#include "shell/commands.h"

namespace shell {

// A menu that an item of another one opens. The item is a command under that key, and so are its own items.
struct Submenu {
    std::string_view key;
    std::vector<std::string_view> items; // command keys; "-" is a separator
    bool isChoice = false;               // one of the items is the chosen one
    void (*beforeShow)(app::App&) = nullptr;
};

std::span<const Submenu> submenus();
const Submenu* findSubmenu(std::string_view key); // nullptr when the key is no submenu's

// The commands of all submenus, and the items that open them.
std::vector<Command> submenuCommands();

} // namespace shell
