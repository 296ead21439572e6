#pragma once

#include "app/app.h"
#include "layout/layoutPage.h"

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

// The same by the keyboard, on the ruler above (ruler1) or at the left. Places are of the lines, in twips on
// the sheet, and stay on it.
enum class RulerSide { Above, Left };
const core::ControlArray<Guide>& guidesOn(const app::App& app, RulerSide side);
// In the order of their places: the next one, or the one before; 0 behind the last. From 0, the first or the
// last.
int nextGuide(const app::App& app, RulerSide side, int index, int direction);
// A guide at the grid line next to the place where none is yet; 0 when each has one.
int insertGuide(app::App& app, RulerSide side, float place);
void moveGuide(app::App& app, RulerSide side, int index, float place);
void removeGuide(app::App& app, RulerSide side, int index);
float lastGuidePlace(const app::App& app, RulerSide side);

} // namespace layout
