#pragma once

#include "app/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace shell {

// The databases that were opened, made or saved last, each once, the latest first. The three of the File menu
// are a list of their own with an order of its own.
struct RecentFiles {
    static constexpr std::size_t most = 10;
    std::vector<std::string> paths;
    std::size_t kept = 0; // so many places of the settings hold one
};

// The item of the menu for each place, from 0: its caption is the path, or nothing.
std::string_view recentItem(std::size_t place);

// The open file is the latest.
void rememberRecentFile(app::App& app);
void clearRecentFiles(app::App& app);
// Whatever is not there any more is disabled. A share that does not answer keeps nobody waiting for long.
void checkRecentFiles(app::App& app);

void readRecentFiles(app::App& app);
void writeRecentFiles(app::App& app);

} // namespace shell
