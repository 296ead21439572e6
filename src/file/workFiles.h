#pragma once

#include <filesystem>
#include <string_view>

namespace file {

[[nodiscard]] bool fileExists(const std::filesystem::path& path);

// Writes a file of the work folder. Raises diskFull, pathAccess, fileNotFound (no such folder), deviceIO.
void writeWorkFile(const std::filesystem::path& path, std::string_view bytes);

// Makes the folder and those above it that are missing, for this user alone (0700). Answers 0 when it is
// there afterwards, or what the system says.
[[nodiscard]] int makePrivateFolder(const std::filesystem::path& folder);

} // namespace file
