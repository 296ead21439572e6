#pragma once

#include "core/layoutObjects.h"

#include <string>
#include <string_view>

namespace file {

// Reads one line of the layout block into the next free element of its family. False for a line of
// a word that is not known, which is skipped. Raises for a line whose fields are missing or no
// numbers.
bool readLayoutLine(std::string_view line, core::LayoutObjects& layout);

// Appends the lines of all objects: family by family, within a family in Index order.
void writeLayoutLines(std::string& out, const core::LayoutObjects& layout, std::string_view lineEnd);

} // namespace file
