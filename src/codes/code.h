#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace codes {

// Bar codes and matrix codes, as pictures.
enum class Kind { QR, EAN13, EAN8, UPCA, Code128, DataMatrix };
inline constexpr std::array allKinds = {Kind::QR,   Kind::EAN13,   Kind::EAN8,
                                        Kind::UPCA, Kind::Code128, Kind::DataMatrix};

std::string_view kindName(Kind kind); // "EAN-13"
std::string_view kindWord(Kind kind); // as it is typed and kept: "ean13"
// By word or name, in any case.
std::optional<Kind> kindOf(std::string_view word);

// What the bars say for a text: an EAN or UPC has its check digit, and no blanks and hyphens. Raises
// RunTimeError, with the place and the reason in words, for a text that such a code cannot hold.
std::string encodedText(Kind kind, std::string_view text);

// A GIF in black and white with the quiet zone that the code asks for around it; no module is wider than
// another. Text is UTF-8. Raises as encodedText does, and where the text is too long.
std::string makeCode(Kind kind, std::string_view text);

// The entry of the picture in a database. The same code has the same name, so that records share it and
// another text never takes its place: "code-0123456789abcdef.gif".
std::string codeEntryName(Kind kind, std::string_view text);
bool isCodeEntryName(std::string_view name);

} // namespace codes
