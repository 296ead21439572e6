#include "shell/program.h"

#include "app/windowState.h"
#include "entry/retrieveData.h"
#include "invoice/views.h"
#include "shell/mainWindow.h"

namespace shell {

// Who follows which change, in the order in which they are told.
Program::Program(platform::Platform& platformToUse) : App(platformToUse) {
    using app::Change;
    changes.follow({Change::Modified}, app::showModified);
    changes.follow({Change::Values, Change::CurrentRecord}, entry::refreshShownRecord);
    changes.follow({Change::Columns, Change::Values}, invoice::rebuildView);
    changes.follow({Change::Page}, entry::showPage);
    changes.follow({Change::Preview}, [](App& app) { SSTab1_Click(app, app::previewTab); });
}

} // namespace shell
