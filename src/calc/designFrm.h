#pragma once

#include "app/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace calc {

// Database Properties. Add, Change Name and Remove take effect at once; there is no cancel.
class designFrm {
public:
    struct Row {
        std::string Name;
        std::string Type;       // the type's caption
        std::string AutoDate;   // "ON", "OFF" or "NA"
        std::string AutoSerial; // "ON", "OFF" or "NA"
    };

    explicit designFrm(app::App& app); // Load

    std::vector<Row> List1;
    int selectedRow = -1; // of List1, from 0
    std::string fieldTxt;
    int typeOpt = 0; // index of the option button: Date, Currency, Calculation, Number, Text, Picture
    bool pictureVisible = true;
    bool fieldTxtHasFocus = true; // the view is to put the focus there
    bool unloaded = false;

    // Says which calculation columns stay empty, since nothing says how to work them out; empty for none.
    std::string emptyCalculations() const;

    void typeOpt_Click(int index);
    // The text of the name box has been changed: each blank becomes "_".
    void fieldTxt_Change(std::string_view text);
    void fieldTxt_Enter() { addBtn_Click(); }
    void addBtn_Click();
    void changeBtn_Click();
    void deleteBtn_Click();
    void List1_DblClick(int row);
    void doneBtn_Click();
    // Opening and closing the dialog is enough to have the document marked as modified.
    void Form_QueryUnload();

private:
    bool isNameTaken(std::string_view name);
    void rebuildAfterChange();
    void renameInLayout(const std::string& oldName, const std::string& newName);
    bool confirmRemoval(const std::string& name);

    app::App& app_;
    std::string sColType = "1";
};

} // namespace calc
