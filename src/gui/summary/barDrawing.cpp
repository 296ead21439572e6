#include "gui/summary/barDrawing.h"

#include "gui/widgets/palette.h"

namespace gui {

void drawBar(QPainter& painter, const QRectF& place, const QPalette& palette, bool bCurrent) {
    if (place.width() <= 0) return;
    const QColor fill = palette.color(QPalette::Highlight);
    const QColor edge = isDark(palette) ? fill.lighter(160) : fill.darker(140);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(bCurrent ? palette.color(QPalette::Text) : edge, bCurrent ? 2 : 1));
    painter.setBrush(fill);
    painter.drawRect(place);
    painter.restore();
}

} // namespace gui
