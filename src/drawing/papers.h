#pragma once

#include <array>
#include <span>
#include <string_view>

namespace drawing {

// A paper by its code, as printers number them. Lengths in twips, upright.
struct PaperSize {
    int code;
    std::string_view name;
    long Width, Height;
};

constexpr int customPaperCode = 256; // its lengths are the database's own

// What everybody can buy; offered whatever the printer says of itself.
constexpr std::array<int, 5> commonPapers = {9, 11, 70, 1, 5}; // A4, A5, A6, Letter, Legal

std::span<const PaperSize> papers();
// nullptr for a code that stands for no known paper.
const PaperSize* findPaper(int code);
// By its name in upper or lower case; nullptr for a name that no paper has.
const PaperSize* findPaper(std::string_view name);

} // namespace drawing
