#include "gui/layout/sheetView.h"
#include "app/looks.h"
#include "layout/layoutPage.h"

#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/textBox.h"
#include "gui/widgets/zoomWheel.h"
#include "layout/dragging.h"
#include "layout/images.h"
#include "layout/selection.h"
#include "layout/sheet.h"
#include "shell/commands.h"
#include "shell/menuCommands.h"

#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <utility>

namespace gui {

using core::Family;
using core::ObjectRef;
using layout::LayoutPage;

namespace {

layout::MouseButton buttonOf(const QMouseEvent& event) {
    if (event.button() == Qt::RightButton) return layout::MouseButton::Right;
    if (event.button() == Qt::MiddleButton) return layout::MouseButton::Middle;
    return layout::MouseButton::Left;
}

bool isMouseEvent(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
           event.type() == QEvent::MouseButtonDblClick || event.type() == QEvent::MouseMove;
}

} // namespace

SheetView::SheetView(app::App& app, EventBoundary& events, QWidget* parent)
    : QWidget(parent), app_(app), events_(events), paper_(new SheetPaper(app, this)),
      objects_(new SheetObjects(app, events, *paper_)), mark_(new SheetMark(paper_)),
      grip_(new QWidget(paper_)), ruler1_(new RulerView(app, events, Qt::Horizontal, this)),
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
    for (RulerView* ruler : {ruler1_, ruler2_}) {
        ruler->sheetTwips = [this](QPoint global) { return sheetTwips(global); };
        ruler->leave = [this] { takeFocus(); };
        ruler->showPlace = [this, ruler](QRect place) { showOnRuler(*ruler, place); };
    }
}

qreal SheetView::pixelsPerTwip() const {
    return pixelsPerTwipPlain() * zoom_ / 100;
}

qreal SheetView::pixelsPerTwipPlain() const {
    return logicalDpiX() / static_cast<qreal>(twipsPerInch);
}

// What stands at the anchor stays there.
void SheetView::followZoom() {
    const QPointF anchor = std::exchange(zoomAnchor_, {}).value_or(QRectF(rect()).center());
    const int zoom = app::looks(app_).layoutZoom;
    if (zoom == zoom_) return;
    LayoutPage& page = layout::layoutPage(app_);
    const QPointF place = anchor / pixelsPerTwip() - QPointF(page.layoutPic2.Left, page.layoutPic2.Top);
    zoom_ = zoom;
    // The rulers are as thick as ever.
    page.ruler1.Height = page.ruler2.Width = layout::rulerThickness * 100 / static_cast<float>(zoom);
    page.ruler1.Left = page.ruler2.Width;
    page.ruler2.Top = page.ruler1.Height;
    tellSize();
    const QPointF value = place - anchor / pixelsPerTwip();
    if (page.layoutHScroll.Max > 0 && value.x() > 0)
        layout::layoutHScroll_Change(app_, static_cast<int>(std::lround(value.x())));
    if (page.layoutVScroll.Max > 0 && value.y() > 0)
        layout::layoutVScroll_Change(app_, static_cast<int>(std::lround(value.y())));
}

void SheetView::tellSize() {
    const auto scale = static_cast<float>(pixelsPerTwip());
    layout::layoutPic1_Resize(app_, static_cast<float>(width()) / scale,
                              static_cast<float>(height()) / scale);
}

