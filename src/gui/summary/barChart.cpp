#include "gui/summary/barChart.h"

#include "gui/summary/barDrawing.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/toolTip.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>

namespace gui {

namespace {

constexpr int barGap = 6; // pixels between name, bar and value
constexpr int mostMeasured = 2000;
constexpr std::size_t mostLettersOfName = 200; // of a name, which no bar leaves room for

QString nameOf(const summary::Group& group) {
    return toQt(group.name(mostLettersOfName));
}

} // namespace

BarChart::BarChart(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(tr("Bars"));
    viewport()->setBackgroundRole(QPalette::Base);
}

int BarChart::rowHeight() const {
    return fontMetrics().height() + fontMetrics().height() / 2;
}

int BarChart::count() const {
    return summary_ == nullptr ? 0 : static_cast<int>(summary_->groups.size());
}

int BarChart::groupAt(int y) const {
    const int group = (y + verticalScrollBar()->value()) / rowHeight();
    return y >= 0 && group < count() ? group : -1;
}

QString BarChart::told(int group) const {
    const summary::Group& shown = summary_->groups.at(static_cast<std::size_t>(group));
    const std::string value = summary::barText(shown, figure_);
    return tr("%1\n%2: %3", "group, figure and its value")
        .arg(nameOf(shown), figureName_, value.empty() ? tr("none") : toQt(value));
}

void BarChart::showSummary(const summary::Summary& summary, int figure, const QString& figureName) {
    summary_ = &summary;
    figure_ = figure;
    figureName_ = figureName;
    scale_.emplace(summary, figure);
    current_ = count() == 0 ? -1 : std::clamp(current_, 0, count() - 1);
    measure();
    describe();
    viewport()->update();
}

// Names take two fifths of the room at most. Of very many groups the first ones are measured.
void BarChart::measure() {
    nameWidth_ = valueWidth_ = 0;
    const int measured = std::min(count(), mostMeasured);
    for (int i = 0; i < measured; ++i) {
        const summary::Group& group = summary_->groups[static_cast<std::size_t>(i)];
        nameWidth_ = std::max(nameWidth_, fontMetrics().horizontalAdvance(nameOf(group)) + 2);
        valueWidth_ =
            std::max(valueWidth_, fontMetrics().horizontalAdvance(toQt(summary::barText(group, figure_))));
    }
    nameWidth_ = std::min(nameWidth_, viewport()->width() * 2 / 5);
    verticalScrollBar()->setSingleStep(rowHeight());
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, count() * rowHeight() - viewport()->height()));
}

// What a screen reader tells of the chart: the bar that the keys are on.
void BarChart::describe() {
    setAccessibleDescription(current_ < 0 ? tr("No groups") : told(current_).replace(u'\n', u' '));
}

void BarChart::setCurrent(int group) {
    if (group == current_ || group < 0 || group >= count()) return;
    current_ = group;
    const int top = group * rowHeight();
    QScrollBar* bar = verticalScrollBar();
    if (top < bar->value()) bar->setValue(top);
    if (top + rowHeight() > bar->value() + viewport()->height())
        bar->setValue(top + rowHeight() - viewport()->height());
    describe();
    viewport()->update();
    emit currentChanged(group);
}

void BarChart::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (count() == 0) return;
    const int top = verticalScrollBar()->value(), height = rowHeight();
    const int first = std::max(0, (event->rect().top() + top) / height);
    const int last = std::min(count() - 1, (event->rect().bottom() + top) / height);
    for (int group = first; group <= last; ++group)
        paintRow(painter, group, QRect(0, group * height - top, viewport()->width(), height));
}

void BarChart::paintRow(QPainter& painter, int group, const QRect& row) const {
    const summary::Group& shown = summary_->groups[static_cast<std::size_t>(group)];
    const bool bCurrent = group == current_;
    painter.setPen(palette().color(QPalette::Text));
    const QRect name(row.left() + barGap, row.top(), nameWidth_, row.height());
    painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(nameOf(shown), Qt::ElideRight, nameWidth_));
    const int left = name.right() + barGap;
    const int room = std::max(0, row.right() - left - valueWidth_ - 3 * barGap);
    const summary::Bar bar = scale_->barOf(shown);
    const int inset = row.height() / 5;
    const QRectF place(left + bar.from * room, row.top() + inset, (bar.to - bar.from) * room,
                       row.height() - 2 * inset);
    drawBar(painter, place, palette(), bCurrent ? BarLook::Current : BarLook::Plain);
    painter.setPen(palette().color(QPalette::Text));
    const int behind = static_cast<int>(place.right()) + barGap;
    painter.drawText(QRect(behind, row.top(), row.right() - behind, row.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, toQt(summary::barText(shown, figure_)));
    if (scale_->zero() > 0) {
        const int zero = left + static_cast<int>(scale_->zero() * room);
        painter.drawLine(zero, row.top(), zero, row.bottom());
    }
    if (!bCurrent || !hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = row.adjusted(1, 1, -1, -1);
    focus.state |= QStyle::State_KeyboardFocusChange;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void BarChart::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    measure();
}

void BarChart::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) measure();
}

void BarChart::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? groupAt(event->position().toPoint().y()) : -1;
    if (pressed_ >= 0) setCurrent(pressed_);
}

void BarChart::mouseReleaseEvent(QMouseEvent* event) {
    const int released = groupAt(event->position().toPoint().y());
    if (event->button() == Qt::LeftButton && released >= 0 && released == pressed_) emit chosen(released);
    pressed_ = -1;
}

void BarChart::keyPressEvent(QKeyEvent* event) {
    const int page = std::max(1, viewport()->height() / rowHeight() - 1);
    const auto step = [&](int by) { setCurrent(std::clamp(current_ + by, 0, std::max(0, count() - 1))); };
    switch (event->key()) {
    case Qt::Key_Up:
        return step(-1);
    case Qt::Key_Down:
        return step(1);
    case Qt::Key_PageUp:
        return step(-page);
    case Qt::Key_PageDown:
        return step(page);
    case Qt::Key_Home:
        return step(-count());
    case Qt::Key_End:
        return step(count());
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current_ >= 0) emit chosen(current_);
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void BarChart::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void BarChart::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

bool BarChart::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int group = groupAt(help->pos().y());
    if (group < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), toolTipOf(told(group)), viewport());
    return true;
}

} // namespace gui

#include "moc_barChart.cpp"
