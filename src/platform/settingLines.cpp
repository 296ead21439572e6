#include "platform/settingLines.h"

#include "core/runTimeError.h"
#include "file/atomicFile.h"
#include "file/fileHandle.h"
#include "platform/userFolders.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view takenLiterally = "=[];#\\"; // after a backslash

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
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

SettingLine parseLine(std::string_view text, std::string& section) {
    SettingLine line{std::string(text), section, {}, {}};
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

} // namespace

std::string escapedSetting(std::string_view text, bool isKey) {
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

std::vector<SettingLine> parseSettings(std::string_view text) {
    std::vector<SettingLine> lines;
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

bool writeSettings(const std::filesystem::path& file, const std::string& text) {
    if (file.empty() || !makePrivateFolder(file.parent_path())) return false;
    try {
        file::replaceFile(file, text);
        return true;
    } catch (const core::RunTimeError&) {
        return false;
    }
}

} // namespace platform
