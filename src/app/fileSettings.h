#pragma once

#include "app/app.h"
#include "platform/fileSettings.h"

namespace app {

// What the user has set for the open database, and the database does not hold (colours, named filters). Use
// names with the room in front, as "filter.Late orders" or "colours". Texts of up to 4096 bytes; a document
// without a path has no settings. Until a front end names a file by keepFileSettings, they hold for this run.
std::string fileSetting(const App& app, std::string_view name);
// Empty removes it. False when it is not set: no path, or too long.
bool setFileSetting(App& app, std::string_view name, std::string_view text);
// The names that begin so, without that beginning, in the order in which they were set first.
std::vector<std::string> fileSettingNames(const App& app, std::string_view beginning);

// The open one gets those of another file whose names begin so.
void copyFileSettings(App& app, std::string_view file, std::string_view beginning);

void keepFileSettings(App& app, std::filesystem::path file);

} // namespace app
