#include "print/reportChoicesFrm.h"

#include "core/text.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "print/reportFigures.h"
#include "print/reportPrinting.h"

#include <algorithm>
#include <array>
#include <utility>

namespace print {

namespace {

// As the settings have them.
constexpr std::array<const char*, 4> numberSteps = {"1", "10", "100", "1000"};
constexpr std::array<const char*, 4> dateSteps = {core::marked("year"), core::marked("quarter"),
                                                  core::marked("month"), core::marked("day")};

} // namespace

reportChoicesFrm::reportChoicesFrm(app::App& app) : app_(app) {
    const ReportChoices choices = reportChoices(app);
    if (auto toCome = std::exchange(app.rooms.of<ColumnsToCome>().columns, std::nullopt))
        printed_ = *std::move(toCome);
    else
        for (const auto& printed : app.document.printedCols) printed_.push_back(printed.item);
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

const core::Column* reportChoicesFrm::groupColumn() const {
    if (groupIndex == 0) return nullptr;
    return app_.document.LV.columns.find(groupList[static_cast<std::size_t>(groupIndex)]);
}

void reportChoicesFrm::takeSteps(const std::string& chosen) {
    stepList.clear();
    steps_.clear();
    stepTxt.clear();
    stepIndex = 0;
    const core::Column* column = groupColumn();
    const auto& isStep = reportFigures(app_).isStep;
    if (column == nullptr || !isStep) return;
    steps_.emplace_back(); // each value
    for (const auto* usual : {&dateSteps, &numberSteps})
        for (const std::string_view step : *usual)
            if (isStep(step, column->type())) steps_.emplace_back(step);
    const bool isAny = steps_.size() > 1;
    bFreeSteps = column->isNumeric() && isAny;
    if (!isAny) {
        steps_.clear();
        return;
    }
    for (const std::string& step : steps_)
        stepList.push_back(step.empty() ? core::tr("each value") : core::tr(step));
    stepTxt = stepList.front();
    const auto found = std::ranges::find(steps_, chosen);
    if (found != steps_.end())
        stepList_Click(static_cast<int>(found - steps_.begin()));
    else if (bFreeSteps && isStep(chosen, column->type()))
        stepTxt_Change(chosen);
}

std::optional<std::string> reportChoicesFrm::step() const {
    if (stepList.empty()) return std::string();
    if (stepIndex >= 0) return steps_[static_cast<std::size_t>(stepIndex)];
    const core::Column* column = groupColumn();
    std::string typed(core::trim(stepTxt));
    if (column == nullptr || !reportFigures(app_).isStep(typed, column->type())) return std::nullopt;
    return typed;
}

void reportChoicesFrm::takeNote() {
    noteLbl.clear();
    OKButtonEnabled = step().has_value();
    if (!OKButtonEnabled) {
        noteLbl = core::fill(core::tr("\"%1\" is no step: type a number above 0."), {stepTxt});
        return;
    }
    const core::Document& document = app_.document;
    const bool isTotaled = std::ranges::any_of(printed_, [&](const std::string& name) {
        return core::isTotaledColumn(document, name) && document.isNumericColumn(name);
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

void reportChoicesFrm::stepList_Click(int entry) {
    stepIndex = entry;
    stepTxt = stepList[static_cast<std::size_t>(entry)];
    takeNote();
}

void reportChoicesFrm::stepTxt_Change(const std::string& text) {
    const auto found = std::ranges::find(stepList, std::string(core::trim(text)));
    stepIndex = found == stepList.end() ? -1 : static_cast<int>(found - stepList.begin());
    stepTxt = text;
    takeNote();
}

void reportChoicesFrm::totalsChk_Click(bool checked) {
    totalsChk = checked;
    takeNote();
}

void reportChoicesFrm::OKButton_Click() {
    const std::optional<std::string> chosen = step();
    if (!chosen) return;
    ReportChoices choices{headsChk, pagesChk, dateChk, totalsChk, {}, {}};
    if (groupIndex > 0) {
        choices.groupColumn = groupList[static_cast<std::size_t>(groupIndex)];
        choices.groupStep = *chosen;
    }
    unloaded = true;
    setReportChoices(app_, choices);
    showReportAnew(app_);
}

} // namespace print
