#include "gui/sheetView.h"

#include "gui/textBox.h"
#include "layout/dragging.h"
#include "layout/images.h"
#include "layout/selection.h"
#include "layout/sheet.h"

#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

namespace gui {

using app::LayoutPage;
using core::Family;
using core::ObjectRef;

namespace {

layout::MouseButton buttonOf(const QMouseEvent& event) {
    if (event.button() == Qt::RightButton) return layout::MouseButton::Right;
    if (event.button() == Qt::MiddleButton) return layout::MouseButton::Middle;
    return layout::MouseButton::Left;
}

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

bool isMouseEvent(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
           event.type() == QEvent::MouseButtonDblClick || event.type() == QEvent::MouseMove;
}

} // namespace

SheetView::SheetView(app::App& app, EventBoundary& events, QWidget* parent)
    : QWidget(parent), app_(app), events_(events), paper_(new SheetPaper(app, this)),
      objects_(new SheetObjects(app, events, *paper_)), grip_(new QWidget(paper_)),
      ruler1_(new RulerView(app, events, Qt::Horizontal, this)),
      ruler2_(new RulerView(app, events, Qt::Vertical, this)), corner_(new QWidget(this)) {
    setObjectName(QStringLiteral("layoutPic1"));
    grip_->setObjectName(QStringLiteral("Handle"));
    grip_->setAutoFillBackground(true);
    grip_->setCursor(Qt::SizeFDiagCursor);
    corner_->setObjectName(QStringLiteral("Shape1"));
    corner_->setAutoFillBackground(true);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Mid);
    // Or they would take the grey of what they lie on.
    grip_->setBackgroundRole(QPalette::Window);
    corner_->setBackgroundRole(QPalette::Window);
    for (QWidget* watched : {static_cast<QWidget*>(paper_), grip_}) watched->installEventFilter(this);
    connect(objects_, &SheetObjects::created, this, [this](QWidget* widget) {
        widget->installEventFilter(this);
        if (auto* box = qobject_cast<TextBox*>(widget)) box->viewport()->installEventFilter(this);
    });
    for (RulerView* ruler : {ruler1_, ruler2_})
        ruler->sheetTwips = [this](QPoint global) { return sheetTwips(global); };
}

qreal SheetView::pixelsPerTwip() const {
    constexpr qreal twipsPerInch = 1440;
    return logicalDpiX() / twipsPerInch;
}

void SheetView::refresh() {
    if (refreshing_) return;
    const QScopedValueRollback guard(refreshing_, true);
    LayoutPage& page = app_.mainFrm.layoutPage;
    const qreal scale = pixelsPerTwip();
    page.TwipsPerPixelX = page.TwipsPerPixelY = static_cast<float>(1 / scale);
    const auto pixels = [scale](float twips) { return static_cast<int>(std::lround(twips * scale)); };
    objects_->refresh(scale);
    const LayoutPage::Sheet& sheet = page.layoutPic2;
    paper_->setGeometry(pixels(sheet.Left), pixels(sheet.Top), pixels(sheet.Width), pixels(sheet.Height));
    paper_->show(scale);
    paper_->setVisible(sheet.Visible);
    placeGrip();
    ruler1_->setGeometry(pixels(page.ruler1.Left), 0, pixels(page.ruler1.Width), pixels(page.ruler1.Height));
    ruler2_->setGeometry(0, pixels(page.ruler2.Top), pixels(page.ruler2.Width), pixels(page.ruler2.Height));
    corner_->setGeometry(0, 0, pixels(app::rulerThickness), pixels(app::rulerThickness));
    for (QWidget* part : {static_cast<QWidget*>(ruler1_), static_cast<QWidget*>(ruler2_), corner_})
        part->setVisible(page.bRulersVisible);
    if (!page.bRulersVisible) return;
    ruler1_->show(scale);
    ruler2_->show(scale);
}

void SheetView::placeGrip() {
    const LayoutPage::Grip& grip = app_.mainFrm.layoutPage.Handle;
    const qreal scale = pixelsPerTwip();
    const int side = static_cast<int>(std::lround(app::gripSize * scale));
    grip_->setGeometry(static_cast<int>(std::lround(grip.Left * scale)),
                       static_cast<int>(std::lround(grip.Top * scale)), side, side);
    QPalette colours = grip_->palette();
    colours.setColor(QPalette::Window, grip.bLocked ? Qt::red : Qt::black);
    if (colours != grip_->palette()) grip_->setPalette(colours);
    grip_->setVisible(grip.Visible);
    if (grip.Visible) grip_->raise();
}

void SheetView::resizeEvent(QResizeEvent*) {
    const auto scale = static_cast<float>(pixelsPerTwip());
    events_.run([&] {
        layout::layoutPic1_Resize(app_, static_cast<float>(width()) / scale,
                                  static_cast<float>(height()) / scale);
    });
}

