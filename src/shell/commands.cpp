#include "shell/commands.h"

#include "app/windowState.h"
#include "core/runTimeError.h"
#include "core/translate.h"
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
#include "shell/appearance.h"
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
using core::marked;

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
        {"New", marked("New"), marked("New Database"), "new", false, newDatabase},
        {"Open", marked("Open"), marked("Open Database"), "open", false, open},
        {"Save", marked("Save"), marked("Save Database"), "save", false, save},
        {"Print", marked("Print"), marked("Print Database"), "print", false, print::Print_Click},
        {"PageSetup", marked("Page Setup"), marked("Page Setup"), "pageSetup", false, print::PageSetup_Click},
        {"Search", marked("Search"), marked("Search Database"), "search", true, search::Search_ButtonClick},
        {"Totals", marked("Totals"), marked("Display Totals For Selected Items"), "totals", true,
         toggleSelectedTotals},
        {"Formulas", marked("Expressions"), marked("Define Expressions"), "formulas", false,
         showing("formulateFrm")},
        {"Properties", marked("Properties"), marked("Database Properties"), "properties", false,
         showProperties},
        {"Design", marked("Design"), marked("Switch Layout To Design Mode"), "design", true, pressDesign},
        {"Delete", marked("Delete"), marked("Delete Row"), "delete", false, entry::Delete_ButtonClick},
        {"Help", marked("Help"), marked("Help"), "help", false, openHelp},
        {"SaveSearch", marked("Save Search Results As..."), marked("Save Search Results As..."), "saveSearch",
         false, saveSearch},
        {"All_As_Report", marked("Print all records as report."), "", "reportAll", false,
         printing("All_As_Report")},
        {"Selected_As_Report", marked("Print selected items as report."), "", "reportSelected", false,
         printing("Selected_As_Report")},
        {"All_As_Layouts", marked("Print all records as layouts."), "", "layoutsAll", false,
         printing("All_As_Layouts")},
        {"Selected_As_Layouts", marked("Print selected items as layouts."), "", "layoutsSelected", false,
         printing("Selected_As_Layouts")},
        {"Print_All_As_Multiple_Layouts", marked("Print all records as multiple layouts per page."), "",
         "multiLayoutsAll", false, printing("Print_All_As_Multiple_Layouts")},
        {"Print_Selected_Multiple_Layouts", marked("Print selected items as multiple layouts per page."), "",
         "multiLayoutsSelected", false, printing("Print_Selected_Multiple_Layouts")},
        {"Multiple_Layout_Preview_All", marked("Preview of all records using multiple layouts."), "",
         "previewAll", false, printing("Multiple_Layout_Preview_All")},
        {"Multiple_Layout_Preview_Selected", marked("Preview of selected records using multiple layouts."),
         "", "previewSelected", false, printing("Multiple_Layout_Preview_Selected")},
    };
}

std::vector<Command> viewCommands() {
    return {
        {"mnuZoomIn", marked("Zoom &In"), "", "zoomIn", false, zoomIn, canZoomIn},
        {"mnuZoomOut", marked("Zoom &Out"), "", "zoomOut", false, zoomOut, canZoomOut},
        {"mnuZoomNormal", marked("&Normal Size"), "", "zoomNormal", false, zoomNormal, canZoomNormal},
        {"mnuFitPage", marked("Fit &Page"), marked("Show the whole page"), "fitPage", false, fitPage, canFit},
        {"mnuFitWidth", marked("Fit &Width"), marked("As wide as the window"), "fitWidth", false, fitWidth,
         canFit},
        {"mnuFreezeColumn", marked("&Freeze First Column"), "", "", true, toggleFreezeColumn,
         canFreezeColumn},
        {"mnuColours", marked("&Colours..."), "", "colours", false, search::mnuColours_Click,
         canFreezeColumn},
        {"mnuLocaleForm", marked("&Dates And Numbers Of My Country"),
         marked("Show and take dates, numbers and amounts as your country writes them"), "", true,
         toggleLocaleForm, hasLocaleForm},
    };
}

