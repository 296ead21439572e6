#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace platform {

// The user's settings: a text file of sections and keys. What this program does not know in it stays.
// A file that is absent or damaged counts as empty, so every setting has its default.
class SettingsFile {
public:
    // The user's configuration file for the program; empty when the user has no home.
    static std::filesystem::path defaultFile();

    explicit SettingsFile(std::filesystem::path file = defaultFile());

    [[nodiscard]] std::string GetSetting(std::string_view section, std::string_view key,
                                         std::string_view byDefault = {}) const;
    // Kept in memory until flush().
    void SaveSetting(std::string_view section, std::string_view key, std::string_view value);
    // Writes all that was saved since the last flush, in one step, over what the file holds by now, so
    // two instances lose only what both have changed. False when it cannot be written; nothing is told
    // to the user then, and the values stay for this run.
    bool flush();

private:
    using Name = std::pair<std::string, std::string>; // section, key

    std::filesystem::path file;
    std::map<Name, std::string> read;
    std::map<Name, std::string> saved;
};

} // namespace platform
