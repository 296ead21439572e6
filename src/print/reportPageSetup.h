#pragma once

#include "app/app.h"
#include "print/paperChoice.h"

#include <string>
#include <vector>

namespace print {

// Report Page Setup.
class reportPageSetup {
public:
    struct Row {
        std::string Text;
        bool Checked = false;
    };

    explicit reportPageSetup(app::App& app); // Load

    std::vector<Row> LV3;
    std::string titleTxt;
    bool boldYesOpt = false;  // otherwise boldNoOpt
    bool letterOpt = false;   // otherwise legalOpt
    PaperChoice otherPapers;  // what is chosen here stands above both
    bool PortraitOpt = false; // otherwise LandscapeOpt
    std::string leftTxt, rightTxt, TopTxt, bottomTxt;
    bool unloaded = false;

    bool allChk() const; // whether all columns are checked
    void allChk_Click(bool checked);
    void ApplyBtn_Click();
    void moreBtn_Click(); // Report Choices, above this one
    void Command1_Click();
    void Command2_Click() { unloaded = true; }

private:
    core::RecordsList& shownList() const;
    void saveReportSettings();

    app::App& app_;
};

} // namespace print
