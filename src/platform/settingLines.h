#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// One line of a file of settings. A line that names no setting (a comment, a section's head, anything else)
// has no key and is kept as it stands.
struct SettingLine {
    std::string text;
    std::string section;
    std::string key;
    std::string value;
};

std::vector<SettingLine> parseSettings(std::string_view text);
// A name (of a section or a key) or a value as the file holds it, on one line.
std::string escapedSetting(std::string_view text, bool isKey);
// Puts the text in the file's place in one step; False when it cannot be done, and the old file stands.
bool writeSettings(const std::filesystem::path& file, const std::string& text);

} // namespace platform
