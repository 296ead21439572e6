#include "gui/labels/labelSheetPicture.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace gui {

namespace {

// Paper is white whatever the desktop's colours are.
const QColor lineInk(0x5f, 0x63, 0x68), labelFill(0xe8, 0xf0, 0xfe), usedFill(0xc4, 0xc7, 0xcc),
    firstInk(0x1a, 0x73, 0xe8);

void drawShape(QPainter& painter, const QRectF& rect, labels::LabelShape shape) {
    using labels::LabelShape;
    switch (shape) {
    case LabelShape::Rectangle:
        painter.drawRect(rect);
        break;
    case LabelShape::Rounded: {
        constexpr qreal corner = 0.1;
        const qreal radius = std::min(rect.width(), rect.height()) * corner;
        painter.drawRoundedRect(rect, radius, radius);
        break;
    }
    case LabelShape::Cd: {
        painter.drawEllipse(rect);
        constexpr qreal hole = 0.18;
        const QPointF radii(rect.width() * hole, rect.height() * hole);
        painter.setBrush(Qt::white);
        painter.drawEllipse(rect.center(), radii.x(), radii.y());
        break;
    }
    default:
        painter.drawEllipse(rect);
    }
}

} // namespace

LabelSheetPicture::LabelSheetPicture(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Sheet of labels"));
}

void LabelSheetPicture::show(const std::optional<labels::LabelStock>& stock, int start) {
    stock_ = stock;
    start_ = start;
    setFocusPolicy(start > 0 ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(start > 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QString told = tr("No sheet");
    if (stock_) told = tr("%1 across, %2 down").arg(stock_->columns).arg(stock_->rows);
    if (start > 0) told = tr("%1, first label %2").arg(told, QString::number(start));
    setAccessibleDescription(told);
    update();
}

QRectF LabelSheetPicture::paper() const {
    constexpr qreal air = 4;
    const QRectF room = QRectF(rect()).adjusted(air, air, -air, -air);
    if (!stock_ || !(stock_->paperWidth > 0) || !(stock_->paperHeight > 0)) return {};
    const qreal scale = std::min(room.width() / stock_->paperWidth, room.height() / stock_->paperHeight);
    QRectF sheet(0, 0, stock_->paperWidth * scale, stock_->paperHeight * scale);
    sheet.moveCenter(room.center());
    return sheet;
}

QRectF LabelSheetPicture::label(int place) const {
    const QRectF sheet = paper();
    const qreal scale = sheet.width() / stock_->paperWidth;
    const labels::LabelStock::Position corner = stock_->position(place);
    return {sheet.left() + corner.left * scale, sheet.top() + corner.top * scale, stock_->width * scale,
            stock_->height * scale};
}

void LabelSheetPicture::paintEvent(QPaintEvent*) {
    if (!stock_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(lineInk, 1));
    painter.setBrush(Qt::white);
    painter.drawRect(paper());
    for (int place = 1; place <= stock_->perSheet(); ++place) {
        const bool isFirst = start_ > 0 && place == start_;
        painter.setPen(QPen(isFirst ? firstInk : lineInk, isFirst ? 2 : 1));
        painter.setBrush(place < start_ ? usedFill : labelFill);
        drawShape(painter, label(place), stock_->shape);
        if (!isFirst) continue;
        painter.setPen(firstInk);
        painter.drawText(label(place), Qt::AlignCenter, QString::number(place));
    }
    if (!hasFocus()) return;
    constexpr qreal ring = 3;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(paper().adjusted(-ring, -ring, ring, ring));
}

void LabelSheetPicture::mousePressEvent(QMouseEvent* event) {
    if (start_ == 0 || !stock_) return;
    for (int place = 1; place <= stock_->perSheet(); ++place)
        if (label(place).contains(event->position())) return emit startChosen(place);
}

void LabelSheetPicture::keyPressEvent(QKeyEvent* event) {
    int place = start_;
    switch (event->key()) {
    case Qt::Key_Left:
        --place;
        break;
    case Qt::Key_Right:
        ++place;
        break;
    case Qt::Key_Up:
        place -= stock_ ? stock_->columns : 0;
        break;
    case Qt::Key_Down:
        place += stock_ ? stock_->columns : 0;
        break;
    case Qt::Key_Home:
        place = 1;
        break;
    case Qt::Key_End:
        place = stock_ ? stock_->perSheet() : 1;
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    if (stock_ && start_ > 0 && place >= 1 && place <= stock_->perSheet()) emit startChosen(place);
}

} // namespace gui

#include "moc_labelSheetPicture.cpp"
