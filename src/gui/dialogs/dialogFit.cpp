#include "gui/dialogs/dialogFit.h"

#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace gui {

namespace {

// As wide as its content, which grows and scrolls in height.
class ScrolledPart final : public QScrollArea {
public:
    explicit ScrolledPart(QWidget* parent) : QScrollArea(parent) {
        setObjectName(QStringLiteral("scrolledPart"));
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize minimumSizeHint() const override { return {contentWidth(), fontMetrics().height() * 8}; }
    QSize sizeHint() const override {
        return {contentWidth(), widget() == nullptr ? 0 : widget()->minimumSizeHint().height()};
    }

private:
    int contentWidth() const {
        return widget() == nullptr
                   ? 0
                   : widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    }
};

// The buttons are the last row of each dialog that has them below all else.
QLayoutItem* takeLowestRow(QLayout& layout) {
    auto* column = qobject_cast<QVBoxLayout*>(&layout);
    return column == nullptr || column->count() < 2 ? nullptr : column->takeAt(column->count() - 1);
}

void scroll(QDialog& dialog) {
    const QPointer<QWidget> focus = dialog.focusWidget();
    QLayoutItem* const lowest = takeLowestRow(*dialog.layout());
    const QMargins margins = dialog.layout()->contentsMargins();
    auto* area = new ScrolledPart(&dialog);
    auto* content = new QWidget(area);
    content->setLayout(dialog.layout()); // with all widgets that are in it
    content->layout()->setContentsMargins(margins.left(), margins.top(), margins.right(), 0);
    area->setWidget(content);
    content->setAutoFillBackground(false); // nor the viewport: it looks as the rest of the dialog does
    area->viewport()->setAutoFillBackground(false);
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
    if (focus != nullptr) focus->setFocus();
}

} // namespace

QSize roomOnScreen(const QWidget& window) {
    const int em = window.fontMetrics().height();
    return window.screen()->availableSize() - QSize(em / 2, em * 2);
}

int titleWidth(const QWidget& window) {
    QFont bold = window.font();
    bold.setBold(true); // as many desktops have it
    return QFontMetrics(bold).horizontalAdvance(window.windowTitle()) + window.fontMetrics().height() * 9;
}

void fitDialog(QDialog& dialog) {
    dialog.ensurePolished();
    const QSize room = roomOnScreen(dialog);
    if (dialog.layout() != nullptr && dialog.minimumSizeHint().height() > room.height()) scroll(dialog);
    const QSize wanted = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    dialog.resize(QSize(std::max(wanted.width(), titleWidth(dialog)), wanted.height()).boundedTo(room));
}

} // namespace gui