std::vector<Command> fileCommands() {
    return {
        {"mnuNew", marked("&New"), "", "new", false, newDatabase},
        {"mnuOpen", marked("&Open"), "", "open", false, open},
        {"mnuSave", marked("&Save"), "", "save", false, save},
        {"mnuSaveAs", marked("Save &As"), "", "saveAs", false, saveAs},
        {"mnuVersions", marked("&Versions..."), "", "versions", false, showing("versionsFrm")},
        {"mnuSaveSearch", marked("Save Search &Results As..."), "", "saveSearch", false, saveSearch},
        {"mnuPrint", marked("&Print"), "", "print", false, pressing("Print")},
        {"mnuPageSetup", marked("Page Setup"), "", "pageSetup", false, pressing("PageSetup")},
        {"mnuLabels", marked("La&bel Wizard..."), "", "labels", false, labelWizard, canExportTable},
        {"mnuCleanDatabase", marked("&Clean Database"), "", "clean", false, storage::mnuCleanDatabase_Click},
        {"mnuImportTable", marked("&Import..."), "", "import", false, importTable},
        {"mnuExportTable", marked("Expor&t..."), "", "export", false, exportTable, canExportTable},
        {"mnuClone", marked("C&lone Database To.."), "", "clone", false, clone},
        {"mnuEmail", marked("Send Database File To..."), "", "mail", false, showing("mailFrm")},
        {"mnuFile1", "", "", "recent", false, [](App& app) { openRecentFile(app, "mnuFile1"); }},
        {"mnuFile2", "", "", "recent", false, [](App& app) { openRecentFile(app, "mnuFile2"); }},
        {"mnuFile3", "", "", "recent", false, [](App& app) { openRecentFile(app, "mnuFile3"); }},
        {"mnuExit", marked("&Exit"), "", "exit", false, Form_QueryUnload},
    };
}

