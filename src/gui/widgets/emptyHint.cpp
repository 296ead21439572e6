#include "gui/widgets/emptyHint.h"

#include "gui/widgets/qtText.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

EmptyHint::EmptyHint(app::App& app, EventBoundary& events, QWidget* page)
    : QFrame(page), app_(app), events_(events), title_(new QLabel), text_(new QLabel),
      buttons_(new QHBoxLayout) {
    setObjectName(QStringLiteral("emptyHint"));
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window); // or it would take the grey of what it lies on
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);
    for (QLabel* label : {title_, text_}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    auto* column = new QVBoxLayout(this);
    const int margin = fontMetrics().height();
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin / 2);
    column->addWidget(title_);
    column->addWidget(text_);
    column->addLayout(buttons_);
    takeColours();
    page->installEventFilter(this);
    hide();
}

void EmptyHint::show(const std::optional<shell::Hint>& hint) {
    QStringList shown;
    if (hint) {
        shown << toQt(hint->title) << toQt(hint->text);
        for (const auto& button : hint->buttons) shown << toQt(button.key);
    }
    if (shown == shown_) return;
    shown_ = shown;
    const bool hadKeys = isAncestorOf(QApplication::focusWidget());
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        if (QWidget* button = item->widget()) {
            button->hide();
            button->deleteLater(); // it may be the one that is being pressed
        }
        delete item;
    }
    if (hint) {
        title_->setText(shown[0]);
        text_->setText(shown[1]);
        setAccessibleName(shown[0]);
        setAccessibleDescription(shown[1]);
        buttons_->addStretch();
        for (const auto& each : hint->buttons) {
            auto* button = new QPushButton(toQt(each.caption), this);
            button->setObjectName(QStringLiteral("hint_") + toQt(each.key));
            button->setAccessibleDescription(shown[0] + QStringLiteral(". ") + shown[1]);
            connect(button, &QPushButton::clicked, this,
                    [this, run = each.run] { events_.run([&] { run(app_); }); });
            buttons_->addWidget(button);
        }
        buttons_->addStretch();
        setAttribute(Qt::WA_TransparentForMouseEvents, hint->buttons.empty());
    }
    setVisible(hint.has_value());
    if (hint) place();
    raise();
    if (hadKeys) parentWidget()->setFocus(Qt::OtherFocusReason);
}

void EmptyHint::place() {
    constexpr int widest = 26; // lines high, about sixty letters
    const QRect room = parentWidget()->rect();
    const int gap = fontMetrics().height();
    const int width = std::min(fontMetrics().height() * widest, room.width() - 2 * gap);
    // A layout would leave out what is not shown yet.
    const QMargins margins = layout()->contentsMargins();
    const int inside = width - margins.left() - margins.right();
    int height = margins.top() + title_->heightForWidth(inside) + layout()->spacing() +
                 text_->heightForWidth(inside) + margins.bottom();
    if (const auto* button = findChild<QPushButton*>())
        height += layout()->spacing() + button->sizeHint().height();
    height = std::min(height, room.height());
    setGeometry(room.center().x() - width / 2, std::max(room.center().y() - height / 2, 0), width, height);
}

// Those of the program, whatever the page has for its own.
void EmptyHint::takeColours() {
    const QScopedValueRollback guard(colouring_, true);
    setPalette(QApplication::palette());
}

// Its letters are measured anew in the window that it is shown in.
bool EmptyHint::event(QEvent* event) {
    const bool isDone = QFrame::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) place();
    return isDone;
}

void EmptyHint::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange && !colouring_) takeColours();
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && !isHidden()) place();
    return QFrame::eventFilter(watched, event);
}

} // namespace gui

#include "moc_emptyHint.cpp"
