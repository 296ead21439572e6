#include "gui/summary/barDrawing.h"

#include "gui/widgets/palette.h"

namespace gui {

void drawBar(QPainter& painter, const QRectF& place, const QPalette& palette, BarLook look) {
    if (place.width() <= 0) return;
    const bool bSelection = look == BarLook::OnSelection;
    const QColor fill = palette.color(bSelection ? QPalette::HighlightedText : QPalette::Highlight);
    const QColor edge = bSelection                 ? fill
                        : look == BarLook::Current ? palette.color(QPalette::Text)
                        : isDark(palette)          ? fill.lighter(160)
                                                   : fill.darker(140);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(edge, look == BarLook::Current ? 2 : 1));
    painter.setBrush(fill);
    painter.drawRect(place);
    painter.restore();
}

} // namespace gui
