#include "platform/settingsFile.h"

#include "core/runTimeError.h"
#include "file/atomicFile.h"
#include "file/fileHandle.h"
#include "platform/userFolders.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace platform {

namespace {

constexpr std::size_t maxBytes = 1 << 20;
constexpr std::string_view blanks = " \t";
constexpr std::string_view takenLiterally = "=[];#\\"; // after a backslash

// One line of the file. A line that names no setting (a comment, a section's head, anything else) has
// no key and is kept as it stands.
struct Line {
    std::string text;
    std::string section;
    std::string key;
    std::string value;
};

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

std::string escaped(std::string_view text, bool isKey) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        const bool outer = i == 0 || i + 1 == text.size();
        if (letter == '\n')
            result += "\\n";
        else if (letter == '\r')
            result += "\\r";
        else if (letter == '\0')
            result += "\\0";
        else if (letter == ' ' && outer)
            result += "\\s";
        else if (letter == '\t' && outer)
            result += "\\t";
        else if (letter == '\\' || (isKey && takenLiterally.find(letter) != std::string_view::npos))
            (result += '\\') += letter;
        else
            result += letter;
    }
    return result;
}

// A backslash before anything that is never escaped stands for itself, so a path that somebody typed
// into the file by hand survives.
std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        const char letter = text[++i];
        if (letter == 'n')
            result += '\n';
        else if (letter == 'r')
            result += '\r';
        else if (letter == '0')
            result += '\0';
        else if (letter == 's')
            result += ' ';
        else if (letter == 't')
            result += '\t';
        else if (takenLiterally.find(letter) != std::string_view::npos)
            result += letter;
        else
            (result += '\\') += letter;
    }
    return result;
}

std::size_t findSeparator(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\')
            ++i;
        else if (text[i] == '=')
            return i;
    }
    return std::string_view::npos;
}

Line parseLine(std::string_view text, std::string& section) {
    Line line{std::string(text), section, {}, {}};
    const std::string content = trimmed(text);
    if (content.empty() || content[0] == '#' || content[0] == ';') return line;
    if (content[0] == '[') {
        if (content.back() == ']') line.section = section = unescaped(content.substr(1, content.size() - 2));
        return line;
    }
    const std::size_t separator = findSeparator(content);
    if (separator == std::string_view::npos) return line;
    line.key = unescaped(trimmed(content.substr(0, separator)));
    line.value = unescaped(trimmed(content.substr(separator + 1)));
    return line;
}

std::vector<Line> parse(std::string_view text) {
    std::vector<Line> lines;
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    std::string section;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(parseLine(line, section));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

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
    return parse(*text);
}

// Changes the setting where it stands, or adds it at the end of its section.
void put(std::vector<Line>& lines, const std::string& section, const std::string& key,
         const std::string& value) {
    const Line fresh{escaped(key, true) + "=" + escaped(value, false), section, key, value};
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
        after = lines.insert(lines.end(), Line{"[" + escaped(section, true) + "]", section, {}, {}}) + 1;
    lines.insert(after, fresh);
}

bool write(const std::filesystem::path& file, const std::string& text) {
    if (file.empty() || !makePrivateFolder(file.parent_path())) return false;
    try {
        file::AtomicFile result(file);
        if (file::writeAt(result.fd(), text.data(), text.size(), 0) != 0) return false;
        result.commit();
        return true;
    } catch (const core::RunTimeError&) {
        return false;
    }
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
    if (!write(file, text)) return false;
    for (auto& [name, value] : saved) read.insert_or_assign(name, std::move(value));
    saved.clear();
    return true;
}

} // namespace platform
