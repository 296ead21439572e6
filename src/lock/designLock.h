#pragma once

#include "app/app.h"

namespace lock {

// The lock is a convenience and no protection: it keeps the design from being changed by mistake.

// The menu item "Lock Or Unlock Database Design". Locks an open design with a password that the user
// chooses, and opens a locked one to whoever knows it.
void mnuDatabaseLock_Click(app::App& app);

// Scrambles the document's lockPassword in place. Done twice it gives back what was there.
void scrambleLockPassword(core::Document& document);

// Whether the design may not be changed; the user is told so.
bool isDesignLocked(app::App& app);

} // namespace lock
