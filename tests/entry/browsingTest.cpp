#include "../layout/sheetFixture.h"

#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "layout/images.h"

namespace {

const char* const lines = "F|Name|0|0|900|300|False|False|False|Arial|8|0|\r\n"
                          "F|Qty|0|300|900|300|False|False|False|Arial|8|0|\r\n"
                          "F|Price|0|600|900|300|False|False|False|Arial|8|0|\r\n"
                          "F|Made|0|900|900|300|False|False|False|Arial|8|0|\r\n"
                          "F|Sum|0|1200|900|300|False|False|False|Arial|8|0|\r\n"
                          "P|Photo|2000|0|1815|1575|\r\n";
enum { Name = 1, Qty, Price, Made, Sum };

class Browsing : public Sheet {
protected:
    void press(const char* key) { entry::layoutNavBar_ButtonClick(app, key); }
    std::string text(int index) { return objects.layoutField[index].Text; }
    std::string names() {
        std::string all;
        app.document.LV.forEach([&](const core::Item& item) { all += item.cells[0].str() + " "; });
        return all;
    }
    // Types into a field as a text box does.
    void type(int index, std::u32string_view characters) {
        entry::layoutField_GotFocus(app, index);
        for (const char32_t character : characters) {
            if (!entry::layoutField_KeyPress(app, index, character)) continue;
            std::string next = text(index);
            core::appendCodePoint(next, character);
            entry::layoutField_Change(app, index, next);
        }
    }
    void set(int index, std::string_view words) {
        entry::layoutField_GotFocus(app, index);
        entry::layoutField_Change(app, index, words);
    }
};

TEST_F(Browsing, TheButtonsWalkTheRecords) {
    open(lines);
    const std::pair<const char*, const char*> steps[] = {{"Back", "Bolt"},  {"Next", "Nut"}, {"Next", "Pin"},
                                                         {"Next", "Pin"},   {"Back", "Nut"}, {"Last", "Pin"},
                                                         {"First", "Bolt"}, {"Last", "Pin"}};
    for (const auto& [key, shown] : steps) {
        press(key);
        EXPECT_EQ(text(Name), shown) << key;
    }
    set(Name, "typed");
    press("Back"); // what was typed is gone without a question
    press("Next");
    EXPECT_EQ(text(Name), "Pin");
    entry::Slider1_Change(app, 2);
    EXPECT_EQ(text(Name), "Nut");
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(app.document.LV.selectedItem()->cells[0], "Nut");
}

TEST_F(Browsing, AnEmptyDatabaseKeepsTheSheetAsItWas) {
    open(lines);
    while (app.document.LV.count() > 1) app.document.LV.remove(app.document.LV.at(1));
    set(Name, "typed");
    for (const char* key : {"Last", "Next", "Back", "First", "Update", "Delete"}) press(key);
    entry::Slider1_Change(app, 1);
    EXPECT_EQ(text(Name), "typed");
    EXPECT_TRUE(app.document.LV.selectedItem()->isTotals()); // by First
    EXPECT_EQ(app.document.LV.selectedItem()->cells[0], "------");
}

TEST_F(Browsing, NewRecordsBeginWithSerialAndDate) {
    open(lines, "[Optioned Cols ]Qty|Made|\r\n[Increments    ]Qty,41|\r\n");
    objects.imgHolder[1].ToolTipText = "bolt.jpg";
    press("New");
    EXPECT_EQ(text(Name), "");
    EXPECT_EQ(text(Qty), "42");
    EXPECT_EQ(text(Made), "03/14/2026");
    EXPECT_EQ(objects.imgHolder[1].ToolTipText, "");
    EXPECT_EQ(app.document.LV.count(), 4); // no record yet
    set(Name, "Ring");
    press("Add");
    EXPECT_EQ(names(), "Bolt Nut Pin Ring ------ ");
    EXPECT_EQ(app.document.LV.selectedItem()->cells[0], "Ring");
    EXPECT_EQ(app.document.LV.selectedItem()->cells[1], "42");
    EXPECT_EQ(text(Name), "");
    EXPECT_EQ(text(Qty), "43"); // ready for the next
    EXPECT_EQ(app.mainFrm.Slider1.Max, 4);
    EXPECT_TRUE(app.document.bModified);
}

TEST_F(Browsing, UpdateAndDelete) {
    open(lines);
    press("Next");
    set(Name, "Wing nut");
    type(Price, U"1234");
    set(Price, "1234");
    press("Update"); // the field that has kept the focus is completed all the same
    EXPECT_EQ(app.document.LV.at(2).cells[0], "Wing nut");
    EXPECT_EQ(app.document.LV.at(2).cells[2], "$12.34");
    EXPECT_EQ(text(Price), "$12.34");

    press("Delete"); // answered No
    EXPECT_EQ(app.document.LV.count(), 4);
    platform.answers.push_back(platform::Answer::Yes);
    press("Delete");
    EXPECT_EQ(names(), "Bolt Pin ------ ");
    EXPECT_EQ(text(Name), "Pin"); // what follows is shown
    platform.answers.push_back(platform::Answer::Yes);
    press("Delete");
    EXPECT_EQ(text(Name), "Bolt"); // and at the end the last record
    platform.answers.push_back(platform::Answer::Yes);
    press("Delete");
    EXPECT_EQ(text(Name), "");
    press("Update");
    EXPECT_EQ(names(), "------ ");
}

TEST_F(Browsing, AClipboardPictureIsStoredWithItsRecord) {
    open(lines);
    platform.clipboardPicture = "bitmap";
    const core::ImgHolder& holder = objects.imgHolder[1];
    layout::select(app, {Family::imgHolder, 1});
    layout::mnuImportImage_Click(app);
    press("Next"); // never updated: lost, and nothing was stored
    press("Back");
    EXPECT_EQ(holder.ToolTipText, "bolt.jpg");
    layout::mnuImportImage_Click(app);
    press("Update");
    const std::string name = app.document.LV.at(1).cells[5].str();
    EXPECT_TRUE(name.starts_with("cb") && name.ends_with(".jpg")) << name;
    EXPECT_EQ(entry(name), "quality 75 of bitmap");
    EXPECT_EQ(holder.viewImage.path, platform.tempFolder() / name);

    layout::mnuImportImage_Click(app);
    std::filesystem::remove(app.document.currentFile);
    set(Name, "typed");
    press("Add"); // an archive that cannot take the picture: the sheet stays as it is
    EXPECT_EQ(platform.messages.back().icon, platform::Icon::Exclamation);
    EXPECT_EQ(app.document.LV.count(), 4);
    EXPECT_EQ(text(Name), "typed");
}

TEST_F(Browsing, TypingGoesThroughTheMasks) {
    struct Case {
        int field;
        std::u32string_view typed;
        const char* text;
    };
    const Case cases[] = {
        {Name, U"a-1 é", "a-1 é"}, {Qty, U"12a", "12"},    {Qty, U"-1.5e3 ", "1.53"},
        {Price, U"$1,2", "12"},    {Sum, U"x7", "7"},      {Made, U"12252004", "12/25/2004"},
        {Made, U"AB", "AB/"},      {Made, U"12/", "12//"}, {Qty, U"\b", ""}};
    open(lines);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        press("New");
        type(c.field, c.typed);
        EXPECT_EQ(text(c.field), c.text);
    }
    EXPECT_TRUE(entry::layoutField_KeyPress(app, Name, 8)); // Backspace, where no number is
    EXPECT_FALSE(entry::layoutField_KeyPress(app, Name, 13));
    EXPECT_EQ(platform.lastMessage(), "Please allow your text to wrap automatically.");
}

