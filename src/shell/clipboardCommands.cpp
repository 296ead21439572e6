#include "shell/clipboardCommands.h"

#include "app/windowState.h"
#include "layout/clipboard.h"
#include "layout/sheet.h"
#include "lock/designLock.h"
#include "shell/mainWindow.h"
#include "tables/copyRecords.h"
#include "tables/pasteFrm.h"

namespace shell {

using app::App;

namespace {

bool meansObjects(const App& app) {
    const auto design = app.mainFrm.controls.find("Design");
    return app.mainFrm.SSTab1 == app::layoutTab && design != app.mainFrm.controls.end() &&
           design->second.Value;
}

// New records are shown in the list, and what is typed on the page is left as a click on its tab leaves it.
void pasteRecords(App& app) {
    if (app.mainFrm.SSTab1 != app::reportTab) SSTab1_Click(app, app::reportTab);
    if (app.mainFrm.SSTab1 == app::reportTab) tables::mnuPaste_Click(app);
}

} // namespace

bool canCut(const App& app) {
    return layout::canCopyObjects(app);
}

bool canCopyRecords(const App& app) {
    return !meansObjects(app) && app::visibleList(app.document).count() > 0;
}

bool canCopy(const App& app) {
    return meansObjects(app) ? layout::canCopyObjects(app) : canCopyRecords(app);
}

bool canPaste(const App& app) {
    return meansObjects(app) ? layout::canPasteObjects(app) : app.document.LV.columns.count() > 1;
}

void cut(App& app) {
    if (!lock::isDesignLocked(app)) layout::cutObjects(app);
}

void copy(App& app) {
    if (meansObjects(app))
        layout::copyObjects(app);
    else
        tables::mnuCopy_Click(app);
}

void paste(App& app) {
    if (!meansObjects(app))
        pasteRecords(app);
    else if (!lock::isDesignLocked(app))
        layout::pasteObjects(app);
}

} // namespace shell
