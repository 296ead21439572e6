#include "layout/sheetFixture.h"

#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "layout/images.h"

namespace {

const char* const onPage = "F|Name|0|0|900|300;F|Qty|0|300|900|300;F|Price|0|600|900|300;F|Made|0|900|900|"
                           "300;F|Sum|0|1200|900|300;P|Photo|2000|0|1815|1575|";

struct Browsing : Sheet {
    int index(std::string_view column) {
        int found = 0;
        objects.layoutField.forEach(
            [&](const auto& field) { found = field.Tag == column ? field.Index : found; });
        return found;
    }
    // A user's acts, "Next, Name=Wing nut, Yes, Delete": buttons, what is typed into a field, and answers.
    void play(const std::string& acts) {
        for (const auto& act : table(core::replaceAll(core::replaceAll(acts, ", ", "; "), "=", " -> "))) {
            if (act[0] == "Yes") {
                platform.answers = {platform::Answer::Yes};
            } else if (act[0] == "Slider") {
                entry::Slider1_Change(app, std::stoi(act[1]));
            } else if (const int field = index(act[0]); field != 0) {
                entry::layoutField_GotFocus(app, field);
                entry::layoutField_Change(app, field, act[1]);
            } else {
                entry::layoutNavBar_ButtonClick(app, act[0]);
            }
        }
    }
    // What the sheet shows, "Nut|7|$.25||1.75|gone.jpg", and the records with ">" before the current one.
    std::string sheet() {
        std::string all;
        objects.layoutField.forEach([&](const core::LayoutField& field) { all += field.Text + "|"; });
        objects.imgHolder.forEach([&](const core::ImgHolder& holder) { all += holder.ToolTipText; });
        return all;
    }
    std::string names(const core::RecordsList& list) {
        std::string all;
        list.forEach([&](const core::Item& item) {
            all += &item == list.selectedItem() ? " >" : " ";
            all += item.isTotals() ? "=" : item.cells[0].str();
        });
        return all;
    }
    void expect(std::string_view cases) {
        for (const auto& c : table(cases, 3)) {
            play(c[0]);
            EXPECT_EQ(sheet(), c[1]) << c[0];
            EXPECT_EQ(names(app.document.LV).substr(1), c[2]) << c[0];
        }
    }
};

TEST_F(Browsing, TheButtonsWalkTheRecords) {
    openSheet(onPage);
    const std::string bolt = "Bolt|12|$1.50|05/04/2001|18|bolt.jpg -> >Bolt Nut Pin =; ",
                      nut = "Nut|7|$.25||1.75| -> Bolt >Nut Pin =; ",
                      pin = "Pin|1|$2.00||2|gone.jpg -> Bolt Nut >Pin =; ";
    expect("Back -> " + bolt + "Next -> " + nut + "Next -> " + pin + "Next -> " + pin + "Back -> " + nut +
           "Last -> " + pin + "First -> " + bolt + "Last, Name=x, Back, Next -> " + pin + "Slider=2 -> " +
           nut + "Slider=99 -> " + pin);
    EXPECT_EQ(app.mainFrm.Slider1.Value, 99);
    play("First, Next");
    EXPECT_EQ(app.mainFrm.Slider1.Value, 2);
    EXPECT_EQ(told(), ""); // what was typed is gone without a question
    EXPECT_FALSE(app.document.bModified);
    // Fields of columns that are gone do no harm, and neither does a sheet without records.
    openSheet(std::string(onPage) + ";F|Gone|0|0|900|300;F|Index|0|0|9|9;P|Gone|0|0|900|900|");
    expect("Gone=typed, Update, Next -> Nut|7|$.25||1.75||| -> Bolt >Nut Pin =; New, Add -> ||||||| -> Bolt "
           "Nut Pin > =");
    openSheet(onPage, false, DataFile("Name Qty:4 Price:2 Made:1 Sum:5 Photo:7"));
    expect("Name=x, Last, Next, Back, Slider=1 -> x||||| -> >=;  First, Update, Delete -> x||||| -> >=");
}

// A new record begins with serial and date, and is none yet. What is typed last is completed all the same.
TEST_F(Browsing, NewUpdateAndDelete) {
    openSheet(onPage, false, records().sections("Optioned Cols=Qty|Made|;Increments=Qty,41|"));
    expect("New -> |42||03/14/2026|| -> >Bolt Nut Pin =; Name=Ring, Update, Delete -> Ring|42||03/14/2026|| "
           "-> >Bolt Nut Pin =; Price=5, Add -> |43||03/14/2026|| -> Bolt Nut Pin >Ring =; Last -> "
           "Ring|42|$5.00|03/14/2026|| -> Bolt Nut Pin >Ring =; First, Next, Name=Wing nut, Price=1234, "
           "Update -> Wing nut|7|$12.34||1.75| -> Bolt >Wing nut Pin Ring =; Delete -> Wing "
           "nut|7|$12.34||1.75| -> Bolt >Wing nut Pin Ring =; Yes, Delete -> Pin|1|$2.00||2|gone.jpg -> Bolt "
           ">Pin Ring =; Last, Yes, Delete -> Pin|1|$2.00||2|gone.jpg -> Bolt >Pin =; Yes, Delete, Yes, "
           "Delete -> ||||| -> =; Update -> ||||| -> =");
    const std::string isNew = "i This record is new.  To store it please click on the Add toolbar button.\n";
    EXPECT_TRUE(told().starts_with(isNew + isNew + "! Confirm Deletion: Are you sure?\n"));
    EXPECT_TRUE(app.document.bModified);
    expect("New, Name=a, Add, Name=b, Add -> |45||03/14/2026|| -> a >b =");
    EXPECT_EQ(app.mainFrm.Slider1.Max, 2);
}

// Results of a search on show: what is done on the page reaches the record that is on it, and no other one.
TEST_F(Browsing, TheResultsFollow) {
    openSheet(onPage);
    EXPECT_EQ(find("Name ~ n"), "i2 i3");
    expect("First, Name=Not, Update -> Not|7|$.25||1.75| -> Bolt >Not Pin =; New, Name=New, Add, First, "
           "Update -> Not|7|$.25||1.75| -> Bolt >Not Pin New =");
    EXPECT_EQ(names(app.document.searchLV), " >Not Pin =");
    platform.inputs = {"1"};
    run("mnuDuplicate");
    expect("Yes, Delete -> Pin|1|$2.00||2|gone.jpg -> Bolt >Pin New Not =");
    EXPECT_EQ(names(app.document.searchLV), " >Pin =");
    openSheet(onPage);
    app.document.LV.setSelectedItem(&app.document.LV.at(2)); // and nobody tells the sheet
    expect("Name=x, Update, Yes, Delete -> x|12|$1.50|05/04/2001|18|bolt.jpg -> Bolt >Nut Pin =");
}

TEST_F(Browsing, AClipboardPictureIsStoredWithItsRecord) {
    openSheet(onPage);
    platform.clipboardPicture = "bitmap";
    const auto paste = [&] {
        after("imgHolder,1 select");
        layout::mnuImportImage_Click(app);
    };
    paste();
    play("Next, Back"); // never updated: lost, and nothing was stored
    EXPECT_EQ(objects.imgHolder[1].ToolTipText, "bolt.jpg");
    paste();
    play("Update");
    const std::string name = app.document.LV.at(1).cells[5].str();
    EXPECT_TRUE(name.starts_with("cb") && name.ends_with(".jpg")) << name;
    EXPECT_EQ(entry(name), "quality 75 of bitmap");
    EXPECT_EQ(objects.imgHolder[1].viewImage.path, platform.tempFolder() / name);
    paste();
    std::filesystem::remove(app.document.currentFile);
    expect("Name=x, Add -> x|12|$1.50|05/04/2001|18|cbHolder -> >Bolt Nut Pin ="); // the sheet stays as it is
    EXPECT_TRUE(told().starts_with("! The picture could not be added to the database: "));
}

// Dates get slashes, but not after Backspace; numbers take digits and a point, and are checked on leaving.
TEST_F(Browsing, TypingGoesThroughTheMasks) {
    openSheet(onPage);
    constexpr int Name = 1, Qty = 2, Made = 4;
    // What is typed, what comes of it, and what is left when the field is.
    for (const auto& c : table("Name -> a-1 é -> a-1 é -> a-1 é; Qty -> 12a -> 12 -> 12; Qty -> -1.5e3  -> "
                               "1.53 -> 1.53; Price -> $1,2 -> 12 -> 12.00; Sum -> x7 -> 7 -> 7; Made -> "
                               "12252004 -> 12/25/2004 -> 12/25/2004; Made -> AB -> AB/ -> AB/; Made -> 12/ "
                               "-> 12// -> 12//; Qty -> \b ->  -> 0; Price -> 123 -> 123 -> 1.23")) {
        play("New");
        core::LayoutField& field = objects.layoutField[index(c[0])];
        entry::layoutField_GotFocus(app, field.Index);
        for (std::size_t offset = 0; offset < c[1].size();) {
            const std::size_t from = offset;
            if (entry::layoutField_KeyPress(app, field.Index, core::nextCodePoint(c[1], offset)))
                entry::layoutField_Change(app, field.Index, field.Text + c[1].substr(from, offset - from));
        }
        EXPECT_EQ(field.Text, c[2]);
        EXPECT_EQ(app.mainFrm.iFieldFocus, field.Index);
        entry::layoutField_LostFocus(app, field.Index);
        EXPECT_EQ(field.Text, c[3]);
    }
    // Pasted, it is no number: a numeric field takes 0, others keep it, and no message comes. An amount is
    // measured without the blanks around it, and cut with them.
    for (const auto& c :
         table("Name -> 1 kg; Qty -> 1 kg -> 0; Price -> abc -> 0; Made -> soon; Qty -> 1234; Sum -> 1234; "
               "Price -> -5 -> -5.00; Price -> -12 -> -.12; Price -> 1,234 -> 1,2.34; Price -> 5.; Price ->  "
               "5  ->  5 .00; Price -> 1234  -> 123.4 ")) {
        core::LayoutField& field = objects.layoutField[index(c[0])];
        entry::layoutField_Change(app, field.Index, c[1]);
        entry::layoutField_LostFocus(app, field.Index);
        EXPECT_EQ(field.Text, c.size() > 2 ? c[2] : c[1]);
    }
    EXPECT_TRUE(entry::layoutField_KeyPress(app, Name, 8)); // Backspace, where no number is
    EXPECT_EQ(told(), "");
    EXPECT_FALSE(entry::layoutField_KeyPress(app, Name, 13));
    EXPECT_EQ(told(), "i Please allow your text to wrap automatically.");
    for (const char* ends : {"", "Next", "New"}) {
        entry::layoutField_KeyDown(app, entry::backspaceKey);
        play(ends);
        EXPECT_EQ(entry::layoutField_Change(app, Made, "12"), *ends == 0 ? -1 : 3); // where the caret goes
    }
    after("design");
    play("Name=typed"); // nothing is typed while it is designed
    entry::layoutField_LostFocus(app, Qty);
    EXPECT_EQ(sheet(), "Name|Qty|Price|Made|Sum|");
}

} // namespace
