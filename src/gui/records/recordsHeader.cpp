#include "gui/records/recordsHeader.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>

#include <algorithm>

namespace gui {

namespace {

constexpr int narrowestColumn = 20; // pixels; a column that somebody has closed can be opened again

constexpr int sizeStep = 8; // pixels

} // namespace

RecordsHeader::RecordsHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsMovable(true);
    setStretchLastSection(false);
    setHighlightSections(false);
    setMinimumSectionSize(narrowestColumn);
    setResizeContentsPrecision(-1); // a double click on a divider counts the rows out of sight too
}

// The styles that come with Qt clip a name in the middle of a letter, and one at the right edge loses
// its beginning.
void RecordsHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
    int room = sectionSize(logicalIndex) - 2 * margin;
    if (!option->icon.isNull()) room -= style()->pixelMetric(QStyle::PM_SmallIconSize, option, this) + margin;
    if (sortIndicatorSection() == logicalIndex)
        room -= style()->pixelMetric(QStyle::PM_HeaderMarkSize, option, this) + margin;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
}

// --- the keyboard ---

bool RecordsHeader::canMove(int section, int toRight) const {
    const int target = visualIndex(section) + visualStep(toRight);
    return visualIndex(section) >= 0 && target >= 0 && target < count();
}

bool RecordsHeader::moveColumn(int section, int toRight) {
    if (!canMove(section, toRight)) return false;
    moveSection(visualIndex(section), visualIndex(section) + visualStep(toRight));
    return true;
}

bool RecordsHeader::sizeColumn(int section, int wider) {
    const int now = sectionSize(section);
    const int wanted = std::clamp(now + wider * sizeStep, minimumSectionSize(), maximumSectionSize());
    if (wanted != now) resizeSection(section, wanted);
    return wanted != now;
}

void RecordsHeader::takeKeys(int section) {
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    setFocus(Qt::OtherFocusReason);
    choose(section);
}

void RecordsHeader::choose(int section) {
    if (section < 0 || section >= count()) return;
    chosen_ = section;
    tellChosen();
    viewport()->update();
    emit chosen(section);
}

void RecordsHeader::chooseAt(int visual) {
    if (count() > 0) choose(logicalIndex(std::clamp(visual, 0, count() - 1)));
}

// To a screen reader a heading is a part of the list.
void RecordsHeader::tellChosen() {
    if (!hasFocus() || chosen_ >= count()) return;
    QAccessibleEvent told(parentWidget(), QAccessible::Focus);
    told.setChild(chosen_);
    QAccessible::updateAccessibility(&told);
}

bool RecordsHeader::arrowKey(const QKeyEvent& key) {
    const int toRight = (key.key() == Qt::Key_Right) - (key.key() == Qt::Key_Left);
    if (toRight == 0) return false;
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::NoModifier) {
        chooseAt(visualIndex(chosen_) + visualStep(toRight));
        return true;
    }
    const bool isSized =
        modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && sizeColumn(chosen_, visualStep(toRight));
    if (isSized || (modifiers == Qt::ControlModifier && moveColumn(chosen_, toRight))) choose(chosen_);
    return true;
}

bool RecordsHeader::event(QEvent* event) {
    // The records are not what is chosen here, so their key does nothing.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        event->accept();
        return true;
    }
    // The menu key itself comes too.
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
        return true;
    return QHeaderView::event(event);
}

void RecordsHeader::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (chosen_ >= count() || arrowKey(*event)) return;
    const bool isMenuKey = event->key() == Qt::Key_Menu ||
                           (event->key() == Qt::Key_F10 && event->modifiers() & Qt::ShiftModifier);
    if (isMenuKey) {
        const int along = sectionViewportPosition(chosen_) + 1;
        emit menuWanted({isRightToLeft() ? viewport()->width() - 1 - along : along, height() - 1});
        return;
    }
    switch (event->key()) {
    case Qt::Key_Home:
        return chooseAt(0);
    case Qt::Key_End:
        return chooseAt(count() - 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        emit sectionClicked(chosen_);
        return;
    case Qt::Key_Escape:
    case Qt::Key_Down:
        emit left();
        return;
    default:
        event->ignore();
    }
}

void RecordsHeader::focusInEvent(QFocusEvent* event) {
    QHeaderView::focusInEvent(event);
    viewport()->update();
}

void RecordsHeader::focusOutEvent(QFocusEvent* event) {
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}

void RecordsHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->save(); // the style leaves a clip that nothing can be drawn in
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (!hasFocus() || logicalIndex != chosen_) return;
    constexpr int width = 2;
    painter->setPen(QPen(palette().color(QPalette::Highlight), width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(1, 1, -1, -1));
}

} // namespace gui

#include "moc_recordsHeader.cpp"
