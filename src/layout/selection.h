#pragma once

#include "app/app.h"
#include "core/objectRef.h"

#include <string>

namespace layout {

// The right button is 2 and the middle one 4.
enum class MouseButton { Left = 1, Right = 2, Middle = 4 };

// Lines are thin: a press on the bare sheet or on a box behind them takes the one that is that near, in
// pixels.
constexpr float lineReach = 8;
// What a press takes that has hit this object, or the sheet.
core::ObjectRef grabbedObject(const app::App& app, core::ObjectRef hit, long pointerX, long pointerY);

// Events of every kind of object on the sheet. X and Y are twips inside the object (inside its border,
// for a field or a picture box); the pointer is in twips on the sheet. A mouse-down that starts a drag is
// followed by dragTo for every move of the pointer and by the mouse-up, then by the click.
void object_MouseDown(app::App& app, core::ObjectRef object, MouseButton button, int X, int Y, long pointerX,
                      long pointerY);
// True when the pop-up menu mnuImport is to be shown.
bool object_MouseUp(app::App& app, core::ObjectRef object, MouseButton button);
void object_Click(app::App& app, core::ObjectRef object);
void object_DblClick(app::App& app, core::ObjectRef object);

// The resize grip belongs to whatever is selected.
void Handle_MouseDown(app::App& app, long pointerX, long pointerY);
void Handle_MouseUp(app::App& app);

// Whether the object's place is locked against the mouse.
bool isLocked(const core::Document& document, core::ObjectRef object);
void toggleObjectLock(app::App& app);
void refreshLockIndicator(app::App& app);
void placeHandle(app::App& app, core::ObjectRef object);
// The new object is the selected one.
void select(app::App& app, core::ObjectRef object);
void selectNothing(app::App& app);

// Where the selected object stands and how large it is, in inches; empty while nothing is designed.
std::string selectionText(app::App& app);

// MainFrm sees keys first: Delete, and Ctrl with an arrow in design mode. True when the key has been used up.
enum Key { keyLeft = 37, keyUp = 38, keyRight = 39, keyDown = 40, keyDelete = 46 };
bool Form_KeyDown(app::App& app, int KeyCode, int Shift);
constexpr int ctrlShift = 2;

// Deselects the object that is selected but there no longer.
void forgetLostObject(app::App& app);

} // namespace layout
