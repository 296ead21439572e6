#include "gui/layout/sheetMark.h"

#include <QPaintEvent>
#include <QPainter>

namespace gui {

namespace {

constexpr int frameThickness = 2;

} // namespace

SheetMark::SheetMark(QWidget* paper) : QWidget(paper) {
    setObjectName(QStringLiteral("sheetMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void SheetMark::surround(const QWidget* object, bool outside) {
    setVisible(object != nullptr && object->isVisible());
    if (isHidden()) return;
    // Half on the edge of a box for text, so that boxes without a gap between them stay whole; a thin line
    // would vanish under it.
    const int gap = outside ? frameThickness : frameThickness / 2;
    const QRect place = object->geometry().adjusted(-gap, -gap, gap, gap);
    if (place != geometry()) {
        setGeometry(place);
        const QRect inside =
            rect().adjusted(frameThickness, frameThickness, -frameThickness, -frameThickness);
        setMask(QRegion(rect()) - inside);
    }
    raise();
}

void SheetMark::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), palette().color(QPalette::Highlight));
}

} // namespace gui

#include "moc_sheetMark.cpp"
