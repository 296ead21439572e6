#pragma once

#include "app/app.h"
#include "print/reportChoices.h"

#include <optional>
#include <string>
#include <vector>

namespace print {

// The columns that the page setup on view would print, where it has not been applied yet.
struct ColumnsToCome {
    std::optional<std::vector<std::string>> columns;
};

// "Report Choices": what each sheet of the open file's report has beside its records. Kept for the file in
// the user's settings; the document is not changed.
class reportChoicesFrm {
public:
    explicit reportChoicesFrm(app::App& app); // Load

    bool headsChk = false, pagesChk = false, dateChk = false, totalsChk = false;
    std::vector<std::string> groupList; // "(none)", then the columns of the report's list
    int groupIndex = 0;
    std::vector<std::string> stepList; // of the chosen column; empty where its values stand by themselves
    int stepIndex = 0;                 // -1: another one, which is in stepTxt
    std::string stepTxt;               // as it stands in the box
    bool bFreeSteps = false;           // others can be typed: "2.5"
    std::string noteLbl;               // what the choice lacks; empty while nothing is
    bool OKButtonEnabled = true;
    bool unloaded = false;

    void groupList_Click(int entry);
    void stepList_Click(int entry);
    void stepTxt_Change(const std::string& text);
    void totalsChk_Click(bool checked);
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    void takeSteps(const std::string& chosen);
    void takeNote();
    // As the settings have it: empty for each value, nothing for what is no step.
    std::optional<std::string> step() const;
    const core::Column* groupColumn() const;

    app::App& app_;
    std::vector<std::string> printed_; // columns
    std::vector<std::string> steps_;   // what the settings call those of stepList; the first is empty
};

} // namespace print
