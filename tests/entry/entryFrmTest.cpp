#include "entry/entryFrm.h"

#include "databases.h"
#include "file/dataWriter.h"
#include "raised.h"
#include "results.h"

#include <gmock/gmock.h>

namespace {

using entry::entryFrm;
using entry::keyBack;
using entry::keyDown;
using entry::keyReturn;
using entry::keyUp;
using ::testing::ElementsAre;

// A shop's stock: No is a serial number, Bought takes today's date, Value is worked out.
DataFile stock() {
    DataFile file(
        {{"No", 4}, {"Part", 3}, {"Bought", 1}, {"Price", 2}, {"Qty", 4}, {"Value", 5}, {"Photo", 7}});
    file.more = "[Formulas      ]Value,Price * Qty|\r\n[Totaled Cols  ]Price|Qty|Value|\r\n"
                "[Optioned Cols ]No|Bought|\r\n[Increments    ]No,41|\r\n";
    file.rows = "40|Bolt|02/01/2026|$1.50|12|$18.00|bolt.gif|\r\n41|Nut M8|02/03/2026|$.25|7|$1.75||\r\n"
                "------|------|------|$1.75|19|$19.75|------|\r\n";
    return file;
}

class EntryFrm : public ::testing::Test {
protected:
    Program program;
    core::Document& document = program.app.document;
    core::RecordsList& LV = document.LV;

    void open(const DataFile& file) { program.open(program.make("stock.fwk", file.text(), {"bolt.gif"})); }
    void SetUp() override { open(stock()); }

