#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace labels {

enum class LabelShape { Rectangle, Rounded, Round, Ellipse, Cd };

// The name that the table has for it: "rectangle".
std::string_view shapeName(LabelShape shape);

// Sheets of labels as they are sold. Lengths are twips that are not rounded yet, so that the last of many
// rows stands where it should.
struct LabelStock {
    // Upper left corner, from the paper's.
    struct Position {
        double left = 0, top = 0;
    };

    std::string maker, number, kind;
    std::string paper; // the name of one of drawing::papers, or "100 x 148" in millimetres
    int paperCode = 0; // drawing::customPaperCode for one without a name
    double paperWidth = 0, paperHeight = 0;
    int columns = 0, rows = 0;
    double width = 0, height = 0; // of a label
    double left = 0, top = 0;     // of the first one
    // From edge to edge; the size of a label where there is no other one.
    double columnPitch = 0, rowPitch = 0;
    LabelShape shape = LabelShape::Rectangle;

    int perSheet() const { return columns * rows; }
    // Of the n-th label, from 1 and row by row. One beyond the sheet stands on a further one.
    Position position(int n) const;
};

constexpr double millimetresOf(double twips) {
    constexpr double perInch = 25.4, twipsPerInch = 1440;
    return twips * perInch / twipsPerInch;
}

// The stocks of a table: a line each behind the heading, with tabs between the cells, in millimetres. A
// damaged line is left out, and so is one whose labels overlap or hang over the paper.
std::vector<LabelStock> readLabelStocks(std::string_view table);

// The stocks that have all words of the text in maker, number, kind and paper; those of that very number come
// first. A text that is a size ("99.1 x 38.1", "1 x 2 5/8 in") finds the labels of that size, upright or not,
// within half a millimetre. An empty text finds all.
std::vector<const LabelStock*> findLabelStocks(const std::vector<LabelStock>& stocks, std::string_view text);

// By its number, with or without the maker.
bool isCalled(const LabelStock& stock, std::string_view name);

} // namespace labels