void SheetView::refresh() {
    if (refreshing_) return;
    const QScopedValueRollback guard(refreshing_, true);
    LayoutPage& page = layout::layoutPage(app_);
    const qreal scale = pixelsPerTwip();
    // Prints and steps are counted with it, so it knows nothing of the zoom.
    page.TwipsPerPixelX = page.TwipsPerPixelY = static_cast<float>(1 / pixelsPerTwipPlain());
    const auto pixels = [scale](float twips) { return static_cast<int>(std::lround(twips * scale)); };
    objects_->refresh(scale, zoom_);
    const LayoutPage::Sheet& sheet = page.layoutPic2;
    paper_->setGeometry(pixels(sheet.Left), pixels(sheet.Top), pixels(sheet.Width), pixels(sheet.Height));
    paper_->show(scale);
    paper_->setVisible(sheet.Visible);
    placeMark();
    placeGrip();
    // The bars take nothing while they are shown anew themselves.
    if (std::exchange(page.bShowSelected, false))
        QMetaObject::invokeMethod(
            this, [this] { bringIntoView(layout::layoutPage(app_).selectedObject); }, Qt::QueuedConnection);
    ruler1_->setGeometry(pixels(page.ruler1.Left), 0, pixels(page.ruler1.Width), pixels(page.ruler1.Height));
    ruler2_->setGeometry(0, pixels(page.ruler2.Top), pixels(page.ruler2.Width), pixels(page.ruler2.Height));
    corner_->setGeometry(0, 0, pixels(page.ruler2.Width), pixels(page.ruler1.Height));
    for (QWidget* part : {static_cast<QWidget*>(ruler1_), static_cast<QWidget*>(ruler2_), corner_})
        part->setVisible(page.bRulersVisible);
    if (!page.bRulersVisible) return;
    ruler1_->show(scale, pixelsPerTwipPlain());
    ruler2_->show(scale, pixelsPerTwipPlain());
}

void SheetView::placeGrip() {
    const LayoutPage::Grip& grip = layout::layoutPage(app_).Handle;
    const qreal scale = pixelsPerTwip();
    const int side = static_cast<int>(std::lround(layout::gripSize * pixelsPerTwipPlain()));
    grip_->setGeometry(static_cast<int>(std::lround(grip.Left * scale)),
                       static_cast<int>(std::lround(grip.Top * scale)), side, side);
    QPalette colours = grip_->palette();
    colours.setColor(QPalette::Window, grip.bLocked ? Qt::red : Qt::black);
    if (colours != grip_->palette()) grip_->setPalette(colours);
    grip_->setVisible(grip.Visible);
    if (grip.Visible) grip_->raise();
}

void SheetView::placeMark() {
    const bool designing = layout::isDesignMode(app_);
    const ObjectRef object =
        designing ? layout::layoutPage(app_).selectedObject : objects_->objectOf(window()->focusWidget());
    mark_->surround(objects_->widgetOf(object), designing);
    if (designing) grip_->raise();
    paper_->setAccessibleDescription(toQt(layout::selectionText(app_)));
}

void SheetView::takeFirstField() {
    QWidget* field = objects_->firstField();
    if (field == nullptr) return;
    field->setFocus(Qt::TabFocusReason);
    bringIntoView(objects_->objectOf(field)); // it may have had the keys already
}

void SheetView::bringIntoView(ObjectRef object) {
    const QWidget* widget = objects_->widgetOf(object);
    if (widget == nullptr) return;
    QRect place = widget->geometry();
    const auto* box = qobject_cast<const TextBox*>(widget);
    if (box != nullptr && box->hasFocus() && place.height() > height())
        place = box->cursorRect().translated(place.topLeft());
    bringIntoView(place);
}

void SheetView::bringIntoView(QRect place) {
    constexpr int margin = 8; // pixels of the surroundings
    place = place.translated(paper_->pos()).adjusted(-margin, -margin, margin, margin);
    QRect room = rect();
    if (corner_->isVisible()) room.setTopLeft(corner_->geometry().bottomRight());
    // The beginning of what is larger than the room.
    const auto excess = [](int first, int last, int roomFirst, int roomLast) {
        return first < roomFirst ? first - roomFirst
                                 : std::clamp(last - roomLast, 0, std::max(first - roomFirst, 0));
    };
    const int x = excess(place.left(), place.right(), room.left(), room.right());
    const int y = excess(place.top(), place.bottom(), room.top(), room.bottom());
    if (x == 0 && y == 0) return;
    const auto twips = [this](int pixels) { return static_cast<int>(std::lround(pixels / pixelsPerTwip())); };
    emit scrolled(twips(x), twips(y));
}

// Along the ruler alone, which goes with the sheet.
void SheetView::showOnRuler(const RulerView& ruler, QRect place) {
    const QPoint onSheet = place.center() + ruler.pos() - paper_->pos();
    const QPoint middle = paper_->mapFrom(this, rect().center());
    bringIntoView(QRect(&ruler == ruler1_ ? QPoint(onSheet.x(), middle.y()) : QPoint(middle.x(), onSheet.y()),
                        QSize(1, 1)));
}

