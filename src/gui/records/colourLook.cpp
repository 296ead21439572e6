#include "gui/records/colourLook.h"

#include "gui/widgets/palette.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace gui {

namespace {

struct Look {
    QRgb lightGround, darkGround, lightMark, darkMark;
};
constexpr std::array<Look, 6> cellLooks = {{
    {0xfffddcd8, 0xff5a2a26, 0xffc5221f, 0xfff28b82}, // red
    {0xffffe6c7, 0xff5a4020, 0xffa84a00, 0xfffbb069}, // orange
    {0xfffff5b8, 0xff4f4715, 0xff7a5d00, 0xfffdd663}, // yellow
    {0xffd9f2dc, 0xff23472a, 0xff137333, 0xff81c995}, // green
    {0xffd9e7fc, 0xff233f66, 0xff174ea6, 0xff8ab4f8}, // blue
    {0xffeadcf8, 0xff46305c, 0xff7627bb, 0xffc58af9}, // violet
}};

const Look& lookOf(int colour) {
    return cellLooks.at(static_cast<std::size_t>(std::clamp<int>(colour, 0, cellLooks.size() - 1)));
}

// A polygon around the middle of the box, with its first corner at that angle in quarters of a turn.
QPolygonF corners(const QRectF& box, int count, qreal quarters, qreal inner = 1) {
    QPolygonF polygon;
    const qreal radius = box.width() / 2;
    for (int i = 0; i < count; ++i) {
        const qreal angle = (quarters / 2 + 2.0 * i / count) * std::numbers::pi;
        const qreal reach = i % 2 == 0 ? radius : radius * inner;
        polygon << box.center() + QPointF(std::cos(angle), std::sin(angle)) * reach;
    }
    return polygon;
}

void drawShape(QPainter& painter, int colour, const QRectF& box) {
    switch (colour) {
    case 0:
        return painter.drawPolygon(corners(box.translated(0, box.height() / 8), 3, 3));
    case 1:
        return painter.drawPolygon(corners(box, 4, 0));
    case 2:
        return painter.drawPolygon(corners(box, 10, 3, 0.45));
    case 3:
        return painter.drawEllipse(box.adjusted(1, 1, -1, -1));
    case 4:
        return painter.drawRect(box.adjusted(1, 1, -1, -1));
    default:
        painter.drawPolygon(corners(box.translated(0, -box.height() / 8), 3, 1));
    }
}

class MarkEngine final : public QIconEngine {
public:
    explicit MarkEngine(int colour) : colour_(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        const Look& look = lookOf(colour_);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(mode == QIcon::Selected ? palette.color(QPalette::HighlightedText)
                                                  : QColor(isDark(palette) ? look.darkMark : look.lightMark));
        const qreal side = std::min(rect.width(), rect.height()) * 0.8;
        QRectF box(0, 0, side, side);
        box.moveCenter(QRectF(rect).center());
        drawShape(*painter, colour_, box);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new MarkEngine(colour_); }

private:
    int colour_;
};

} // namespace

QColor colourGround(int colour) {
    return isDark(QApplication::palette()) ? lookOf(colour).darkGround : lookOf(colour).lightGround;
}

QIcon colourMark(int colour) {
    return QIcon(new MarkEngine(colour));
}

} // namespace gui
