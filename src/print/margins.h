#pragma once

#include "drawing/drawTarget.h"

namespace print {

constexpr double twipsPerInch = 1440;
// What nearly every printer leaves free at the edges of a sheet: where a file is printed later is not known.
constexpr float customaryEdge = 360;

// Where the dotted lines of a preview stand.
struct Margins {
    float left = 0, right = 0; // X of the two vertical lines
    float top = 0, bottom = 0; // Y of the two horizontal ones
};

// Preview alone: paper never shows them.
inline void drawMarginGuides(drawing::DrawTarget& target, const Margins& margins) {
    target.DrawWidth = 1;
    target.ForeColor = 0;
    target.DrawStyle = drawing::LineStyle::Dotted;
    for (const float x : {margins.left, margins.right}) target.Line(x, 0, x, target.Height);
    for (const float y : {margins.top, margins.bottom}) target.Line(0, y, target.Width, y);
    target.DrawStyle = drawing::LineStyle::Solid;
}

} // namespace print