void SheetView::resizeEvent(QResizeEvent*) {
    events_.run([this] { tellSize(); });
}

// What is typed in ends by a press beside the sheet, as it does by one on it.
void SheetView::mousePressEvent(QMouseEvent*) {
    paper_->setFocus(Qt::MouseFocusReason);
}

void SheetView::wheelEvent(QWheelEvent* event) {
    constexpr int twipsPerStep = 720;
    constexpr int deltaPerStep = 120;
    if (event->modifiers() & Qt::ControlModifier) {
        zoomAnchor_ = mapFromGlobal(event->globalPosition());
        zoomByWheel(app_, events_, *event);
        return;
    }
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
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        placeMark();
        // A press must find what it has hit where it was.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (event->type() == QEvent::FocusIn && reason != Qt::MouseFocusReason && !isPassing(reason))
            bringIntoView(objects_->objectOf(watched));
        return false;
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || !isAncestorOf(widget)) return false; // nothing but its keys are taken
    if (event->type() == QEvent::Wheel) {
        // Every wheel turn scrolls the sheet, wherever the pointer is.
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    if (!isMouseEvent(*event)) return false;
    if (watched == grip_) return gripEvent(event);
    return mouseEvent(watched, *static_cast<QMouseEvent*>(event));
}

bool SheetView::mouseEvent(QObject* watched, QMouseEvent& mouse) {
    ObjectRef object = objects_->objectOf(watched);
    if (layout::isDesignMode(app_)) {
        if (mouse.type() == QEvent::MouseButtonPress || mouse.type() == QEvent::MouseButtonDblClick) {
            const QPoint place = sheetTwips(mouse.globalPosition());
            grabbed_ = layout::grabbedObject(app_, object, place.x(), place.y());
        }
        if (grabbed_.isObject()) object = grabbed_;
        if (mouse.type() == QEvent::MouseButtonRelease) grabbed_ = {};
    }
    return object.isObject() && objectEvent(object, &mouse);
}

bool SheetView::gripEvent(QEvent* event) {
    const auto& mouse = *static_cast<QMouseEvent*>(event);
    const QPoint place = sheetTwips(mouse.globalPosition());
    events_.run([&] {
        if (event->type() == QEvent::MouseButtonPress)
            layout::Handle_MouseDown(app_, place.x(), place.y());
        else if (event->type() == QEvent::MouseButtonRelease)
            layout::Handle_MouseUp(app_);
        else if (layout::layoutPage(app_).drag == LayoutPage::Drag::Resize)
            layout::dragTo(app_, place.x(), place.y());
    });
    return true;
}

std::optional<int> SheetView::pictureBoxAt(QPoint global) const {
    const QWidget* at = childAt(mapFromGlobal(global));
    while (at != nullptr && at != this && !objects_->objectOf(at).isObject()) at = at->parentWidget();
    const ObjectRef object = at == nullptr ? ObjectRef() : objects_->objectOf(at);
    return object.family == Family::imgHolder ? std::optional(object.Index) : std::nullopt;
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
        if (layout::layoutPage(app_).drag == LayoutPage::Drag::None) break;
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
        const float border = hasBorder ? 2 * layout::layoutPage(app_).TwipsPerPixelX : 0;
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
    QAction* makeCode = nullptr;
    if (layout::layoutPage(app_).selectedObject.family == Family::imgHolder) {
        makeCode = menu.addAction(tr("&Make Code..."));
        makeCode->setObjectName(QStringLiteral("mnuMakeCode"));
        makeCode->setEnabled(shell::isCommandEnabled(app_, "mnuMakeCode"));
    }
    const QAction* chosen = menu.exec(place);
    if (chosen == import) events_.run([&] { layout::mnuImportImage_Click(app_); });
    if (makeCode != nullptr && chosen == makeCode) events_.run([&] { shell::makeCodeOfBox(app_); });
}

} // namespace gui

#include "moc_sheetView.cpp"
