#pragma once

#include "app/app.h"
#include "core/objectRef.h"

namespace layout {

// A drag as a state machine. The pointer is in twips on the sheet. Beginning makes the first step, which
// sets the place that later ones are measured from. False when the object is locked or nothing is designed.
bool beginMove(app::App& app, core::ObjectRef object, int iMouseX, int iMouseY, long X, long Y);
bool beginResize(app::App& app, core::ObjectRef object, long X, long Y);
void dragTo(app::App& app, long X, long Y);
void endDrag(app::App& app);

// The other fields of the same column follow: under the head, in its size.
void stackCopies(core::Document& document, const core::LayoutField& head, bool withSize);

} // namespace layout
