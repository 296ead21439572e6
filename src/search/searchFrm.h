#pragma once

#include "app/app.h"
#include "entry/masks.h"
#include "search/searchEngine.h"

#include <array>
#include <string>
#include <vector>

namespace search {

// "Search Data": three groups of a column, a comparison and one or two values each. The dialog stays
// open while the results appear behind it.
class searchFrm {
public:
    static constexpr int enterKey = 13;

    struct ColumnList {
        std::vector<std::string> items;
        int ListIndex = -1; // -1: nothing is selected
        std::string Text() const;
    };
    struct Options {
        int Value = greaterOrEqual; // the selected button
        bool rangeEnabled = true;   // a Range that is selected stays so while it is disabled
    };

    explicit searchFrm(app::App& app); // Load

    ColumnList List1, List2, List3;
    Options Opt1, Opt2, Opt3;
    std::array<entry::EntryBox, 6> SearchText; // two a group
    bool unloaded = false;

    // The controls of the groups 0 to 2, for handlers that are alike but for the group.
    ColumnList& list(int group);
    Options& options(int group);

    void List_Click(int group, int entry);
    void Opt_Click(int group, int option);
    void SearchText_Change(int index);
    void SearchText_KeyDown(int index, int keyCode);
    void SearchText_LostFocus(int index);
    void searchBtn_Click();
    void allBtn_Click();
    void closeBtn_Click();
    void Form_QueryUnload();
    void Form_Unload();

private:
    static int groupOf(int index) { return index / 2; }
    bool isType(int group, core::ColumnType type);
    bool isDate(const std::string& text) const;

    app::App& app_;
};

} // namespace search
