#include "file/lineReader.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <algorithm>

namespace file {

namespace {

constexpr std::string_view doubledEnd = "\r\r\n";

}

LineReader::LineReader(std::string_view text)
    : text_(text), lineEnd_(text.find('\r') == std::string_view::npos ? '\n' : '\r'),
      doubledEnds_(lineEnd_ == '\r' && text.substr(text.find('\r')).starts_with(doubledEnd)) {}

std::size_t LineReader::endOfLine(std::size_t from) const {
    return std::min(text_.find(lineEnd_, from), text_.size());
}

std::size_t LineReader::startAfter(std::size_t end) const {
    if (end >= text_.size()) return text_.size();
    if (doubledEnds_ && text_.substr(end).starts_with(doubledEnd)) return end + doubledEnd.size();
    if (lineEnd_ == '\r' && end + 1 < text_.size() && text_[end + 1] == '\n') return end + 2;
    return end + 1;
}

std::string_view LineReader::next() {
    if (position_ >= text_.size())
        core::raise(core::errors::badFileFormat, core::tr("the text ends too early"));
    const std::size_t end = endOfLine(position_);
    const std::string_view line = text_.substr(position_, end - position_);
    position_ = startAfter(end);
    ++number_;
    return line;
}

std::optional<std::string_view> LineReader::peek() const {
    if (position_ >= text_.size()) return std::nullopt;
    return text_.substr(position_, endOfLine(position_) - position_);
}

std::optional<std::string_view> LineReader::nextFilled() {
    while (position_ < text_.size()) {
        const std::string_view line = next();
        // A line feed by itself is a line of nothing where lines end in a carriage return.
        if (line.find_first_not_of("\r\n") != std::string_view::npos) return line;
    }
    return std::nullopt;
}

bool LineReader::atEnd() const {
    return text_.find_first_not_of("\r\n", position_) == std::string_view::npos;
}

std::size_t LineReader::remainingLines() const {
    const std::string_view rest = text_.substr(position_);
    return static_cast<std::size_t>(std::ranges::count(rest, lineEnd_)) + 1;
}

} // namespace file
