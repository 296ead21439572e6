#include "shell/start/emptyPages.h"

#include "app/windowState.h"
#include "core/translate.h"
#include "layout/layoutPage.h"
#include "layout/placeColumns.h"
#include "shell/commands.h"

namespace shell {

using app::App;

namespace {

// A list holds its Totals row at least, and its table the hidden column.
bool hasRecords(const core::RecordsList& list) {
    return list.count() > 1;
}
bool hasColumns(const App& app) {
    return app.document.LV.columns.count() > 1;
}

Hint::Button commandButton(const char* key, const std::string& caption) {
    return {key, caption, [key](App& app) { runCommand(app, key); }};
}

Hint::Button newRecordButton() {
    return {"mnuNewRecord", core::tr("&New Record"), [](App& app) {
                if (app.mainFrm.SSTab1 == app::previewTab) app::showReportTab(app);
                runCommand(app, "mnuNewRecord");
            }};
}

Hint noColumns(bool canImport) {
    Hint hint{core::tr("There are no columns yet"),
              core::tr("Columns are what a record is made of, as a name, a date or a price."),
              {commandButton("mnuDatabaseProperties", core::tr("&Define Columns..."))}};
    if (canImport) {
        hint.text.append(" ").append(core::tr("You can also begin with a table of another program."));
        hint.buttons.push_back(commandButton("mnuImportTable", core::tr("I&mport...")));
    }
    return hint;
}

Hint emptySheet() {
    return {core::tr("The layout page is empty"),
            core::tr("Design it once: it then shows each record, takes what you type, and prints as you have "
                     "placed it."),
            {commandButton("Design", core::tr("Design The &Page"))}};
}

bool isDesigning(const App& app) {
    return layout::layoutPage(app).layoutToolbarInFront;
}

// What an invoice repeats is not known before the page is designed.
Hint orAllColumns(const App& app, Hint hint) {
    if (app.document.bInvoiceStyle) return hint;
    hint.buttons.push_back({"placeColumns", core::tr("Place &All Columns"), [](App& shown) {
                                if (!isDesigning(shown)) runCommand(shown, "Design");
                                if (isDesigning(shown)) layout::placeAllColumns(shown);
                            }});
    return hint;
}

} // namespace

std::optional<Hint> emptyList(const App& app, const core::RecordsList& list) {
    if (hasRecords(list)) return {};
    if (&list == &app.document.searchLV)
        return Hint{core::tr("No record was found"),
                    core::tr("Nothing in the database is what was searched for."),
                    {commandButton("Search", core::tr("&Show All Records"))}};
    if (!hasColumns(app)) return noColumns(true);
    Hint hint{core::tr("There are no records yet"),
              core::tr("Type the first one, or take over those of a table of another program."),
              {newRecordButton()}};
    if (app.document.bInvoiceStyle)
        hint.text = core::tr("Type the first one: it is filled in on the layout page.");
    else
        hint.buttons.push_back(commandButton("mnuImportTable", core::tr("I&mport...")));
    return hint;
}

std::optional<Hint> emptyLayoutPage(const App& app) {
    if (!hasColumns(app)) return noColumns(false);
    if (app.document.layout.count() > 0) {
        // The sheet of invoices is put away as long as there is none.
        if (layout::layoutPage(app).layoutPic2.Visible || !app.document.bInvoiceStyle) return {};
        return Hint{core::tr("There are no records yet"),
                    core::tr("The page is filled in for each one."),
                    {newRecordButton()}};
    }
    if (!isDesigning(app)) return orAllColumns(app, emptySheet());
    return orAllColumns(
        app, {core::tr("Nothing is placed on the page yet"),
              core::tr("Add Entry Box, in the bar above, places a box for a column; Add Label a text."),
              {}});
}

std::optional<Hint> emptyPreview(const App& app) {
    if (!hasColumns(app)) return noColumns(false);
    if (app.mainFrm.iPrintMode == app::printReport) {
        if (app.document.printedCols.empty())
            return Hint{core::tr("No column is chosen for the report"),
                        core::tr("Choose in the page setup what is printed."),
                        {commandButton("PageSetup", core::tr("Page &Setup..."))}};
    } else if (app.document.layout.count() == 0) {
        return emptySheet();
    }
    if (hasRecords(app.document.LV)) return {};
    return Hint{core::tr("There are no records to print yet"),
                core::tr("The pages are filled with them."),
                {newRecordButton()}};
}

} // namespace shell
