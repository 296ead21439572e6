#include "gui/layout/rulerView.h"

#include "gui/widgets/measures.h"
#include "layout/layoutPage.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

// The keyboard on a ruler.

namespace gui {

using layout::Guide;

bool RulerView::event(QEvent* event) {
    // Insert and Delete are for the guides here, not for the menus' records.
    if (event->type() == QEvent::ShortcutOverride && takesKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

int RulerView::arrowDirection(int key) const {
    if (isHorizontal()) return (key == Qt::Key_Right) - (key == Qt::Key_Left);
    return (key == Qt::Key_Down) - (key == Qt::Key_Up);
}

bool RulerView::takesKey(const QKeyEvent& key) const {
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (arrowDirection(key.key()) != 0) return (modifiers & ~Qt::ShiftModifier) == 0;
    static constexpr int keys[] = {Qt::Key_Insert, Qt::Key_Delete,   Qt::Key_Home,  Qt::Key_End,
                                   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Escape};
    return modifiers == 0 && std::ranges::find(keys, key.key()) != std::end(keys);
}

void RulerView::keyPressEvent(QKeyEvent* event) {
    constexpr int twipsPerPoint = 20;
    if (!takesKey(*event)) return QWidget::keyPressEvent(event);
    event->accept();
    if (const int direction = arrowDirection(event->key()); direction != 0) {
        const bool isFine = event->modifiers() & Qt::ShiftModifier;
        return moveChosen(static_cast<float>(direction * (isFine ? twipsPerPoint : layout::gridStep)));
    }
    switch (event->key()) {
    case Qt::Key_Insert:
        return insert();
    case Qt::Key_Delete:
        return removeChosen();
    case Qt::Key_Home:
        return choose(layout::nextGuide(app_, side(), 0, 1));
    case Qt::Key_End:
        return choose(layout::nextGuide(app_, side(), 0, -1));
    case Qt::Key_PageUp:
        static_cast<void>(chooseNext(-1));
        return;
    case Qt::Key_PageDown:
        static_cast<void>(chooseNext(1));
        return;
    default:
        if (leave) leave();
    }
}

bool RulerView::focusNextPrevChild(bool next) {
    return chooseNext(next ? 1 : -1) || QWidget::focusNextPrevChild(next);
}

void RulerView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (chosenGuide() == nullptr) choose(layout::nextGuide(app_, side(), 0, 1));
    update();
}

void RulerView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

float RulerView::middlePlace() const {
    const QPoint middle = visibleRegion().boundingRect().center();
    return static_cast<float>((isHorizontal() ? middle.x() : middle.y()) / pixelsPerTwip_);
}

void RulerView::choose(int index) {
    chosen_ = index;
    tellChosen();
    update();
    const Guide* guide = chosenGuide();
    if (guide != nullptr && showPlace) showPlace(markerRect(*guide).toAlignedRect());
}

bool RulerView::chooseNext(int direction) {
    const int next = layout::nextGuide(app_, side(), chosen_, direction);
    if (next != 0) choose(next);
    return next != 0;
}

void RulerView::moveChosen(float by) {
    const Guide* guide = chosenGuide();
    if (guide == nullptr) return;
    const float place = guide->line + by;
    events_.run([&] { layout::moveGuide(app_, side(), chosen_, place); });
    choose(chosen_);
}

void RulerView::insert() {
    int index = 0;
    events_.run([&] { index = layout::insertGuide(app_, side(), middlePlace()); });
    if (index != 0) choose(index);
}

// The one behind it is chosen then, or the one before.
void RulerView::removeChosen() {
    if (chosenGuide() == nullptr) return;
    int next = layout::nextGuide(app_, side(), chosen_, 1);
    if (next == 0) next = layout::nextGuide(app_, side(), chosen_, -1);
    events_.run([&] { layout::removeGuide(app_, side(), chosen_); });
    choose(next);
}

// --- what a screen reader is told ---

std::optional<double> RulerView::chosenInches() const {
    const Guide* guide = chosenGuide();
    return guide == nullptr ? std::nullopt : std::optional(static_cast<double>(guide->line) / twipsPerInch);
}

double RulerView::lastInches() const {
    return static_cast<double>(layout::lastGuidePlace(app_, side())) / twipsPerInch;
}

void RulerView::moveChosenTo(double inches) {
    if (!std::isfinite(inches)) return;
    if (const Guide* guide = chosenGuide())
        moveChosen(static_cast<float>(inches * twipsPerInch) - guide->line);
}

QString RulerView::chosenText() const {
    constexpr int decimals = 2;
    const std::optional<double> inches = chosenInches();
    if (!inches) return guides().count() == 0 ? tr("No guides; Insert makes one") : tr("No guide is chosen");
    QString number = QLocale().toString(*inches, 'f', decimals);
    while (number.endsWith(u'0')) number.chop(1);
    if (!number.back().isDigit()) number.chop(1);
    return tr("Guide at %1 inches").arg(number);
}

void RulerView::tellChosen() {
    const QString told = chosenText();
    if (told == accessibleDescription()) return;
    setAccessibleDescription(told);
    if (!hasFocus()) return;
    QAccessibleValueChangeEvent changed(this, chosenInches().value_or(0));
    QAccessible::updateAccessibility(&changed);
}

void RulerView::paintFocus(QPainter& painter) const {
    constexpr int width = 2;
    painter.setPen(QPen(palette().color(QPalette::Highlight), width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(visibleRegion().boundingRect().adjusted(1, 1, -1, -1));
    if (const Guide* guide = chosenGuide())
        painter.drawRect(markerRect(*guide).adjusted(-width, -width, width, width));
}

} // namespace gui
