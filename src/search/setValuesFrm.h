#pragma once

#include "app/app.h"
#include "entry/masks.h"
#include "search/manyRecords.h"
#include "search/setValues.h"

#include <array>
#include <string>
#include <vector>

namespace search {

// Opens the dialog, or tells that no column can be set.
void mnuSetValues_Click(app::App& app);

// "Set Values": a value, or an expression over the columns, into one column of many records. What is going to
// happen stands in the dialog before the button does it.
class setValuesFrm {
public:
    static constexpr std::size_t shownRecords = 5;

    struct Row {
        std::string Record, Before, After;
    };

    explicit setValuesFrm(app::App& app); // Load

    std::vector<std::string> List1; // the columns that can be set
    int ListIndex = -1;
    std::array<ScopeButton, 3> Opt1; // by Scope
    int scope = allRecords;
    bool bExpression = false;
    entry::EntryBox Text1;
    std::string Label1; // "Set Price in 7 records"
    std::string Label2; // what is wrong; empty while nothing is
    std::vector<Row> preview;
    bool OKButtonEnabled = false;
    bool unloaded = false;

    void List1_Click(int entry);
    void Opt1_Click(int scope);
    void Opt2_Click(bool expression);
    void Text1_Change(const std::string& text);
    void Text1_LostFocus();
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    bool isColumn(core::ColumnType type) const;
    NewValue value() const;
    void show();
    bool confirmEmpty(const std::string& column);
    void tellRefused(const SetOutcome& outcome);

    app::App& app_;
    std::array<std::vector<core::Item*>, 3> records_;
};

} // namespace search