    static std::vector<std::string> texts(const entryFrm& form) {
        std::vector<std::string> all;
        for (const auto& box : form.FieldBox) all.push_back(box.Text);
        return all;
    }
    static void type(entryFrm& form, std::initializer_list<const char*> values) {
        int index = 0;
        for (const char* value : values) form.FieldBox_Change(index++, value);
    }
    static std::vector<std::string> cells(const core::Item& item) {
        return {item.cells.begin(), item.cells.end()};
    }
    std::string selectedKey() const { return LV.selectedItem() ? LV.selectedItem()->Key.str() : "(none)"; }
};

TEST_F(EntryFrm, HasABoxForEachColumnThatIsTypedIntoInTheOrderOnView) {
    LV.columns.setPosition(LV.columns["Price"].Index, 2);
    entryFrm form(program.app);
    std::vector<std::string> captions, tags;
    for (const auto& label : form.editlbl) captions.push_back(label.Caption);
    for (const auto& box : form.FieldBox) tags.push_back(box.Tag);
    EXPECT_THAT(captions, ElementsAre("Price", "No", "Part", "Bought", "Qty"));
    EXPECT_EQ(tags, captions);
    EXPECT_EQ(form.prevChk.size(), 5U);
    EXPECT_THAT(texts(form), ElementsAre("$1.50", "40", "Bolt", "02/01/2026", "12"));
    form.RefreshEditBoxes(); // once more, with the columns as they are then
    EXPECT_EQ(form.FieldBox.size(), 5U);
}

TEST_F(EntryFrm, PlacesTheRowsOfThePane) {
    entryFrm form(program.app);
    const auto place = [](const entryFrm::Place& at) {
        return std::vector<float>{at.Left, at.Top, at.Width, at.Height};
    };
    EXPECT_THAT(place(form.editlbl[0]), ElementsAre(120, 120, 3255, 225));
    EXPECT_THAT(place(form.FieldBox[0]), ElementsAre(120, 360, 6765, 285));
    EXPECT_THAT(place(form.prevChk[0]), ElementsAre(4800, 105, 2055, 255));
    EXPECT_THAT(place(form.editlbl[2]), ElementsAre(105, 1320, 3255, 225));
    EXPECT_THAT(place(form.FieldBox[2]), ElementsAre(105, 1560, 6765, 285));
    EXPECT_THAT(place(form.prevChk[2]), ElementsAre(4800, 1305, 2055, 255));
    EXPECT_EQ(form.Picture2.Height, 5 * 615);
    EXPECT_EQ(form.VScroll1.Max, 1);

    form.Picture1_Resize(8000, 2000); // the user has pulled at the window
    EXPECT_EQ(form.VScroll1.Max, 1075);
    EXPECT_EQ(form.FieldBox[2].Width, 6765 + 920);
    EXPECT_EQ(form.prevChk[0].Left, 4800 + 920);
    form.VScroll1_Change(1075);
    EXPECT_EQ(form.Picture2.Top, -1075);
    form.Picture1_Resize(8000, 2800);
    EXPECT_EQ(form.Picture2.Top, -275);
}

TEST_F(EntryFrm, ColumnsThatCannotBeTypedIntoLeaveTheHiddenTemplate) {
    DataFile file({{"Value", 5}, {"Photo", 7}});
    file.rows = "$1.00|bolt.gif|\r\n------|------|\r\n";
    open(file);
    entryFrm form(program.app);
    ASSERT_EQ(form.FieldBox.size(), 1U);
    EXPECT_EQ(form.editlbl[0].Caption, "Field 1");
    EXPECT_FALSE(form.FieldBox[0].Visible || form.editlbl[0].Visible || form.prevChk[0].Visible);
    for (const char* key : {"New", "Add", "Update", "Next", "Last"}) form.Toolbar1_ButtonClick(key);
    EXPECT_EQ(LV.count(), 2);
    EXPECT_FALSE(document.bModified);
}

TEST_F(EntryFrm, AFormOfOneBoxStartsEmpty) {
    DataFile file({{"Name", 3}});
    file.rows = "Bolt|\r\n------|\r\n";
    open(file);
    entryFrm form(program.app);
    EXPECT_EQ(form.FieldBox[0].Text, "");
    form.Toolbar1_ButtonClick("First");
    EXPECT_EQ(form.FieldBox[0].Text, "Bolt");
    type(form, {"Nut"});
    form.FieldBox_KeyDown(0, keyReturn); // the first field is the last one too
    EXPECT_EQ(LV.count(), 3);
    EXPECT_EQ(LV.at(2).cells[0], "Nut");
    EXPECT_EQ(form.boxToFocus, 0);
}

TEST_F(EntryFrm, OneRowIsSelectedAsLongAsItIsOpen) {
    for (int row = 1; row <= 3; ++row) LV.at(row).Selected = true;
    LV.setSelectedItem(&LV.at(2));
    entryFrm form(program.app);
    EXPECT_FALSE(LV.MultiSelect);
    EXPECT_TRUE(!LV.at(1).Selected && LV.at(2).Selected && !LV.at(3).Selected);
    EXPECT_EQ(form.FieldBox[1].Text, "Nut M8");
    form.Form_QueryUnload();
    EXPECT_TRUE(LV.MultiSelect && form.unloaded);
}

TEST_F(EntryFrm, TheArrowKeysAndEnterWalkThroughTheFields) {
    struct {
        int from, key;
        std::optional<int> to;
    } const cases[] = {{0, keyDown, 1}, {3, keyDown, 4},   {4, keyDown, {}}, {4, keyUp, 3},
                       {0, keyUp, {}},  {1, keyReturn, 2}, {2, 65, {}},      {2, keyBack, {}}};
    for (const auto& [from, key, to] : cases) {
        entryFrm form(program.app);
        form.FieldBox_KeyDown(from, key);
        EXPECT_EQ(form.boxToFocus, to) << from << " " << key;
    }
    EXPECT_EQ(LV.count(), 3);
}

TEST_F(EntryFrm, ThePaneFollowsTheFocus) {
    entryFrm form(program.app);
    form.Picture1_Resize(7080, 1600); // room for two and a half rows; Max is 1475
    struct {
        int from, key, value;
    } const walk[] = {{0, keyDown, 0},  {1, keyDown, 600}, {2, keyDown, 1200}, {3, keyReturn, 1475},
                      {4, keyUp, 1475}, {3, keyUp, 875},   {2, keyUp, 275},    {1, keyUp, 0}};
    for (const auto& [from, key, value] : walk) {
        form.FieldBox_KeyDown(from, key);
        EXPECT_EQ(form.VScroll1.Value, value) << from << " " << key;
        EXPECT_EQ(form.Picture2.Top, -value);
    }
    form.showBox(4); // by the Tab key, from anywhere
    EXPECT_EQ(form.VScroll1.Value, 1475);
    form.showBox(0);
    EXPECT_EQ(form.VScroll1.Value, 0);
    form.scrollFields(true);
    EXPECT_EQ(form.VScroll1.Value, 0);
}

TEST_F(EntryFrm, EnterOnTheLastFieldAddsTheRecordAndStartsTheNext) {
    entryFrm form(program.app);
    form.Toolbar1_ButtonClick("New");
    EXPECT_THAT(texts(form), ElementsAre("42", "", "03/14/2026", "", ""));
    EXPECT_EQ(LV.count(), 3); // nothing is written yet
    form.FieldBox_Change(1, "Washer");
    form.FieldBox_Change(3, "1234");
    form.FieldBox_LostFocus(3);
    EXPECT_EQ(form.FieldBox[3].Text, "12.34");
    form.FieldBox_Change(4, "3");
    form.VScroll1_Change(0);
    form.FieldBox_KeyDown(4, keyReturn);
    ASSERT_EQ(LV.count(), 4);
    EXPECT_THAT(cells(LV.at(3)), ElementsAre("42", "Washer", "03/14/2026", "$12.34", "3", "$37.02", ""));
    EXPECT_THAT(cells(LV.at(4)),
                ElementsAre("------", "------", "------", "$14.09", "$22.00", "$56.77", "------"));
    EXPECT_EQ(document.SerialsLV.at(1).subItem(1), "42");
    EXPECT_EQ(LV.selectedItem(), &LV.at(3));
    EXPECT_TRUE(document.bModified);
    EXPECT_EQ(program.app.mainFrm.panels[app::recordsPanel], "3 records.");
    EXPECT_EQ(program.app.mainFrm.Slider1.Max, 3);
    EXPECT_THAT(texts(form), ElementsAre("", "", "", "", ""));
    EXPECT_EQ(form.boxToFocus, 0);
    EXPECT_EQ(form.VScroll1.Value, 1);
    EXPECT_FALSE(LV.MultiSelect);

    // Without "New" there is no number and no date; the counter stands still.
    form.FieldBox_KeyDown(4, keyReturn);
    EXPECT_THAT(cells(LV.at(4)), ElementsAre("0", "", "", "$.00", "0", "$.00", ""));
    EXPECT_EQ(document.SerialsLV.at(1).subItem(1), "42");
}

TEST_F(EntryFrm, ACheckedFieldTakesOnlyWhatIsNotThereYet) {
    struct {
        const char* typed;
        bool taken;
    } const cases[] = {{"Screw", true}, {" nut m8 ", false}, {"Nut", true},    {"12", false},
                       {"", false},     {"------", false},   {"$1.50", false}, {"1.50", true}};
    for (const auto& [typed, taken] : cases) {
        entryFrm form(program.app);
        form.prevChk_Click(1, true);
        form.FieldBox_Change(1, typed);
        form.FieldBox_KeyDown(1, keyReturn);
        EXPECT_EQ(form.FieldBox[1].Text, taken ? typed : "") << typed;
        EXPECT_EQ(form.boxToFocus, taken ? 2 : 1) << typed;
    }
    entryFrm form(program.app);
    form.prevChk_Click(4, true);
    form.FieldBox_KeyDown(4, keyReturn); // 12 is there
    EXPECT_EQ(LV.count(), 3);
    EXPECT_TRUE(program.platform.messages.empty());
}

TEST_F(EntryFrm, TheDateMaskWorksInDateFieldsAndRestsOnceAfterBackspace) {
    entryFrm form(program.app);
    form.FieldBox_Change(2, "12");
    EXPECT_EQ(form.FieldBox[2].Text, "12/");
    EXPECT_EQ(form.FieldBox[2].SelStart, 3);
    form.FieldBox_Change(2, "12/34");
    EXPECT_EQ(form.FieldBox[2].Text, "12/34/");
    form.FieldBox_KeyDown(2, keyBack);
    form.FieldBox_Change(2, "12/34");
    EXPECT_EQ(form.FieldBox[2].Text, "12/34");
    form.FieldBox_Change(2, "12");
    EXPECT_EQ(form.FieldBox[2].Text, "12/");
    form.FieldBox_Change(1, "12");
    form.FieldBox_Change(4, "12");
    EXPECT_EQ(form.FieldBox[1].Text + form.FieldBox[4].Text, "1212");
}

TEST_F(EntryFrm, OnlyACurrencyFieldIsCheckedWhenItIsLeft) {
    entryFrm form(program.app);
    type(form, {"one", "two", "99/99/2026", "3", "many"});
    for (int index = 0; index < 5; ++index) form.FieldBox_LostFocus(index);
    EXPECT_THAT(texts(form), ElementsAre("one", "two", "99/99/2026", "3.00", "many"));
    EXPECT_TRUE(program.platform.messages.empty());
    form.FieldBox_Change(3, "dear");
    form.FieldBox_GotFocus(3);
    form.Toolbar1_ButtonClick("Update"); // the check comes first, and does not hold it up
    EXPECT_EQ(program.platform.told(), "2|Verify Data|You entered a non numeric value.");
    EXPECT_EQ(LV.at(1).cells[3], "dear");
}

TEST_F(EntryFrm, TheToolbarGoesThroughTheRecords) {
    LV.add("i3").cells = LV.at(1).cells;
    core::moveTotals(LV);
    LV.setSelectedItem(&LV.at(1));
    entryFrm form(program.app);
    struct {
        const char* button;
        const char* selected;
    } const walk[] = {{"Back", "i1"},  {"Next", "i2"}, {"Next", "i3"}, {"Next", "i3"},
                      {"First", "i1"}, {"Last", "i3"}, {"Back", "i2"}};
    for (const auto& [button, selected] : walk) {
        form.Toolbar1_ButtonClick(button);
        EXPECT_EQ(selectedKey(), selected) << button;
        EXPECT_EQ(form.FieldBox[0].Text, LV.selectedItem()->cells[0].str()) << button;
    }
    EXPECT_FALSE(document.bModified);
}

TEST_F(EntryFrm, AnEmptyDatabaseHasNothingToGoThrough) {
    DataFile file = stock();
    file.rows = "------|------|------|------|------|------|------|\r\n";
    open(file);
    entryFrm form(program.app);
    type(form, {"7"});
    for (const char* key : {"First", "Back", "Next", "Last", "Update", "Delete"})
        form.Toolbar1_ButtonClick(key);
    EXPECT_EQ(form.FieldBox[0].Text, "7");
    EXPECT_EQ(LV.count(), 1);
    form.Toolbar1_ButtonClick("Add");
    EXPECT_THAT(cells(LV.at(1)), ElementsAre("7", "", "", "$.00", "0", "$.00", ""));
}

TEST_F(EntryFrm, AddAndUpdateWriteTheBoxes) {
    entryFrm form(program.app);
    form.FieldBox_Change(4, "10");
    form.Toolbar1_ButtonClick("Update");
    EXPECT_THAT(cells(LV.at(1)),
                ElementsAre("40", "Bolt", "02/01/2026", "$1.50", "10", "$15.00", "bolt.gif"));
    EXPECT_EQ(LV.at(3).cells[5], "$16.75");
    EXPECT_EQ(document.SerialsLV.at(1).subItem(1), "41");
    EXPECT_EQ(form.FieldBox[4].Text, "10"); // an update leaves the boxes

    form.FieldBox_GotFocus(3);
    form.FieldBox_Change(3, "250");
    form.Toolbar1_ButtonClick("Add");
    EXPECT_THAT(cells(LV.at(3)), ElementsAre("40", "Bolt", "02/01/2026", "$2.50", "10", "$25.00", ""));
    EXPECT_EQ(document.SerialsLV.at(1).subItem(1), "42");
    EXPECT_THAT(texts(form), ElementsAre("", "", "", "", ""));
    EXPECT_EQ(form.boxToFocus, 0);

    LV.setSelectedItem(LV.totals());
    const std::string before = Program::cells(LV);
    form.Toolbar1_ButtonClick("Update");
    EXPECT_EQ(Program::cells(LV), before);
}

TEST_F(EntryFrm, DeleteShowsTheRecordThatTakesThePlace) {
    entryFrm form(program.app);
    form.Toolbar1_ButtonClick("Delete"); // the script says No
    EXPECT_EQ(program.platform.lastMessage(), "Are you sure?");
    EXPECT_EQ(LV.count(), 3);
    EXPECT_EQ(form.FieldBox[1].Text, "Bolt");
    for (const char* left : {"Nut M8", ""}) {
        program.platform.answers = {platform::Answer::Yes};
        form.Toolbar1_ButtonClick("Delete");
        EXPECT_EQ(form.FieldBox[1].Text, left);
    }
    EXPECT_EQ(LV.count(), 1);
    EXPECT_THAT(cells(LV.at(1)), ElementsAre("------", "------", "------", "$.00", "$.00", "$.00", "------"));
}

TEST_F(EntryFrm, FindAndAgainGoThroughAllCells) {
    LV.add("i3").cells = LV.at(2).cells;
    core::moveTotals(LV);
    LV.setSelectedItem(&LV.at(1));
    entryFrm form(program.app);
    form.srchTxt = "nut";
    form.againBtn_Click(); // nothing has been found yet
    EXPECT_EQ(selectedKey(), "i1");
    form.srchTxt_KeyDown(65);
    EXPECT_EQ(form.iFindRow, 0);
    form.srchTxt_KeyDown(keyReturn);
    EXPECT_EQ(selectedKey(), "i2");
    EXPECT_EQ(form.FieldBox[1].Text, "Nut M8");
    form.againBtn_Click();
    EXPECT_EQ(selectedKey(), "i3");
    form.againBtn_Click(); // the row behind is the last one
    EXPECT_EQ(form.iFindRow, 3);

    struct {
        const char* text;
        const char* key;
        int row;
    } const cases[] = {{" BOLT.gif", "i1", 1}, {"M8", "i2", 2}, {"", "i1", 1}, {"19.75", "Totals", 4}};
    for (const auto& [text, key, row] : cases) {
        form.srchTxt = text;
        form.searchBtn_Click();
        EXPECT_EQ(selectedKey(), key) << text;
        EXPECT_EQ(form.iFindRow, row) << text;
    }
    form.srchTxt = "no such thing";
    form.searchBtn_Click();
    EXPECT_EQ(form.iFindRow, 0);
    EXPECT_EQ(selectedKey(), "Totals");
}

TEST_F(EntryFrm, ResultsAreBrowsedAndUpdatedButNotAddedToOrDeletedFrom) {
    showResults(program.app, {"i2", "i1"});
    entryFrm form(program.app);
    for (const char* key : {"New", "Add", "Delete"}) EXPECT_FALSE(form.isButtonEnabled(key)) << key;
    for (const char* key : {"Save", "Update", "First", "Back", "Next", "Last"})
        EXPECT_TRUE(form.isButtonEnabled(key)) << key;
    for (const char* key : {"New", "Add", "Delete"}) form.Toolbar1_ButtonClick(key);
    EXPECT_EQ(form.FieldBox[1].Text, "Nut M8");
    form.FieldBox_Change(4, "8");
    form.FieldBox_KeyDown(4, keyReturn);
    EXPECT_EQ(form.FieldBox[4].Text, "8"); // neither added nor cleared
    EXPECT_EQ(LV.count(), 3);
    form.Toolbar1_ButtonClick("Update");
    EXPECT_EQ(LV.at(2).cells[5], "$2.00");
    EXPECT_EQ(document.searchLV.at(1).cells[5], "$2.00");
    form.Toolbar1_ButtonClick("Next");
    EXPECT_EQ(form.FieldBox[1].Text, "Bolt");
    form.Form_QueryUnload();
    EXPECT_TRUE(document.searchLV.MultiSelect);
}

TEST_F(EntryFrm, TheKeyBehindTheLastIsAnErrorThatLeavesAllAsItWas) {
    entryFrm form(program.app);
    form.Toolbar1_ButtonClick("New");
    document.iLastKey = 32767;
    const std::string before = file::writeDataFile(document, false);
    EXPECT_EQ(raisedBy([&] { form.FieldBox_KeyDown(4, keyReturn); }), core::errors::overflow);
    EXPECT_EQ(raisedBy([&] { form.Toolbar1_ButtonClick("Add"); }), core::errors::overflow);
    EXPECT_EQ(file::writeDataFile(document, false), before);
    EXPECT_FALSE(document.bModified);
    EXPECT_EQ(form.FieldBox[0].Text, "42"); // what was typed is still there
}

} // namespace
