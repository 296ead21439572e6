#include "layout/dragging.h"
#include "layout/layoutPage.h"

#include "core/number.h"
#include "layout/images.h"
#include "layout/rulers.h"
#include "layout/selection.h"
#include "layout/sheet.h"

#include <utility>

namespace layout {

using app::App;
using core::Family;
using core::LayoutObject;
using core::ObjectRef;

namespace {

float snapped(double distance) {
    return static_cast<float>(core::roundHalfEven(distance / gridStep) * gridStep);
}

bool hasTravelled(long position, long last) {
    return position > last + gridStep || position < last - gridStep;
}

// A field and a picture box are told the pointer inside their border, two pixels wide.
bool hasBorder(Family family) {
    return family == Family::layoutField || family == Family::imgHolder;
}

core::LayoutField* headOf(core::Document& document, ObjectRef object) {
    return object.family == Family::layoutField ? document.layout.layoutField.find(object.Index) : nullptr;
}

void moveTo(App& app, LayoutObject& object, long X, long Y) {
    LayoutPage& page = layoutPage(app);
    if (app.mainFrm.bSnapToGrid) {
        if (hasTravelled(X, page.lastX)) {
            object.Left = snapped(static_cast<double>(X - page.iMouseX));
            page.lastX = X;
        }
        if (hasTravelled(Y, page.lastY)) {
            object.Top = snapped(static_cast<double>(Y - page.iMouseY));
            page.lastY = Y;
        }
    } else {
        const float border = hasBorder(page.dragged.family) ? 2 : 0;
        object.Left = static_cast<float>(X - page.iMouseX) - border * page.TwipsPerPixelX;
        object.Top = static_cast<float>(Y - page.iMouseY) - border * page.TwipsPerPixelY;
    }
    if (const core::LayoutField* head = headOf(app.document, page.dragged))
        stackCopies(app.document, *head, false);
    page.ruler1.line = object.Left;
    page.ruler2.line = object.Top;
}

// A line keeps its thickness.
void sizeFreely(const LayoutPage& page, LayoutObject& object, long X, long Y) {
    if (page.dragged.family != Family::vLine) object.Width = static_cast<float>(X) - object.Left;
    if (page.dragged.family != Family::pbLine) object.Height = static_cast<float>(Y) - object.Top;
}

void sizeByGrid(LayoutPage& page, LayoutObject& object, long X, long Y) {
    if (hasTravelled(X, page.lastX)) {
        if (page.dragged.family != Family::vLine)
            object.Width = snapped(static_cast<double>(X) - object.Left);
        page.lastX = X;
    }
    if (hasTravelled(Y, page.lastY)) {
        if (page.dragged.family != Family::pbLine)
            object.Height = snapped(static_cast<double>(Y) - object.Top);
        page.lastY = Y;
    }
}

void sizeTo(App& app, LayoutObject& object, long X, long Y) {
    LayoutPage& page = layoutPage(app);
    if (static_cast<float>(X) > object.Left && static_cast<float>(Y) > object.Top) {
        if (app.mainFrm.bSnapToGrid)
            sizeByGrid(page, object, X, Y);
        else
            sizeFreely(page, object, X, Y);
    }
    if (const core::LayoutField* head = headOf(app.document, page.dragged))
        stackCopies(app.document, *head, true);
    placeHandle(app, page.dragged);
    page.ruler1.line = static_cast<float>(X);
    page.ruler2.line = static_cast<float>(Y);
}

bool begin(App& app, ObjectRef object, LayoutPage::Drag drag) {
    LayoutPage& page = layoutPage(app);
    if (!isDesignMode(app) || isLocked(app.document, object) ||
        findObject(app.document.layout, object) == nullptr)
        return false;
    page.drag = drag;
    page.dragged = object;
    return true;
}

void finishSize(App& app, ObjectRef object) {
    if (object.family == Family::clipPic)
        if (core::ClipPic* clip = app.document.layout.clipPic.find(object.Index))
            fitImage(app, *clip, clip->clipImage, clipArtFile(app, *clip));
    placeHandle(app, object);
}

} // namespace

void stackCopies(core::Document& document, const core::LayoutField& head, bool withSize) {
    float n = 1;
    forEachCopy(document.layout, head, [&](core::LayoutField& copy) {
        if (withSize) {
            copy.Width = head.Width;
            copy.Height = head.Height;
        } else {
            copy.Left = head.Left;
        }
        copy.Top = head.Top + head.Height * n++;
    });
}

bool beginMove(App& app, ObjectRef object, int iMouseX, int iMouseY, long X, long Y) {
    if (!begin(app, object, LayoutPage::Drag::Move)) return false;
    LayoutPage& page = layoutPage(app);
    page.iMouseX = iMouseX;
    page.iMouseY = iMouseY;
    page.lastX = X;
    page.lastY = Y;
    page.Handle.Visible = false;
    dragTo(app, X, Y);
    return true;
}

bool beginResize(App& app, ObjectRef object, long X, long Y) {
    if (!begin(app, object, LayoutPage::Drag::Resize)) return false;
    LayoutPage& page = layoutPage(app);
    page.lastX = X;
    page.lastY = Y;
    dragTo(app, X, Y);
    return true;
}

void dragTo(App& app, long X, long Y) {
    const LayoutPage& page = layoutPage(app);
    if (page.drag == LayoutPage::Drag::HorizontalGuide || page.drag == LayoutPage::Drag::VerticalGuide) {
        dragGuide(app, X, Y);
        return;
    }
    LayoutObject* object = findObject(app.document.layout, page.dragged);
    if (object == nullptr) return;
    if (page.drag == LayoutPage::Drag::Move) moveTo(app, *object, X, Y);
    if (page.drag == LayoutPage::Drag::Resize) sizeTo(app, *object, X, Y);
}

void endDrag(App& app) {
    LayoutPage& page = layoutPage(app);
    const LayoutPage::Drag drag = std::exchange(page.drag, LayoutPage::Drag::None);
    page.ruler1.line.reset();
    page.ruler2.line.reset();
    if (drag == LayoutPage::Drag::Move) placeHandle(app, page.dragged);
    if (drag == LayoutPage::Drag::Resize) finishSize(app, page.dragged);
}

} // namespace layout
