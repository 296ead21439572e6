#include "search/serialCheckFrm.h"

#include "app/windowState.h"
#include "core/translate.h"
#include "search/manyRecords.h"
#include "search/searchMode.h"

#include <algorithm>

namespace search {

namespace {

constexpr std::size_t mostNames = 10;

std::string namesOf(const core::Document& document, const std::vector<const core::Item*>& records) {
    std::string names;
    for (std::size_t i = 0; i < std::min(records.size(), mostNames); ++i) {
        if (i > 0) names.append(", ");
        names.append(nameOf(document, *records[i]));
    }
    if (records.size() > mostNames)
        return core::fill(
            core::tr("%1 and %n more", "%1 and %n more", static_cast<int>(records.size() - mostNames)),
            {names});
    return names;
}

} // namespace

void mnuSerialCheck_Click(app::App& app) {
    if (calc::serialColumns(app.document).empty())
        app::inform(
            app,
            core::tr("No column has serial numbers.  They are an option of Number columns in the database "
                     "properties."));
    else
        app.platform.showForm("serialCheckFrm");
}

serialCheckFrm::serialCheckFrm(app::App& app) : List1(calc::serialColumns(app.document)), app_(app) {
    if (!List1.empty()) List1_Click(0);
}

void serialCheckFrm::List1_Click(int entry) {
    ListIndex = entry;
    const core::Document& document = app_.document;
    findings_ = calc::checkSerials(document, document.LV.columns[List1.at(static_cast<std::size_t>(entry))]);
    List2.clear();
    for (const auto& repeat : findings_.repeats)
        List2.push_back(core::fill(core::tr("%1: records %2"),
                                   {calc::repeatText(repeat), namesOf(document, repeat.records)}));
    for (const auto& gap : findings_.gaps) List2.push_back(calc::gapText(gap));
    if (!findings_.unnumbered.empty())
        List2.push_back(
            core::fill(core::tr("No whole number: records %1"), {namesOf(document, findings_.unnumbered)}));
    selectBtnEnabled = !findings_.repeats.empty();
    if (findings_.isEmpty())
        Label1 = core::tr("Each number is there once.");
    else
        Label1 = core::tr("%n repeat", "%n repeats", static_cast<int>(findings_.repeats.size()))
                     .append(", ")
                     .append(core::tr("%n gap", "%n gaps", static_cast<int>(findings_.gaps.size())));
}

void serialCheckFrm::selectBtn_Click() {
    if (!selectBtnEnabled) return;
    std::vector<const core::Item*> records;
    for (const auto& repeat : findings_.repeats)
        records.insert(records.end(), repeat.records.begin(), repeat.records.end());
    app::showReportTab(app_);
    if (app_.document.searchLV.Visible) leaveResults(app_); // which may be others
    selectRecords(app_, records);
    unloaded = true;
}

} // namespace search
