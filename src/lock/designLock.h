#pragma once

#include "app/app.h"

namespace lock {

// Whether the design may not be changed; the user is told so.
bool isDesignLocked(app::App& app);

} // namespace lock
