#include "platform/settingsFile.h"

#include "core/runTimeError.h"
#include "file/fileHandle.h"
#include "platform/settingLines.h"
#include "platform/userFolders.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace platform {

namespace {

constexpr std::size_t maxBytes = 1 << 20;

using Line = SettingLine;

// A file that is there and cannot be read raises the reason.
std::vector<Line> parseFile(const std::filesystem::path& file) {
    std::optional<std::string> text;
    try {
        text = file::readSmallFile(file, maxBytes);
    } catch (const core::RunTimeError& error) {
        if (error.number != core::errors::fileNotFound) throw;
    }
    // A file with a zero byte is none of ours, or was torn by a failing disk.
    if (!text || text->find('\0') != std::string::npos) return {};
    return parseSettings(*text);
}

// Changes the setting where it stands, or adds it at the end of its section.
void put(std::vector<Line>& lines, const std::string& section, const std::string& key,
         const std::string& value) {
    const Line fresh{escapedSetting(key, true) + "=" + escapedSetting(value, false), section, key, value};
    auto after = lines.begin();
    bool known = section.empty(); // what stands before the first head is in no section
    for (auto line = lines.begin(); line != lines.end(); ++line) {
        if (line->section != section) continue;
        known = true;
        if (line->key == key) {
            *line = fresh;
            return;
        }
        if (!line->text.empty()) after = line + 1;
    }
    if (!known)
        after =
            lines.insert(lines.end(), Line{"[" + escapedSetting(section, true) + "]", section, {}, {}}) + 1;
    lines.insert(after, fresh);
}

} // namespace

std::filesystem::path SettingsFile::defaultFile() {
    const std::filesystem::path folder = userFolder("XDG_CONFIG_HOME", ".config");
    return folder.empty() ? folder : folder / "ferrowick.conf";
}

SettingsFile::SettingsFile(std::filesystem::path path) : file(std::move(path)) {
    try {
        // Of two lines for one setting the first counts, here and when it is changed.
        for (Line& line : parseFile(file))
            if (!line.key.empty()) read.try_emplace({line.section, line.key}, std::move(line.value));
    } catch (const core::RunTimeError&) {
        // The defaults have to do for this time.
    }
}

std::string SettingsFile::GetSetting(std::string_view section, std::string_view key,
                                     std::string_view byDefault) const {
    const Name name(section, key);
    if (const auto found = saved.find(name); found != saved.end()) return found->second;
    if (const auto found = read.find(name); found != read.end()) return found->second;
    return std::string(byDefault);
}

void SettingsFile::SaveSetting(std::string_view section, std::string_view key, std::string_view value) {
    saved.insert_or_assign(Name(section, key), std::string(value));
}

bool SettingsFile::flush() {
    if (saved.empty()) return true;
    std::vector<Line> lines;
    try {
        lines = parseFile(file);
    } catch (const core::RunTimeError&) {
        return false; // what cannot be read now would be lost
    }
    for (const auto& [name, value] : saved) put(lines, name.first, name.second, value);
    std::string text;
    for (const Line& line : lines) text += line.text + "\n";
    if (!writeSettings(file, text)) return false;
    for (auto& [name, value] : saved) read.insert_or_assign(name, std::move(value));
    saved.clear();
    return true;
}

} // namespace platform
