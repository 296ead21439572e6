#include "gui/dialogs/dialogFit.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace gui {

namespace {

constexpr QLatin1String scrolledPartName("scrolledPart");

// As wide as its content, which grows and scrolls in height.
class ScrolledPart final : public QScrollArea {
public:
    ScrolledPart(QLayout& content, const QMargins& margins, QWidget* parent) : QScrollArea(parent) {
        setObjectName(scrolledPartName);
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        auto* page = new QWidget(this);
        page->setLayout(&content); // with all widgets that are in it
        content.setContentsMargins(margins);
        setWidget(page);
        page->setAutoFillBackground(false); // nor the viewport: it looks as the rest of the dialog does
        viewport()->setAutoFillBackground(false);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
            // A press must find what it has hit where it was.
            if (now != nullptr && widget()->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton)
                showWhole(*now);
        });
    }

    void showWhole(const QWidget& part) {
        const QRect place(part.mapTo(widget(), QPoint()), part.size());
        const int margin = fontMetrics().height() / 2;
        ensureVisible(place.center().x(), place.center().y(), place.width() / 2 + margin,
                      place.height() / 2 + margin);
    }

    QSize minimumSizeHint() const override { return {contentWidth(), fontMetrics().height() * 8}; }
    QSize sizeHint() const override {
        return {contentWidth(), widget() == nullptr ? 0 : widget()->minimumSizeHint().height()};
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool handled = QScrollArea::eventFilter(watched, event);
        if (watched == widget() && event->type() == QEvent::LayoutRequest && isVisible()) growWindow();
        return handled;
    }

private:
    int contentWidth() const {
        return widget() == nullptr
                   ? 0
                   : widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    }
    // What the dialog unfolds gets what room there is.
    void growWindow() {
        const int wanted = widget()->minimumSizeHint().height();
        const int missing = wanted - viewport()->height();
        if (std::exchange(contentHeight_, wanted) >= wanted || missing <= 0) return;
        QWidget& dialog = *window();
        const int room = roomOnScreen(dialog).height();
        dialog.resize(dialog.width(), std::min(dialog.height() + missing, std::max(room, dialog.height())));
    }

    int contentHeight_ = QWIDGETSIZE_MAX;
};

// Moves a dialog that grows over the lower edge of its screen.
class OnScreen final : public QObject {
public:
    explicit OnScreen(QDialog& dialog) : QObject(&dialog) { dialog.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* dialog = event->type() == QEvent::Resize ? qobject_cast<QDialog*>(watched) : nullptr;
        if (dialog != nullptr && dialog->isVisible()) {
            const QRect screen = dialog->screen()->availableGeometry();
            const int below = dialog->frameGeometry().bottom() - screen.bottom();
            if (below > 0) dialog->move(dialog->x(), std::max(screen.top(), dialog->y() - below));
        }
        return QObject::eventFilter(watched, event);
    }
};

// The buttons are the last row of each dialog that has them below all else.
QLayoutItem* takeLowestRow(QLayout& layout) {
    auto* column = qobject_cast<QVBoxLayout*>(&layout);
    return column == nullptr || column->count() < 2 ? nullptr : column->takeAt(column->count() - 1);
}

// The row of parts above the buttons, where the dialog has nothing else.
QBoxLayout* rowOfParts(const QDialog& dialog) {
    const auto* column = qobject_cast<QVBoxLayout*>(dialog.layout());
    if (column == nullptr || column->count() != 2) return nullptr;
    auto* row = qobject_cast<QBoxLayout*>(column->itemAt(0)->layout());
    return row != nullptr && row->direction() == QBoxLayout::LeftToRight ? row : nullptr;
}

// A list that stands beside what is too high becomes lower with the dialog, and keeps its rows in view.
bool scrollHighParts(QDialog& dialog, QBoxLayout& row, int excess) {
    const int room = row.minimumSize().height() - excess;
    bool any = false;
    for (int place = 0; place < row.count(); ++place) {
        QLayout* part = row.itemAt(place)->layout();
        if (part == nullptr || part->minimumSize().height() <= room) continue;
        const int stretch = row.stretch(place);
        row.takeAt(place);
        row.insertWidget(place, new ScrolledPart(*part, {}, &dialog), stretch);
        any = true;
    }
    return any && dialog.minimumSizeHint().height() <= roomOnScreen(dialog).height();
}

void scrollAll(QDialog& dialog) {
    QLayoutItem* const lowest = takeLowestRow(*dialog.layout());
    const QMargins margins = dialog.layout()->contentsMargins();
    auto* area =
        new ScrolledPart(*dialog.layout(), {margins.left(), margins.top(), margins.right(), 0}, &dialog);
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(0, 0, 0, lowest == nullptr ? 0 : margins.bottom());
    column->addWidget(area, 1);
    if (lowest != nullptr) {
        auto* row = new QVBoxLayout;
        row->setContentsMargins(margins.left(), 0, margins.right(), 0);
        row->addItem(lowest);
        if (lowest->layout() != nullptr) lowest->layout()->setParent(row);
        column->addLayout(row);
    }
}

void scroll(QDialog& dialog, int excess) {
    const QPointer<QWidget> focus = dialog.focusWidget();
    QBoxLayout* row = rowOfParts(dialog);
    if (row == nullptr || !scrollHighParts(dialog, *row, excess)) scrollAll(dialog);
    if (focus != nullptr) focus->setFocus();
}

} // namespace

void showWhole(const QWidget& part) {
    for (QWidget* above = part.parentWidget(); above != nullptr; above = above->parentWidget())
        if (above->objectName() == scrolledPartName) {
            static_cast<ScrolledPart*>(above)->showWhole(part);
            return;
        }
}

QSize roomOnScreen(const QWidget& window) {
    const int em = window.fontMetrics().height();
    return window.screen()->availableSize() - QSize(em / 2, em * 2);
}

void keepOnScreen(QDialog& dialog) {
    new OnScreen(dialog);
}

int titleWidth(const QWidget& window) {
    QFont bold = window.font();
    bold.setBold(true); // as many desktops have it
    return QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + window.fontMetrics().height() * 9;
}

void fitDialog(QDialog& dialog, int unfolds) {
    dialog.ensurePolished();
    keepOnScreen(dialog);
    const QSize room = roomOnScreen(dialog);
    const int excess = dialog.minimumSizeHint().height() + unfolds - room.height();
    if (dialog.layout() != nullptr && excess > 0) scroll(dialog, excess);
    const QSize wanted = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    QSize size = QSize(std::max(wanted.width(), titleWidth(dialog)), wanted.height()).boundedTo(room);
    // Texts that wrap need more lines where the dialog is not as wide as they would like it.
    if (dialog.layout() != nullptr && dialog.layout()->hasHeightForWidth())
        size.setHeight(std::max(size.height(), dialog.layout()->totalHeightForWidth(size.width())));
    dialog.resize(size.boundedTo(room));
}

} // namespace gui
