#include "shell/commands.h"

#include "app/windowState.h"
#include "core/runTimeError.h"
#include "entry/editRecord.h"
#include "entry/invoiceRecords.h"
#include "lock/designLock.h"
#include "print/printCommands.h"
#include "search/codes/makeCodeFrm.h"
#include "search/coloursFrm.h"
#include "search/duplicatesFrm.h"
#include "search/filter/filterMode.h"
#include "search/replaceFrm.h"
#include "search/searchMode.h"
#include "search/serialCheckFrm.h"
#include "search/setValuesFrm.h"
#include "shell/clipboardCommands.h"
#include "shell/labelTable.h"
#include "shell/listCommands.h"
#include "shell/looks.h"
#include "shell/mainWindow.h"
#include "shell/menuCommands.h"
#include "shell/submenus.h"
#include "shell/tableCommands.h"
#include "shell/undo.h"
#include "storage/cleanDatabase.h"
#include "storage/newDatabase.h"
#include "storage/openFile.h"
#include "storage/saveFile.h"
#include "storage/saveSearch.h"
#include "storage/saveSteps.h"
#include "summary/statisticsFrm.h"
#include "summary/summaryPanel.h"
#include "tables/copyRecords.h"

#include <algorithm>
#include <array>

namespace shell {

using app::App;

namespace {

std::function<void(App&)> toggling(const char* key, bool app::MainFrm::*variable) {
    return [=](App& app) {
        app.mainFrm.*variable = !(app.mainFrm.*variable);
        app.mainFrm.control(key).Value = app.mainFrm.*variable;
    };
}

std::function<void(App&)> showing(const char* form) {
    return [=](App& app) { app.platform.showForm(form); };
}

void press(App& app, std::string_view key) {
    if (isCommandEnabled(app, key)) command(key).run(app);
}

// A menu item that stands for a button.
std::function<void(App&)> pressing(const char* button) {
    return [=](App& app) { press(app, button); };
}

std::function<void(App&)> printing(const char* key) {
    return [=](App& app) { print::Toolbar_ButtonMenuClick(app, key); };
}

void newDatabase(App& app) {
    storage::newDatabase(app, false);
}
void open(App& app) {
    storage::OpenFile(app, false);
}
void save(App& app) {
    storage::tellReason(app, storage::SaveFile(app, false, false));
}
void saveAs(App& app) {
    storage::tellReason(app, storage::SaveFile(app, true, false));
}
void clone(App& app) {
    storage::tellReason(app, storage::SaveFile(app, false, true));
}
void saveSearch(App& app) {
    storage::tellReason(app, storage::saveSearchResults(app));
}

std::vector<Command> toolbarCommands() {
    return {
        {"New", "New", "New Database", "new", false, newDatabase},
        {"Open", "Open", "Open Database", "open", false, open},
        {"Save", "Save", "Save Database", "save", false, save},
        {"Print", "Print", "Print Database", "print", false, print::Print_Click},
        {"PageSetup", "Page Setup", "Page Setup", "pageSetup", false, print::PageSetup_Click},
        {"Search", "Search", "Search Database", "search", true, search::Search_ButtonClick},
        {"Totals", "Totals", "Display Totals For Selected Items", "totals", true, toggleSelectedTotals},
        {"Formulas", "Expressions", "Define Expressions", "formulas", false, showing("formulateFrm")},
        {"Properties", "Properties", "Database Properties", "properties", false, showProperties},
        {"Design", "Design", "Switch Layout To Design Mode", "design", true, pressDesign},
        {"Delete", "Delete", "Delete Row", "delete", false, entry::Delete_ButtonClick},
        {"Help", "Help", "Help", "help", false, openHelp},
        {"SaveSearch", "Save Search Results As...", "Save Search Results As...", "saveSearch", false,
         saveSearch},
        {"All_As_Report", "Print all records as report.", "", "reportAll", false, printing("All_As_Report")},
        {"Selected_As_Report", "Print selected items as report.", "", "reportSelected", false,
         printing("Selected_As_Report")},
        {"All_As_Layouts", "Print all records as layouts.", "", "layoutsAll", false,
         printing("All_As_Layouts")},
        {"Selected_As_Layouts", "Print selected items as layouts.", "", "layoutsSelected", false,
         printing("Selected_As_Layouts")},
        {"Print_All_As_Multiple_Layouts", "Print all records as multiple layouts per page.", "",
         "multiLayoutsAll", false, printing("Print_All_As_Multiple_Layouts")},
        {"Print_Selected_Multiple_Layouts", "Print selected items as multiple layouts per page.", "",
         "multiLayoutsSelected", false, printing("Print_Selected_Multiple_Layouts")},
        {"Multiple_Layout_Preview_All", "Preview of all records using multiple layouts.", "", "previewAll",
         false, printing("Multiple_Layout_Preview_All")},
        {"Multiple_Layout_Preview_Selected", "Preview of selected records using multiple layouts.", "",
         "previewSelected", false, printing("Multiple_Layout_Preview_Selected")},
    };
}

std::vector<Command> viewCommands() {
    return {
        {"mnuZoomIn", "Zoom &In", "", "zoomIn", false, zoomIn, canZoomIn},
        {"mnuZoomOut", "Zoom &Out", "", "zoomOut", false, zoomOut, canZoomOut},
        {"mnuZoomNormal", "&Normal Size", "", "zoomNormal", false, zoomNormal, canZoomNormal},
        {"mnuFitPage", "Fit &Page", "Show the whole page", "fitPage", false, fitPage, canFit},
        {"mnuFitWidth", "Fit &Width", "As wide as the window", "fitWidth", false, fitWidth, canFit},
        {"mnuFreezeColumn", "&Freeze First Column", "", "", true, toggleFreezeColumn, canFreezeColumn},
        {"mnuColours", "&Colours...", "", "colours", false, search::mnuColours_Click, canFreezeColumn},
    };
}

std::vector<Command> fileCommands() {
    return {
        {"mnuNew", "&New", "", "new", false, newDatabase},
        {"mnuOpen", "&Open", "", "open", false, open},
        {"mnuSave", "&Save", "", "save", false, save},
        {"mnuSaveAs", "Save &As", "", "saveAs", false, saveAs},
        {"mnuVersions", "&Versions...", "", "versions", false, showing("versionsFrm")},
        {"mnuSaveSearch", "Save Search &Results As...", "", "saveSearch", false, saveSearch},
        {"mnuPrint", "&Print", "", "print", false, pressing("Print")},
        {"mnuPageSetup", "Page Setup", "", "pageSetup", false, pressing("PageSetup")},
        {"mnuLabels", "La&bel Wizard...", "", "labels", false, labelWizard, canExportTable},
        {"mnuCleanDatabase", "&Clean Database", "", "clean", false, storage::mnuCleanDatabase_Click},
        {"mnuImportTable", "&Import...", "", "import", false, importTable},
        {"mnuExportTable", "Expor&t...", "", "export", false, exportTable, canExportTable},
        {"mnuClone", "C&lone Database To..", "", "clone", false, clone},
        {"mnuEmail", "Send Database File To...", "", "mail", false, showing("mailFrm")},
        {"mnuFile1", "", "", "recent", false, [](App& app) { openRecentFile(app, "mnuFile1"); }},
        {"mnuFile2", "", "", "recent", false, [](App& app) { openRecentFile(app, "mnuFile2"); }},
        {"mnuFile3", "", "", "recent", false, [](App& app) { openRecentFile(app, "mnuFile3"); }},
        {"mnuExit", "&Exit", "", "exit", false, Form_QueryUnload},
    };
}

std::vector<Command> menuCommands() {
    using app::MainFrm;
    return {
        {"mnuUndo", "&Undo", "", "undo", false, undo},
        {"mnuRedo", "&Redo", "", "redo", false, redo},
        {"mnuCut", "Cu&t", "", "cut", false, cut, canCut},
        {"mnuCopy", "&Copy", "", "copy", false, copy, canCopy},
        {"mnuCopyHeadings", "Copy With &Headings", "", "copyHeadings", false, tables::mnuCopyHeadings_Click,
         canCopyRecords},
        {"mnuPaste", "&Paste...", "", "paste", false, paste, canPaste},
        {"mnuNewRecord", "&New Record", "", "recordNew", false, newRecord, canAddRecord},
        {"mnuOpenPage", "Show On &Layout Page", "", "openPage", false, openOnPage, canOpenOnPage},
        {"mnuOpenForm", "Open In &Entry Form", "", "field", false, openInForm, canOpenInForm},
        {"mnuDuplicate", "&Duplicate Record", "", "duplicate", false, entry::mnuDuplicate_Click},
        {"mnuReplace", "&Find And Replace", "", "replace", false, search::mnuReplace_Click},
        {"mnuSetValues", "Set &Values...", "", "setValues", false, search::mnuSetValues_Click},
        {"mnuMakeCode", "&Make Code...", "", "makeCode", false, makeCode, search::canMakeCode},
        {"mnuFilter", "F&ilter...", "", "filter", false, search::mnuFilter_Click, search::canFilter},
        {"mnuDuplicates", "Find Duplicat&es...", "", "duplicates", false, search::mnuDuplicates_Click},
        {"mnuSearch", "&Search", "", "search", false, search::mnuSearch_Click},
        {"mnuSelectedTotals", "Selected &Totals", "", "totals", false, toggleSelectedTotals},
        {"mnuSummary", "Su&mmary", "", "summary", true, summary::mnuSummary_Click},
        {"mnuStatistics", "Column Stat&istics...", "", "statistics", false, summary::mnuStatistics_Click},
        {"mnuExpressionEditor", "&Expression Editor", "", "expressionEditor", false, showExpressionEditor},
        {"mnuDatabaseProperties", "Database &Properties", "", "properties", false, showDatabaseProperties},
        {"mnuTotalColumns", "Choose Columns To Total", "", "totalColumns", false, showing("TotalsFrm")},
        {"mnuSerialAdjust", "&Adjust Serial Number Increment", "", "serial", false, showing("serialFrm")},
        {"mnuSerialCheck", "Check Serial &Numbers...", "", "serialCheck", false,
         search::mnuSerialCheck_Click},
        {"mnuConfirmDelete", "&Confirm Delete", "", "", true,
         toggling("mnuConfirmDelete", &MainFrm::bConfirmDelete)},
        {"mnuSavePrompt", "&Prompt For Save On Exit", "", "", true,
         toggling("mnuSavePrompt", &MainFrm::bSavePrompt)},
        {"mnuCalcHighlight", "&Highlight Calculation Boxes", "", "", true, toggleCalcHighlight},
        {"mnuDatabaseLock", "&Lock Or Unlock Database Design", "", "lock", false,
         lock::mnuDatabaseLock_Click},
        {"mnuLayoutDoubleClick", "&Go To Layout Upon Double-Click", "", "", true,
         toggling("mnuLayoutDoubleClick", &MainFrm::bLayoutDblClick)},
        {"mnuAutoLoad", "&Auto-Load Previously Opened File", "", "", true,
         toggling("mnuAutoLoad", &MainFrm::bAutoLoad)},
        {"mnuOpenPdf", "&Open PDFs After Printing", "", "", true, toggleOpenPdf},
        {"mnuContents", "&Contents", "", "help", false, openHelp},
        {"mnuDisclaimer", "&Disclaimer", "", "disclaimer", false, showing("disclaimFrm")},
        {"mnuWebpage", "&Visit FWK Homepage", "", "home", false, visitHomepage},
        {"mnuAbout", "&About Ferrowick", "", "about", false, showAbout},
    };
}

const std::map<std::string_view, Command>& allCommands() {
    static const std::map<std::string_view, Command> commands = [] {
        std::map<std::string_view, Command> all;
        for (const auto& table :
             {toolbarCommands(), fileCommands(), menuCommands(), viewCommands(), submenuCommands()})
            for (const Command& entry : table) all.emplace(entry.key, entry);
        return all;
    }();
    return commands;
}

// The menu that a command stands in follows the document too: a disabled menu disables its items.
std::string_view menuOf(std::string_view key) {
    for (const Menu& menu : menuBar())
        if (std::ranges::find(menu.items, key) != menu.items.end()) return menu.key;
    return {};
}

bool isControlEnabled(const App& app, std::string_view key) {
    const auto control = app.mainFrm.controls.find(key);
    return control == app.mainFrm.controls.end() || control->second.Enabled;
}

} // namespace

const Command& command(std::string_view key) {
    const auto found = allCommands().find(key);
    if (found == allCommands().end()) core::raise(core::errors::elementNotFound, std::string(key));
    return found->second;
}

bool hasCommand(std::string_view key) {
    return allCommands().contains(key);
}

bool isCommandEnabled(const App& app, std::string_view key) {
    const Command& asked = command(key);
    if (!asked.run || (asked.isReady != nullptr && !asked.isReady(app))) return false;
    const std::string_view menu = menuOf(key);
    return isControlEnabled(app, key) && (menu.empty() || isControlEnabled(app, menu));
}

void runCommand(App& app, std::string_view key) {
    RunningCommand running(app, command(key).key);
    press(app, key);
    running.end();
    app::allowManySelected(app);
}

std::span<const std::string_view> toolbarKeys() {
    static constexpr std::array<std::string_view, 17> keys = {
        "New", "Open",     "Save",       "-",      "Print", "PageSetup", "-", "Search", "Totals",
        "-",   "Formulas", "Properties", "Design", "-",     "Delete",    "-", "Help"};
    return keys;
}

std::span<const std::string_view> buttonMenuKeys(std::string_view buttonKey) {
    static constexpr std::array<std::string_view, 1> saveKeys = {"SaveSearch"};
    static constexpr std::array<std::string_view, 11> printKeys = {"All_As_Report",
                                                                   "Selected_As_Report",
                                                                   "-",
                                                                   "All_As_Layouts",
                                                                   "Selected_As_Layouts",
                                                                   "-",
                                                                   "Print_All_As_Multiple_Layouts",
                                                                   "Print_Selected_Multiple_Layouts",
                                                                   "-",
                                                                   "Multiple_Layout_Preview_All",
                                                                   "Multiple_Layout_Preview_Selected"};
    if (buttonKey == "Save") return saveKeys;
    if (buttonKey == "Print") return printKeys;
    return {};
}

std::span<const Menu> menuBar() {
    static const std::vector<Menu> menus = {
        {"mnuFile",
         "&File",
         {"mnuNew",
          "mnuTemplates",
          "mnuOpen",
          "mnuOpenRecent",
          "mnuSave",
          "mnuSaveAs",
          "mnuVersions",
          "-",
          "mnuSaveSearch",
          "-",
          "mnuPrint",
          "mnuPageSetup",
          "mnuLabels",
          "-",
          "mnuCleanDatabase",
          "-",
          "mnuImportTable",
          "mnuExportTable",
          "-",
          "mnuClone",
          "-",
          "mnuEmail",
          "-",
          "mnuFile1",
          "mnuFile2",
          "mnuFile3",
          "-",
          "mnuExit"}},
        {"mnuEdit",
         "&Edit",
         {"mnuUndo", "mnuRedo", "-", "mnuCut", "mnuCopy", "mnuCopyHeadings", "mnuPaste", "-", "mnuNewRecord",
          "mnuDuplicate", "-", "mnuFilter", "mnuReplace", "mnuSetValues", "mnuMakeCode", "mnuDuplicates"}},
        {"mnuView",
         "&View",
         {"mnuZoomIn", "mnuZoomOut", "mnuZoomNormal", "-", "mnuFitPage", "mnuFitWidth", "-",
          "mnuFreezeColumn", "mnuColours", "-", "mnuTheme", "mnuToolbarTexts"}},
        {"mnuTools",
         "&Tools",
         {"mnuSearch", "mnuSelectedTotals", "mnuExpressionEditor", "-", "mnuSummary", "mnuStatistics", "-",
          "mnuDatabaseProperties", "Design", "-", "mnuTotalColumns", "-", "mnuSerialAdjust",
          "mnuSerialCheck"}},
        {"mnuOptions",
         "&Options",
         {"mnuConfirmDelete", "mnuSavePrompt", "-", "mnuCalcHighlight", "mnuDatabaseLock", "-",
          "mnuLayoutDoubleClick", "mnuAutoLoad", "-", "mnuOpenPdf"}},
        {"mnuHelp", "&Help", {"mnuContents", "-", "mnuDisclaimer", "mnuWebpage", "mnuAbout"}}};
    return menus;
}

} // namespace shell
