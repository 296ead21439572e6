#pragma once

#include "app/app.h"
#include "core/translate.h"
#include "exchange/sheet.h"
#include "summary/summary.h"

namespace summary {

constexpr const char* recordsHeading = core::marked("Records");
constexpr const char* totalLabel = core::marked("Total");

// What stands over the columns of that table.
std::vector<std::string> headings(const Summary& summary);
// The summary as a table for other programs: the groups, the records, the figures; last the grand total. What
// a group is called is cut where only its beginning is wanted.
exchange::OutTable tableOf(const Summary& summary, std::string title,
                           std::size_t mostLetters = std::string::npos);

// With the names of groups and the figures in the form that the user sees values in.
Summary shownSummary(const app::App& app, Summary summary);

// What a bar of a group is as long as: the records for -1, else a figure by its place; nothing where there is
// none.
constexpr int recordsBar = -1;
std::optional<double> barValue(const Group& group, int figure);
std::string barText(const Group& group, int figure);

// From where to where a bar goes, in parts of the room that all bars of a summary share: from 0 to 1.
struct Bar {
    double from = 0, to = 0;
};
class BarScale {
public:
    BarScale(const Summary& summary, int figure);
    Bar barOf(const Group& group) const;
    double zero() const { return least_ < 0 ? -least_ / room() : 0; }

private:
    double room() const { return greatest_ - least_; }

    int figure_;
    double least_ = 0, greatest_ = 0;
};

} // namespace summary
