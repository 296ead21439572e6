#include "lock/designLock.h"

namespace lock {

bool isDesignLocked(app::App& app) {
    if (app.document.lockPassword.empty()) return false;
    app.platform.msgBox(
        "The database structure and layout have been locked.  Use the Options menu to unlock.",
        platform::Icon::Information, std::string(app::title));
    return true;
}

} // namespace lock
