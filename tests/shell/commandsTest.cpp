#include "shell/commands.h"
#include "programTest.h"
#include "raised.h"
#include "search/searchEngine.h"
#include "shell/mainWindow.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using platform::Answer;
using shell::isCommandEnabled;
using shell::runCommand;

class CommandsTest : public ProgramTest {
protected:
    CommandsTest() { app::enableControls(app, false); }
};

// In one menu no two items answer to the same letter, or one of them cannot be reached by it.
TEST_F(CommandsTest, everyKeyIsInTheTableAndEveryMnemonicIsItsOwn) {
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
    for (const std::string_view key : shell::toolbarKeys()) {
        if (key == "-") continue;
        ASSERT_TRUE(shell::hasCommand(key)) << key;
        EXPECT_FALSE(shell::command(key).tip.empty()) << key;
        for (const std::string_view item : shell::buttonMenuKeys(key))
            EXPECT_TRUE(item == "-" || shell::hasCommand(item)) << item;
    }
    EXPECT_EQ(raisedBy([] { shell::command("mnuNoSuch"); }), core::errors::elementNotFound);
}

TEST_F(CommandsTest, runOnlyWhenTheyAreEnabled) {
    runCommand(app, "Save");
    runCommand(app, "mnuClone");
    runCommand(app, "mnuDatabaseProperties"); // its menu is off
    runCommand(app, "mnuConfirmDelete");
    EXPECT_TRUE(platform.messages.empty() && platform.forms.empty() && platform.dialogs.empty());
    EXPECT_TRUE(mainFrm.bConfirmDelete);
    EXPECT_TRUE(isCommandEnabled(app, "mnuOpen") && isCommandEnabled(app, "Open"));
    program.openCopyOf("books.fwk");
    for (const char* key : {"Save", "mnuClone", "mnuDatabaseProperties", "mnuConfirmDelete"})
        EXPECT_TRUE(isCommandEnabled(app, key)) << key;
}

TEST_F(CommandsTest, reachTheRoutineBehindThem) {
    program.openCopyOf("books.fwk");
    const std::pair<const char*, std::vector<const char*>> cases[] = {
        {"databaseTypeFrm", {"New", "mnuNew"}},
        {"formulateFrm", {"Formulas", "mnuExpressionEditor"}},
        {"designFrm", {"Properties", "mnuDatabaseProperties"}},
        {"TotalsFrm", {"mnuTotalColumns"}},
        {"serialFrm", {"mnuSerialAdjust"}},
        {"disclaimFrm", {"mnuDisclaimer"}},
        {"mailFrm", {"mnuEmail"}},
        {"Open Database", {"Open", "mnuOpen"}}, // file dialogs
        {"Save As...", {"mnuSaveAs"}},
        {"Clone current file to...", {"mnuClone"}}};
    for (const auto& [shown, keys] : cases)
        for (const char* key : keys) {
            platform.forms.clear();
            runCommand(app, key);
            const std::string dialog = dialogs();
            EXPECT_EQ(platform.forms.empty() ? dialog.substr(0, dialog.find('/')) : platform.forms[0], shown);
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
    (void)told();
    runCommand(app, "mnuAbout");
    EXPECT_THAT(told(),
                testing::MatchesRegex(
                    "i About Ferrowick: Ferrowick\nVersion [0-9]+\\.[0-9]+\\.[0-9]+\n\n[^\n](.|\n)*"));
    runCommand(app, "mnuExit");
    EXPECT_TRUE(mainFrm.unloaded);
}

TEST_F(CommandsTest, theLockStopsTheButtonAndNotTheMenuItem) {
    program.openCopyOf("books.fwk");
    document.lockPassword = "x";
    runCommand(app, "Properties");
    EXPECT_TRUE(platform.forms.empty());
    EXPECT_EQ(told(),
              "i The database structure and layout have been locked.  Use the Options menu to unlock.");
    runCommand(app, "mnuDatabaseProperties");
    document.lockPassword.clear();
    runCommand(app, "Properties");
    EXPECT_EQ(platform.forms, (std::vector<std::string>{"designFrm", "designFrm"}));
    EXPECT_EQ(told(), "");
}

// Buttons go off with the results and the tabs, the items of the Tools menu do not.
TEST_F(CommandsTest, theToolsWorkOverSearchResultsAndFromEveryTab) {
    DataFile data({{"A", 4}, {"B", 5}});
    data.rows = "1|1|\r\n2|1|\r\n-|-|\r\n";
    data.more = "[Totaled Cols  ]B|\r\n";
    openData(data);
    platform.onForm = [&](std::string_view form) {
        if (form == "searchFrm") return search::findRecords(app, {{{"A", 0, "2", ""}, {}, {}}});
        document.LV.at(1).cells[1] = "10";
        document.LV.at(2).cells[1] = "20";
    };
    runCommand(app, "Search");
    EXPECT_EQ(Program::cells(document.searchLV), "2|1|;------|1|;");
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_FALSE(document.searchLV.MultiSelect);
    runCommand(app, "mnuSelectedTotals");
    EXPECT_TRUE(document.LV3.Visible && mainFrm.control("Totals").Value);
    runCommand(app, "mnuExpressionEditor");
    EXPECT_EQ(Program::cells(document.searchLV), "2|20|;------|20|;");
    document.LV.MultiSelect = false;
    shell::SSTab1_Click(app, app::reportTab);
    EXPECT_FALSE(mainFrm.control("Delete").Enabled);
    EXPECT_TRUE(document.LV.MultiSelect);
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
        int tab;
        bool results, deletes;
    } cases[] = {{app::reportTab, false, true},
                 {app::layoutTab, false, false},
                 {app::previewTab, false, false},
                 {app::reportTab, true, false}};
    for (const auto& c : cases) {
        program.openCopyOf("books.fwk");
        mainFrm.SSTab1 = c.tab;
        document.searchLV.Visible = c.results;
        platform.answers = {Answer::Yes};
        runCommand(app, "Delete");
        EXPECT_EQ(document.LV.count(), c.deletes ? 42 : 43) << c.tab << c.results;
        EXPECT_EQ(told().empty(), !c.deletes) << c.tab << c.results;
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
        {"mnuAutoLoad", &app::MainFrm::bAutoLoad}};
    platform.settings.clear();
    for (const auto& [key, variable] : options) {
        const bool before = mainFrm.*variable;
        for (const bool expected : {!before, before}) {
            runCommand(app, key);
            EXPECT_EQ(mainFrm.*variable, expected) << key;
            EXPECT_EQ(mainFrm.control(key).Value, expected) << key;
        }
    }
    EXPECT_FALSE(document.bModified);
    EXPECT_TRUE(platform.settings.empty()) << "kept at the end of the program";
}

} // namespace
