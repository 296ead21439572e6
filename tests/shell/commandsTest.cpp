#include "shell/commands.h"
#include "databases.h"
#include "raised.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using platform::Answer;
using platform::Icon;
using shell::isCommandEnabled;
using shell::runCommand;

class CommandsTest : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    app::MainFrm& mainFrm = app.mainFrm;
    core::Document& document = app.document;
    ScriptedPlatform& platform = program.platform;

    CommandsTest() { app::enableControls(app, false); }
};

std::string joined(std::span<const std::string_view> keys) {
    std::string all;
    for (const std::string_view key : keys) all.append(key).append(" ");
    return all;
}

TEST_F(CommandsTest, toolbar) {
    const std::pair<const char*, const char*> buttons[] = {
        {"New", "New Database"},
        {"Open", "Open Database"},
        {"Save", "Save Database"},
        {"Print", "Print Database"},
        {"PageSetup", "Page Setup"},
        {"Search", "Search Database"},
        {"Totals", "Display Totals For Selected Items"},
        {"Formulas", "Define Expressions"},
        {"Properties", "Database Properties"},
        {"Design", "Switch Layout To Design Mode"},
        {"Delete", "Delete Row"},
        {"Help", "Help"},
    };
    std::vector<std::string_view> keys;
    for (const std::string_view key : shell::toolbarKeys())
        if (key != "-") keys.push_back(key);
    ASSERT_EQ(keys.size(), std::size(buttons));
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(keys[i], buttons[i].first);
        EXPECT_EQ(shell::command(keys[i]).tip, buttons[i].second);
    }
    EXPECT_EQ(joined(shell::buttonMenuKeys("Save")), "SaveSearch ");
    EXPECT_EQ(joined(shell::buttonMenuKeys("Print")),
              "All_As_Report Selected_As_Report - All_As_Layouts Selected_As_Layouts - "
              "Print_All_As_Multiple_Layouts Print_Selected_Multiple_Layouts - Multiple_Layout_Preview_All "
              "Multiple_Layout_Preview_Selected ");
    EXPECT_EQ(joined(shell::buttonMenuKeys("Open")), "");
}

TEST_F(CommandsTest, menuBar) {
    const struct {
        const char* key;
        const char* caption;
        const char* items;
    } menus[] = {
        {"mnuFile", "&File",
         "mnuNew mnuOpen mnuSave mnuSaveAs - mnuSaveSearch - mnuPrint mnuPageSetup - mnuCleanDatabase - "
         "mnuClone - "
         "mnuEmail - mnuFile1 mnuFile2 mnuFile3 - mnuExit "},
        {"mnuEdit", "&Edit", "mnuDuplicate - mnuReplace "},
        {"mnuTools", "&Tools",
         "mnuSearch mnuSelectedTotals mnuExpressionEditor - mnuDatabaseProperties - mnuTotalColumns - "
         "mnuSerialAdjust "},
        {"mnuOptions", "&Options",
         "mnuConfirmDelete mnuSavePrompt - mnuCalcHighlight mnuDatabaseLock - mnuLayoutDoubleClick "
         "mnuAutoLoad "},
        {"mnuHelp", "&Help", "mnuContents - mnuDisclaimer mnuWebpage mnuAbout "},
    };
    const std::span<const shell::Menu> bar = shell::menuBar();
    ASSERT_EQ(bar.size(), std::size(menus));
    for (std::size_t i = 0; i < bar.size(); ++i) {
        EXPECT_EQ(bar[i].key, menus[i].key);
        EXPECT_EQ(bar[i].caption, menus[i].caption);
        EXPECT_EQ(joined(bar[i].items), menus[i].items);
    }
}

TEST_F(CommandsTest, captions) {
    const std::pair<const char*, const char*> captions[] = {
        {"mnuNew", "&New"},
        {"mnuOpen", "&Open"},
        {"mnuSave", "&Save"},
        {"mnuSaveAs", "Save &As"},
        {"mnuClone", "C&lone Database To.."},
        {"mnuSaveSearch", "Save Search &Results As..."},
        {"mnuPrint", "&Print"},
        {"mnuPageSetup", "Page Setup"},
        {"mnuDatabaseProperties", "Database &Properties"},
        {"mnuCleanDatabase", "&Clean Database"},
        {"mnuEmail", "Send Database File To..."},
        {"mnuExit", "&Exit"},
        {"mnuDuplicate", "&Duplicate Record"},
        {"mnuReplace", "&Find And Replace"},
        {"mnuSearch", "&Search"},
        {"mnuSelectedTotals", "Selected &Totals"},
        {"mnuExpressionEditor", "&Expression Editor"},
        {"mnuTotalColumns", "Choose Columns To Total"},
        {"mnuSerialAdjust", "&Adjust Serial Number Increment"},
        {"mnuConfirmDelete", "&Confirm Delete"},
        {"mnuSavePrompt", "&Prompt For Save On Exit"},
        {"mnuCalcHighlight", "&Highlight Calculation Boxes"},
        {"mnuDatabaseLock", "&Lock Or Unlock Database Design"},
        {"mnuLayoutDoubleClick", "&Go To Layout Upon Double-Click"},
        {"mnuAutoLoad", "&Auto-Load Previously Opened File"},
        {"mnuContents", "&Contents"},
        {"mnuDisclaimer", "&Disclaimer"},
        {"mnuWebpage", "&Visit FWK Homepage"},
        {"mnuAbout", "&About Ferrowick"},
        {"All_As_Report", "Print all records as report."},
        {"Selected_As_Report", "Print selected items as report."},
        {"All_As_Layouts", "Print all records as layouts."},
        {"Selected_As_Layouts", "Print selected items as layouts."},
        {"Print_All_As_Multiple_Layouts", "Print all records as multiple layouts per page."},
        {"Print_Selected_Multiple_Layouts", "Print selected items as multiple layouts per page."},
        {"Multiple_Layout_Preview_All", "Preview of all records using multiple layouts."},
        {"Multiple_Layout_Preview_Selected", "Preview of selected records using multiple layouts."},
    };
    for (const auto& [key, caption] : captions) EXPECT_EQ(shell::command(key).caption, caption);
    EXPECT_EQ(raisedBy([] { shell::command("mnuNoSuch"); }), core::errors::elementNotFound);
}

