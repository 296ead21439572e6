#include "entry/navBar.h"
#include "layout/images.h"
#include "layout/objects.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"
#include "sheetFixture.h"

TEST_F(Sheet, FollowsTheListAndKeepsWhatWasNotChosen) {
    openSheet("F|Sum|0|0|9|9;F|Sum|0|0|9|9|True|False|False|Arial|8|0|;L|Hi|0|0|9|9;P|Photo|0|0|9|9|", false,
              records().section("Formulas", "Sum,Qty * Price|"));
    layout::select(app, {Family::tLabel, 1});
    objects.tLabel[1].BackColor = 0;
    layout::select(app, {Family::layoutField, 1});
    EXPECT_EQ(objects.tLabel[1].BackColor, core::white);
    platform.fonts = {{"Arial", 8, false, false, false, false, 255}};
    layout::setObjectFont(app);
    EXPECT_TRUE(objects.layoutField[2].FontBold && objects.layoutField[2].ForeColor == 255);
    layout::select(app, {Family::imgHolder, 1});
    platform.clipboardPicture = "damaged";
    layout::mnuImportImage_Click(app);
    EXPECT_EQ(told() + objects.imgHolder[1].ToolTipText,
              "! The picture in the clipboard cannot be read.bolt.jpg");

    const auto find = [&](auto qty) { search::findRecords(app, {{{"Qty", search::exact, qty, ""}}}); };
    search::takeOverColumns(app.document);
    shell::SSTab1_Click(app, app::reportTab);
    find("99");
    shell::SSTab1_Click(app, app::layoutTab);
    entry::layoutNavBar_ButtonClick(app, "Update");
    EXPECT_EQ(objects.layoutField[1].Text + told(), "i There is no record on the page.");
    find("7");
    entry::layoutNavBar_ButtonClick(app, "First");
    EXPECT_EQ(app.mainFrm.listScroll, app::ListScroll::ToCurrent);
    search::mnuSearch_Click(app); // and closed again
    EXPECT_EQ(objects.layoutField[1].Text, "");
    find("7");
    run("Search");
    EXPECT_EQ(cells(app.document.LV3), "|;|;|;") << "the sums of a result";
    EXPECT_FALSE(app.mainFrm.control("Delete").Enabled) << "on the page";
    app.document.LV.at(1).cells[4] = "Undefined";
    app.changes.announce(app, app::Change::Columns);
    EXPECT_EQ(objects.layoutField[1].Text, "Undefined");

    openCopyOf("invoices.fwk");
    app.document.bInvoiceStyle = false; // a new database that was cancelled half-way
    app.document.iLV.setSelectedItem(&app.document.iLV.at(2));
    platform.answers = {platform::Answer::Yes};
    run("Delete");
    EXPECT_TRUE(app.document.LV.find("i2") == nullptr && app.document.iLV.findText("i2") == nullptr);
}
