#include "print/reportChoicesFrm.h"

#include "core/text.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "print/reportFigures.h"
#include "print/reportPrinting.h"

#include <algorithm>
#include <array>

namespace print {

namespace {

// As the settings have them.
constexpr std::array<const char*, 4> dateSteps = {core::marked("year"), core::marked("quarter"),
                                                  core::marked("month"), core::marked("day")};

} // namespace

reportChoicesFrm::reportChoicesFrm(app::App& app) : app_(app) {
    const ReportChoices choices = reportChoices(app);
    headsChk = choices.heads;
    pagesChk = choices.pageNumbers;
    dateChk = choices.date;
    totalsChk = choices.sheetTotals;
    groupList.push_back(core::tr("(none)"));
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
    steps_.clear();
    stepIndex = 0;
    if (groupIndex == 0) return;
    const core::Column* column =
        app_.document.LV.columns.find(groupList[static_cast<std::size_t>(groupIndex)]);
    const auto& isStep = reportFigures(app_).isStep;
    if (column == nullptr || !isStep) return;
    for (const std::string_view step : dateSteps)
        if (isStep(step, column->type())) steps_.emplace_back(step);
    const bool isKnown = std::ranges::find(steps_, chosen) != steps_.end();
    if (!chosen.empty() && !isKnown && isStep(chosen, column->type())) steps_.push_back(chosen);
    if (steps_.empty()) return;
    steps_.emplace(steps_.begin());
    for (const std::string& step : steps_)
        stepList.push_back(step.empty() ? core::tr("each value") : core::tr(step));
    stepIndex = static_cast<int>(std::ranges::find(steps_, chosen) - steps_.begin());
    if (stepIndex == static_cast<int>(steps_.size())) stepIndex = 0;
}

void reportChoicesFrm::takeNote() {
    noteLbl.clear();
    const core::Document& document = app_.document;
    const bool isTotaled = std::ranges::any_of(document.printedCols, [&](const auto& printed) {
        return core::isTotaledColumn(document, printed.item) && document.isNumericColumn(printed.item);
    });
    if ((totalsChk || groupIndex > 0) && !isTotaled)
        noteLbl = core::tr(
            "No column of the report is totaled, so there are no sums: see Choose Columns To Total.");
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
        if (stepIndex > 0) choices.groupStep = steps_[static_cast<std::size_t>(stepIndex)];
    }
    unloaded = true;
    setReportChoices(app_, choices);
    showReportAnew(app_);
}

} // namespace print
