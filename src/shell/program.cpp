#include "shell/program.h"

#include "app/windowState.h"
#include "entry/navBar.h"
#include "entry/retrieveData.h"
#include "entry/shownRecord.h"
#include "invoice/views.h"
#include "layout/selection.h"
#include "layout/sheet.h"
#include "shell/mainWindow.h"

namespace shell {

// Who follows which change, in the order in which they are told.
Program::Program(platform::Platform& platformToUse) : App(platformToUse) {
    using app::Change;
    changes.follow({Change::Modified}, app::showModified);
    changes.follow({Change::Columns}, [](App& app) {
        // What is designed shows the names of its columns, and a new record has no results yet.
        if (!layout::isDesignMode(app) && !entry::isSheetNew(app)) entry::refreshShownRecord(app);
    });
    changes.follow({Change::Objects}, layout::forgetLostObject);
    changes.follow({Change::PageEmptied}, entry::unbindSheet);
    changes.follow({Change::Values, Change::CurrentRecord}, entry::refreshShownRecord);
    changes.follow({Change::Columns, Change::Values}, [](App& app) { invoice::rebuildView(app.document); });
    changes.follow({Change::Page}, entry::showPage);
    changes.follow({Change::Preview}, [](App& app) { SSTab1_Click(app, app::previewTab); });
}

} // namespace shell
