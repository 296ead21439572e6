#include "print/reportChoicesFrm.h"

#include "core/text.h"
#include "core/totalsRow.h"
#include "print/reportFigures.h"
#include "print/reportPrinting.h"

#include <algorithm>
#include <array>

namespace print {

namespace {

constexpr std::string_view noGroups = "(none)", eachValue = "each value";
constexpr std::array<std::string_view, 4> dateSteps = {"year", "quarter", "month", "day"};

} // namespace

reportChoicesFrm::reportChoicesFrm(app::App& app) : app_(app) {
    const ReportChoices choices = reportChoices(app);
    headsChk = choices.heads;
    pagesChk = choices.pageNumbers;
    dateChk = choices.date;
    totalsChk = choices.sheetTotals;
    groupList.emplace_back(noGroups);
    const core::ColumnHeaders& columns = reportList(app).columns;
    for (const int index : columns.displayOrder()) {
        if (index == 1) continue;
        const std::string& name = columns.at(index).Text;
        if (core::equalsNoCase(name, choices.groupColumn)) groupIndex = static_cast<int>(groupList.size());
        groupList.push_back(name);
    }
    takeSteps(choices.groupStep);
    takeNote();
}

// Steps of numbers come from the command line; here they can only be kept.
void reportChoicesFrm::takeSteps(const std::string& chosen) {
    stepList.clear();
    stepIndex = 0;
    if (groupIndex == 0) return;
    const core::Column* column =
        app_.document.LV.columns.find(groupList[static_cast<std::size_t>(groupIndex)]);
    const auto& isStep = reportFigures(app_).isStep;
    if (column == nullptr || !isStep) return;
    for (const std::string_view step : dateSteps)
        if (isStep(step, column->type())) stepList.emplace_back(step);
    const bool isKnown = std::ranges::find(stepList, chosen) != stepList.end();
    if (!chosen.empty() && !isKnown && isStep(chosen, column->type())) stepList.push_back(chosen);
    if (stepList.empty()) return;
    stepList.emplace(stepList.begin(), eachValue);
    const auto found = std::ranges::find(stepList, chosen);
    if (found != stepList.end()) stepIndex = static_cast<int>(found - stepList.begin());
}

void reportChoicesFrm::takeNote() {
    noteLbl.clear();
    const core::Document& document = app_.document;
    const bool isTotaled = std::ranges::any_of(document.printedCols, [&](const auto& printed) {
        return core::isTotaledColumn(document, printed.item) && document.isNumericColumn(printed.item);
    });
    if ((totalsChk || groupIndex > 0) && !isTotaled)
        noteLbl = "No column of the report is totaled, so there are no sums: see Choose Columns To Total.";
}

void reportChoicesFrm::groupList_Click(int entry) {
    groupIndex = entry;
    takeSteps({});
    takeNote();
}

void reportChoicesFrm::totalsChk_Click(bool checked) {
    totalsChk = checked;
    takeNote();
}

void reportChoicesFrm::OKButton_Click() {
    ReportChoices choices{headsChk, pagesChk, dateChk, totalsChk, {}, {}};
    if (groupIndex > 0) {
        choices.groupColumn = groupList[static_cast<std::size_t>(groupIndex)];
        if (stepIndex > 0) choices.groupStep = stepList[static_cast<std::size_t>(stepIndex)];
    }
    unloaded = true;
    setReportChoices(app_, choices);
    showReportAnew(app_);
}

} // namespace print
