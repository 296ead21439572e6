#pragma once

#include <filesystem>
#include <string_view>

namespace file {

[[nodiscard]] bool fileExists(const std::filesystem::path& path);

// Writes a file of the work folder. Raises diskFull, pathAccess, fileNotFound (no such folder), deviceIO.
void writeWorkFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace file
