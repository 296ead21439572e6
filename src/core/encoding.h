#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace core {

// Between the bytes of a file and the UTF-8 text in memory.

bool isAscii(std::string_view bytes);
bool hasUtf8Mark(std::string_view bytes);

// Every byte has a character, so the way back is exact: the five bytes without one in Windows-1252
// stand for the control characters of the same code.
std::string fromWindows1252(std::string_view bytes);
// Nothing when a character does not fit.
std::optional<std::string> toWindows1252(std::string_view text);
// The same in the place of the text. False when a character does not fit; the text is as it was then.
bool intoWindows1252(std::string& text);

// Bytes that are no UTF-8 become U+FFFD, so that all text in memory is well formed.
std::string sanitizeUtf8(std::string_view bytes);

} // namespace core
