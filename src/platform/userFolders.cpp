#include "platform/userFolders.h"

#include "file/workFiles.h"

#include <cstdlib>

namespace platform {

namespace fs = std::filesystem;

namespace {
constexpr const char* programFolder = "ferrowick";
}

fs::path userFolder(const char* variable, const char* belowHome) {
    // A relative path in the variable is to be ignored, as the desktop standard has it.
    if (const char* named = std::getenv(variable); named && *named == '/')
        return fs::path(named) / programFolder;
    if (const char* home = std::getenv("HOME"); home && *home == '/')
        return fs::path(home) / belowHome / programFolder;
    return {};
}

fs::path versionsFolder() {
    const fs::path data = userFolder("XDG_DATA_HOME", ".local/share");
    return data.empty() ? data : data / "versions";
}

bool makePrivateFolder(const fs::path& folder) {
    return file::makePrivateFolder(folder) == 0;
}

} // namespace platform