void SheetView::wheelEvent(QWheelEvent* event) {
    constexpr int twipsPerStep = 720;
    constexpr int deltaPerStep = 120;
    QPoint delta = event->angleDelta();
    if (event->modifiers() & Qt::ShiftModifier) delta = {delta.y(), delta.x()};
    emit scrolled(-delta.x() * twipsPerStep / deltaPerStep, -delta.y() * twipsPerStep / deltaPerStep);
    event->accept();
}

QPoint SheetView::sheetTwips(QPointF global) const {
    const QPointF place = paper_->mapFromGlobal(global) / pixelsPerTwip();
    return {static_cast<int>(std::lround(place.x())), static_cast<int>(std::lround(place.y()))};
}

bool SheetView::eventFilter(QObject* watched, QEvent* event) {
    if (refreshing_) return false;
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        return keyEvent(watched, event);
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || !isAncestorOf(widget)) return false; // nothing but its keys are taken
    if (event->type() == QEvent::Wheel) {
        // Every wheel turn scrolls the sheet, wherever the pointer is.
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    if (!isMouseEvent(*event)) return false;
    if (watched == grip_) return gripEvent(event);
    const ObjectRef object = objects_->objectOf(watched);
    return object.isObject() && objectEvent(object, event);
}

bool SheetView::keyEvent(QObject* watched, QEvent* event) {
    if (app_.mainFrm.SSTab1 != app::layoutTab) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!layout::isDesignMode(app_)) {
        const ObjectRef object = objects_->objectOf(watched);
        const bool opens = isPress && object.family == Family::imgHolder && isActivation(key);
        if (opens) doubleClick(object);
        return opens;
    }
    if (!isPress) {
        // Delete and the arrows are for the sheet, not for the menus.
        if (keyCodeOf(key) != 0) event->accept();
        return false;
    }
    bool used = false;
    events_.run([&] { used = layout::Form_KeyDown(app_, keyCodeOf(key), shiftOf(key)); });
    return used || (watched == paper_ && paperKey(key));
}

// What the mouse does on the sheet: Tab is a click on the next object and Enter the double click, Ctrl+Shift
// and an arrow draws the grip, and the menu key is the right button.
bool SheetView::paperKey(const QKeyEvent& key) {
    const ObjectRef selected = app_.mainFrm.layoutPage.selectedObject;
    if (key.key() == Qt::Key_Tab) return selectNext(1);
    if (key.key() == Qt::Key_Backtab) return selectNext(-1);
    const QWidget* widget = objects_->widgetOf(selected);
    if (widget == nullptr) return false;
    if (isActivation(key)) {
        doubleClick(selected);
        return true;
    }
    if (key.key() == Qt::Key_Menu) {
        bool wantsMenu = false;
        events_.run([&] { wantsMenu = layout::object_MouseUp(app_, selected, layout::MouseButton::Right); });
        if (wantsMenu) showImportMenu(widget->mapToGlobal(widget->rect().center()));
        return wantsMenu;
    }
    constexpr int ctrlAndShift = 3;
    const int code = keyCodeOf(key);
    if (shiftOf(key) != ctrlAndShift || code == 0 || code == layout::keyDelete) return false;
    events_.run([&] {
        const LayoutPage::Grip& grip = app_.mainFrm.layoutPage.Handle;
        const long x = std::lround(grip.Left), y = std::lround(grip.Top);
        // With the snap a drag counts from just beyond one step of the grid.
        const int step = static_cast<int>(app_.mainFrm.bSnapToGrid ? app::gridStep + 1
                                                                   : app_.mainFrm.layoutPage.TwipsPerPixelX);
        layout::Handle_MouseDown(app_, x, y);
        if (app_.mainFrm.layoutPage.drag == LayoutPage::Drag::Resize)
            layout::dragTo(app_, x + step * ((code == layout::keyRight) - (code == layout::keyLeft)),
                           y + step * ((code == layout::keyDown) - (code == layout::keyUp)));
        layout::Handle_MouseUp(app_);
    });
    return true;
}

// Line by line over the sheet. Behind the last one the key leaves the sheet, as it leaves any page.
bool SheetView::selectNext(int direction) {
    const std::vector<ObjectRef> order = objects_->inReadingOrder();
    const auto here = std::ranges::find(order, app_.mainFrm.layoutPage.selectedObject);
    const auto count = static_cast<int>(order.size());
    int next = here == order.end() ? (direction > 0 ? 0 : count - 1)
                                   : static_cast<int>(here - order.begin()) + direction;
    if (next < 0 || next >= count) return false;
    const ObjectRef object = order[static_cast<std::size_t>(next)];
    events_.run([&] {
        layout::object_Click(app_, object);
        layout::placeHandle(app_, object);
    });
    return true;
}

