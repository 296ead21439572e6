#pragma once

#include "app/app.h"
#include "summary/statistics.h"

#include <string>
#include <vector>

namespace summary {

// Tools > Column Statistics..., and "Statistics..." of a heading, whose column is shown.
void mnuStatistics_Click(app::App& app);
void showStatisticsOf(app::App& app, const std::string& column);

// "Column Statistics": what there is to know of a column, of all records or of those found.
class statisticsFrm {
public:
    explicit statisticsFrm(app::App& app); // Load

    std::vector<std::string> columnCbo;
    int ListIndex = 0;
    bool Check1 = false; // of the search results alone
    bool Check1Enabled = false;
    std::vector<std::pair<std::string, std::string>> List1; // the figures
    std::vector<FrequentValue> List2;
    std::size_t mostOfList2 = 0; // what the longest bar stands for
    int countings = 0;
    bool unloaded = false;

    void columnCbo_Click(int entry);
    void Check1_Click(bool bChecked);
    void copyBtn_Click(); // figures and values, as a table with tabs
    void CloseButton_Click() { unloaded = true; }

private:
    void count();

    app::App& app_;
};

} // namespace summary
