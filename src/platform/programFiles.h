#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace platform {

// A file or folder that the program comes with ("help/index.html", "samples"). Nothing when it is not there,
// as when only the program itself was copied.
std::optional<std::filesystem::path> programFile(std::string_view name);

} // namespace platform
