#pragma once

#include "gui/frame/eventBoundary.h"
#include "gui/machine/qtPlatform.h"

namespace gui {

// Tells the platform the window of every form, by the form's name.
void registerForms(QtPlatform& platform, app::App& app, EventBoundary& events);

} // namespace gui
