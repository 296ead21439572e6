#include "shell/listCommands.h"
#include "databases.h"
#include "entry/entryFrm.h"
#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "layout/layoutPage.h"
#include "search/codes/makeCodeFrm.h"
#include "shell/listEvents.h"
#include "shell/mainWindow.h"
#include "shell/menuCommands.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

struct ListCommands : testing::Test, Program {
    // The menu of the list on view as far as it is about records, with what cannot be done now in brackets
    // and a mark on what a double click is.
    std::string menu() {
        const core::RecordsList& list = shell::visibleList(app.document);
        std::string all;
        for (const std::string_view key : shell::contextMenuKeys(list, app.document)) {
            if (key == shell::defaultMenuKey(app, list)) all += '*';
            const bool isOff = key != "-" && !shell::isCommandEnabled(app, key);
            all.append(isOff ? "(" : "").append(key).append(isOff ? ") " : " ");
        }
        return all.substr(0, all.find(" - ", all.find(" - ") + 1));
    }
};

TEST_F(ListCommands, TheMenuHasWhatCanBeDoneToThatListsRecords) {
    open(DataFile("Name", "a"));
    EXPECT_EQ(menu(), "mnuOpenPage *mnuOpenForm - mnuNewRecord mnuDuplicate Delete");
    open(DataFile("Name"));
    EXPECT_EQ(menu(), "(mnuOpenPage) *(mnuOpenForm) - mnuNewRecord mnuDuplicate Delete");
    openCopyOf("invoices.fwk");
    EXPECT_EQ(menu(), "*mnuOpenPage - mnuNewRecord Delete");
    shell::viewOpt_Click(app, 0);
    EXPECT_EQ(menu(), "*mnuOpenPage - mnuNewRecord");
}

// Where records are opened; never while the page is designed.
TEST_F(ListCommands, ANewRecordIsTypedInTheFormOrOnThePage) {
    open(DataFile("No:1 Name", "7|a").objects("F|Name|0|0|900|300"));
    std::string boxes;
    platform.onForm = [&](std::string_view) {
        for (int i = 0; i < 2; ++i)
            for (const auto& box : entry::entryFrm(app).FieldBox) boxes += box.Text + "|";
    };
    run("mnuNewRecord");
    EXPECT_EQ(boxes, "||7|a|") << "once it begins empty";
    app.mainFrm.bLayoutDblClick = true;
    run("mnuOpenPage");
    EXPECT_EQ(app.document.layout.layoutField[1].Text, "a");
    run("mnuNewRecord");
    EXPECT_TRUE(app.mainFrm.SSTab1 == app::layoutTab && entry::isSheetNew(app));
    EXPECT_EQ(app.document.layout.layoutField[1].Text, "");
    run("Design");
    EXPECT_FALSE(shell::isCommandEnabled(app, "mnuNewRecord"));
}

TEST_F(ListCommands, ACodeIsForThePictureBoxThatIsChosen) {
    open(DataFile("Name First:7 Code:7", "a||").objects("F|Name|0|0|900|300;P|Code|0|400|900|900|"));
    shell::SSTab1_Click(app, app::layoutTab);
    std::string columns;
    platform.onForm = [&](std::string_view) {
        columns += search::makeCodeFrm(app).ListIndex == 1 ? "Code " : "First ";
        app.changes.announce(app, app::Change::CurrentRecord); // shows it anew
    };
    entry::layoutField_Change(app, 1, "half");
    for (const auto& [family, index] : {core::ObjectRef{core::Family::layoutField, 1},
                                        {core::Family::imgHolder, 2},
                                        {core::Family::imgHolder, 1}}) {
        layout::layoutPage(app).selectedObject = {family, index};
        shell::makeCodeOfBox(app);
    }
    run("mnuMakeCode");
    EXPECT_EQ(columns + app.document.layout.layoutField[1].Text, "Code First half");
}

TEST_F(ListCommands, TypedLettersFindTheBeginningOfARow) {
    core::RecordsList& LV = app.document.LV;
    open(DataFile("Name Price:2", "Zoe|$8.50;émile|$12.00;Ann|$.75;Emma|$8.00;Łukasz|$1.00"));
    for (const auto& c :
         table("z -> 1 -> 0; E -> 2 -> 0; em -> 2 -> 0; EMM -> 4 -> 1; ee -> 4 -> 2; ee -> 2 -> "
               "4; eee -> 2 -> 0; lu -> 5 -> 0; ex -> 0 -> 0; - -> 0 -> 0",
               3))
        EXPECT_EQ(shell::rowBeginningWith(LV, LV.columns["Name"], c[0], std::stoi(c[2])), std::stoi(c[1]))
            << c[0];
    EXPECT_EQ(shell::rowBeginningWith(LV, LV.columns["Price"], "8.0", 0), 4);
    for (const bool isDown : {false, false, true}) {
        shell::sortList(app, LV, 2, isDown ? shell::Order::Descending : shell::Order::Ascending);
        EXPECT_EQ(cell(1, "Name"), isDown ? "Łukasz" : "Ann");
    }
}

} // namespace
