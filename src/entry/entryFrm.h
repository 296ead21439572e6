#pragma once

#include "app/app.h"
#include "entry/masks.h"
#include "storage/recoveryNote.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace entry {

// What was typed into the boxes when the program ended without being asked to, for the next form that is
// loaded.
struct TypedBefore {
    storage::BoxTexts boxes;
};

// The key codes that the form's boxes know.
constexpr int keyBack = 8, keyReturn = 13, keyUp = 38, keyDown = 40;

// How the form is to begin when it is shown next.
struct FormOpening {
    bool bNew = false; // with the boxes of a new record; the form takes it back
};
inline FormOpening& formOpening(const app::App& app) {
    return app.rooms.of<FormOpening>();
}

// The Entry Form: a labelled box for each column that can be typed into, stacked in a pane that scrolls.
// It works on theListView. Typing changes the boxes alone; Add, Update and Enter on the last box write.
class entryFrm {
public:
    explicit entryFrm(app::App& app); // Load
    ~entryFrm();
    entryFrm(const entryFrm&) = delete;
    entryFrm& operator=(const entryFrm&) = delete;

    // Where a control stands in what holds it, in twips.
    struct Place {
        float Left = 0, Top = 0, Width = 0, Height = 0;
        bool Visible = true;
    };
    struct Label : Place {
        std::string Caption = "Field 1";
    };
    struct TextBox : Place, EntryBox {};
    struct CheckBox : Place {
        bool Value = false;
    };
    struct ScrollBar : Place {
        int Min = 0, Max = 1, Value = 0;
        int SmallChange = 100, LargeChange = 500;
    };
    struct Button {
        std::string_view Key;
        bool Enabled = true;
    };

    Place Picture1{0, 495, 7080, 5895}; // the viewport
    Place Picture2{0, 0, 6975, 5775};   // the pane in it, which holds the three arrays
    ScrollBar VScroll1{{7200, 480, 240, 5910}};
    std::vector<Label> editlbl;
    std::vector<TextBox> FieldBox;
    std::vector<CheckBox> prevChk; // "Check Previous Entries"
    std::string srchTxt;
    std::array<Button, 9> Toolbar1{
        {{"Save"}, {"New"}, {"Add"}, {"Delete"}, {"Update"}, {"First"}, {"Back"}, {"Next"}, {"Last"}}};

    int iBoxFocus = 0; // the box that last got the focus
    int iFindRow = 0;  // the row of the last find; 0 for none
    bool unloaded = false;
    std::optional<int> boxToFocus; // the view is to put the focus there, and to clear this

    void RefreshEditBoxes();
    void scrollFields(bool bUp);
    // Whether some cell of some row, the Totals row among them, holds the text. All columns count.
    bool isPreviousEntry(std::string_view text) const;

    void FieldBox_GotFocus(int Index) { iBoxFocus = Index; }
    void FieldBox_LostFocus(int Index);
    void FieldBox_Change(int Index, std::string_view text);
    void FieldBox_KeyDown(int Index, int KeyCode);
    // The focus has come by another way than the arrow keys, so the box may be out of sight.
    void showBox(int Index);
    void prevChk_Click(int Index, bool Value) { prevChk.at(static_cast<std::size_t>(Index)).Value = Value; }
    void VScroll1_Change(int Value);
    void Picture1_Resize(float width, float height);

    bool isButtonEnabled(std::string_view key) const;
    void Toolbar1_ButtonClick(std::string_view key);
    void searchBtn_Click();
    void againBtn_Click();
    void srchTxt_KeyDown(int KeyCode);
    void Form_QueryUnload();

private:
    struct Routine;
    static const std::array<Routine, 9>& routines();

    core::RecordsList& list() const { return *app_.mainFrm.theListView; }
    int count() const { return static_cast<int>(FieldBox.size()); }
    TextBox& box(int Index) { return FieldBox.at(static_cast<std::size_t>(Index)); }
    const core::Column* columnOf(int Index) const;

    void tellTyped();
    void takeTypedBefore();
    void makeTemplates();
    void loadRow(const std::string& title);
    void layOutPane();
    bool isBelowSight(int Index);
    bool isAboveSight(int Index);
    void enterKey(int Index);
    void addFromLastBox();
    void setText(EntryBox& box, std::string text);
    void clearBoxes();
    void RetrieveData();
    void show(core::Item& item);
    int currentRow() const;

    void save();
    void newRecord();
    void add();
    void update();
    void deleteRecord();
    void goFirst();
    void goBack();
    void goNext();
    void goLast();
    void find(int startRow);

    app::App& app_;
    bool bFieldChanged = false; // the next change is a deletion: no date mask
};

} // namespace entry
