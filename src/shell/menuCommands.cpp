#include "shell/menuCommands.h"

#include "app/windowState.h"
#include "core/translate.h"
#include "layout/layoutPage.h"
#include "layout/sheet.h"
#include "lock/designLock.h"
#include "platform/programFiles.h"
#include "print/printerCheck.h"
#include "search/codes/makeCodeFrm.h"
#include "search/searchMode.h"
#include "shell/commands.h"
#include "shell/mainWindow.h"
#include "shell/typedWords.h"
#include "shell/undo.h"
#include "storage/openFile.h"

// Whoever distributes the program may have set an address; without one its own page is shown.
#ifndef FERROWICK_HOMEPAGE
#define FERROWICK_HOMEPAGE ""
#endif

namespace shell {

using app::App;

void openNamedFile(App& app, const std::string& path) {
    app.document.currentFile = path;
    storage::OpenFile(app, true);
}

void openRecentFile(App& app, std::string_view key) {
    const std::string path = app.mainFrm.control(key).Caption;
    if (!path.empty()) openNamedFile(app, path);
}

void toggleSelectedTotals(App& app) {
    app::Control& button = app.mainFrm.control("Totals");
    button.Value = !button.Value;
    app.document.LV3.Visible = button.Value;
}

// The button is disabled while search results are shown, the menu item is not.
void showExpressionEditor(App& app) {
    app.platform.showForm("formulateFrm");
    search::refreshResults(app);
}

void showProperties(App& app) {
    if (!lock::isDesignLocked(app)) showDatabaseProperties(app);
}

// Search results are copies under the columns of their time, so they cannot outlive a change of the columns.
void showDatabaseProperties(App& app) {
    if (app.document.searchLV.Visible) search::leaveResults(app);
    app.platform.showForm("designFrm");
    layout::refreshLayoutButtonMenus(app);
}

void pressDesign(App& app) {
    app::Control& button = app.mainFrm.control("Design");
    if (lock::isDesignLocked(app) || !print::hasPrinter(app)) {
        button.Value = false;
        return;
    }
    button.Value = !button.Value;
    layout::refreshLayoutMode(app);
    if (app.mainFrm.SSTab1 != app::layoutTab) SSTab1_Click(app, app::layoutTab);
    app::setDocumentModified(app, true);
}

void toggleCalcHighlight(App& app) {
    app.mainFrm.bHighlightCalc = !app.mainFrm.bHighlightCalc;
    app.mainFrm.control("mnuCalcHighlight").Value = app.mainFrm.bHighlightCalc;
    layout::InitLayout(app, layout::isDesignMode(app));
}

namespace {
// A catalogue names the page in its own language; where that is not installed, the English one is shown.
void openHelpPage(App& app, const char* page) {
    auto file = platform::programFile(core::tr(page));
    if (!file) file = platform::programFile(page);
    if (file)
        app.platform.openLink(file->string());
    else
        app::inform(app, core::tr("The help pages are not installed."));
}
} // namespace

void makeCode(App& app) {
    const TypedWords typed(app);
    search::mnuMakeCode_Click(app);
    typed.putBack();
}

void makeCodeOfBox(App& app) {
    const core::ObjectRef selected = layout::layoutPage(app).selectedObject;
    const core::ImgHolder* holder = selected.family == core::Family::imgHolder
                                        ? app.document.layout.imgHolder.find(selected.Index)
                                        : nullptr;
    if (holder == nullptr || !isCommandEnabled(app, "mnuMakeCode")) return;
    RunningCommand running(app, "mnuMakeCode");
    const TypedWords typed(app);
    search::makeCodeFor(app, std::string(holder->Tag));
    typed.putBack();
    running.end();
    app::allowManySelected(app);
}

void openHelp(App& app) {
    //: Where the help stands in this language, below share/ferrowick. Not a text that is shown.
    openHelpPage(app, core::marked("help/index.html"));
}

void showAbout(App& app) {
    const std::string text =
        core::fill(core::tr("%1\nVersion %2\n\nA small database of your own, without learning one.\n"
                            "Free software under the MIT licence. It comes with no warranty."),
                   {app::title, FERROWICK_VERSION});
    app.platform.msgBox(text, platform::Icon::Information, core::fill(core::tr("About %1"), {app::title}));
}

void visitHomepage(App& app) {
    constexpr std::string_view address = FERROWICK_HOMEPAGE;
    if (address.empty())
        //: Where this page of the help stands in this language, below share/ferrowick. Not a text that is
        //: shown.
        openHelpPage(app, core::marked("help/about.html"));
    else
        app.platform.openLink(std::string(address));
}

} // namespace shell
