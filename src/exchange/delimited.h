#pragma once

#include "exchange/sheetCollector.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

enum class Encoding : std::uint8_t { Utf8, Utf16Le, Utf16Be, Windows1252 };

// How the cells of a text file are told apart.
struct Delimiters {
    char separator = ',';
    char quote = '"'; // 0 for none
};

// By the mark at its head, else by what stands in it.
Encoding recognizedEncoding(std::string_view bytes);
// The text in UTF-8, without the mark. What is not well formed becomes U+FFFD. Raises TableError for bytes
// that are no text.
std::string decodedText(std::string_view bytes, Encoding encoding);

// The separator (comma, semicolon, tab, bar) that divides the first lines most evenly, and the quotes that
// cells begin with.
Delimiters recognizedDelimiters(std::string_view text);
// The cells as texts, blank lines as rows without a cell. Line ends within quotes are line feeds; a quote
// within a cell is a character like any other, and so is what stands behind a closing one. Raises TableError
// for a quote that is not closed and for what would take unreasonable memory, and cancelled.
std::vector<SheetRow> readDelimited(std::string_view text, Delimiters delimiters,
                                    const Progress& progress = {});

} // namespace exchange
