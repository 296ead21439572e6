#pragma once

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

std::span<const PaperSize> papers();
// nullptr for a code that stands for no known paper.
const PaperSize* findPaper(int code);

} // namespace drawing
