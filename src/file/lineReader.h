#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace file {

// Walks the lines of a text. A line ends at CR LF or CR; a text without any CR, as other systems'
// tools write it, is taken to end its lines with LF. So a line feed that came into a cell by itself
// stays part of the cell. Where the first line ends in CR CR LF, as in a text that was converted once too
// often, the empty line that this makes of every line's end is passed over.
class LineReader {
public:
    explicit LineReader(std::string_view text);

    // The next line without its end. Raises badFileFormat when there is none.
    std::string_view next();
    std::optional<std::string_view> peek() const;
    // The next line that is not empty, or nothing at the end.
    std::optional<std::string_view> nextFilled();
    // Nothing but empty lines is left.
    bool atEnd() const;

    int number() const { return number_; } // of the line read last, from 1
    std::size_t remainingLines() const;    // an estimate from above
    std::string_view text() const { return text_; }
    std::size_t offsetOf(std::string_view piece) const {
        return static_cast<std::size_t>(piece.data() - text_.data());
    }

private:
    std::size_t endOfLine(std::size_t from) const;
    std::size_t startAfter(std::size_t end) const;

    std::string_view text_;
    char lineEnd_;
    bool doubledEnds_;
    std::size_t position_ = 0;
    int number_ = 0;
};

} // namespace file
