#pragma once

#include "app/app.h"

#include <functional>
#include <string>

namespace shell {

// The desktop's own list of what was used lately, for front ends that have one: who keeps it, given the path
// of each file that was opened or stored. It raises nothing.
struct RecentlyUsed {
    std::function<void(const std::string& path)> note;
};
inline RecentlyUsed& recentlyUsed(const app::App& app) {
    return app.rooms.of<RecentlyUsed>();
}

// The database that was used last: what the last run had open, or the first of the File menu. Empty when
// there is none.
std::string lastFile(const app::App& app);

} // namespace shell
