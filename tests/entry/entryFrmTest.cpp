#include "entry/entryFrm.h"

#include "core/text.h"
#include "raised.h"
#include "search/searchProgram.h"
#include "transcript.h"

namespace {

using entry::entryFrm;

// A shop's stock: No is a serial number, Bought takes today's date, Value is worked out.
struct EntryForm : testing::Test, SearchProgram {
    EntryForm()
        : SearchProgram(
              DataFile("No:4 Part Bought:1 Price:2 Qty:4 Value:5 Photo:7",
                       "40|Bolt|02/01/2026|$1.50|12|$18.00|bolt.gif;41|Nut M8|02/03/2026|$.25|7|$1.75|")
                  .sections("Formulas=Value,Price * Qty|;Totaled Cols=Price|Qty|Value|;Optioned "
                            "Cols=No|Bought|;Increments=No,41|")) {}
    core::RecordsList& LV = app.document.LV;
    std::optional<entryFrm> form;

    // A user's act: "3=1234" in a box, "Enter 4" a key in it, "Leave 1" or "Check 1", "Find bolt", or a
    // button.
    void act(const std::string& text) {
        const std::map<std::string, int> keys = {{"Enter", entry::keyReturn},
                                                 {"Down", entry::keyDown},
                                                 {"Up", entry::keyUp},
                                                 {"Erase", entry::keyBack}};
        const std::size_t mark = std::min(text.find_first_of("= "), text.size());
        const std::string word = text.substr(0, mark), value = text.substr(std::min(mark + 1, text.size()));
        if (word == "Form") form.emplace(app);
        if (word == "Close") form->Form_QueryUnload();
        if (word == "Again") form->againBtn_Click();
        if (word == "Yes") platform.answers = {platform::Answer::Yes};
        if (word == "Check") form->prevChk_Click(std::stoi(value), true);
        if (word == "Leave") form->FieldBox_LostFocus(std::stoi(value));
        if (word == "Find" || word == "Type") form->srchTxt = value;
        if (word == "Find" || word == "Type") form->srchTxt_KeyDown(word == "Find" ? entry::keyReturn : 'A');
        if (keys.contains(word)) form->FieldBox_KeyDown(std::stoi(value), keys.at(word));
        if (text.substr(mark).starts_with('=')) form->FieldBox_GotFocus(std::stoi(word));
        if (text.substr(mark).starts_with('=')) form->FieldBox_Change(std::stoi(word), value);
        form->Toolbar1_ButtonClick(word);
    }
    // Acts, "First, 3=1234, Update": the texts of the boxes behind them, "=" when they are the same as
    // before, the current row, the box that gets the focus, and what was told.
    void expect(std::string_view transcript) {
        std::string before;
        expectTranscript(transcript, [&](const std::string& acts) {
            if (form) form->boxToFocus.reset();
            for (const auto& each : table(core::replaceAll(acts, ", ", "; "))) act(each[0]);
            std::string texts;
            for (const auto& box : form->FieldBox) texts += box.Text + "|";
            const core::Item* item = app.mainFrm.theListView->selectedItem();
            std::string row = " " + (item == nullptr ? "none" : item->Key.str());
            if (form->boxToFocus) row += " " + std::to_string(*form->boxToFocus);
            return "$ " + acts + "\n" + (std::exchange(before, texts) == texts ? "=" : texts) + row + "\n" +
                   told() + "\n";
        });
    }
};

TEST_F(EntryForm, HasARowForEachColumnThatIsTypedIntoInTheOrderOnView) {
    LV.columns.setPosition(LV.columns["Price"].Index, 2);
    form.emplace(app);
    form->RefreshEditBoxes(); // once more, with the columns as they are then
    std::string rows;
    for (const auto& box : form->FieldBox) rows += box.Tag + "=" + std::to_string(int(box.Top)) + " ";
    EXPECT_EQ(rows, "Price=360 No=960 Part=1560 Bought=2160 Qty=2760 ");
    form->Picture1_Resize(8000, 2000); // the user has pulled at the window
    form->VScroll1_Change(1075);
    form->Picture1_Resize(8000, 2800);
    EXPECT_TRUE(form->VScroll1.Max == 275 && form->Picture2.Top == -275 &&
                form->FieldBox[2].Width == 6765 + 920 && form->prevChk[0].Left == 4800 + 920);
    form->Picture1_Resize(7080, 1600); // room for two and a half rows
    form->VScroll1_Change(0);
    std::string tops; // and by the Tab key, from anywhere
    for (const char* key :
         {"Down 0", "Down 1", "Down 2", "Enter 3", "Up 4", "Up 3", "Up 2", "Up 1", "4", "0"}) {
        if (key[1] == '\0') form->showBox(std::stoi(key));
        act(key);
        tops += std::to_string(int(-form->Picture2.Top)) + " ";
    }
    EXPECT_EQ(tops, "0 600 1200 1475 1475 875 275 0 1475 0 ");
}

TEST_F(EntryForm, KeysWalkThroughTheFieldsAndTheToolbarThroughTheRecords) {
    // What is found is sought in all cells, and again from the row behind; the Totals row is found, but not
    // again.
    expect(R"(
$ Form, Down 0 -> 40|Bolt|02/01/2026|$1.50|12| i1 1
$ Down 3 -> = i1 4 && $ Down 4 -> = i1 && $ Up 4 -> = i1 3 && $ Up 0 -> = i1 && $ Enter 1 -> = i1 2
$ Erase 2 -> = i1 && $ Back -> = i1 && $ Next -> 41|Nut M8|02/03/2026|$.25|7| i2 && $ Next -> = i2
$ First -> 40|Bolt|02/01/2026|$1.50|12| i1 && $ Last -> 41|Nut M8|02/03/2026|$.25|7| i2
$ Back, Again -> 40|Bolt|02/01/2026|$1.50|12| i1
$ Find nut -> 41|Nut M8|02/03/2026|$.25|7| i2 && $ Again -> = i2
$ Find bolt.GIF -> 40|Bolt|02/01/2026|$1.50|12| i1 && $ Find 2026 -> = i1
$ Again -> 41|Nut M8|02/03/2026|$.25|7| i2 && $ Find none, Again -> = i2 && $ Type bolt -> = i2
$ Find ---- -> ------|------|------|------|------| Totals
# A checked field takes only what is not there yet, in any cell.
$ First, Check 1, 1=Screw, Enter 1 -> 40|Screw|02/01/2026|$1.50|12| i1 2
$ 1= nut m8 , Enter 1 -> 40||02/01/2026|$1.50|12| i1 1 && $ 1=------, Enter 1 -> = i1 1
$ 1=1.50, Enter 1 -> 40|1.50|02/01/2026|$1.50|12| i1 2 && $ Check 4, Enter 4 -> 40|1.50|02/01/2026|$1.50|| i1 4
)");
    EXPECT_FALSE(app.document.bModified);
}

TEST_F(EntryForm, WritesRecords) {
    // Enter on the last field adds the record and starts the next one. Without "New" there is no number and
    // no date, and the counter stands still.
    expect(R"(
$ Form, New -> 42||03/14/2026||| i1
$ 1=Washer, 3=1234, Leave 3 -> 42|Washer|03/14/2026|12.34|| i1 && $ 4=3, Enter 4 -> ||||| i3 0
)");
    EXPECT_EQ(form->VScroll1.Value, 1);
    expect(R"(
$ Enter 4 -> ||||| i4 0 && $ Last -> 0|||$.00|0| i4 && $ Update, 4=2, 3=250, Add -> ||||| i5 0
)");
    EXPECT_EQ(cells(), "40|Bolt|02/01/2026|$1.50|12|$18.00|bolt.gif|;41|Nut "
                       "M8|02/03/2026|$.25|7|$1.75||;42|Washer|03/14/"
                       "2026|$12.34|3|$37.02||;0|||$.00|0|$.00||;0|||$2.50|2|$5.00||;------|------|------|$"
                       "14.84|$5.00|$42.02|------|;");
    EXPECT_EQ(app.document.SerialsLV.at(1).subItem(1), "43");
    EXPECT_TRUE(app.document.bModified && !LV.MultiSelect);
    EXPECT_EQ(panel(app::recordsPanel) + std::to_string(app.mainFrm.Slider1.Max), "5 records.5");
    // Behind the last key there is none, and what was typed is still there.
    app.document.iLastKey = 32767;
    act("New");
    for (const char* last : {"Enter 4", "Add"})
        EXPECT_EQ(raisedBy([&] { act(last); }), core::errors::overflow);
    expect(R"(
$ New -> 44||03/14/2026||| i5
$ First, 4=10, Update -> 40|Bolt|02/01/2026|$1.50|10| i1
$ Delete -> = i1 -> ! Confirm Deletion: Are you sure?
$ Yes, Delete -> 41|Nut M8|02/03/2026|$.25|7| i2 -> ! Confirm Deletion: Are you sure?
)");
    EXPECT_EQ(app.document.SerialsLV.at(1).subItem(1), "43");
    LV.removeIf([](const core::Item& item) { return item.Key != "i2" && !item.isTotals(); });
    expect(R"(
$ Yes, Delete -> ||||| none -> ! Confirm Deletion: Are you sure?
$ 0=7, First, Back, Next, Last, Update, Delete -> 7||||| Totals
)");
    EXPECT_EQ(LV.count(), 1);
}

// In date fields, but once not after Backspace; what comes into the boxes otherwise ends its effect. A
// currency field alone is checked when it is left, which does not hold up what is done.
TEST_F(EntryForm, TheMasks) {
    expect(R"(
$ Form, 2=12 -> 40|Bolt|12/|$1.50|12| i1 && $ 2=12/34 -> 40|Bolt|12/34/|$1.50|12| i1
$ Erase 2, 2=12/34, 1=12, 4=12 -> 40|12|12/34|$1.50|12| i1 && $ 2=12 -> 40|12|12/|$1.50|12| i1
$ Erase 2, Next, 2=12 -> 41|Nut M8|12/|$.25|7| i2 && $ Erase 2, New, 2=12 -> 42||12/||| i2
$ Erase 2, Add, 2=12 -> ||12/||| i3 0
$ First, 0=x, 1=y, 2=99/99, 3=3, 4=z, Leave 0, Leave 1, Leave 2, Leave 3, Leave 4 -> x|y|99/99/|3.00|z| i1
$ First, 3=dear, Update -> 40|Bolt|02/01/2026|dear|12| i1 -> ! Verify Data: You entered a non numeric value.
)");
    EXPECT_EQ(form->FieldBox[2].SelStart, 0);
    EXPECT_EQ(LV.at(1).cells[3], "dear");
}

TEST_F(EntryForm, WorksOnTheListOnViewAndSelectsOneRowOfIt) {
    select({1, 2, 3});
    LV.setSelectedItem(&LV.at(2));
    act("Form");
    EXPECT_FALSE(LV.MultiSelect || LV.at(1).Selected || LV.at(3).Selected || form->unloaded);
    act("Close");
    EXPECT_TRUE(LV.MultiSelect && form->unloaded);
    // Results are browsed and updated, but not added to or deleted from.
    find("No >= 1");
    expect(R"(
$ Form, Next, New, Add, Delete -> 41|Nut M8|02/03/2026|$.25|7| i2
$ 4=8, Enter 4 -> 41|Nut M8|02/03/2026|$.25|8| i2 && $ Update, Back -> 40|Bolt|02/01/2026|$1.50|12| i1
)");
    for (const char* key : {"New", "Add", "Delete", "Save", "Update"})
        EXPECT_EQ(form->isButtonEnabled(key), key[0] == 'S' || key[0] == 'U') << key;
    EXPECT_EQ(cells(app.document.searchLV.at(2)) + cells(LV.at(3)).substr(0, 7), cells(LV.at(2)) + "------|");
    EXPECT_EQ(LV.at(2).cells[5], "$2.00");
    act("Close");
    EXPECT_TRUE(app.document.searchLV.MultiSelect);
    // With one box it starts empty, and its first field is the last one too; without one nothing happens.
    open(DataFile("Name", "Bolt"));
    expect("$ Form -> | i1 && $ First -> Bolt| i1 && $ 0=Nut, Enter 0 -> | i2 0");
    EXPECT_EQ(cells(), "Bolt|;Nut|;------|;");
    open(DataFile("Value:5 Photo:7", "$1.00|bolt.gif"));
    app::setDocumentModified(app, false);
    expect("$ Form, New, Add, Update, Next, Last -> | i1");
    EXPECT_FALSE(app.document.bModified || form->FieldBox[0].Visible || form->editlbl[0].Visible ||
                 form->prevChk[0].Visible);
}

} // namespace
