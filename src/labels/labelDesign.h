#pragma once

#include "app/app.h"
#include "core/layoutObjects.h"
#include "labels/labelPage.h"

#include <string>
#include <vector>

namespace labels {

// What stands on a label. A line is text with columns in it: "{Zip} {City}".
struct LabelText {
    std::vector<std::string> lines;
    std::string pictureColumn; // beside the lines; empty: none
    float FontSize = 0;        // points; 0: the largest that the texts find room in
    bool bCentred = false;     // within the height of the label; otherwise from its top
};

// The lines that a label begins with: an address where there are columns of such names, otherwise the first
// columns.
LabelText proposedLabel(const core::Document& document);
// What is wrong with it, for the user; empty: nothing. A text of any length is answered at once.
std::string faultOf(const core::Document& document, const LabelText& text);

struct LabelDesign {
    core::LayoutObjects objects; // on labelPage
    float FontSize = 0;
    bool bFits = true; // the longest text of the records stands in its line
};
LabelDesign designLabel(const core::Document& document, const LabelStock& stock, const LabelText& text,
                        drawing::TextMetrics& metrics);
// In place of all objects of the layout.
void placeDesign(app::App& app, LabelDesign& design);

} // namespace labels
