#include "cli/output.h"

#include "cli/session.h"
#include "core/text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <unistd.h>

namespace cli {

namespace {

constexpr std::size_t gap = 2; // blanks between two columns

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
}

} // namespace

void writeOut(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) throw Failure("standard output", std::strerror(errno));
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

void writeOutcome(std::string_view text) {
    try {
        writeOut(text);
    } catch (const Failure& failure) {
        std::cerr << "fwk: saved, but " << failure.what() << '\n';
    }
}

std::string printable(std::string_view text) {
    std::string line(text);
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (isControl(line[i])) line[i] = ' ';
        // The control characters beyond ASCII, U+0080 to U+009F, have two bytes.
        if (line[i] != '\xC2' || i + 1 >= line.size() || static_cast<unsigned char>(line[i + 1]) >= 0xA0)
            continue;
        line.replace(i, 2, " ");
    }
    return line;
}

TextTable::TextTable(const std::vector<Heading>& headings) {
    for (const Heading& heading : headings) {
        headings_.push_back(cellOf(heading.text));
        alignRight_.push_back(heading.alignRight);
        widths_.push_back(headings_.back().width);
    }
}

TextTable::Cell TextTable::cellOf(std::string_view text) {
    Cell cell{printable(text), 0};
    cell.width = core::length(cell.text);
    return cell;
}

void TextTable::row(const std::vector<std::string_view>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        cells_.push_back(cellOf(cells[i]));
        widths_[i] = std::max(widths_[i], cells_.back().width);
    }
    ++rows_;
}

void TextTable::appendRow(std::string& out, const Cell* cells) const {
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        const std::size_t padding = widths_[i] - cells[i].width;
        if (i > 0) out.append(gap, ' ');
        if (alignRight_[i]) out.append(padding, ' ');
        out.append(cells[i].text);
        if (!alignRight_[i]) out.append(padding, ' ');
    }
    while (!out.empty() && out.back() == ' ') out.pop_back();
    out.push_back('\n');
}

void TextTable::appendRule(std::string& out) const {
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        if (i > 0) out.append(gap, ' ');
        out.append(widths_[i], '-');
    }
    out.push_back('\n');
}

void TextTable::appendTo(std::string& out) const {
    appendRow(out, headings_.data());
    appendRule(out);
    for (std::size_t row = 0; row < rows_; ++row) {
        if (row == ruleAt_) appendRule(out);
        appendRow(out, cells_.data() + row * widths_.size());
    }
}

} // namespace cli