TEST_F(Browsing, BackspaceSkipsTheDateMaskOnce) {
    open(lines);
    press("New");
    type(Made, U"12");
    EXPECT_EQ(text(Made), "12/");
    entry::layoutField_KeyDown(app, entry::backspaceKey);
    EXPECT_EQ(entry::layoutField_Change(app, Made, "12"), -1);
    EXPECT_EQ(text(Made), "12"); // the slash does not come back
    EXPECT_EQ(entry::layoutField_Change(app, Made, "12/0"), -1);
    EXPECT_EQ(entry::layoutField_Change(app, Made, "12/04"), 6); // the caret goes to the end
    EXPECT_EQ(text(Made), "12/04/");
    entry::layoutField_KeyDown(app, entry::backspaceKey); // in a number, where it does nothing
    press("Next");
    EXPECT_FALSE(page.bFieldChanged);
}

TEST_F(Browsing, NumbersAreCheckedOnLeaving) {
    struct Case {
        int field;
        const char* typed;
        const char* left;
    };
    const Case cases[] = {
        {Qty, "12a", "0"},      {Qty, "", "0"},          {Qty, "12", "12"},      {Price, "12", "12.00"},
        {Price, "123", "1.23"}, {Price, "12.5", "12.5"}, {Price, "-5", "-5.00"}, {Price, "1,234", "1,2.34"},
        {Price, "abc", "0"},    {Sum, "x", "0"},         {Name, "12a", "12a"},   {Made, "13/45", "13/45/"}};
    open(lines);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.field << c.typed);
        set(c.field, c.typed);
        EXPECT_EQ(app.mainFrm.iFieldFocus, c.field);
        entry::layoutField_LostFocus(app, c.field);
        EXPECT_EQ(text(c.field), c.left);
    }
    EXPECT_TRUE(platform.messages.empty());
    design();
    const int before = app.mainFrm.iFieldFocus;
    entry::layoutField_GotFocus(app, Name);
    entry::layoutField_Change(app, Name, "typed");
    entry::layoutField_LostFocus(app, Qty);
    EXPECT_EQ(app.mainFrm.iFieldFocus, before);
    EXPECT_EQ(text(Name), "Name");
    EXPECT_EQ(text(Qty), "Qty");
}

TEST_F(Browsing, FieldsOfColumnsThatAreGoneDoNoHarm) {
    open(std::string(lines) +
         "F|Gone|0|0|900|300|False|False|False|Arial|8|0|\r\nF|Index|0|0|9|9|False|False|False|"
         "Arial|8|0|\r\nP|Gone|0|0|900|900|\r\n");
    set(6, "typed");
    entry::layoutField_LostFocus(app, 6);
    for (const char* key : {"Update", "New", "Add", "Next", "First"}) press(key);
    EXPECT_EQ(names(), "Bolt Nut Pin  ------ ");
    design();
    EXPECT_EQ(text(6), "Gone");
}

} // namespace
