#include "gui/widgets/suggestionList.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace gui {

namespace {

constexpr int mostRows = 10; // on view

} // namespace

SuggestionList::SuggestionList(QWidget* window) : QListWidget(window) {
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("suggestions"));
    setAccessibleName(tr("Earlier values"));
    setUniformItemSizes(true);
    setFrameStyle(QFrame::Box | QFrame::Plain); // a style's own is not seen among dark boxes
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QListWidget::itemClicked, this, &SuggestionList::choose);
}

void SuggestionList::typed(const SuggestedBox& box) {
    if (choosing_ || !box.box->hasFocus()) return;
    if (!bring(box, false)) hide();
}

// False when there is nothing to propose.
bool SuggestionList::bring(const SuggestedBox& box, bool asked) {
    const QStringList values = box.values(asked);
    if (values.isEmpty()) return false;
    if (shownFor_ != box.box) {
        if (shownFor_ != nullptr) shownFor_->removeEventFilter(this);
        shownFor_ = box.box;
        // What moves the box away under the list, too.
        for (QWidget* watched : {box.box, box.box->parentWidget(), box.box->window()})
            watched->installEventFilter(this);
    }
    box_ = box;
    entered_ = asked;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, colours.color(QPalette::PlaceholderText)); // of the frame
    setPalette(colours);
    clear();
    addItems(values);
    for (int row = 0; row < count(); ++row) item(row)->setToolTip(values[row]);
    setCurrentRow(-1);
    scrollToTop();
    place();
    show();
    raise();
    return true;
}

// Under its box, or over it where there is more room.
void SuggestionList::place() {
    const int frame = 2 * frameWidth();
    const int rows = std::min(count(), mostRows);
    const QRect screen = box_.box->screen()->availableGeometry();
    const QRect box(box_.box->mapToGlobal(QPoint(0, 0)), box_.box->size());
    const int bar = count() > rows ? verticalScrollBar()->sizeHint().width() : 0;
    const int width = std::clamp(sizeHintForColumn(0) + bar + frame,
                                 std::min(box.width(), screen.width() / 2), screen.width() / 2);
    const int height = rows * sizeHintForRow(0) + frame;
    const bool isBelow =
        box.bottom() + height < screen.bottom() || box.top() - screen.top() < screen.bottom() - box.bottom();
    const int left = std::clamp(box.left(), screen.left(), std::max(screen.right() - width, screen.left()));
    setGeometry(left, isBelow ? box.bottom() + 1 : box.top() - height, width, height);
}

void SuggestionList::moveTo(int row) {
    setCurrentRow(std::clamp(row, 0, count() - 1));
    // A screen reader follows the box, which has the keys.
    box_.box->setAccessibleDescription(
        tr("%1, %2 of %3").arg(currentItem()->text()).arg(currentRow() + 1).arg(count()));
    QAccessibleEvent told(box_.box, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
}

void SuggestionList::choose() {
    if (currentItem() == nullptr) return;
    const QScopedValueRollback guard(choosing_, true);
    const QString value = currentItem()->text();
    hide();
    box_.choose(value);
}

// The keys of a list that is open.
bool SuggestionList::moveBy(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Down:
        moveTo(currentRow() + 1);
        return true;
    case Qt::Key_Up:
        moveTo(currentRow() - 1);
        return true;
    case Qt::Key_PageDown:
        moveTo(currentRow() + mostRows);
        return true;
    case Qt::Key_PageUp:
        moveTo(currentRow() - mostRows);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        return true;
    default:
        return false;
    }
}

bool SuggestionList::keyPress(const SuggestedBox& box, const QKeyEvent& key) {
    const bool isShown = isVisible() && shownFor_ == box.box;
    const Qt::KeyboardModifiers with = key.modifiers() & ~Qt::KeypadModifier;
    const bool isOpening = with == Qt::AltModifier && key.key() == Qt::Key_Down;
    const bool isTaking = with == Qt::ControlModifier && key.key() == Qt::Key_Space;
    if (!isShown) {
        if (!isOpening && !isTaking) return false;
        if (bring(box, true)) {
            auto same = findItems(box.text(), Qt::MatchFixedString);
            if (same.isEmpty()) same = findItems(box.text(), Qt::MatchStartsWith);
            moveTo(same.isEmpty() ? 0 : row(same.first()));
        }
        return true;
    }
    if (key.key() == Qt::Key_Escape) {
        hide();
        return true;
    }
    if (isTaking) {
        if (currentRow() < 0) moveTo(0);
        choose();
        return true;
    }
    if (isOpening || (with == Qt::AltModifier && key.key() == Qt::Key_Up && entered_)) {
        entered_ = true;
        return moveBy(key);
    }
    return entered_ && with == Qt::NoModifier && moveBy(key);
}

// The box goes, or is left, or the window moves away under the list.
bool SuggestionList::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowDeactivate:
        if (isVisible() && !choosing_) hide();
        break;
    default:
        break;
    }
    return QListWidget::eventFilter(watched, event);
}

void SuggestionList::hideEvent(QHideEvent* event) {
    QListWidget::hideEvent(event);
    entered_ = false;
    if (shownFor_ != nullptr) shownFor_->setAccessibleDescription(QString());
}

} // namespace gui

#include "moc_suggestionList.cpp"
