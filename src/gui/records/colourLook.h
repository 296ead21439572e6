#pragma once

#include <QColor>
#include <QIcon>

namespace gui {

// How a rule's colour looks (see search/colourRules.h): a ground that the text is read on, light or dark as
// the palette is, and a mark whose shape tells it from the others where the colour does not.
QColor colourGround(int colour);
QIcon colourMark(int colour);

} // namespace gui
