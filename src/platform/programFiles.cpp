#include "platform/programFiles.h"

namespace platform {

namespace fs = std::filesystem;

// Looked for from the program upwards, so that the place of the installation need not be known when it is
// built: bin/ has share/ beside it, and so has the folder of a build.
std::optional<fs::path> programFile(std::string_view name) {
    constexpr int levels = 4;
    std::error_code error;
    fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    for (int i = 0; i < levels && folder.has_relative_path(); ++i, folder = folder.parent_path()) {
        fs::path file = folder / "share" / "ferrowick" / name;
        if (fs::exists(file, error)) return file;
    }
    return std::nullopt;
}

} // namespace platform
