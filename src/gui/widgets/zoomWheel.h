#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"

#include <QWheelEvent>

namespace gui {

// Ctrl and the wheel: a step of the zoom of the page in front for each notch. Wheels that turn without
// notches come in small pieces, which are added up.
void zoomByWheel(app::App& app, EventBoundary& events, QWheelEvent& event);

} // namespace gui