std::vector<Command> menuCommands() {
    using app::MainFrm;
    return {
        {"mnuUndo", marked("&Undo"), "", "undo", false, undo},
        {"mnuRedo", marked("&Redo"), "", "redo", false, redo},
        {"mnuCut", marked("Cu&t"), "", "cut", false, cut, canCut},
        {"mnuCopy", marked("&Copy"), "", "copy", false, copy, canCopy},
        {"mnuCopyHeadings", marked("Copy With &Headings"), "", "copyHeadings", false,
         tables::mnuCopyHeadings_Click, canCopyRecords},
        {"mnuPaste", marked("&Paste..."), "", "paste", false, paste, canPaste},
        {"mnuNewRecord", marked("&New Record"), "", "recordNew", false, newRecord, canAddRecord},
        {"mnuOpenPage", marked("Show On &Layout Page"), "", "openPage", false, openOnPage, canOpenOnPage},
        {"mnuOpenForm", marked("Open In &Entry Form"), "", "field", false, openInForm, canOpenInForm},
        {"mnuDuplicate", marked("&Duplicate Record"), "", "duplicate", false, entry::mnuDuplicate_Click},
        {"mnuReplace", marked("&Find And Replace"), "", "replace", false, search::mnuReplace_Click},
        {"mnuSetValues", marked("Set &Values..."), "", "setValues", false, search::mnuSetValues_Click},
        {"mnuMakeCode", marked("&Make Code..."), "", "makeCode", false, makeCode, search::canMakeCode},
        {"mnuFilter", marked("F&ilter..."), "", "filter", false, search::mnuFilter_Click, search::canFilter},
        {"mnuDuplicates", marked("Find Duplicat&es..."), "", "duplicates", false,
         search::mnuDuplicates_Click},
        {"mnuSearch", marked("&Search"), "", "search", false, search::mnuSearch_Click},
        {"mnuSelectedTotals", marked("Selected &Totals"), "", "totals", false, toggleSelectedTotals},
        {"mnuSummary", marked("Su&mmary"), "", "summary", true, summary::mnuSummary_Click},
        {"mnuStatistics", marked("Column Stat&istics..."), "", "statistics", false,
         summary::mnuStatistics_Click},
        {"mnuExpressionEditor", marked("&Expression Editor"), "", "expressionEditor", false,
         showExpressionEditor},
        {"mnuDatabaseProperties", marked("Database &Properties"), "", "properties", false,
         showDatabaseProperties},
        {"mnuTotalColumns", marked("Choose Columns To Total"), "", "totalColumns", false,
         showing("TotalsFrm")},
        {"mnuSerialAdjust", marked("&Adjust Serial Number Increment"), "", "serial", false,
         showing("serialFrm")},
        {"mnuSerialCheck", marked("Check Serial &Numbers..."), "", "serialCheck", false,
         search::mnuSerialCheck_Click},
        {"mnuConfirmDelete", marked("&Confirm Delete"), "", "", true,
         toggling("mnuConfirmDelete", &MainFrm::bConfirmDelete)},
        {"mnuSavePrompt", marked("&Prompt For Save On Exit"), "", "", true,
         toggling("mnuSavePrompt", &MainFrm::bSavePrompt)},
        {"mnuCalcHighlight", marked("&Highlight Calculation Boxes"), "", "", true, toggleCalcHighlight},
        {"mnuDatabaseLock", marked("&Lock Or Unlock Database Design"), "", "lock", false,
         lock::mnuDatabaseLock_Click},
        {"mnuLayoutDoubleClick", marked("&Go To Layout Upon Double-Click"), "", "", true,
         toggling("mnuLayoutDoubleClick", &MainFrm::bLayoutDblClick)},
        {"mnuAutoLoad", marked("&Auto-Load Previously Opened File"), "", "", true,
         toggling("mnuAutoLoad", &MainFrm::bAutoLoad)},
        {"mnuOpenPdf", marked("&Open PDFs After Printing"), "", "", true, toggleOpenPdf},
        {"mnuContents", marked("&Contents"), "", "help", false, openHelp},
        {"mnuDisclaimer", marked("&Disclaimer"), "", "disclaimer", false, showing("disclaimFrm")},
        {"mnuWebpage", marked("&Visit FWK Homepage"), "", "home", false, visitHomepage},
        {"mnuAbout", marked("&About Ferrowick"), "", "about", false, showAbout},
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
         marked("&File"),
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
         marked("&Edit"),
         {"mnuUndo", "mnuRedo", "-", "mnuCut", "mnuCopy", "mnuCopyHeadings", "mnuPaste", "-", "mnuNewRecord",
          "mnuDuplicate", "-", "mnuFilter", "mnuReplace", "mnuSetValues", "mnuMakeCode", "mnuDuplicates"}},
        {"mnuView",
         marked("&View"),
         {"mnuZoomIn", "mnuZoomOut", "mnuZoomNormal", "-", "mnuFitPage", "mnuFitWidth", "-",
          "mnuFreezeColumn", "mnuColours", "-", "mnuTheme", "mnuToolbarTexts", "mnuLocaleForm"}},
        {"mnuTools",
         marked("&Tools"),
         {"mnuSearch", "mnuSelectedTotals", "mnuExpressionEditor", "-", "mnuSummary", "mnuStatistics", "-",
          "mnuDatabaseProperties", "Design", "-", "mnuTotalColumns", "-", "mnuSerialAdjust",
          "mnuSerialCheck"}},
        {"mnuOptions",
         marked("&Options"),
         {"mnuConfirmDelete", "mnuSavePrompt", "-", "mnuCalcHighlight", "mnuDatabaseLock", "-",
          "mnuLayoutDoubleClick", "mnuAutoLoad", "-", "mnuOpenPdf"}},
        {"mnuHelp", marked("&Help"), {"mnuContents", "-", "mnuDisclaimer", "mnuWebpage", "mnuAbout"}}};
    return menus;
}

} // namespace shell
