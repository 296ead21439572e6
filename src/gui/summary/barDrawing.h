#pragma once

#include <QPainter>
#include <QPalette>

namespace gui {

enum class BarLook { Plain, Current, OnSelection };

// A bar, drawn in the desktop's own colours: filled, with an edge that stands out from its ground, so that
// its length shows where the colour does not.
void drawBar(QPainter& painter, const QRectF& place, const QPalette& palette, BarLook look);

} // namespace gui