bool SheetView::gripEvent(QEvent* event) {
    const auto& mouse = *static_cast<QMouseEvent*>(event);
    const QPoint place = sheetTwips(mouse.globalPosition());
    events_.run([&] {
        if (event->type() == QEvent::MouseButtonPress)
            layout::Handle_MouseDown(app_, place.x(), place.y());
        else if (event->type() == QEvent::MouseButtonRelease)
            layout::Handle_MouseUp(app_);
        else if (app_.mainFrm.layoutPage.drag == LayoutPage::Drag::Resize)
            layout::dragTo(app_, place.x(), place.y());
    });
    return true;
}

bool SheetView::isLabelOpen(ObjectRef object) const {
    if (object.family != Family::tLabel) return false;
    const core::Label* label = app_.document.layout.tLabel.find(object.Index);
    return label != nullptr && !label->Locked;
}

bool SheetView::objectEvent(ObjectRef object, QEvent* event) {
    return layout::isDesignMode(app_) ? designEvent(object, event) : browseEvent(object, event);
}

bool SheetView::designEvent(ObjectRef object, QEvent* event) {
    if (object.family == Family::layoutField) {
        const core::LayoutField* field = app_.document.layout.layoutField.find(object.Index);
        if (field == nullptr || !field->Enabled) return true; // a copy: the mouse goes through to the sheet
    }
    if (isLabelOpen(object)) return false; // it is being typed in
    auto& mouse = *static_cast<QMouseEvent*>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(object, mouse);
        break;
    case QEvent::MouseMove:
        if (app_.mainFrm.layoutPage.drag == LayoutPage::Drag::None) break;
        events_.run([&] {
            const QPoint place = sheetTwips(mouse.globalPosition());
            layout::dragTo(app_, place.x(), place.y());
        });
        break;
    case QEvent::MouseButtonRelease:
        release(object, mouse);
        break;
    default: // the left button alone double-clicks; of another it is one more press
        mouse.button() == Qt::LeftButton ? doubleClick(object) : press(object, mouse);
    }
    return true;
}

void SheetView::press(ObjectRef object, QMouseEvent& mouse) {
    pressed_ = true;
    paper_->setFocus(Qt::MouseFocusReason);
    events_.run([&] {
        const core::LayoutObject* pressed = findObject(app_.document.layout, object);
        if (pressed == nullptr) return;
        const QPoint place = sheetTwips(mouse.globalPosition());
        // Told inside the border, which a field and a picture box have.
        const bool hasBorder = object.family == Family::layoutField || object.family == Family::imgHolder;
        const float border = hasBorder ? 2 * app_.mainFrm.layoutPage.TwipsPerPixelX : 0;
        layout::object_MouseDown(
            app_, object, buttonOf(mouse),
            static_cast<int>(std::lround(static_cast<float>(place.x()) - pressed->Left - border)),
            static_cast<int>(std::lround(static_cast<float>(place.y()) - pressed->Top - border)), place.x(),
            place.y());
    });
}

void SheetView::release(ObjectRef object, QMouseEvent& mouse) {
    bool wantsMenu = false;
    const QWidget* widget = objects_->widgetOf(object);
    // An object that snaps can be left behind by the pointer; a link that the pointer has left is not
    // followed.
    const bool isInside = layout::isDesignMode(app_) ||
                          (widget != nullptr &&
                           widget->rect().contains(widget->mapFromGlobal(mouse.globalPosition().toPoint())));
    const bool isClick = std::exchange(pressed_, false) && mouse.button() == Qt::LeftButton && isInside;
    events_.run([&] {
        wantsMenu = layout::object_MouseUp(app_, object, buttonOf(mouse));
        if (isClick) layout::object_Click(app_, object);
    });
    if (wantsMenu) showImportMenu(mouse.globalPosition().toPoint());
}

void SheetView::doubleClick(ObjectRef object) {
    events_.run([&] { layout::object_DblClick(app_, object); });
    if (!isLabelOpen(object)) return;
    auto* box = qobject_cast<TextBox*>(objects_->widgetOf(object));
    if (box == nullptr) return;
    box->setFocus(Qt::MouseFocusReason);
    box->selectAll();
}

bool SheetView::browseEvent(ObjectRef object, QEvent* event) {
    auto& mouse = *static_cast<QMouseEvent*>(event);
    if (event->type() == QEvent::MouseMove) return object.family != Family::layoutField;
    if (event->type() == QEvent::MouseButtonPress) {
        pressed_ = true;
    } else if (event->type() == QEvent::MouseButtonRelease) {
        release(object, mouse);
    } else if (mouse.button() == Qt::LeftButton) {
        doubleClick(object);
    }
    // The fields are real text boxes and take the mouse themselves.
    return object.family != Family::layoutField;
}

void SheetView::showImportMenu(QPoint place) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuImport"));
    QAction* import = menu.addAction(tr("&Import From Clipbard"));
    import->setObjectName(QStringLiteral("mnuImportImage"));
    if (menu.exec(place) == import) events_.run([&] { layout::mnuImportImage_Click(app_); });
}

} // namespace gui
