#include "gui/layout/sheetView.h"
#include "layout/layoutPage.h"

#include "layout/dragging.h"
#include "layout/selection.h"
#include "layout/sheet.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

// The keyboard on the sheet.

namespace gui {

using core::Family;
using core::ObjectRef;
using layout::LayoutPage;

namespace {

// The key codes of the handlers; 0 for all that no handler tells apart.
int keyCodeOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
        return layout::keyLeft;
    case Qt::Key_Up:
        return layout::keyUp;
    case Qt::Key_Right:
        return layout::keyRight;
    case Qt::Key_Down:
        return layout::keyDown;
    case Qt::Key_Delete:
        return layout::keyDelete;
    default:
        return 0;
    }
}

int shiftOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

bool isActivation(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

bool SheetView::keyEvent(QObject* watched, QEvent* event) {
    if (app_.mainFrm.SSTab1 != app::layoutTab) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!layout::isDesignMode(app_)) {
        const ObjectRef object = objects_->objectOf(watched);
        const bool opens = isPress && object.family == Family::imgHolder && isActivation(key);
        if (opens) doubleClick(object);
        if (isPress && object.family == Family::layoutField) bringIntoView(object);
        return opens;
    }
    if (!isPress) {
        // Delete and the arrows are for the sheet, not for the menus.
        if (keyCodeOf(key) != 0) event->accept();
        return false;
    }
    bool used = false;
    events_.run([&] { used = layout::Form_KeyDown(app_, keyCodeOf(key), shiftOf(key)); });
    if (used) bringIntoView(layout::layoutPage(app_).selectedObject);
    return used || (watched == paper_ && paperKey(key));
}

// What the mouse does on the sheet: Tab is a click on the next object and Enter the double click, Ctrl+Shift
// and an arrow draws the grip, and the menu key is the right button.
bool SheetView::paperKey(const QKeyEvent& key) {
    const ObjectRef selected = layout::layoutPage(app_).selectedObject;
    const bool turnsTab = key.modifiers() & Qt::ControlModifier; // of the window
    if (turnsTab && (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab)) return false;
    if (key.key() == Qt::Key_Tab) return selectNext(1);
    if (key.key() == Qt::Key_Backtab) return selectNext(-1);
    const QWidget* widget = objects_->widgetOf(selected);
    if (widget == nullptr) return false;
    if (isActivation(key)) {
        doubleClick(selected);
        return true;
    }
    const bool isMenuKey =
        key.key() == Qt::Key_Menu || (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier);
    if (isMenuKey) {
        bool wantsMenu = false;
        events_.run([&] { wantsMenu = layout::object_MouseUp(app_, selected, layout::MouseButton::Right); });
        if (wantsMenu) showImportMenu(widget->mapToGlobal(widget->rect().center()));
        return wantsMenu;
    }
    constexpr int ctrlAndShift = 3;
    const int code = keyCodeOf(key);
    if (shiftOf(key) != ctrlAndShift || code == 0 || code == layout::keyDelete) return false;
    events_.run([&] {
        const LayoutPage::Grip& grip = layout::layoutPage(app_).Handle;
        const long x = std::lround(grip.Left), y = std::lround(grip.Top);
        // With the snap a drag counts from just beyond one step of the grid.
        const long step = static_cast<long>(
            app_.mainFrm.bSnapToGrid ? layout::gridStep + 1 : layout::layoutPage(app_).TwipsPerPixelX);
        layout::Handle_MouseDown(app_, x, y);
        if (layout::layoutPage(app_).drag == LayoutPage::Drag::Resize)
            layout::dragTo(app_, x + step * ((code == layout::keyRight) - (code == layout::keyLeft)),
                           y + step * ((code == layout::keyDown) - (code == layout::keyUp)));
        layout::Handle_MouseUp(app_);
    });
    return true;
}

// Line by line over the sheet. Behind the last one the key leaves the sheet, as it leaves any page.
bool SheetView::selectNext(int direction) {
    const std::vector<ObjectRef> order = objects_->inReadingOrder();
    const auto here = std::ranges::find(order, layout::layoutPage(app_).selectedObject);
    const auto count = static_cast<int>(order.size());
    int next = here == order.end() ? (direction > 0 ? 0 : count - 1)
                                   : static_cast<int>(here - order.begin()) + direction;
    if (next < 0 || next >= count) return false;
    const ObjectRef object = order[static_cast<std::size_t>(next)];
    events_.run([&] {
        layout::object_Click(app_, object);
        layout::placeHandle(app_, object);
    });
    bringIntoView(object);
    return true;
}

} // namespace gui
