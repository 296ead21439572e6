#include "gui/layout/sheetShape.h"

#include "gui/layout/pictures.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/textBox.h"

#include <QPainter>

namespace gui {

using core::Family;

bool SheetShape::Look::operator==(const Look& other) const {
    return foreColor == other.foreColor && backColor == other.backColor && drawWidth == other.drawWidth &&
           zoom == other.zoom && width == other.width && height == other.height && frame == other.frame &&
           outline == other.outline && hint == other.hint && image.path == other.image.path &&
           image.Left == other.image.Left && image.Top == other.image.Top &&
           image.Width == other.image.Width && image.Height == other.image.Height;
}

SheetShape::SheetShape(Family family, QWidget* parent) : QWidget(parent), family_(family) {}

void SheetShape::show(const Look& look, qreal pixelsPerTwip) {
    // A picture may have been replaced by another one of its name.
    const qint64 stamp = look.image.path.empty() ? 0 : pictureStamp(toQt(look.image.path));
    if (look == look_ && pixelsPerTwip == pixelsPerTwip_ && stamp == stamp_) return;
    look_ = look;
    pixelsPerTwip_ = pixelsPerTwip;
    stamp_ = stamp;
    picture_ = {};
    update();
}

void SheetShape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), toQtColor(look_.backColor));
    if (family_ == Family::pbLine || family_ == Family::vLine)
        paintLine(painter);
    else if (family_ == Family::pBox)
        paintBox(painter);
    else
        paintPicture(painter);
}

void SheetShape::paintLine(QPainter& painter) const {
    painter.setPen(QPen(toQtColor(look_.foreColor), look_.penWidth(), Qt::SolidLine, Qt::FlatCap));
    const qreal across = family_ == Family::pbLine ? look_.height : look_.width;
    const qreal place = (across / 2 - look_.drawWidth) * pixelsPerTwip_;
    if (family_ == Family::pbLine)
        painter.drawLine(QPointF(0, place), QPointF(width(), place));
    else
        painter.drawLine(QPointF(place, 0), QPointF(place, height()));
}

void SheetShape::paintBox(QPainter& painter) const {
    if (!look_.outline) {
        painter.setPen(QPen(toQtColor(look_.foreColor), 1, Qt::DashLine));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
        return;
    }
    painter.setPen(
        QPen(toQtColor(look_.foreColor), look_.penWidth(), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const QRectF outline(QPointF(1, 1),
                         QPointF(look_.width * pixelsPerTwip_ - 2, look_.height * pixelsPerTwip_ - 2));
    if (outline.isValid()) painter.drawRect(outline);
}

void SheetShape::paintPicture(QPainter& painter) {
    const core::FittedImage& image = look_.image;
    if (!image.path.empty() && image.Visible) {
        const QRectF place(image.Left * pixelsPerTwip_, image.Top * pixelsPerTwip_,
                           image.Width * pixelsPerTwip_, image.Height * pixelsPerTwip_);
        const QSize wanted = (place.size() * devicePixelRatioF()).toSize();
        if (pictureSize_ != wanted || picture_.isNull()) {
            picture_ = scaledPicture(toQt(image.path), wanted);
            pictureSize_ = wanted;
        }
        if (!picture_.isNull()) painter.drawPixmap(place, picture_, QRectF(picture_.rect()));
    } else if (!look_.hint.isEmpty()) {
        painter.setPen(look_.backColor == core::white ? Qt::darkGray : Qt::white);
        painter.drawText(rect().adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap, look_.hint);
    }
    if (!look_.frame) return;
    painter.setPen(QColor(0x80, 0x86, 0x8b));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace gui

#include "moc_sheetShape.cpp"
