#include "shell/labelTable.h"

#include "core/runTimeError.h"
#include "core/translate.h"
#include "file/fileHandle.h"
#include "labels/labelFrm.h"
#include "lock/designLock.h"
#include "platform/programFiles.h"
#include "print/printCommands.h"
#include "print/printerCheck.h"
#include "shell/mainWindow.h"

namespace shell {

std::vector<labels::LabelStock> installedLabelStocks() {
    constexpr std::size_t maxBytes = std::size_t{16} * 1024 * 1024;
    const auto table = platform::programFile("stocks/labels.tsv");
    if (!table) return {};
    const auto text = file::readSmallFile(*table, maxBytes);
    if (!text) core::raise(core::errors::badFileFormat, table->string());
    return labels::readLabelStocks(*text);
}

// What is typed on the page is left as a click on another tab leaves it, since the label may take its place.
void labelWizard(app::App& app) {
    if (lock::isDesignLocked(app) || !print::hasPrinter(app)) return;
    if (app.document.bInvoiceStyle) {
        app::inform(
            app,
            core::tr("Labels are made of the records of a list.  Invoices print one to a page: use Print on "
                     "the Layout tab."));
        return;
    }
    if (app.mainFrm.SSTab1 != app::reportTab) SSTab1_Click(app, app::reportTab);
    if (app.mainFrm.SSTab1 != app::reportTab) return;
    auto& opening = app.rooms.of<labels::LabelOpening>();
    if (opening.stocks.empty()) {
        try {
            opening.stocks = installedLabelStocks();
        } catch (const core::RunTimeError& error) {
            app::warn(app,
                      core::fill(core::tr("The table of label sheets cannot be read: %1"), {error.what()}));
        }
    }
    app.platform.showForm("labelFrm");
    if (opening.bFinished) print::Toolbar_ButtonMenuClick(app, "Multiple_Layout_Preview_All");
}

} // namespace shell
