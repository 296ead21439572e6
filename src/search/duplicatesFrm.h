#pragma once

#include "app/app.h"
#include "search/duplicates.h"

#include <string>
#include <vector>

namespace search {

void mnuDuplicates_Click(app::App& app);

// "Find Duplicates": groups of records that are equal in the chosen columns. What is chosen is compared at
// once; the groups that are selected can be shown in place of the records, or reduced to their first records.
class duplicatesFrm {
public:
    struct Entry {
        std::string Text;
        bool Checked = false;
    };
    struct Group {
        std::size_t Records = 0;
        std::string Values; // of the columns that are compared
        bool Selected = false;
    };

    explicit duplicatesFrm(app::App& app); // Load

    std::vector<Entry> List1;  // the columns, as the user sees them from the left to the right
    bool Check1 = false;       // ignore case, and blanks at the ends
    std::vector<Group> List2;  // the groups
    int findings = 0;          // goes up whenever there are others
    std::string Label1;        // "3 groups, 5 records behind the first of each"
    bool hasSelection = false; // of a group: the buttons are enabled
    bool unloaded = false;

    void List1_Check(std::size_t entry, bool bChecked);
    void Check1_Click(bool bChecked);
    void List2_Select(const std::vector<std::size_t>& groups);
    void showBtn_Click();
    void nextBtn_Click() { step(1); }
    void previousBtn_Click() { step(-1); }
    void deleteBtn_Click();
    void CloseButton_Click() { unloaded = true; }

private:
    void find();
    void step(int by);
    void selectOnly(std::size_t group);
    std::string valuesOf(const core::Item& record) const;
    std::vector<EqualRecords> selected() const;

    app::App& app_;
    std::vector<const core::Column*> columns_; // those of List1
    std::vector<EqualRecords> groups_;
};

} // namespace search
