#pragma once

#include "search/colourRules.h"

#include <array>

namespace search {

// Opens the dialog with that column, or tells that there is none.
void showColours(app::App& app, const std::string& column);
void mnuColours_Click(app::App& app);

// Which column the dialog begins with.
struct ColoursOpening {
    std::string column;
};

// "Colours": the rules of a column, the first that holds at the top. Nothing is set before OK.
class coloursFrm {
public:
    struct Row {
        int Combo1 = 0; // 0 for no rule, then the tests of the column
        std::string Text1, Text2;
        int Combo2 = 0;                      // the colour
        bool bText1 = false, bText2 = false; // shown
    };

    explicit coloursFrm(app::App& app); // Load

    std::vector<std::string> List1; // the columns
    int ListIndex = -1;
    std::vector<std::string> tests; // the entries of Combo1
    std::array<Row, mostColourRules> rows;
    std::string Label1;                    // what is wrong; empty while nothing is
    std::optional<std::size_t> rowToFocus; // the view is to put the focus there, and to clear this
    bool unloaded = false;

    void List1_Click(int entry);
    void Combo1_Click(std::size_t row, int entry);
    void Text1_Change(std::size_t row, const std::string& text) { rows.at(row).Text1 = text; }
    void Text2_Change(std::size_t row, const std::string& text) { rows.at(row).Text2 = text; }
    void Combo2_Click(std::size_t row, int entry) { rows.at(row).Combo2 = entry; }
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    core::ColumnType type() const;
    bool take();
    void load();

    app::App& app_;
    std::map<std::string, ColumnColours, std::less<>> changed_;
};

} // namespace search
