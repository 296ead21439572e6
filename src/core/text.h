#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace core {

// Text is UTF-8. Lengths and cuts count characters; a stray byte counts as one. Nothing here depends
// on the locale.

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Strip blanks (U+0020) at both ends, in front, behind.
std::string_view trim(std::string_view text);
std::string_view ltrim(std::string_view text);
std::string_view rtrim(std::string_view text);

// Upper case, character by character: Latin, Greek and Cyrillic letters that have one of their own.
// A text keeps its length in bytes. upperInto takes the place of what out held; a loop that hands over
// the same string again and again allocates once.
std::string upper(std::string_view text);
void upperInto(std::string& out, std::string_view text);
void appendUpper(std::string& out, std::string_view text);

// As the upper-cased texts compare: by code points. Below, above or equal to 0.
int compareNoCase(std::string_view a, std::string_view b);
bool equalsNoCase(std::string_view a, std::string_view b);

// The pieces between separators: n separators give n + 1 pieces.
std::vector<std::string_view> split(std::string_view text, char separator);

std::size_t length(std::string_view text);
std::string_view left(std::string_view text, std::size_t characters);
std::string_view right(std::string_view text, std::size_t characters);
// From a character counted from 1; empty beyond the end.
std::string_view mid(std::string_view text, std::size_t start, std::size_t characters);

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

// How many bytes at the head are ASCII.
std::size_t asciiLength(std::string_view text);
// The code point at a byte offset, which moves on behind it. A stray byte stands for itself.
char32_t nextCodePoint(std::string_view text, std::size_t& offset);
void appendCodePoint(std::string& out, char32_t codePoint);

} // namespace core
