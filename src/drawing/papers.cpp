#include "drawing/papers.h"

#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace drawing {

namespace {

constexpr double inch = 1440, millimetre = inch / 25.4; // in twips

struct Row {
    int code;
    std::string_view name;
    double width, height, unit;
};

constexpr std::array rows = std::to_array<Row>({
    {1, core::marked("Letter"), 8.5, 11, inch},
    {2, core::marked("Letter small"), 8.5, 11, inch},
    {3, core::marked("Tabloid"), 11, 17, inch},
    {4, core::marked("Ledger"), 17, 11, inch},
    {5, core::marked("Legal"), 8.5, 14, inch},
    {6, core::marked("Statement"), 5.5, 8.5, inch},
    {7, core::marked("Executive"), 7.25, 10.5, inch},
    {8, "A3", 297, 420, millimetre},
    {9, "A4", 210, 297, millimetre},
    {10, core::marked("A4 small"), 210, 297, millimetre},
    {11, "A5", 148, 210, millimetre},
    {12, core::marked("B4 (JIS)"), 257, 364, millimetre},
    {13, core::marked("B5 (JIS)"), 182, 257, millimetre},
    {14, core::marked("Folio"), 8.5, 13, inch},
    {15, core::marked("Quarto"), 215, 275, millimetre},
    {16, core::marked("10 x 14 in"), 10, 14, inch},
    {17, core::marked("11 x 17 in"), 11, 17, inch},
    {18, core::marked("Note"), 8.5, 11, inch},
    {19, core::marked("Envelope #9"), 3.875, 8.875, inch},
    {20, core::marked("Envelope #10"), 4.125, 9.5, inch},
    {21, core::marked("Envelope #11"), 4.5, 10.375, inch},
    {22, core::marked("Envelope #12"), 4.75, 11, inch},
    {23, core::marked("Envelope #14"), 5, 11.5, inch},
    {24, "C", 17, 22, inch},
    {25, "D", 22, 34, inch},
    {26, "E", 34, 44, inch},
    {27, core::marked("Envelope DL"), 110, 220, millimetre},
    {28, core::marked("Envelope C5"), 162, 229, millimetre},
    {29, core::marked("Envelope C3"), 324, 458, millimetre},
    {30, core::marked("Envelope C4"), 229, 324, millimetre},
    {31, core::marked("Envelope C6"), 114, 162, millimetre},
    {32, core::marked("Envelope C65"), 114, 229, millimetre},
    {33, core::marked("Envelope B4"), 250, 353, millimetre},
    {34, core::marked("Envelope B5"), 176, 250, millimetre},
    {35, core::marked("Envelope B6"), 176, 125, millimetre},
    {36, core::marked("Envelope Italian"), 110, 230, millimetre},
    {37, core::marked("Envelope Monarch"), 3.875, 7.5, inch},
    {38, core::marked("Envelope Personal"), 3.625, 6.5, inch},
    {39, core::marked("Fanfold US"), 14.875, 11, inch},
    {40, core::marked("Fanfold German"), 8.5, 12, inch},
    {41, core::marked("Fanfold German Legal"), 8.5, 13, inch},
    {42, core::marked("B4 (ISO)"), 250, 353, millimetre},
    {43, core::marked("Postcard (JIS)"), 100, 148, millimetre},
    {44, core::marked("9 x 11 in"), 9, 11, inch},
    {45, core::marked("10 x 11 in"), 10, 11, inch},
    {46, core::marked("15 x 11 in"), 15, 11, inch},
    {47, core::marked("Envelope Invite"), 220, 220, millimetre},
    {57, core::marked("Super A"), 227, 356, millimetre},
    {58, core::marked("Super B"), 305, 487, millimetre},
    {59, core::marked("Letter Plus"), 8.5, 12.69, inch},
    {60, core::marked("A4 Plus"), 210, 330, millimetre},
    {63, core::marked("A3 Extra"), 322, 445, millimetre},
    {64, core::marked("A5 Extra"), 174, 235, millimetre},
    {65, core::marked("B5 Extra"), 201, 276, millimetre},
    {66, "A2", 420, 594, millimetre},
    {69, core::marked("Double Postcard (JIS)"), 200, 148, millimetre},
    {70, "A6", 105, 148, millimetre},
});

} // namespace

std::span<const PaperSize> papers() {
    static const std::vector<PaperSize> all = [] {
        std::vector<PaperSize> sizes;
        sizes.reserve(rows.size());
        for (const Row& row : rows)
            sizes.push_back(
                {row.code, row.name, std::lround(row.width * row.unit), std::lround(row.height * row.unit)});
        return sizes;
    }();
    return all;
}

const PaperSize* findPaper(int code) {
    const auto paper = std::ranges::find(papers(), code, &PaperSize::code);
    return paper == papers().end() ? nullptr : &*paper;
}

const PaperSize* findPaper(std::string_view name) {
    const auto isCalled = [name](const PaperSize& paper) { return core::equalsNoCase(paper.name, name); };
    const auto paper = std::ranges::find_if(papers(), isCalled);
    return paper == papers().end() ? nullptr : &*paper;
}

} // namespace drawing
