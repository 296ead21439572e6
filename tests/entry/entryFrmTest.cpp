#include "entry/entryFrm.h"

#include "core/text.h"
#include "raised.h"
#include "search/searchProgram.h"

namespace {

using entry::entryFrm;

// A shop's stock: No is a serial number, Bought takes today's date, Value is worked out.
struct EntryForm : testing::Test, SearchProgram {
    EntryForm()
        : SearchProgram(
              DataFile("No:4 Part Bought:1 Price:2 Qty:4 Value:5 Photo:7",
                       "40|Bolt|02/01/2026|$1.50|12|$18.00|bolt.gif;41|Nut M8|02/03/2026|$.25|7|$1.75|")
                  .section("Formulas", "Value,Price * Qty|")
                  .section("Totaled Cols", "Price|Qty|Value|")
                  .section("Optioned Cols", "No|Bought|")
                  .section("Increments", "No,41|")) {}
    core::RecordsList& LV = app.document.LV;

    // A user's acts, "Next, 3=1234, Enter 4": buttons, what is typed into a box, keys in a box, boxes that
    // are left or checked, texts that are found, and answers.
    void play(entryFrm& form, const std::string& acts) {
        const auto key = [&](int code) {
            return [&form, code](const std::string& box) { form.FieldBox_KeyDown(std::stoi(box), code); };
        };
        const std::map<std::string, std::function<void(const std::string&)>> known = {
            {"Enter", key(entry::keyReturn)},
            {"Down", key(entry::keyDown)},
            {"Up", key(entry::keyUp)},
            {"Back", key(entry::keyBack)},
            {"Find", [&](auto& text) { form.srchTxt = text, form.srchTxt_KeyDown(entry::keyReturn); }},
            {"Again", [&](auto&) { form.againBtn_Click(); }},
            {"Yes", [&](auto&) { platform.answers = {platform::Answer::Yes}; }},
            {"Check", [&](auto& box) { form.prevChk_Click(std::stoi(box), true); }},
            {"Leave", [&](auto& box) { form.FieldBox_LostFocus(std::stoi(box)); }}};
        for (const auto& act : table(core::replaceAll(acts, ", ", "; "))) {
            const std::size_t mark = std::min(act[0].find_first_of("= "), act[0].size());
            const std::string word = act[0].substr(0, mark),
                              value = act[0].substr(std::min(mark + 1, act[0].size()));
            if (act[0].substr(mark).starts_with('=')) {
                form.FieldBox_GotFocus(std::stoi(word));
                form.FieldBox_Change(std::stoi(word), value);
            } else if (known.contains(word) && (word != "Back" || !value.empty())) {
                known.at(word)(value);
            } else {
                form.Toolbar1_ButtonClick(word);
            }
        }
    }
    // Plays "acts -> texts of the boxes, the current row, and the box that gets the focus".
    void expect(entryFrm& form, std::string_view cases) {
        for (const auto& c : table(cases)) {
            form.boxToFocus.reset();
            play(form, c[0]);
            std::string state;
            for (const auto& box : form.FieldBox) state += box.Text + "|";
            const core::Item* item = app.mainFrm.theListView->selectedItem();
            state += " " + (item == nullptr ? "none" : item->Key.str());
            EXPECT_EQ(state + (form.boxToFocus ? " " + std::to_string(*form.boxToFocus) : ""), c[1]) << c[0];
        }
    }
};

TEST_F(EntryForm, HasARowForEachColumnThatIsTypedIntoInTheOrderOnView) {
    LV.columns.setPosition(LV.columns["Price"].Index, 2);
    entryFrm form(app);
    form.RefreshEditBoxes(); // once more, with the columns as they are then
    std::string rows;
    for (std::size_t row = 0; row < form.FieldBox.size(); ++row)
        rows += form.editlbl[row].Caption +
                (form.FieldBox[row].Tag == form.editlbl[row].Caption ? "=" : "!") +
                std::to_string(int(form.FieldBox[row].Top)) + " ";
    EXPECT_EQ(rows, "Price=360 No=960 Part=1560 Bought=2160 Qty=2760 ");
    form.Picture1_Resize(8000, 2000); // the user has pulled at the window
    form.VScroll1_Change(1075);
    form.Picture1_Resize(8000, 2800);
    EXPECT_EQ((std::vector{form.VScroll1.Max, int(-form.Picture2.Top), int(form.FieldBox[2].Width),
                           int(form.prevChk[0].Left)}),
              (std::vector{275, 275, 6765 + 920, 4800 + 920}));
    form.Picture1_Resize(7080, 1600); // room for two and a half rows
    form.VScroll1_Change(0);
    for (const auto& c : table("Down 0 -> 0; Down 1 -> 600; Down 2 -> 1200; Enter 3 -> 1475; Up 4 -> 1475; "
                               "Up 3 -> 875; Up 2 -> 275; Up 1 -> 0")) {
        play(form, c[0]);
        EXPECT_EQ(std::to_string(int(-form.Picture2.Top)), c[1]) << c[0];
    }
    form.showBox(4); // by the Tab key, from anywhere
    EXPECT_EQ(form.VScroll1.Value, 1475);
    form.showBox(0);
    EXPECT_EQ(form.VScroll1.Value, 0);
}

TEST_F(EntryForm, OfOneBoxOrNone) {
    open(DataFile("Value:5 Photo:7", "$1.00|bolt.gif"));
    entryFrm none(app);
    EXPECT_FALSE(none.FieldBox[0].Visible || none.editlbl[0].Visible || none.prevChk[0].Visible);
    expect(none, "New, Add, Update, Next, Last -> | i1");
    EXPECT_FALSE(app.document.bModified);
    open(DataFile("Name", "Bolt"));
    entryFrm one(app); // starts empty, and its first field is the last one too
    expect(one, " -> | i1; First -> Bolt| i1; 0=Nut, Enter 0 -> | i2 0");
    EXPECT_EQ(cells(), "Bolt|;Nut|;------|;");
}

TEST_F(EntryForm, OneRowIsSelectedAsLongAsItIsOpen) {
    select({1, 2, 3});
    LV.setSelectedItem(&LV.at(2));
    entryFrm form(app);
    EXPECT_FALSE(LV.MultiSelect || LV.at(1).Selected || LV.at(3).Selected || form.unloaded);
    form.Form_QueryUnload();
    EXPECT_TRUE(LV.MultiSelect && form.unloaded);
}

TEST_F(EntryForm, KeysWalkThroughTheFieldsAndTheToolbarThroughTheRecords) {
    entryFrm form(app);
    const std::string bolt = "40|Bolt|02/01/2026|$1.50|12| i1", nut = "41|Nut M8|02/03/2026|$.25|7| i2";
    for (const auto& c :
         table("Down 0 ->  1; Down 3 ->  4; Down 4 -> ; Up 4 ->  3; Up 0 -> ; Enter 1 ->  2; Back 2 -> "))
        expect(form, c[0] + " -> " + bolt + c[1]);
    expect(form, "Back -> " + bolt + "; Next -> " + nut + "; Next -> " + nut + "; First -> " + bolt +
                     "; Last -> " + nut + "; Back -> " + bolt);
    // Through all cells, and again from the row behind; the Totals row is found, but not again.
    expect(form, "Again -> " + bolt + "; Find nut -> " + nut + "; Again -> " + nut + "; Find bolt.GIF -> " +
                     bolt + "; Find 2026 -> " + bolt + "; Again -> " + nut + "; Find none, Again -> " + nut);
    EXPECT_EQ(form.iFindRow, 0);
    form.srchTxt = "bolt";
    form.srchTxt_KeyDown('A');
    expect(form, "Find ---- -> ------|------|------|------|------| Totals");
    EXPECT_EQ(form.iFindRow, 3);
    EXPECT_FALSE(app.document.bModified);
}

TEST_F(EntryForm, EnterOnTheLastFieldAddsTheRecordAndStartsTheNext) {
    entryFrm form(app);
    form.VScroll1_Change(0);
    expect(form, "New -> 42||03/14/2026||| i1; 1=Washer, 3=1234, Leave 3 -> 42|Washer|03/14/2026|12.34|| i1; "
                 "4=3, Enter 4 -> ||||| i3 0");
    EXPECT_EQ(form.VScroll1.Value, 1);
    // Without "New" there is no number and no date; the counter stands still.
    expect(form, "Enter 4 -> ||||| i4 0; Last -> 0|||$.00|0| i4; Update, 4=2, 3=250, Add -> ||||| i5 0");
    EXPECT_EQ(cells(), "40|Bolt|02/01/2026|$1.50|12|$18.00|bolt.gif|;41|Nut M8|02/03/2026|$.25|7|$1.75||;"
                       "42|Washer|03/14/2026|$12.34|3|$37.02||;0|||$.00|0|$.00||;0|||$2.50|2|$5.00||;"
                       "------|------|------|$14.84|$5.00|$42.02|------|;");
    EXPECT_EQ(app.document.SerialsLV.at(1).subItem(1), "43");
    EXPECT_TRUE(app.document.bModified && !LV.MultiSelect);
    EXPECT_EQ(panel(app::recordsPanel) + std::to_string(app.mainFrm.Slider1.Max), "5 records.5");
    // Behind the last key there is none, and what was typed is still there.
    app.document.iLastKey = 32767;
    play(form, "New");
    for (const char* act : {"Enter 4", "Add"})
        EXPECT_EQ(raisedBy([&] { play(form, act); }), core::errors::overflow);
    expect(form, " -> 44||03/14/2026||| i5");
}

TEST_F(EntryForm, ACheckedFieldTakesOnlyWhatIsNotThereYet) {
    entryFrm form(app);
    play(form, "Check 1");
    for (const auto& c :
         table("Screw -> Screw;  nut m8  -> ; Nut -> Nut; 12 -> ;  -> ; ------ -> ; $1.50 -> ; 1.50 -> 1.50"))
        expect(form, "1=" + c[0] + ", Enter 1 -> 40|" + c[1] + "|02/01/2026|$1.50|12| i1 " +
                         (c[1].empty() ? "1" : "2"));
    expect(form, "Check 4, Enter 4 -> 40|1.50|02/01/2026|$1.50|| i1 4"); // 12 is there
    EXPECT_EQ(told(), "");
}

// In date fields, but once not after Backspace; what comes into the boxes otherwise ends its effect.
TEST_F(EntryForm, TheMasks) {
    entryFrm form(app);
    expect(form,
           "2=12 -> 40|Bolt|12/|$1.50|12| i1; 2=12/34 -> 40|Bolt|12/34/|$1.50|12| i1; Back 2, 2=12/34, 1=12, "
           "4=12 -> 40|12|12/34|$1.50|12| i1; 2=12 -> 40|12|12/|$1.50|12| i1; Back 2, Next, 2=12 -> 41|Nut "
           "M8|12/|$.25|7| i2; Back 2, New, 2=12 -> 42||12/||| i2; Back 2, Add, 2=12 -> ||12/||| i3 0");
    EXPECT_EQ(form.FieldBox[2].SelStart, 3);
    // A currency field alone is checked when it is left, which does not hold up what is done.
    expect(form, "First, 0=x, 1=y, 2=99/99, 3=3, 4=z, Leave 0, Leave 1, Leave 2, Leave 3, Leave 4 -> "
                 "x|y|99/99/|3.00|z| i1");
    EXPECT_EQ(told(), "");
    expect(form, "First, 3=dear, Update -> 40|Bolt|02/01/2026|dear|12| i1");
    EXPECT_EQ(LV.at(1).cells[3], "dear");
    EXPECT_EQ(told(), "! Verify Data: You entered a non numeric value.");
}

TEST_F(EntryForm, UpdateAndDelete) {
    entryFrm form(app);
    expect(form, "4=10, Update -> 40|Bolt|02/01/2026|$1.50|10| i1");
    EXPECT_EQ(LV.at(1).cells[5], "$15.00");
    EXPECT_EQ(app.document.SerialsLV.at(1).subItem(1), "41");
    expect(form, "Delete -> 40|Bolt|02/01/2026|$1.50|10| i1; Yes, Delete -> 41|Nut M8|02/03/2026|$.25|7| i2; "
                 "Yes, Delete -> ||||| none; 0=7, First, Back, Next, Last, Update, Delete -> 7||||| Totals");
    EXPECT_EQ(LV.count(), 1);
    expect(form, "Add -> ||||| i3 0");
}

TEST_F(EntryForm, ResultsAreBrowsedAndUpdatedButNotAddedToOrDeletedFrom) {
    find("No >= 1");
    entryFrm form(app);
    const char* const keys[] = {"New", "Add", "Delete", "Save", "Update", "First", "Back", "Next", "Last"};
    for (const auto& key : keys) EXPECT_EQ(form.isButtonEnabled(key), &key > &keys[2]) << key;
    expect(form, "Next, New, Add, Delete -> 41|Nut M8|02/03/2026|$.25|7| i2; 4=8, Enter 4 -> 41|Nut "
                 "M8|02/03/2026|$.25|8| i2; Update, Back -> 40|Bolt|02/01/2026|$1.50|12| i1");
    EXPECT_EQ(LV.at(2).cells[5].str() + app.document.searchLV.at(2).cells[5].str(), "$2.00$2.00");
    EXPECT_EQ(LV.count(), 3);
    form.Form_QueryUnload();
    EXPECT_TRUE(app.document.searchLV.MultiSelect);
}

} // namespace
