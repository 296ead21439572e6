#pragma once

#include "app/app.h"

#include <string>
#include <vector>

namespace invoice {

// The Item Row Creation Tool.
class repeatFrm {
public:
    explicit repeatFrm(app::App& app); // Load

    std::string Text1; // number of rows
    std::vector<std::string> List1, List2;
    bool unloaded = false;

    void List1_Click(int entry); // from 0; a column can be chosen twice
    void Command1_Click();
    void OKButton_Click();
    void CancelButton_Click() { unloaded = true; }

private:
    bool hasRoomFor(double rows) const;

    app::App& app_;
    std::vector<std::string> cColumns_;
};

// Places rows of fields at the top left of the layout, one field for each column; earlier fields of the
// columns go away. Two fields of a column make it one of the item rows.
void repeatItemRows(app::App& app, int iItems, const std::vector<std::string>& cColumns);

} // namespace invoice
