#include "gui/layout/rulerView.h"
#include "layout/layoutPage.h"

#include "gui/layout/accessibleRuler.h"
#include "gui/widgets/measures.h"
#include "layout/dragging.h"
#include "layout/rulers.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace gui {

using layout::Guide;
using layout::LayoutPage;

namespace {

constexpr int marksPerInch = 8;
constexpr qreal firstTile = -15; // of the horizontal ruler, whose inches stand a pixel ahead; it is wanted so
constexpr qreal tilePitch = twipsPerInch + 1; // the inches stand a twip further apart than an inch
constexpr QSizeF verticalMarker(135, 105);
constexpr QSizeF horizontalMarker(120, 105);

// Of a mark within its inch, as a share of the ruler's thickness.
qreal markLength(int mark) {
    if (mark == 0) return 1;
    if (mark % 4 == 0) return 0.5;
    return mark % 2 == 0 ? 0.35 : 0.2;
}

} // namespace

RulerView::RulerView(app::App& app, EventBoundary& events, Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent), app_(app), events_(events), orientation_(orientation) {
    tellRulerRole();
    setObjectName(isHorizontal() ? QStringLiteral("ruler1") : QStringLiteral("ruler2"));
    setToolTip(tr("Click to set a guide line; double-click its marker to remove it"));
    setAccessibleName(isHorizontal() ? tr("Horizontal ruler") : tr("Vertical ruler"));
}

void RulerView::show(qreal pixelsPerTwip, qreal pixelsPerTwipPlain) {
    pixelsPerTwip_ = pixelsPerTwip;
    plain_ = pixelsPerTwipPlain;
    tellChosen();
    update();
}

QRectF RulerView::markerRect(const Guide& guide) const {
    const QSizeF size = isHorizontal() ? verticalMarker : horizontalMarker;
    // Across the ruler a marker stands where it does without the zoom, which it may be older than.
    const qreal across = plain_ / pixelsPerTwip_;
    const LayoutPage& page = layout::layoutPage(app_);
    const QPointF place = isHorizontal() ? QPointF(guide.Left, page.ruler1.Height / 2)
                                         : QPointF(page.ruler2.Width / 2 - 15 * across, guide.Top);
    return {place * pixelsPerTwip_, size * plain_};
}

int RulerView::guideAt(QPointF place) const {
    constexpr qreal reach = 3; // pixels around the small marker
    int found = 0;
    guides().forEach([&](const Guide& guide) {
        if (markerRect(guide).adjusted(-reach, -reach, reach, reach).contains(place)) found = guide.Index;
    });
    return found;
}

void RulerView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.75);
    painter.setFont(small);
    const int length = isHorizontal() ? width() : height();
    const int thickness = isHorizontal() ? height() : width();
    const auto line = [&](qreal place, qreal from, qreal to) {
        if (isHorizontal())
            painter.drawLine(QPointF(place, from), QPointF(place, to));
        else
            painter.drawLine(QPointF(from, place), QPointF(to, place));
    };
    const qreal first = isHorizontal() ? firstTile * pixelsPerTwip_ : 0;
    painter.setPen(palette().color(QPalette::Text));
    for (int inch = 0; first + inch * tilePitch * pixelsPerTwip_ <= length; ++inch) {
        const qreal start = first + inch * tilePitch * pixelsPerTwip_;
        for (int mark = 0; mark < marksPerInch; ++mark) {
            const qreal place = std::round(start + mark * twipsPerInch * pixelsPerTwip_ / marksPerInch) + 0.5;
            line(place, thickness * (1 - markLength(mark)), thickness);
        }
        const QPointF label = isHorizontal() ? QPointF(start + 3, thickness * 0.55) : QPointF(2, start + 11);
        painter.drawText(label, QString::number(inch));
    }
    guides().forEach([&](const Guide& guide) {
        painter.fillRect(markerRect(guide),
                         isHorizontal() ? QColor(0x1e, 0x8e, 0x3e) : QColor(0x1f, 0x5f, 0xbf));
    });
    if (hasFocus()) paintFocus(painter);
    const LayoutPage& page = layout::layoutPage(app_);
    const std::optional<float> tick = isHorizontal() ? page.ruler1.line : page.ruler2.line;
    if (!tick) return;
    painter.setPen(QPen(QColor(0xd9, 0x30, 0x25), 0));
    line(std::round(*tick * pixelsPerTwip_) + 0.5, 0, layout::rulerTick * plain_);
}

void RulerView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int index = guideAt(event->position());
    pressedGuide_ = index;
    ruleClick_ = event->position();
    pressed_ = index == 0;
    const Guide* guide = guides().find(index);
    if (guide == nullptr) return;
    const QPointF inside = event->position() / pixelsPerTwip_ - QPointF(guide->Left, guide->Top);
    events_.run([&] {
        if (isHorizontal())
            layout::rulePic2_MouseDown(app_, index, int(std::lround(inside.x())));
        else
            layout::rulePic_MouseDown(app_, index, int(std::lround(inside.y())));
    });
}

void RulerView::mouseMoveEvent(QMouseEvent* event) {
    if (layout::layoutPage(app_).drag == LayoutPage::Drag::None || !sheetTwips) return;
    const QPoint place = sheetTwips(event->globalPosition().toPoint());
    events_.run([&] { layout::dragTo(app_, place.x(), place.y()); });
}

void RulerView::mouseReleaseEvent(QMouseEvent*) {
    events_.run([&] {
        if (layout::layoutPage(app_).drag != LayoutPage::Drag::None) {
            layout::endDrag(app_);
            return;
        }
        if (!std::exchange(pressed_, false)) return;
        const QPointF place = ruleClick_ / pixelsPerTwip_;
        if (isHorizontal())
            layout::ruler1_Click(app_, static_cast<float>(place.x()));
        else
            layout::ruler2_Click(app_, static_cast<float>(place.y()));
    });
}

void RulerView::mouseDoubleClickEvent(QMouseEvent* event) {
    const int index = guideAt(event->position());
    // The second press may be on the marker that the first one has made: that takes it, and removes nothing.
    if (index == 0 || index != pressedGuide_) {
        mousePressEvent(event);
        return;
    }
    events_.run([&] {
        isHorizontal() ? layout::rulePic2_DblClick(app_, index) : layout::rulePic_DblClick(app_, index);
    });
}

} // namespace gui

#include "moc_rulerView.cpp"
