#include "../layout/sheetFixture.h"

#include "entry/editRecord.h"
#include "entry/navBar.h"
#include "entry/retrieveData.h"
#include "search/searchMode.h"

namespace {

// Search results on view: what is done on the page reaches the record that is on it, and no other one.
class Results : public Sheet {
protected:
    core::RecordsList& LV = app.document.LV;
    core::RecordsList& results = app.document.searchLV;

    void openAndFind(std::initializer_list<const char*> keys) {
        open("F|Name|0|0|900|300|False|False|False|Arial|8|0|\r\n");
        search::takeOverColumns(app);
        for (const char* key : keys) results.add(key, key).cells = LV.byKey(key).cells;
        core::addTotalsRow(results);
        results.Visible = true;
        app.mainFrm.theListView = &results;
        LV.setSelectedItem(&LV.at(1));
        results.setSelectedItem(&results.at(1));
        entry::showRecord(app);
    }
    void press(const char* key) { entry::layoutNavBar_ButtonClick(app, key); }
    static std::string names(const core::RecordsList& list) {
        std::string all;
        list.forEach([&](const core::Item& item) { all += item.cells[0].str() + " "; });
        return all;
    }
};

TEST_F(Results, DeleteTakesTheRecordOnThePage) {
    openAndFind({"i2", "i3"});
    platform.answers = {platform::Answer::Yes};
    press("Delete");
    EXPECT_EQ(names(LV), "Bolt Pin ------ ");
    EXPECT_EQ(names(results), "Pin ------ ");
    EXPECT_EQ(objects.layoutField[1].Text, "Pin");
}

TEST_F(Results, ANewRecordIsNoneOfThoseFound) {
    openAndFind({"i2", "i3"});
    press("New");
    objects.layoutField[1].Text = "New";
    press("Add");
    EXPECT_EQ(names(results), "Nut Pin ------ ");
    press("First");
    press("Update");
    EXPECT_EQ(names(LV), "Bolt Nut Pin New ------ ");
}

TEST_F(Results, DuplicateCopiesTheRecordOnThePage) {
    openAndFind({"i2", "i3"});
    platform.inputs = {"1"};
    entry::mnuDuplicate_Click(app);
    EXPECT_EQ(names(LV), "Bolt Nut Pin Nut ------ ");
}

// The rows that were selected on the way are not on the page.
TEST_F(Results, StepsLeaveOneRecordSelected) {
    open("F|Name|0|0|900|300|False|False|False|Arial|8|0|\r\n");
    LV.setSelectedItem(&LV.at(1));
    platform.inputs = {"1"};
    entry::mnuDuplicate_Click(app);
    LV.MultiSelect = true;
    press("Next");
    press("Next");
    platform.answers = {platform::Answer::Yes};
    press("Delete");
    EXPECT_EQ(names(LV), "Bolt Nut Bolt ------ ");
    entry::Slider1_Change(app, 32767);
    EXPECT_FALSE(LV.selectedItem()->isTotals());
}

} // namespace
