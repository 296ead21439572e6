#pragma once

#include <cstddef>
#include <string_view>

namespace core {

// A section of the file begins with its name in brackets, filled up with blanks to this length.
constexpr std::size_t markerSize = 16;

// Whether a line has the form of a section's, known or not.
constexpr bool beginsWithMarker(std::string_view line) {
    return line.size() >= markerSize && line.front() == '[' && line[markerSize - 1] == ']';
}

} // namespace core
