#include "gui/layout/sheetPaper.h"
#include "layout/layoutPage.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace gui {

using layout::Guide;
using layout::LayoutPage;

namespace {

constexpr QRgb dotColor = 0xffb0b4b9;
constexpr QRgb marginColor = 0xff9aa0a6;
constexpr QRgb horizontalGuide = 0xff1f5fbf;
constexpr QRgb verticalGuide = 0xff1e8e3e;

} // namespace

SheetPaper::SheetPaper(app::App& app, QWidget* parent) : QWidget(parent), app_(app) {
    setObjectName(QStringLiteral("layoutPic2"));
    setFocusPolicy(Qt::StrongFocus);
    setPalette(style()->standardPalette()); // paper is white in the dark too, with frames that fit it
    setAccessibleName(tr("Layout sheet"));
}

void SheetPaper::show(qreal pixelsPerTwip) {
    const LayoutPage& page = layout::layoutPage(app_);
    pixelsPerTwip_ = pixelsPerTwip;
    QString drawn = QStringLiteral("%1|%2|%3|%4|%5")
                        .arg(page.bGrid)
                        .arg(page.marginLeft)
                        .arg(page.marginTop)
                        .arg(page.marginRight)
                        .arg(page.marginBottom);
    page.rulePic.forEach([&](const Guide& guide) { drawn += QStringLiteral("|h%1").arg(guide.line); });
    page.rulePic2.forEach([&](const Guide& guide) { drawn += QStringLiteral("|v%1").arg(guide.line); });
    if (drawn == shown_) return;
    shown_ = drawn;
    update();
}

void SheetPaper::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    if (layout::layoutPage(app_).bGrid) paintGrid(painter, event->rect());
    paintMargins(painter);
    paintGuides(painter);
}

void SheetPaper::paintGrid(QPainter& painter, const QRect& part) const {
    const qreal step = layout::gridStep * pixelsPerTwip_;
    QList<QPointF> dots;
    const auto first = [&](int edge) { return std::max(1, static_cast<int>(std::floor(edge / step))); };
    const auto last = [&](int edge) { return static_cast<int>(std::floor(edge / step)); };
    for (int column = first(part.left()); column <= last(part.right()); ++column)
        for (int row = first(part.top()); row <= last(part.bottom()); ++row)
            dots.append(QPointF(std::round(column * step), std::round(row * step)));
    painter.setPen(QColor::fromRgba(dotColor));
    painter.drawPoints(dots.constData(), int(dots.size()));
}

void SheetPaper::paintMargins(QPainter& painter) const {
    const LayoutPage& page = layout::layoutPage(app_);
    painter.setPen(QPen(QColor::fromRgba(marginColor), 0, Qt::DotLine));
    for (const float x : {page.marginLeft, page.marginRight}) {
        const qreal place = std::round(x * pixelsPerTwip_);
        painter.drawLine(QPointF(place, 0), QPointF(place, height()));
    }
    for (const float y : {page.marginTop, page.marginBottom}) {
        const qreal place = std::round(y * pixelsPerTwip_);
        painter.drawLine(QPointF(0, place), QPointF(width(), place));
    }
}

void SheetPaper::paintGuides(QPainter& painter) const {
    const LayoutPage& page = layout::layoutPage(app_);
    painter.setPen(QPen(QColor::fromRgba(horizontalGuide), 0));
    page.rulePic.forEach([&](const Guide& guide) {
        const qreal place = std::round(guide.line * pixelsPerTwip_);
        painter.drawLine(QPointF(0, place), QPointF(width(), place));
    });
    painter.setPen(QPen(QColor::fromRgba(verticalGuide), 0));
    page.rulePic2.forEach([&](const Guide& guide) {
        const qreal place = std::round(guide.line * pixelsPerTwip_);
        painter.drawLine(QPointF(place, 0), QPointF(place, height()));
    });
}

} // namespace gui

#include "moc_sheetPaper.cpp"
