#pragma once

#include <string>
#include <string_view>

namespace search {

// The text as a filter compares it: letters in upper case and without their accents ("é" is "E", "ß" "SS"),
// curved quotes and dashes as the keyboard has them, whatever does not print as a blank. So no folded text
// has a byte below the blank. UTF-8, never longer than the text. The second appends.
std::string folded(std::string_view text);
void appendFolded(std::string& out, std::string_view text);

} // namespace search
