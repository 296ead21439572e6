#include "shell/tableCommands.h"

#include "shell/commands.h"
#include "shell/mainWindow.h"
#include "tables/exportFrm.h"
#include "tables/importFrm.h"

namespace shell {

using app::App;

// New records are shown in the list, and what is typed on the page is left as a click on its tab leaves it.
void importTable(App& app) {
    if (app.mainFrm.SSTab1 != app::reportTab) SSTab1_Click(app, app::reportTab);
    if (app.mainFrm.SSTab1 == app::reportTab) tables::mnuImportTable_Click(app);
}

void exportTable(App& app) {
    tables::mnuExportTable_Click(app);
}

bool canExportTable(const App& app) {
    return app.document.LV.columns.count() > 1;
}

bool isTableFile(const std::string& file) {
    return tables::isTableFile(file);
}

void importDropped(App& app, const std::string& file) {
    tables::chooseTableToImport(app, file);
    runCommand(app, "mnuImportTable");
    tables::chooseTableToImport(app, {}); // the command may not be enabled
}

} // namespace shell
