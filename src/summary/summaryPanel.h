#pragma once

#include "app/app.h"
#include "summary/summaryTable.h"

#include <string>
#include <vector>

namespace summary {

// Follows every change that may be one of the records or columns; see shell/program.cpp.
void followChanges(app::App& app);
// Goes up with each of them.
std::uint64_t changesSoFar(const app::App& app);

// Tools > Summary: shows or hides it.
void mnuSummary_Click(app::App& app);

// The panel "Summary": records in groups, as the user chooses them, and what can be done with a group. It
// decides nothing about when to count: whoever shows it calls follow() after each event, which is quick, and
// recount() when it has the time.
class SummaryPanel {
public:
    explicit SummaryPanel(app::App& app) : app_(app) {}

    struct Chooser {
        std::vector<std::string> columns; // of the second chooser the first entry stands for none
        int column = 0;
        std::vector<std::string> steps; // what can be chosen; the first is each value
        std::string step;               // as it stands in the box
        bool bFreeSteps = false;        // other steps can be typed
    };
    std::array<Chooser, 2> by;
    struct FigureColumn {
        std::string name;
        core::ColumnType type;
        std::array<bool, 4> checked{}; // by FigureKind
    };
    std::vector<FigureColumn> figureColumns;
    std::vector<std::string> barNames; // what the bars can show: the records, then the figures
    int bars = 0;
    bool onlyFound = false, onlyFoundEnabled = false;
    bool canShowAll = false; // something stands in place of all records
    Summary summary;
    std::size_t sortColumn = 0; // of the table, see sortGroups
    bool bDescending = false;
    int countings = 0; // goes up whenever there is another summary
    std::string note;  // "12 groups, 32 records", or what is wrong

    // The choosers follow the document. Answers whether there is something to count.
    bool follow();
    void recount();

    void column_Click(std::size_t chooser, int entry);
    void step_Change(std::size_t chooser, const std::string& text);
    void figure_Click(std::size_t column, FigureKind kind, bool bChecked);
    void bars_Click(int entry);
    void onlyFound_Click(bool bChecked);
    // Sorts by it, and the other way where it is sorted by it already.
    void heading_Click(std::size_t column);
    void showGroup(std::size_t group); // its records take the place of the list
    void showAll();
    void copy();
    void exportTable();
    void print();

    int barFigure() const { return bars - 1; } // as in summaryTable.h

private:
    void takeColumns();
    void takeGroupColumns(const std::vector<std::string>& names);
    void takeFigureColumns(const std::vector<std::string>& names);
    void takeSteps(std::size_t place);
    void followResults();
    std::optional<Request> request();
    std::string title() const;
    std::vector<const core::Item*> base();
    void sort();
    void noteBaseFilter();

    app::App& app_;
    std::uint64_t counted_ = 0; // the change that was last counted
    bool isStale_ = true;
    std::string columnsShown_;           // names and types, as the choosers have them
    std::vector<std::string> baseKeys_;  // the records found, while a group of them stands in their place
    std::string baseFilter_, baseScope_; // what they were found by, if it was a filter
    std::string sortHeading_;            // of the column that is sorted by; empty for the first one
    std::uint64_t narrowed_ = 0;         // that group, as searchLV's arrangement
    bool bNarrowed_ = false;
    std::uint64_t found_ = 0; // the results that were counted, likewise
};

} // namespace summary
