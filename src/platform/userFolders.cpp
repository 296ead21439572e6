#include "platform/userFolders.h"

#include <cstdlib>
#include <sys/stat.h>

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

bool makePrivateFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return true;
    const fs::path above = folder.parent_path();
    if (above.empty() || above == folder || !makePrivateFolder(above)) return false;
    return ::mkdir(folder.c_str(), 0700) == 0 || fs::is_directory(folder, error);
}

} // namespace platform
