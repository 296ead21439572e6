#pragma once

#include "app/app.h"

namespace layout {

// Guides: a marker on a ruler, a line across the sheet. They are no objects and are not saved.

// A click on a ruler, with the place where it was pressed, in twips on the ruler.
void ruler1_Click(app::App& app, float ruleClickX);
void ruler2_Click(app::App& app, float ruleClickY);

// A marker of ruler2 (rulePic) or ruler1 (rulePic2) is taken, with the pointer inside it in twips; dragTo
// follows.
void rulePic_MouseDown(app::App& app, int index, int Y);
void rulePic2_MouseDown(app::App& app, int index, int X);
void dragGuide(app::App& app, long X, long Y);

void rulePic_DblClick(app::App& app, int index);
void rulePic2_DblClick(app::App& app, int index);
void clearGuides(app::App& app); // clearRulesBtn

} // namespace layout
