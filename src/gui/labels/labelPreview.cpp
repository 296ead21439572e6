#include "gui/labels/labelPreview.h"

#include "gui/widgets/measures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace gui {

LabelPreview::LabelPreview(const drawing::RecordedPage& page, QWidget* parent)
    : QWidget(parent), page_(page) {
    setAccessibleName(tr("The label"));
    setMinimumHeight(fontMetrics().height() * 5);
}

void LabelPreview::show(labels::LabelShape shape) {
    shape_ = shape;
    update();
}

void LabelPreview::paintEvent(QPaintEvent*) {
    constexpr qreal air = 4, timesItsSize = 3;
    const qreal width = page_.Width, height = page_.Height;
    if (!(width > 0) || !(height > 0)) return;
    const QRectF room = QRectF(rect()).adjusted(air, air, -air, -air);
    const qreal scale = std::min({room.width() / width, room.height() / height,
                                  logicalDpiX() / static_cast<qreal>(twipsPerInch) * timesItsSize});
    if (!(scale > 0)) return;
    QRectF label(0, 0, width * scale, height * scale);
    label.moveCenter(room.center());
    QPainterPath shape;
    constexpr qreal corner = 6;
    if (shape_ == labels::LabelShape::Rectangle)
        shape.addRect(label);
    else if (shape_ == labels::LabelShape::Rounded)
        shape.addRoundedRect(label, corner, corner);
    else
        shape.addEllipse(label);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.setBrush(Qt::white);
    painter.drawPath(shape);
    painter.setClipPath(shape);
    painter.translate(label.topLeft());
    painter.scale(scale, scale);
    painter_.draw(painter, page_.drawn());
}

} // namespace gui

#include "moc_labelPreview.cpp"
