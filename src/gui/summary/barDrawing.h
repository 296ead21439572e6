#pragma once

#include <QPainter>
#include <QPalette>

namespace gui {

// A bar, drawn in the desktop's own colours: filled, with an edge that stands out from ground and selection
// alike, so that its length shows where the colour does not.
void drawBar(QPainter& painter, const QRectF& place, const QPalette& palette, bool bCurrent);

} // namespace gui
