#pragma once

#include "app/app.h"

#include <string>
#include <vector>

namespace calc {

// Corrects the serial counters. Set alone changes anything, and Cancel does not undo it.
class serialFrm {
public:
    explicit serialFrm(app::App& app); // Load

    std::vector<std::string> List1;
    int selected = -1; // in List1, from 0
    std::string Text1;
    bool text1HasFocus = false; // the view is to put the focus there
    bool unloaded = false;

    void List1_Click(int entry);
    void setBtn_Click();
    void OKButton_Click() { unloaded = true; }
    void CancelButton_Click() { unloaded = true; }

private:
    core::Item* selectedSerial();

    app::App& app_;
};

} // namespace calc