// In one menu no two items answer to the same letter, or one of them cannot be reached by it.
TEST_F(CommandsTest, everyItemIsInTheTableAndEveryMnemonicIsItsOwn) {
    for (const shell::Menu& menu : shell::menuBar()) {
        std::multiset<char> letters;
        for (const std::string_view key : menu.items) {
            if (key == "-") continue;
            ASSERT_TRUE(shell::hasCommand(key)) << key;
            const std::string_view caption = shell::command(key).caption;
            const std::size_t mark = caption.find('&');
            if (mark != std::string_view::npos)
                letters.insert(static_cast<char>(std::tolower(caption[mark + 1])));
        }
        for (const char letter : letters) EXPECT_EQ(letters.count(letter), 1U) << menu.key << " " << letter;
    }
}

TEST_F(CommandsTest, runOnlyWhenTheyAreEnabled) {
    runCommand(app, "Save");
    runCommand(app, "mnuClone");
    runCommand(app, "mnuDatabaseProperties"); // its menu is off
    runCommand(app, "mnuConfirmDelete");
    EXPECT_TRUE(platform.messages.empty() && platform.forms.empty() && platform.dialogs.empty());
    EXPECT_TRUE(mainFrm.bConfirmDelete);
    for (const char* key : {"New", "Open", "mnuNew", "mnuOpen", "mnuExit", "mnuAbout", "mnuDisclaimer"})
        EXPECT_TRUE(isCommandEnabled(app, key)) << key;
    program.openCopyOf("books.fwk");
    for (const char* key : {"Save", "mnuSave", "mnuSaveAs", "mnuClone", "Totals", "Formulas", "Properties",
                            "Delete", "mnuDuplicate", "mnuDatabaseProperties", "mnuConfirmDelete"})
        EXPECT_TRUE(isCommandEnabled(app, key)) << key;
    // What is not built yet is off, whatever the window's state; and asking for it does nothing.
    for (const shell::Menu& menu : shell::menuBar())
        for (const std::string_view key : menu.items) {
            if (key == "-" || shell::command(key).run) continue;
            EXPECT_FALSE(isCommandEnabled(app, key)) << key;
            runCommand(app, key);
        }
    EXPECT_TRUE(platform.messages.empty() && platform.forms.empty() && platform.dialogs.empty());
}

TEST_F(CommandsTest, reachTheRoutineBehindThem) {
    program.openCopyOf("books.fwk");
    const struct {
        const char* key;
        const char* form; // or
        const char* dialog;
    } cases[] = {
        {"New", "databaseTypeFrm", ""},       {"mnuNew", "databaseTypeFrm", ""},
        {"Open", "", "Open Database"},        {"mnuOpen", "", "Open Database"},
        {"mnuSaveAs", "", "Save As..."},      {"mnuClone", "", "Clone current file to..."},
        {"Formulas", "formulateFrm", ""},     {"mnuExpressionEditor", "formulateFrm", ""},
        {"Properties", "designFrm", ""},      {"mnuDatabaseProperties", "designFrm", ""},
        {"mnuTotalColumns", "TotalsFrm", ""}, {"mnuSerialAdjust", "serialFrm", ""},
        {"mnuDisclaimer", "disclaimFrm", ""}, {"mnuEmail", "mailFrm", ""},
    };
    for (const auto& c : cases) {
        platform.forms.clear();
        platform.dialogs.clear();
        runCommand(app, c.key);
        EXPECT_EQ(platform.forms.empty() ? "" : platform.forms[0], c.form) << c.key;
        EXPECT_EQ(platform.dialogs.empty() ? "" : platform.dialogs[0].title, c.dialog) << c.key;
    }
    for (const char* key : {"Help", "mnuContents"}) {
        runCommand(app, key);
        const std::string place = platform.links.empty() ? "" : platform.links.back();
        EXPECT_TRUE(place.ends_with("/help/index.html") ||
                    platform.lastMessage() == "The help pages are not installed.")
            << place;
    }
    for (const char* key : {"Save", "mnuSave"}) {
        app::setDocumentModified(app, true);
        runCommand(app, key);
        EXPECT_FALSE(document.bModified) << key;
    }
    runCommand(app, "mnuExit");
    EXPECT_TRUE(mainFrm.unloaded);
}

