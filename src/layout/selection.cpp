#include "layout/selection.h"
#include "layout/layoutPage.h"

#include "core/translate.h"
#include "layout/dragging.h"
#include "layout/images.h"
#include "layout/labels.h"
#include "layout/links.h"
#include "layout/objects.h"
#include "layout/sheet.h"

#include "core/number.h"
#include "core/text.h"

#include <algorithm>
#include <optional>

namespace layout {

using app::App;
using core::Family;
using core::LayoutObject;
using core::ObjectRef;

namespace {

bool isPicture(Family family) {
    return family == Family::imgHolder || family == Family::clipPic;
}

bool isText(Family family) {
    return family == Family::layoutField || family == Family::tLabel;
}

void whitenSelectedLabel(App& app) {
    const ObjectRef selected = layoutPage(app).selectedObject;
    if (selected.family != Family::tLabel) return;
    if (core::Label* label = app.document.layout.tLabel.find(selected.Index)) label->BackColor = core::white;
}

bool startsDrag(const App& app, ObjectRef object, MouseButton button) {
    if (isText(object.family) && button == MouseButton::Middle) return false;
    return object.family != Family::tLabel || !layoutPage(app).bEditingLabel;
}

// Ctrl and an arrow move by a grid step without aligning to the grid, and locks do not count: it is wanted
// so.
void moveByKey(App& app, int KeyCode) {
    LayoutPage& page = layoutPage(app);
    LayoutObject* object = findObject(app.document.layout, page.selectedObject);
    if (object == nullptr) return;
    const float stepX = app.mainFrm.bSnapToGrid ? gridStep : page.TwipsPerPixelX;
    const float stepY = app.mainFrm.bSnapToGrid ? gridStep : page.TwipsPerPixelY;
    if (KeyCode == keyRight) object->Left += stepX;
    if (KeyCode == keyLeft) object->Left -= stepX;
    if (KeyCode == keyDown) object->Top += stepY;
    if (KeyCode == keyUp) object->Top -= stepY;
}

// How far a place is from an object, in twips; 0 inside it.
float distance(const LayoutObject& object, float x, float y) {
    const float across = std::max({object.Left - x, x - object.Left - object.Width, 0.0F});
    const float down = std::max({object.Top - y, y - object.Top - object.Height, 0.0F});
    return std::max(across, down);
}

bool givesWayToLines(const core::Document& document, ObjectRef object) {
    if (object.family != Family::layoutField) return object.family == Family::pBox || !object.isObject();
    const core::LayoutField* field = document.layout.layoutField.find(object.Index);
    return field != nullptr && !field->Enabled; // a copy, which the mouse goes through
}

// Where locks names the object. Files may write the index in another way than this program does.
std::optional<std::size_t> lockOf(const core::Document& document, ObjectRef object) {
    std::size_t position = 0;
    for (const auto& entry : document.locks) {
        const std::string_view item = entry.item;
        const std::size_t comma = item.find(',');
        if (comma != std::string_view::npos &&
            core::equalsNoCase(item.substr(0, comma), nameOf(object.family)) &&
            core::val(item.substr(comma + 1)) == object.Index)
            return position;
        ++position;
    }
    return std::nullopt;
}

} // namespace

bool isLocked(const core::Document& document, ObjectRef object) {
    return object.isObject() && lockOf(document, object).has_value();
}

void refreshLockIndicator(App& app) {
    const bool locked = isLocked(app.document, layoutPage(app).selectedObject);
    layoutPage(app).Handle.bLocked = locked;
    app.mainFrm.control("layoutToolbar.Lock").Value = locked;
}

void toggleObjectLock(App& app) {
    LayoutPage& page = layoutPage(app);
    if (!page.selectedObject.isObject()) return;
    const std::optional<std::size_t> lock = lockOf(app.document, page.selectedObject);
    page.Handle.bLocked = !lock;
    const std::string name = page.selectedObject.name();
    if (lock)
        app.document.locks.removeAt(*lock);
    else
        app.document.locks.add(name, name);
}

void placeHandle(App& app, ObjectRef object) {
    LayoutPage& page = layoutPage(app);
    const LayoutObject* placed = findObject(app.document.layout, object);
    page.Handle.Left =
        placed != nullptr ? placed->Left + placed->Width : page.layoutPic2.Left + page.layoutPic2.Width;
    page.Handle.Top =
        placed != nullptr ? placed->Top + placed->Height : page.layoutPic2.Top + page.layoutPic2.Height;
    page.Handle.Visible = true;
}

void select(App& app, ObjectRef object) {
    whitenSelectedLabel(app);
    layoutPage(app).selectedObject = object;
}

void selectNothing(App& app) {
    layoutPage(app).selectedObject = {};
    layoutPage(app).Handle.Visible = false;
}

ObjectRef grabbedObject(const App& app, ObjectRef hit, long pointerX, long pointerY) {
    if (!givesWayToLines(app.document, hit)) return hit;
    const core::LayoutObjects& layout = app.document.layout;
    const LayoutObject* behind = hit.family == Family::pBox ? findObject(layout, hit) : nullptr;
    ObjectRef nearest = hit;
    float least = lineReach * layoutPage(app).TwipsPerPixelX;
    const auto consider = [&](Family family, const core::LineObject& line) {
        if (!line.Visible || (behind != nullptr && line.zOrder < behind->zOrder)) return;
        const float far = distance(line, static_cast<float>(pointerX), static_cast<float>(pointerY));
        if (far > least) return;
        least = far;
        nearest = {family, line.Index};
    };
    layout.pbLine.forEach([&](const core::LineObject& line) { consider(Family::pbLine, line); });
    layout.vLine.forEach([&](const core::LineObject& line) { consider(Family::vLine, line); });
    return nearest;
}

std::string selectionText(App& app) {
    const LayoutPage& page = layoutPage(app);
    const LayoutObject* object = findObject(app.document.layout, page.selectedObject);
    if (object == nullptr || app.mainFrm.SSTab1 != app::layoutTab || !isDesignMode(app)) return {};
    const auto inches = [](float twips) {
        constexpr double twipsPerInch = 1440, decimals = 100;
        return core::numberText(core::roundHalfEven(twips / twipsPerInch * decimals) / decimals);
    };
    return core::fill(
        core::tr("At %1, %2   Size %3 x %4 in"),
        {inches(object->Left), inches(object->Top), inches(object->Width), inches(object->Height)});
}

void object_MouseDown(App& app, ObjectRef object, MouseButton button, int X, int Y, long pointerX,
                      long pointerY) {
    if (!isDesignMode(app) || !startsDrag(app, object, button)) return;
    if (object.family == Family::pbLine || object.family == Family::vLine) select(app, object);
    // A locked object stays where it is, and its grip is put where it belongs all the same.
    if (!beginMove(app, object, X, Y, pointerX, pointerY)) placeHandle(app, object);
}

bool object_MouseUp(App& app, ObjectRef object, MouseButton button) {
    if (isText(object.family)) {
        if (!isDesignMode(app)) return false;
        if (button == MouseButton::Middle)
            setObjectFont(app);
        else
            endDrag(app);
        return false;
    }
    endDrag(app);
    if (!isPicture(object.family)) return false;
    select(app, object);
    return button == MouseButton::Right;
}

void object_Click(App& app, ObjectRef object) {
    select(app, object);
    if (object.family == Family::tLabel) {
        core::Label* label = app.document.layout.tLabel.find(object.Index);
        if (label == nullptr) return;
        if (isDesignMode(app))
            label->BackColor = selectedLabelColor;
        else
            followLink(app, label->Tag);
    }
    refreshLockIndicator(app);
}

void object_DblClick(App& app, ObjectRef object) {
    switch (object.family) {
    case Family::tLabel:
        tLabel_DblClick(app, object.Index);
        break;
    case Family::pBox:
        pBox_DblClick(app, object.Index);
        break;
    case Family::clipPic:
        selectClipArt(app, object.Index);
        break;
    case Family::imgHolder:
        imgHolder_DblClick(app, object.Index);
        break;
    default:
        break;
    }
}

void Handle_MouseDown(App& app, long pointerX, long pointerY) {
    beginResize(app, layoutPage(app).selectedObject, pointerX, pointerY);
}

void Handle_MouseUp(App& app) {
    endDrag(app);
}

bool Form_KeyDown(App& app, int KeyCode, int Shift) {
    const bool designing = app.mainFrm.SSTab1 == app::layoutTab && isDesignMode(app);
    bool used = false;
    if (KeyCode == keyDelete && designing) {
        const ObjectRef selected = layoutPage(app).selectedObject;
        const core::Label* label =
            selected.family == Family::tLabel ? app.document.layout.tLabel.find(selected.Index) : nullptr;
        const bool isTypedIn = label != nullptr && !label->Locked;
        if (!isTypedIn) {
            deleteSelectedObject(app);
            used = true;
        }
    }
    if (!designing) return used;
    if (Shift == ctrlShift && KeyCode >= keyLeft && KeyCode <= keyDown &&
        layoutPage(app).selectedObject.isObject()) {
        moveByKey(app, KeyCode);
        used = true;
    }
    // For every key, whether or not anything has moved: it is wanted so.
    const ObjectRef selected = layoutPage(app).selectedObject;
    if (selected.family == Family::layoutField)
        if (const core::LayoutField* field = app.document.layout.layoutField.find(selected.Index))
            stackCopies(app.document, *field, false);
    placeHandle(app, selected);
    return used;
}

void forgetLostObject(App& app) {
    LayoutPage& page = layoutPage(app);
    if (!page.selectedObject.isObject() || findObject(app.document.layout, page.selectedObject) != nullptr)
        return;
    page.selectedObject = {};
    page.Handle.Visible = false;
}

} // namespace layout
