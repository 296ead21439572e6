#include "shell/clipboardCommands.h"

#include "layout/clipboard.h"
#include "lock/designLock.h"

namespace shell {

using app::App;

bool canCut(const App& app) {
    return layout::canCopyObjects(app);
}

bool canCopy(const App& app) {
    return layout::canCopyObjects(app);
}

bool canPaste(const App& app) {
    return layout::canPasteObjects(app);
}

void cut(App& app) {
    if (!lock::isDesignLocked(app)) layout::cutObjects(app);
}

void copy(App& app) {
    layout::copyObjects(app);
}

void paste(App& app) {
    if (!lock::isDesignLocked(app)) layout::pasteObjects(app);
}

} // namespace shell
