#include "platform/fileSettings.h"

#include "core/runTimeError.h"
#include "file/fileHandle.h"
#include "platform/settingLines.h"
#include "platform/userFolders.h"

#include <algorithm>
#include <optional>

namespace platform {

namespace {

constexpr std::size_t maxFileBytes = 4 << 20;

std::string pathOf(std::string_view database) {
    return std::filesystem::path(database).lexically_normal().string();
}

} // namespace

std::filesystem::path FileSettings::defaultFile() {
    const std::filesystem::path folder = userFolder("XDG_CONFIG_HOME", ".config");
    return folder.empty() ? folder : folder / "ferrowick-files.conf";
}

FileSettings::Database* FileSettings::find(std::string_view path) const {
    const auto found =
        std::ranges::find_if(databases_, [&](const Database& database) { return database.path == path; });
    return found == databases_.end() ? nullptr : &*found;
}

bool FileSettings::read() const {
    isRead_ = true;
    if (file_.empty()) return true;
    std::optional<std::string> text;
    try {
        text = file::readSmallFile(file_, maxFileBytes);
    } catch (const core::RunTimeError& error) {
        return error.number == core::errors::fileNotFound;
    }
    if (!text || text->find('\0') != std::string::npos) return true;
    databases_.clear();
    for (SettingLine& line : parseSettings(*text)) {
        if (line.section.empty() || line.key.empty() || line.value.size() > maxText) continue;
        Database* database = find(line.section);
        if (database == nullptr) {
            if (databases_.size() == maxDatabases) continue;
            database = &databases_.emplace_back();
            database->path = line.section;
        }
        database->texts.emplace_back(std::move(line.key), std::move(line.value));
    }
    return true;
}

void FileSettings::write() const {
    if (file_.empty()) return;
    std::vector<std::string> sections;
    std::size_t bytes = 0;
    for (const Database& database : databases_) {
        std::string section = "[";
        section.append(escapedSetting(database.path, true)).append("]\n");
        for (const auto& [name, value] : database.texts)
            section.append(escapedSetting(name, true))
                .append("=")
                .append(escapedSetting(value, false))
                .append("\n");
        bytes += section.size();
        sections.push_back(std::move(section));
    }
    std::string text;
    for (const std::string& section : sections) {
        if (bytes <= maxFileBytes) text.append(section);
        bytes -= bytes > maxFileBytes ? section.size() : 0; // the first ones were written longest ago
    }
    writeSettings(file_, text);
}

std::string FileSettings::get(std::string_view database, std::string_view name) const {
    if (!isRead_) read();
    if (const Database* known = find(pathOf(database)))
        for (const auto& [known_name, text] : known->texts)
            if (known_name == name) return text;
    return {};
}

bool FileSettings::set(std::string_view database, std::string_view name, std::string_view text) {
    if (database.empty() || name.empty() || name.size() > maxText || text.size() > maxText) return false;
    const bool mayWrite = read(); // anew, since another window may have written meanwhile
    const std::string path = pathOf(database);
    Database changed{path, {}};
    if (Database* known = find(path)) {
        changed = std::move(*known);
        databases_.erase(databases_.begin() + (known - databases_.data()));
    }
    const auto place =
        std::ranges::find_if(changed.texts, [&](const auto& entry) { return entry.first == name; });
    if (text.empty()) {
        if (place != changed.texts.end()) changed.texts.erase(place);
    } else if (place != changed.texts.end()) {
        place->second = text;
    } else {
        changed.texts.emplace_back(name, text);
    }
    if (!changed.texts.empty()) databases_.push_back(std::move(changed));
    if (databases_.size() > maxDatabases) databases_.erase(databases_.begin());
    if (mayWrite) write(); // or what cannot be read now would be lost
    return true;
}

std::vector<std::string> FileSettings::names(std::string_view database) const {
    if (!isRead_) read();
    std::vector<std::string> names;
    if (const Database* known = find(pathOf(database)))
        for (const auto& entry : known->texts) names.push_back(entry.first);
    return names;
}

} // namespace platform
