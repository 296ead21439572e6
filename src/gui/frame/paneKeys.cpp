#include "gui/frame/paneKeys.h"

#include "gui/frame/noticeBar.h"
#include "gui/layout/rulerView.h"

#include <QDockWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace gui {

namespace {

std::vector<QToolButton*> usableButtons(const QToolBar& bar) {
    std::vector<QToolButton*> buttons;
    for (QAction* action : bar.actions())
        if (auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
            button != nullptr && button->isVisible() && button->isEnabled())
            buttons.push_back(button);
    return buttons;
}

void takeKeys(QWidget& widget, Qt::FocusReason reason) {
    widget.window()->setAttribute(Qt::WA_KeyboardFocusChange); // or the style would not show where they are
    widget.setFocus(reason);
}

bool isBar(const QWidget* widget) {
    return widget != nullptr && qobject_cast<QToolBar*>(widget->parentWidget()) != nullptr;
}

} // namespace

PaneKeys::PaneKeys(QMainWindow& window, QTabWidget& tabs, std::function<QWidget*()> keyHolder)
    : QObject(&window), window_(window), tabs_(tabs), keyHolder_(std::move(keyHolder)) {
    const auto add = [&](const QKeySequence& keys, auto&& act) {
        connect(new QShortcut(keys, &window), &QShortcut::activated, this, act);
    };
    add(Qt::Key_F6, [this] { step(1); });
    add(Qt::SHIFT | Qt::Key_F6, [this] { step(-1); });
    add(Qt::CTRL | Qt::Key_PageDown, [this] { turnTab(1); });
    add(Qt::CTRL | Qt::Key_PageUp, [this] { turnTab(-1); });
    for (const QToolBar* bar : window.findChildren<QToolBar*>())
        for (QAction* action : bar->actions())
            if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
                button->installEventFilter(this);
}

std::vector<PaneKeys::Pane> PaneKeys::panes() const {
    std::vector<Pane> all;
    const auto addBars = [&](const QWidget& place, Qt::FindChildOptions depth) {
        for (QToolBar* bar : place.findChildren<QToolBar*>(QString(), depth))
            if (const auto buttons = usableButtons(*bar); bar->isVisible() && !buttons.empty())
                all.push_back({bar, buttons.front()});
    };
    addBars(window_, Qt::FindDirectChildrenOnly);
    if (const auto* notice = window_.findChild<NoticeBar*>(); notice != nullptr && notice->isVisible())
        all.push_back({notice, notice->firstButton()});
    if (tabs_.tabBar()->isEnabled()) all.push_back({tabs_.tabBar(), tabs_.tabBar()});
    QWidget* page = tabs_.currentWidget();
    addBars(*page, Qt::FindChildrenRecursively);
    for (auto* ruler : page->findChildren<RulerView*>())
        if (ruler->isVisible()) all.push_back({ruler, ruler});
    all.push_back({page, keyHolder_()});
    for (const auto* dock : window_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (dock->isVisible()) all.push_back({dock, dock->widget()->focusProxy()});
    return all;
}

void PaneKeys::step(int direction) {
    const std::vector<Pane> all = panes();
    QWidget* focus = window_.focusWidget();
    const auto has = [focus](const Pane& pane) {
        return focus != nullptr && (pane.whole == focus || pane.whole->isAncestorOf(focus));
    };
    // The bar and the rulers of a page stand ahead of the page that they are in.
    const auto here = std::ranges::find_if(all, has);
    const auto count = static_cast<int>(all.size());
    const auto place = here == all.end() ? count - 1 : static_cast<int>(here - all.begin());
    if (tabs_.currentWidget()->isAncestorOf(focus) && !isBar(focus) &&
        qobject_cast<RulerView*>(focus) == nullptr)
        before_ = focus;
    takeKeys(*all[static_cast<std::size_t>((place + direction + count) % count)].entry, Qt::OtherFocusReason);
}

void PaneKeys::turnTab(int direction) {
    if (!tabs_.tabBar()->isEnabled()) return;
    tabs_.setCurrentIndex((tabs_.currentIndex() + direction + tabs_.count()) % tabs_.count());
}

void PaneKeys::moveInBar(QToolBar& bar, const QWidget* from, int direction) {
    const std::vector<QToolButton*> buttons = usableButtons(bar);
    const auto here = std::ranges::find(buttons, from);
    if (here == buttons.end()) return;
    const auto count = static_cast<int>(buttons.size());
    const auto place = (static_cast<int>(here - buttons.begin()) + direction + count) % count;
    takeKeys(*buttons[static_cast<std::size_t>(place)], Qt::OtherFocusReason);
}

void PaneKeys::press(QWidget& widget, bool opensMenu) {
    auto& button = static_cast<QToolButton&>(widget);
    bool done = !opensMenu;
    if (opensMenu) {
        if (button.menu() == nullptr || button.menu()->isEmpty()) return; // it would hold the keys unseen
        const auto chosen = connect(button.menu(), &QMenu::triggered, this, [&done] { done = true; });
        button.showMenu();
        disconnect(chosen);
    } else {
        button.click();
    }
    // The command may have moved them itself.
    if (done && button.hasFocus()) goBack();
}

void PaneKeys::goBack() {
    QWidget* const before = before_.data();
    const bool there = before != nullptr && before->isVisible() && before->isEnabled();
    takeKeys(there ? *before : *keyHolder_(), Qt::OtherFocusReason);
}

bool PaneKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    auto& button = *static_cast<QToolButton*>(watched);
    auto* bar = static_cast<QToolBar*>(button.parentWidget());
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Left:
        moveInBar(*bar, &button, -1);
        return true;
    case Qt::Key_Right:
        moveInBar(*bar, &button, 1);
        return true;
    case Qt::Key_Down:
        press(button, true);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space &&
            button.popupMode() != QToolButton::InstantPopup)
            return false; // the button presses itself, and keeps the keys
        press(button, button.popupMode() == QToolButton::InstantPopup);
        return true;
    case Qt::Key_Escape:
        goBack();
        return true;
    default:
        return false;
    }
}

} // namespace gui

#include "moc_paneKeys.cpp"
