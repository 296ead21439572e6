#include "shell/mainWindow.h"

#include "calc/columns.h"
#include "programTest.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"
#include "shell/listEvents.h"
#include "table.h"

#include <gmock/gmock.h>

namespace {

using core::RecordsList;
using platform::Answer;

struct MainWindow : testing::Test, Program {
    core::Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    RecordsList &LV = document.LV, &iLV = document.iLV, &results = document.searchLV;

    // The commands that toolbar and menus offer and that this holds for, "Save Print ".
    static std::string those(const std::function<bool(std::string_view)>& test) {
        std::string all;
        const auto append = [&](const auto& keys) {
            for (const std::string_view key : keys)
                if (key != "-" && test(key)) all.append(key) += ' ';
        };
        append(shell::toolbarKeys());
        for (const char* button : {"New", "Save", "Print"}) append(shell::buttonMenuKeys(button));
        for (const shell::Menu& menu : shell::menuBar()) append(menu.items);
        return all;
    }
    // What a command brings up.
    std::string shown(const std::string& key) {
        platform.forms.clear();
        run(key.c_str());
        const std::string dialog = dialogs();
        return (platform.forms.empty() ? "" : platform.forms[0]) + dialog.substr(0, dialog.find('/')) +
               told();
    }
    // The tab and what is printed from it, with what goes on and off by it.
    std::string tab(int index) {
        shell::SSTab1_Click(app, index);
        std::string all = std::to_string(mainFrm.SSTab1) + std::to_string(mainFrm.iPrintMode);
        for (const char* key : {"Totals", "Properties", "Delete"})
            if (mainFrm.control(key).Enabled) all += " " + std::string(key);
        return all + (mainFrm.invoiceFrameVisible ? " frame" : "") + (LV.MultiSelect ? " LV" : "") +
               (results.MultiSelect ? " results" : "");
    }
    std::string doubleClick(RecordsList& list) {
        platform.forms.clear();
        mainFrm.SSTab1 = app::reportTab;
        shell::list_DblClick(app, list);
        if (mainFrm.SSTab1 == app::layoutTab) return "layout";
        return platform.forms.empty() ? told() : platform.forms[0];
    }
    // Results on view, as a search leaves them.
    void find(std::initializer_list<const char*> keys) {
        search::takeOverColumns(app);
        core::addTotalsRow(results);
        for (const char* key : keys) results.add(key, key).Tag = key;
        core::moveTotals(results);
        results.Visible = mainFrm.control("Search").Value = true;
        mainFrm.theListView = &results;
    }
};

TEST_F(MainWindow, CommandsAreEnabledByWhatIsOpen) {
    // In one menu no two items answer to the same letter, or one of them cannot be reached by it.
    for (const shell::Menu& menu : shell::menuBar()) {
        std::string letters;
        for (const std::string_view key : menu.items) {
            const std::string_view caption = key == "-" ? key : shell::command(key).caption;
            const auto letter = static_cast<char>(std::tolower(caption[caption.find('&') + 1]));
            EXPECT_TRUE(caption.find('&') == caption.npos || letters.find(letter) == letters.npos) << key;
            if (caption.find('&') != caption.npos) letters += letter;
        }
    }
    EXPECT_EQ(
        those([](std::string_view key) { return shell::command(key).checkable; }),
        "Search Totals Design Design mnuConfirmDelete mnuSavePrompt mnuCalcHighlight mnuLayoutDoubleClick "
        "mnuAutoLoad ");
    const auto enabled = [&](std::string_view key) { return shell::isCommandEnabled(app, key); };
    const std::string prints = "All_As_Layouts Selected_As_Layouts ";
    const std::string many = "Print_All_As_Multiple_Layouts Print_Selected_Multiple_Layouts "
                             "Multiple_Layout_Preview_All Multiple_Layout_Preview_Selected ";
    app::enableControls(app, false);
    EXPECT_EQ(those(enabled),
              "New Open Help SaveSearch All_As_Report Selected_As_Report " + prints + many +
                  "mnuNew mnuOpen mnuSaveSearch mnuFile1 mnuFile2 mnuFile3 mnuExit mnuContents "
                  "mnuDisclaimer mnuWebpage mnuAbout ");
    for (const char* key : {"Save", "mnuDatabaseProperties", "mnuConfirmDelete"}) EXPECT_EQ(shown(key), "");
    EXPECT_TRUE(mainFrm.bConfirmDelete && !mainFrm.SSTab1Enabled);
    openCopyOf("books.fwk");
    EXPECT_EQ(those(std::not_fn(enabled)) + mainFrm.Caption, "Ferrowick - " + document.currentFile);
    openCopyOf("invoices.fwk");
    EXPECT_EQ(those(std::not_fn(enabled)), many + "mnuDuplicate ");
    shell::viewOpt_Click(app, 0);
    EXPECT_EQ(those(std::not_fn(enabled)), "Delete " + prints + many + "mnuDuplicate ");
    app::enableControls(app, false);
    EXPECT_EQ(mainFrm.Caption, "Ferrowick");
}

TEST_F(MainWindow, CommandsReachTheRoutineBehindThem) {
    openCopyOf("books.fwk");
    document.lockPassword = "x"; // stops the buttons and not the menu item
    for (const char* button : {"Properties", "Design"})
        EXPECT_EQ(shown(button),
                  "i The database structure and layout have been locked.  Use the Options menu to unlock.");
    EXPECT_FALSE(mainFrm.control("Design").Value);
    EXPECT_EQ(shown("mnuDatabaseProperties"), "designFrm");
    document.lockPassword.clear();
    for (const auto& c :
         table("New -> databaseTypeFrm; mnuNew -> databaseTypeFrm; Formulas -> formulateFrm; "
               "mnuExpressionEditor -> formulateFrm; Properties -> designFrm; mnuEmail -> mailFrm; "
               "mnuTotalColumns -> TotalsFrm; mnuSerialAdjust -> serialFrm; Open -> Open Database; "
               "mnuDisclaimer -> disclaimFrm; mnuOpen -> Open Database; mnuSaveAs -> Save As...; "
               "mnuClone -> Clone current file to...; mnuReplace -> replaceFrm; Save -> ; mnuSave -> ; "
               "mnuSearch -> searchFrm; PageSetup -> reportPageSetup; mnuPageSetup -> reportPageSetup")) {
        app::setDocumentModified(app, true);
        EXPECT_EQ(shown(c[0]), c[1]) << c[0];
        EXPECT_EQ(document.bModified, !c[1].empty()) << c[0];
    }
    for (const auto& c : table("Help -> index; mnuContents -> index; mnuWebpage -> about"))
        EXPECT_TRUE(shown(c[0]) == "i The help pages are not installed." ||
                    platform.links.back().ends_with("/help/" + c[1] + ".html"));
    EXPECT_THAT(shown("mnuAbout"),
                testing::MatchesRegex("i About Ferrowick: Ferrowick\nVersion [0-9.]+\n\n[^\n](.|\n)*"));
    const auto color = [&] {
        return document.layout.layoutField.find(7)->BackColor;
    }; // of a calculated field
    const auto plain = color();
    for (const std::string key : {"Design", "mnuCalcHighlight", "mnuConfirmDelete", "mnuSavePrompt",
                                  "mnuLayoutDoubleClick", "mnuAutoLoad"}) {
        app::setDocumentModified(app, false);
        run(key.c_str());
        const bool isOn = mainFrm.control(key).Value;
        EXPECT_TRUE((color() == plain) == (key != "mnuCalcHighlight") &&
                    document.bModified == (key == "Design"));
        EXPECT_EQ(mainFrm.layoutPage.layoutToolbarInFront, key == "Design");
        run(key.c_str());
        EXPECT_EQ(mainFrm.control(key).Value, !isOn) << key;
    }
    EXPECT_EQ(mainFrm.SSTab1, app::layoutTab); // brought by the design
    EXPECT_TRUE(platform.settings.empty()) << "kept at the end of the program";
    run("mnuExit");
    EXPECT_TRUE(mainFrm.unloaded);
}

// Buttons go off with the results and the tabs, the items of the Tools menu do not.
TEST_F(MainWindow, ToolsWorkOverSearchResultsAndFromEveryTab) {
    open(DataFile("A:4 B:5", "1|1;2|1").section("Totaled Cols", "B|"));
    platform.onForm = [&](std::string_view form) {
        if (form == "searchFrm") return search::findRecords(app, {{{"A", 0, "2", ""}, {}, {}}});
        EXPECT_EQ(results.Visible, form != "designFrm"); // copies under the columns of their time
        if (form == "designFrm") calc::addColumn(document, "C" + std::to_string(mainFrm.SSTab1), "3");
        LV.at(2).cells[1] = "20";
    };
    for (const int at : {app::reportTab, app::layoutTab}) {
        run("Search");
        EXPECT_EQ(tab(app::layoutTab), "12 LV");
        for (const bool pressed : {true, false}) {
            run("mnuSelectedTotals");
            EXPECT_TRUE(document.LV3.Visible == pressed && mainFrm.control("Totals").Value == pressed);
        }
        run("mnuExpressionEditor");
        EXPECT_EQ(results.at(1).cells[1], "20");
        LV.MultiSelect = false;
        EXPECT_EQ(tab(app::reportTab), "01 Totals Properties LV results");
        mainFrm.SSTab1 = at;
        run("mnuDatabaseProperties");
        EXPECT_EQ(mainFrm.theListView, &LV);
        EXPECT_EQ(mainFrm.control("Delete").Enabled, at == app::reportTab);
        EXPECT_EQ(mainFrm.layoutPage.fieldMenu.back(), "C" + std::to_string(at));
    }
}

TEST_F(MainWindow, DeleteWorksOnTheRecordsOnViewAlone) {
    // Records, the layout, the preview, results, invoices, their items.
    for (const int state : {0, 1, 2, 3, 6, 9}) {
        openCopyOf(state > 3 ? "invoices.fwk" : "books.fwk");
        if (state == 9) shell::viewOpt_Click(app, 0);
        mainFrm.SSTab1 = state % 3;
        results.Visible = state == 3;
        const int before = LV.count();
        platform.answers = {Answer::Yes};
        EXPECT_EQ(shown("Delete").empty(), state % 6 != 0) << state;
        EXPECT_EQ(LV.count(), before - (state % 6 == 0 ? 1 : 0)) << state;
    }
}

TEST_F(MainWindow, Tabs) {
    openCopyOf("books.fwk");
    LV.at(3).Selected = true;
    EXPECT_EQ(tab(app::layoutTab), "12 results");
    EXPECT_TRUE(LV.at(1).Selected && !LV.at(3).Selected) << "the one that is shown";
    EXPECT_EQ(tab(app::previewTab), "22 results") << "what the tab before it prints";
    EXPECT_EQ(tab(app::reportTab), "01 Totals Properties Delete LV results");
    openCopyOf("invoices.fwk");
    iLV.setSelectedItem(&iLV.at(3));
    EXPECT_EQ(tab(app::layoutTab), "12 results");
    EXPECT_EQ(LV.selectedItem(), &LV.byKey("i3"));
    EXPECT_EQ(tab(app::reportTab), "01 Totals Properties Delete frame LV results");
    find({});
    EXPECT_EQ(tab(app::layoutTab), "01 Totals Properties frame LV results") << "there is none to show";
    find({"i1"});
    EXPECT_EQ(tab(app::layoutTab), "12 LV");
    EXPECT_EQ(LV.selectedItem(), &LV.byKey("i1"));
}

TEST(PrinterCheck, WithoutAPrinterTheTabStays) {
    struct : ScriptedPlatform {
        std::string printerDeviceName() override { core::raise(core::errors::deviceIO); }
    } platform;
    app::App app{platform};
    for (const int tab : {app::reportTab, app::layoutTab, app::previewTab}) {
        shell::SSTab1_Click(app, tab);
        EXPECT_EQ(app.mainFrm.SSTab1, app::reportTab);
        EXPECT_EQ(platform.messages.size(), static_cast<std::size_t>(tab));
    }
}

TEST_F(MainWindow, AHeaderClickSortsAndTogglesAcrossColumns) {
    open(DataFile("Name Qty:4 Price:2", "b|2|$1.00;a|10|$2.00;c|1|$.50"));
    LV.totals()->cells[1] = "13";
    const std::string cab = "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;------|13|------|;";
    const std::string abc = "a|10|$2.00|;b|2|$1.00|;c|1|$.50|;------|13|------|;";
    // The first sort goes downwards and the next upwards, whatever its column.
    for (const auto& [column, expected] : {std::pair(2, cab), {3, cab}, {3, abc}, {4, cab}}) {
        shell::list_ColumnClick(app, LV, column);
        EXPECT_EQ(cells(), expected) << column;
        EXPECT_TRUE(LV.MultiSelect && mainFrm.listScroll == app::ListScroll::Stay);
    }
    EXPECT_FALSE(document.bModified) << "an order is no change";
    tab(app::layoutTab);
    open(document.currentFile);
    tab(app::layoutTab);
    shell::list_ColumnClick(app, LV, 2); // another database goes on toggling
    EXPECT_EQ(mainFrm.layoutPage.shownKey, "i2") << "the last one is the current one now";
    open(DataFile("Name", ""));
    shell::list_ColumnClick(app, LV, 2);
    EXPECT_FALSE(LV.Sorted || LV.SortOrder == 0) << "with one item nothing is sorted";
    // The first column of the invoice list names the records shown, so a sort must leave it alone.
    openCopyOf("invoices.fwk");
    for (const char* keys : {"i4i3i2i1", "i1i2i3i4"}) {
        shell::list_ColumnClick(app, iLV, iLV.columns["Day"].Index);
        std::string shown;
        for (int row = 1; row < 5; ++row) {
            shown += iLV.at(row).Text.str();
            EXPECT_EQ(iLV.at(row).cells[0], LV.byKey(iLV.at(row).Text).cells[0]);
        }
        EXPECT_EQ(shown, keys);
    }
}

TEST_F(MainWindow, DoubleClicks) {
    // Columns, whether the option goes to the layout, and whether these are invoices.
    for (const auto& c :
         table("A:1 -> entryFrm; A:2 -> entryFrm; A:5 B:3 -> entryFrm; A:4 -> entryFrm; A:5 B:7 -> ; "
               " -> i Your database has no columns, please add some in the database properties dialog.; "
               " -> layout -> option; A:3 -> layout -> option; A:3 -> layout -> True",
               3)) {
        mainFrm.bLayoutDblClick = c[2] == "option";
        open(DataFile(c[0], "a").section("DatabaseStyle", c[2] == "True" ? "True" : "False"));
        EXPECT_EQ(&shell::visibleList(app), c[2] == "True" ? &iLV : &LV);
        LV.MultiSelect = false;
        EXPECT_EQ(doubleClick(LV), c[1]) << c[0] << c[2];
        EXPECT_EQ(LV.MultiSelect, c[1] != "layout");
    }
    // Over results it is asked whether the option can be chosen, not whether it is.
    open(DataFile("A", "a;b"));
    find({});
    EXPECT_EQ(doubleClick(results), "") << "the sums alone";
    find({"i2"});
    EXPECT_EQ(&shell::visibleList(app), &results);
    for (const bool isEnabled : {true, false}) {
        mainFrm.control("mnuLayoutDoubleClick").Enabled = isEnabled;
        EXPECT_EQ(doubleClick(results), isEnabled ? "layout" : "entryFrm");
    }
    openCopyOf("invoices.fwk");
    for (RecordsList* list : {&iLV, &results}) {
        if (list == &results) find({"i3"});
        EXPECT_EQ(doubleClick(*list), "layout");
        EXPECT_EQ(LV.selectedItem(), &LV.byKey(list == &iLV ? "i4" : "i3"));
        list->setSelectedItem(nullptr);
        EXPECT_EQ(doubleClick(*list), "") << "on no row";
    }
    for (const int key : {16, 17}) { // Shift, and Ctrl
        shell::list_KeyDown(app, key);
        EXPECT_EQ(mainFrm.bCtrlDown, key == 17);
    }
    shell::list_KeyUp(app);
    EXPECT_FALSE(mainFrm.bCtrlDown);
}

// Each view of the invoices keeps its columns' places, and leaves results that nobody sees any more.
TEST_F(MainWindow, TheViewsOfAnInvoiceDatabase) {
    openCopyOf("invoices.fwk");
    document.prnItemCols.add("Item", "Item");
    iLV.columns.setPosition(4, 2);
    const std::vector<int> moved = iLV.columns.displayOrder();
    for (const int view : {0, 1, 0}) {
        find({"i1"});
        if (mainFrm.viewOpt == 0) results.Visible = false; // the list that commands work on stays then
        shell::viewOpt_Click(app, view);
        EXPECT_TRUE(mainFrm.viewOpt == view && document.bInvoiceView == (view == 0));
        EXPECT_FALSE(results.Visible || mainFrm.control("Search").Value);
        EXPECT_EQ(mainFrm.theListView, view == 0 ? &LV : &results);
        EXPECT_EQ(iLV.columns.displayOrder() == moved, view == 1);
        EXPECT_EQ(text(document.printedCols), view == 0 ? "Item|" : "");
    }
}

TEST_F(MainWindow, FileSizesAreCutNotRounded) {
    for (const auto& c :
         table("0 -> 0 bytes.; 999 -> 999 bytes.; 1000 -> 1 KB; 9999 -> 9 KB; 10000 -> 10 KB; "
               "99999 -> 99 KB; 100000 -> 100 KB; 999999 -> 999 KB; 1000000 -> 1 MB; "
               "9999999 -> 9 MB; 10000000 -> 10 MB; 123456789 -> 12 MB; 4294967296 -> 42 MB"))
        EXPECT_EQ(app::fileSizeText(std::stoull(c[0])), c[1]);
}

} // namespace
