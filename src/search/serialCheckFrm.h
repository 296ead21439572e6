#pragma once

#include "app/app.h"
#include "calc/serialCheck.h"

#include <string>
#include <vector>

namespace search {

void mnuSerialCheck_Click(app::App& app);

// "Check Serial Numbers": what is missing, and what is there more than once, in a column of serial numbers.
// It changes nothing; the records that share a number can be selected in the list.
class serialCheckFrm {
public:
    explicit serialCheckFrm(app::App& app); // Load

    std::vector<std::string> List1; // the columns
    int ListIndex = -1;
    std::vector<std::string> List2; // the findings
    std::string Label1;             // how many of each
    bool selectBtnEnabled = false;
    bool unloaded = false;

    void List1_Click(int entry);
    void selectBtn_Click();
    void CloseButton_Click() { unloaded = true; }

private:
    app::App& app_;
    calc::SerialFindings findings_;
};

} // namespace search
