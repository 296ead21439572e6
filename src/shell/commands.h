#pragma once

#include "app/app.h"

#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace shell {

// One command of the main window, for a toolbar button or a menu item.
struct Command {
    std::string_view key;     // "Save" for a button, "mnuSave" for a menu item
    std::string_view caption; // menu caption with its mnemonic; shown by core::tr(), as the tip is
    std::string_view tip;     // toolbar tip
    std::string_view icon;    // name in the icon family
    bool checkable = false;
    std::function<void(app::App&)> run; // empty: the subsystem is not there yet
    // Whether there is something to do it with, where the state of the controls does not tell.
    bool (*isReady)(const app::App&) = nullptr;
};

const Command& command(std::string_view key); // raises elementNotFound
bool hasCommand(std::string_view key);

// What a view asks: the command is built, it is ready, and the window's state allows it.
bool isCommandEnabled(const app::App& app, std::string_view key);

// Carries a command out, if it is enabled.
void runCommand(app::App& app, std::string_view key);

// The buttons of the main toolbar in their order; "-" is a separator.
std::span<const std::string_view> toolbarKeys();
// The entries of the drop-down menus of the buttons "Save" and "Print".
std::span<const std::string_view> buttonMenuKeys(std::string_view buttonKey);

struct Menu {
    std::string_view key;                // "mnuFile"
    std::string_view caption;            // "&File", shown by core::tr()
    std::vector<std::string_view> items; // command keys; "-" is a separator
};
std::span<const Menu> menuBar();

} // namespace shell
