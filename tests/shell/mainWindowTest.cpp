#include "shell/mainWindow.h"
#include "calc/columns.h"
#include "core/translate.h"
#include "databases.h"
#include "entry/shownRecord.h"
#include "layout/layoutPage.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"
#include "shell/listEvents.h"
#include "table.h"

#include <gtest/gtest.h>
#include <ranges>
#include <set>

namespace {

using core::RecordsList;
using platform::Answer;

struct MainWindow : testing::Test, Program {
    core::Document& document = app.document;
    app::MainFrm& mainFrm = app.mainFrm;
    RecordsList &LV = document.LV, &iLV = document.iLV, &results = document.searchLV;

    // The commands that toolbar and menus offer and that this holds for, "Save Print ".
    static std::string those(const std::function<bool(std::string_view)>& test) {
        std::vector<std::span<const std::string_view>> keys = {
            shell::toolbarKeys(), shell::buttonMenuKeys("Save"), shell::buttonMenuKeys("Print")};
        for (const shell::Menu& menu : shell::menuBar()) keys.emplace_back(menu.items);
        std::string all;
        for (const auto& menu : keys)
            for (const std::string_view key : menu)
                if (key != "-" && test(key)) all.append(key) += ' ';
        return all;
    }
    // What has come up since the last look, or with that command.
    std::string shown(const std::string& command = "") {
        if (!command.empty()) run(command.c_str());
        std::string all = dialogs();
        all.erase(std::min(all.find('/'), all.size()));
        for (const std::string& form : std::exchange(platform.forms, {})) all += form;
        return all + told();
    }
    // The tab and what is printed from it; the buttons that are off and pressed; the frame of the invoices,
    // the list on view, the one that commands work on, and whether many can be selected in the records; the
    // current record and how many there are; what has come up.
    std::vector<std::string> state() {
        std::string buttons, record = LV.selectedItem() == nullptr ? "none" : LV.selectedItem()->Key.str();
        for (const char* key : {"Totals", "Properties", "Delete", "Formulas"})
            if (!mainFrm.control(key).Enabled) buttons += key[0];
        for (const char* key : {"Totals", "Search", "Design"})
            if (mainFrm.control(key).Value) buttons += static_cast<char>(key[0] + 32);
        return {std::to_string(mainFrm.SSTab1) + std::to_string(mainFrm.iPrintMode), buttons + ".",
                (mainFrm.invoiceFrameVisible ? "f " : "") + shell::visibleList(app.document).Name + "/" +
                    mainFrm.theListView->Name + (LV.MultiSelect ? "+" : ""),
                record + "/" + std::to_string(LV.count()), shown()};
    }
    // Acts, and what of the state is another one behind each: "open books", "tab 1", "row 2" of the list on
    // view, "find KEY", "view 0", "double" for a click, or a command.
    void play(std::string_view acts) {
        for (const auto& c : table(acts)) {
            const std::string what = c[0].substr(0, c[0].find(' ')), which = c[0].substr(c[0].rfind(' ') + 1);
            RecordsList& list = shell::visibleList(app.document);
            if (what == "open") openCopyOf(which + ".fwk");
            if (what == "tab") shell::SSTab1_Click(app, std::stoi(which));
            if (what == "row") list.setSelectedItem(&list.at(std::stoi(which)));
            if (what == "find") find(which);
            if (what == "view") shell::viewOpt_Click(app, std::stoi(which));
            if (what == "double") shell::list_DblClick(app, list);
            platform.answers = {Answer::Yes};
            if (shell::hasCommand(what)) run(what.c_str());
            std::string changed;
            const auto before = std::exchange(state_, state());
            for (std::size_t part = 0; part < before.size(); ++part)
                if (state_[part] != before[part]) changed += (changed.empty() ? "" : " ") + state_[part];
            EXPECT_EQ(changed, c[1]) << c[0];
        }
    }
    std::vector<std::string> state_{5};
    // Results on view, as a search leaves them: one record, or none.
    void find(const std::string& key) {
        search::takeOverColumns(app.document);
        core::addTotalsRow(results);
        if (LV.find(key) != nullptr) results.add(key, key).Tag = key;
        core::moveTotals(results);
        results.Visible = mainFrm.control("Search").Value = true;
        mainFrm.theListView = &results;
    }
};

TEST_F(MainWindow, TellsWhatIsOpenAndEnablesItsCommands) {
    // In one menu no two items answer to the same letter, or one of them cannot be reached by it.
    for (const shell::Menu& menu : shell::menuBar()) {
        std::set<int> letters;
        for (const std::string_view key : menu.items) {
            const std::string_view caption = key == "-" ? key : shell::command(key).caption;
            const auto mark = caption.find('&');
            EXPECT_TRUE(mark == caption.npos || letters.insert(std::tolower(caption[mark + 1])).second)
                << key;
        }
    }
    EXPECT_EQ(
        those([](std::string_view key) { return shell::command(key).checkable; }),
        "Search Totals Design mnuFreezeColumn mnuLocaleForm mnuSummary Design mnuConfirmDelete mnuSavePrompt "
        "mnuCalcHighlight "
        "mnuLayoutDoubleClick mnuAutoLoad mnuOpenPdf ");
    const auto disabled = [&](std::string_view key) { return !shell::isCommandEnabled(app, key); };
    const std::string prints = "All_As_Layouts Selected_As_Layouts ";
    const std::string many = "Print_All_As_Multiple_Layouts Print_Selected_Multiple_Layouts "
                             "Multiple_Layout_Preview_All Multiple_Layout_Preview_Selected ";
    app::enableControls(app, false);
    EXPECT_EQ(those(std::not_fn(disabled)), "New Open Help SaveSearch All_As_Report Selected_As_Report " +
                                                prints + many +
                                                "mnuNew mnuTemplates mnuOpen mnuOpenRecent mnuSaveSearch "
                                                "mnuImportTable mnuFile1 mnuFile2 mnuFile3 "
                                                "mnuExit mnuTheme mnuToolbarTexts mnuContents "
                                                "mnuDisclaimer mnuWebpage mnuAbout ");
    EXPECT_EQ(shown("Save") + shown("mnuDatabaseProperties"), "");
    EXPECT_FALSE(mainFrm.SSTab1Enabled);
    openCopyOf("books.fwk");
    const std::string onPage = "mnuUndo mnuRedo mnuCut "; // nothing to undo, and no page that is designed
    // Of a normal size, no preview, and no country that the machine knows of.
    const std::string view = "mnuZoomNormal mnuFitPage mnuFitWidth mnuLocaleForm ";
    EXPECT_EQ(those(disabled) + mainFrm.Caption, onPage + view + "Ferrowick - " + document.currentFile);
    openCopyOf("invoices.fwk");
    EXPECT_EQ(those(disabled), many + onPage + "mnuDuplicate mnuMakeCode " + view);
    shell::viewOpt_Click(app, 0);
    EXPECT_EQ(those(disabled), "Delete " + prints + many + onPage + "mnuDuplicate mnuMakeCode " + view);
    app::enableControls(app, false);
    EXPECT_EQ(mainFrm.Caption, "Ferrowick");
    // Sizes are cut, not rounded.
    for (const auto& c : table("999 -> 999 bytes.; 1000 -> 1 KB; 99999 -> 99 KB; 999999 -> 999 KB; "
                               "1000000 -> 1 MB; 4294967296 -> 42 MB"))
        EXPECT_EQ(app::fileSizeText(std::stoull(c[0])), c[1]);
}

TEST_F(MainWindow, CommandsReachTheRoutineBehindThem) {
    openCopyOf("books.fwk");
    document.lockPassword = "x"; // stops the buttons and not the menu item
    for (const char* button : {"Properties", "Design"}) EXPECT_TRUE(shown(button).ends_with("to unlock."));
    EXPECT_FALSE(mainFrm.control("Design").Value);
    EXPECT_EQ(shown("mnuDatabaseProperties"), "designFrm");
    document.lockPassword.clear();
    for (const auto& c :
         table("New -> databaseTypeFrm; mnuNew -> databaseTypeFrm; Formulas -> formulateFrm; "
               "mnuExpressionEditor -> formulateFrm; Properties -> designFrm; mnuEmail -> mailFrm; "
               "mnuTotalColumns -> TotalsFrm; mnuSerialAdjust -> serialFrm; Open -> Open Database; "
               "mnuDisclaimer -> disclaimFrm; mnuOpen -> Open Database; mnuSaveAs -> Save As...; "
               "mnuClone -> Clone current file to...; mnuReplace -> replaceFrm; Save -> ; mnuSave -> ; "
               "mnuSearch -> searchFrm; mnuOpenForm -> entryFrm; PageSetup -> reportPageSetup; mnuPageSetup "
               "-> reportPageSetup")) {
        app::setDocumentModified(app, true);
        EXPECT_EQ(shown(c[0]), c[1]) << c[0];
        EXPECT_EQ(document.bModified, !c[1].empty()) << c[0];
    }
    // The help opens where the catalogue of the language says, if it is made at all.
    core::setCatalogue([](auto&, auto&, int) { return "help/de/index.html"; });
    for (const char* key : {"Help", "mnuContents", "mnuWebpage"})
        EXPECT_TRUE(!shown(key).empty() || platform.links.back().ends_with("help/de/index.html")) << key;
    core::setCatalogue({});
    EXPECT_TRUE(shown("mnuAbout").starts_with("i About Ferrowick: Ferrowick\nVersion "));
    const auto plain = document.layout.layoutField.find(7)->BackColor; // one calculated
    for (const std::string key : {"Design", "mnuCalcHighlight", "mnuConfirmDelete", "mnuSavePrompt",
                                  "mnuLayoutDoubleClick", "mnuAutoLoad"}) {
        app::setDocumentModified(app, false);
        run(key.c_str());
        const bool isOn = mainFrm.control(key).Value, isDesign = key == "Design";
        EXPECT_EQ(document.layout.layoutField.find(7)->BackColor == plain, key != "mnuCalcHighlight");
        EXPECT_TRUE(document.bModified == isDesign &&
                    layout::layoutPage(app).layoutToolbarInFront == isDesign);
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
    play("Search -> 01 DFs. searchLV/searchLV+ i1/3 searchFrm; tab 1 -> 12 TPDFs. ; mnuSelectedTotals -> "
         "TPDFts.; mnuExpressionEditor -> formulateFrm");
    EXPECT_EQ(results.at(1).cells[1], "20");
    play("tab 0 -> 01 DFts. ; mnuDatabaseProperties -> t. LV/LV+ designFrm; Search -> DFts. "
         "searchLV/searchLV+ searchFrm; tab 1 -> 12 TPDFts. ; mnuSelectedTotals -> TPDFs.; "
         "mnuDatabaseProperties -> TPD. LV/LV+ designFrm");
    EXPECT_FALSE(document.LV3.Visible);
    EXPECT_EQ(layout::layoutPage(app).fieldMenu, (std::vector<std::string>{"A", "B", "C0", "C1"}));
}

TEST_F(MainWindow, TabsListsAndViews) {
    mainFrm.bConfirmDelete = false;
    play("open books -> 01 . LV/LV+ i1/43; row 3 -> i3/43; tab 1 -> 12 TPD. LV/LV; Delete -> ; tab 2 -> 22 i "
         "Printer Not Installed: You need to first install a printer on this system.; Delete -> ; tab 0 -> "
         "01 . LV/LV+; double -> entryFrm; Delete -> i4/42 ; find i5 -> s. searchLV/searchLV+; Delete -> ; "
         "double -> 12 TPDs.; tab 0 -> 01 Ds.; find none -> ; double -> ; Search -> . LV/LV+");
    mainFrm.control("mnuLayoutDoubleClick").Enabled = false; // not whether it is checked
    play("find i5 -> s. searchLV/searchLV+; double -> entryFrm");
    play(
        "open invoices -> . f iLV/LV+ i1/5 ; row 3 -> ; tab 1 -> 12 TPD. iLV/LV i3/5; tab 0 -> 01 . f "
        "iLV/LV+; view 0 -> D.; Delete -> ; double -> 12 TPD. iLV/LV i4/5; tab 0 -> 01 . f iLV/LV+; find i1 "
        "-> s. f searchLV/searchLV+; view 1 -> . f iLV/LV+; Delete -> i3/4; find none -> s. f "
        "searchLV/searchLV+; tab 1 -> Ds.; double -> ; find i1 -> ; tab 1 -> 12 TPDs. searchLV/searchLV+ "
        "i1/4; tab 0 -> 01 Ds. f searchLV/searchLV+; find i2 -> ; double -> 12 TPDs. searchLV/searchLV i2/4");
}

// The first sort goes downwards and the next upwards, whatever its column and its database.
TEST_F(MainWindow, AHeaderClickSortsAndTogglesAcrossColumns) {
    const auto click = [&](RecordsList& list, const char* column) {
        shell::list_ColumnClick(app, list, list.columns[column].Index);
        std::string all;
        list.forEach([&](const core::Item& row) { all += row.cells[0].str() + " "; });
        return all;
    };
    open(DataFile("Name Qty:4 Price:2", "b|2|$1.00;a|10|$2.00;c|1|$.50"));
    for (const auto& c : table("Name -> c b a ------ ; Qty -> c b a ------ ; Qty -> a b c ------ ; "
                               "Price -> c b a ------ "))
        EXPECT_EQ(click(LV, c[0].c_str()), c[1]) << c[0];
    EXPECT_TRUE(LV.MultiSelect && mainFrm.listScroll == app::ListScroll::Stay);
    EXPECT_FALSE(document.bModified) << "an order is no change";
    open(document.currentFile);
    shell::SSTab1_Click(app, app::layoutTab);
    click(LV, "Name");
    EXPECT_EQ(entry::sheet(app).shownKey, "i2") << "the last one is the current one now";
    open(DataFile("Name", ""));
    click(LV, "Name");
    EXPECT_FALSE(LV.Sorted || LV.SortOrder == 0) << "with one item nothing is sorted";
    openCopyOf("invoices.fwk");
    EXPECT_EQ(click(iLV, "Day"), "4 3 2 1 ------ ");
    EXPECT_EQ(click(iLV, "Day"), "1 2 3 4 ------ ");
    find("i2");
    click(results, "Day");
    EXPECT_EQ(iLV.at(4).Text.str() + results.at(1).Text.str(), "i4i2") << "they name the records";
}

TEST_F(MainWindow, DoubleClicks) {
    // Columns, whether the option goes to the layout, and whether these are invoices.
    for (const auto& c :
         table("A:1 -> entryFrm; A:5 B:3 -> entryFrm; A:5 B:7 -> ; "
               " -> i Your database has no columns, please add some in the database properties dialog.; "
               " -> layout -> option; A:3 -> layout -> option; A:3 -> layout -> True",
               3)) {
        mainFrm.bLayoutDblClick = c[2] == "option";
        open(DataFile(c[0], "a").section("DatabaseStyle", c[2] == "True" ? "True" : "False"));
        LV.MultiSelect = false;
        shell::list_DblClick(app, LV);
        EXPECT_EQ(mainFrm.SSTab1 == app::layoutTab ? "layout" : shown(), c[1]) << c[0] << c[2];
        EXPECT_EQ(LV.MultiSelect, c[1] != "layout");
    }
    for (const int key : {16, 17, 0}) { // Shift, and Ctrl
        key == 0 ? shell::list_KeyUp(app) : shell::list_KeyDown(app, key);
        EXPECT_EQ(mainFrm.bCtrlDown, key == 17);
    }
    // Each view of the invoices keeps its columns' places and what is printed.
    openCopyOf("invoices.fwk");
    document.prnItemCols.add("Item", "Item");
    iLV.columns.setPosition(4, 2);
    const std::vector<int> moved = iLV.columns.displayOrder();
    for (const int view : {0, 1}) {
        shell::viewOpt_Click(app, view);
        EXPECT_TRUE(mainFrm.viewOpt == view && document.bInvoiceView == (view == 0));
        EXPECT_EQ(iLV.columns.displayOrder() == moved, view == 1);
        EXPECT_EQ(text(document.printedCols), view == 0 ? "Item|" : "");
    }
}

} // namespace
