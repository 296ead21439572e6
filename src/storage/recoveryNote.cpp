#include "storage/recoveryNote.h"

#include <charconv>

namespace storage {

namespace {

std::string onOneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\\')
            line += "\\\\";
        else if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else
            line += c;
    }
    return line;
}

std::string asItWas(std::string_view line) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            text += line[i];
            continue;
        }
        const char c = line[++i];
        text += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
    }
    return text;
}

std::string_view takeWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

template <typename Number>
Number takeNumber(std::string_view& line) {
    const std::string_view word = takeWord(line);
    Number number = 0;
    std::from_chars(word.data(), word.data() + word.size(), number);
    return number;
}

void readLine(RecoveryNote& note, std::string_view line) {
    const std::string_view key = takeWord(line);
    if (key == "file") note.file = asItWas(line);
    if (key == "modified") note.modified = takeNumber<std::int64_t>(line);
    if (key == "size") note.size = takeNumber<std::int64_t>(line);
    if (key == "time") note.time = takeNumber<std::int64_t>(line);
    if (key == "records") note.records = takeNumber<int>(line);
    if (key == "process") note.process = takeNumber<long long>(line);
    if (key == "typed") {
        note.isTyped = true;
        note.row = takeNumber<int>(line);
    }
    if (key == "row") note.row = takeNumber<int>(line);
    if (key == "column") note.boxes.emplace_back(asItWas(line), std::string());
    if (key == "box" && !note.boxes.empty()) note.boxes.back().second = asItWas(line);
    if (key == "field") {
        const int index = takeNumber<int>(line);
        note.fields.emplace_back(index, asItWas(line));
    }
}

} // namespace

std::string noteText(const RecoveryNote& note) {
    std::string text = "file " + onOneLine(note.file) + "\n";
    const auto line = [&](const char* key, long long number) {
        text += std::string(key) + " " + std::to_string(number) + "\n";
    };
    line("modified", note.modified);
    line("size", note.size);
    line("time", note.time);
    line("records", note.records);
    line("process", note.process);
    if (!note.boxes.empty()) line("row", note.row);
    for (const auto& [column, typed] : note.boxes)
        text += "column " + onOneLine(column) + "\nbox " + onOneLine(typed) + "\n";
    if (!note.isTyped) return text;
    line("typed", note.row);
    for (const auto& [index, typed] : note.fields)
        text += "field " + std::to_string(index) + " " + onOneLine(typed) + "\n";
    return text;
}

RecoveryNote readNote(std::string_view text) {
    RecoveryNote note;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        readLine(note, text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return note;
}

} // namespace storage