TEST_F(CommandsTest, theLockStopsTheButtonAndNotTheMenuItem) {
    program.openCopyOf("books.fwk");
    document.lockPassword = "x";
    runCommand(app, "Properties");
    EXPECT_TRUE(platform.forms.empty());
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].text,
              "The database structure and layout have been locked.  Use the Options menu to unlock.");
    EXPECT_EQ(platform.messages[0].icon, Icon::Information);
    EXPECT_EQ(platform.messages[0].caption, "Ferrowick");
    runCommand(app, "mnuDatabaseProperties");
    EXPECT_EQ(platform.forms, std::vector<std::string>{"designFrm"});
    EXPECT_EQ(platform.messages.size(), 1U);
    document.lockPassword.clear();
    runCommand(app, "Properties");
    EXPECT_EQ(platform.forms.size(), 2U);
}

// The results are copies under the columns of their time.
TEST_F(CommandsTest, databasePropertiesLeaveTheSearchResults) {
    program.openCopyOf("books.fwk");
    mainFrm.control("Search").Value = true;
    document.searchLV.Visible = true;
    mainFrm.theListView = &document.searchLV;
    bool visible = true;
    platform.onForm = [&](std::string_view) { visible = document.searchLV.Visible; };
    runCommand(app, "mnuDatabaseProperties");
    EXPECT_FALSE(visible);
    EXPECT_EQ(mainFrm.theListView, &document.LV);
    EXPECT_FALSE(mainFrm.control("Search").Value);
}

TEST_F(CommandsTest, deleteWorksOnTheRecordsOnViewAlone) {
    const struct {
        const char* file;
        int tab;
        bool results, deletes;
    } cases[] = {
        {"books.fwk", app::reportTab, false, true},
        {"books.fwk", app::layoutTab, false, false},
        {"books.fwk", app::previewTab, false, false},
        {"books.fwk", app::reportTab, true, false},
    };
    for (const auto& c : cases) {
        program.openCopyOf(c.file);
        mainFrm.SSTab1 = c.tab;
        document.searchLV.Visible = c.results;
        platform.answers = {Answer::Yes};
        platform.messages.clear();
        runCommand(app, "Delete");
        EXPECT_EQ(document.LV.count(), c.deletes ? 42 : 43) << c.tab << c.results;
        EXPECT_EQ(platform.messages.size(), c.deletes ? 1U : 0U) << c.tab << c.results;
        EXPECT_EQ(document.bModified, c.deletes) << c.tab << c.results;
        app::setDocumentModified(app, false);
    }
    program.openCopyOf("invoices.fwk");
    shell::viewOpt_Click(app, 0);
    platform.answers = {Answer::Yes};
    runCommand(app, "Delete");
    EXPECT_EQ(document.LV.count(), 5) << "the item view has nothing to delete";
}

TEST_F(CommandsTest, optionsToggle) {
    program.openCopyOf("books.fwk");
    const std::pair<const char*, bool app::MainFrm::*> options[] = {
        {"mnuConfirmDelete", &app::MainFrm::bConfirmDelete},
        {"mnuSavePrompt", &app::MainFrm::bSavePrompt},
        {"mnuLayoutDoubleClick", &app::MainFrm::bLayoutDblClick},
        {"mnuAutoLoad", &app::MainFrm::bAutoLoad},
    };
    platform.settings.clear();
    for (const auto& [key, variable] : options) {
        const bool before = mainFrm.*variable;
        for (const bool expected : {!before, before}) {
            runCommand(app, key);
            EXPECT_EQ(mainFrm.*variable, expected) << key;
            EXPECT_EQ(mainFrm.control(key).Value, expected) << key;
        }
        EXPECT_TRUE(shell::command(key).checkable) << key;
    }
    EXPECT_FALSE(document.bModified);
    EXPECT_TRUE(platform.settings.empty()) << "kept at the end of the program";
}

TEST_F(CommandsTest, about) {
    runCommand(app, "mnuAbout");
    ASSERT_EQ(platform.messages.size(), 1U);
    EXPECT_EQ(platform.messages[0].icon, Icon::Information);
    EXPECT_EQ(platform.messages[0].caption, "About Ferrowick");
    EXPECT_THAT(platform.messages[0].text,
                testing::MatchesRegex("Ferrowick\nVersion [0-9]+\\.[0-9]+\\.[0-9]+\n\n[^\n](.|\n)*"));
}

} // namespace
