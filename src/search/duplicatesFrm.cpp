#include "search/duplicatesFrm.h"

#include "app/hourglass.h"
#include "core/translate.h"
#include "search/manyRecords.h"

#include <algorithm>

namespace search {

void mnuDuplicates_Click(app::App& app) {
    if (app.document.LV.columns.count() < 2 || app.document.LV.count() < 3)
        app::inform(app, core::tr("There are no two records to compare."));
    else
        app.platform.showForm("duplicatesFrm");
}

duplicatesFrm::duplicatesFrm(app::App& app) : app_(app) {
    const core::ColumnHeaders& columns = app.document.LV.columns;
    for (const int index : columns.displayOrder()) {
        const core::Column& column = columns.at(index);
        if (index == 1) continue;
        List1.push_back({column.Text, isComparedAtFirst(app.document, column)});
        columns_.push_back(&column);
    }
    find();
}

void duplicatesFrm::List1_Check(std::size_t entry, bool bChecked) {
    List1.at(entry).Checked = bChecked;
    find();
}

void duplicatesFrm::Check1_Click(bool bChecked) {
    Check1 = bChecked;
    find();
}

std::string duplicatesFrm::valuesOf(const core::Item& record) const {
    std::string text;
    for (std::size_t i = 0; i < List1.size(); ++i) {
        const std::string_view cell = core::RecordsList::cell(record, *columns_[i]);
        if (!List1[i].Checked || cell.empty()) continue;
        if (!text.empty()) text.append(", ");
        text.append(cell);
    }
    return text;
}

void duplicatesFrm::find() {
    const app::Hourglass hourglass(app_);
    std::vector<const core::Column*> compared;
    for (std::size_t i = 0; i < List1.size(); ++i)
        if (List1[i].Checked) compared.push_back(columns_[i]);
    groups_ = findDuplicates(app_.document.LV, compared, Check1);
    ++findings;
    List2.clear();
    std::size_t behindFirst = 0;
    for (const EqualRecords& group : groups_) {
        List2.push_back({group.size(), valuesOf(*group.front())});
        behindFirst += group.size() - 1;
    }
    hasSelection = !List2.empty();
    if (hasSelection) List2.front().Selected = true;
    if (compared.empty())
        Label1 = core::tr("Choose the columns to compare.");
    else if (List2.empty())
        Label1 = core::tr("No two records are equal in these columns.");
    else
        Label1 = core::tr("%n group", "%n groups", static_cast<int>(List2.size()))
                     .append(", ")
                     .append(core::tr("%n record behind the first of each",
                                      "%n records behind the first of each", static_cast<int>(behindFirst)));
}

void duplicatesFrm::List2_Select(const std::vector<std::size_t>& groups) {
    for (Group& group : List2) group.Selected = false;
    for (const std::size_t group : groups) List2.at(group).Selected = true;
    hasSelection = !groups.empty();
}

std::vector<EqualRecords> duplicatesFrm::selected() const {
    std::vector<EqualRecords> chosen;
    for (std::size_t i = 0; i < List2.size(); ++i)
        if (List2[i].Selected) chosen.push_back(groups_[i]);
    return chosen;
}

void duplicatesFrm::showBtn_Click() {
    if (hasSelection) showRecords(app_, selected());
}

void duplicatesFrm::selectOnly(std::size_t group) {
    for (Group& each : List2) each.Selected = false;
    List2.at(group).Selected = true;
    hasSelection = true;
}

// From the last group on to the first, and round. The first that is selected counts.
void duplicatesFrm::step(int by) {
    if (List2.empty()) return;
    const auto count = static_cast<std::ptrdiff_t>(List2.size());
    const auto found = std::ranges::find(List2, true, &Group::Selected);
    const std::ptrdiff_t now = found == List2.end() ? (by > 0 ? -1 : count) : found - List2.begin();
    selectOnly(static_cast<std::size_t>((now + by + count) % count));
    showBtn_Click();
}

void duplicatesFrm::deleteBtn_Click() {
    const std::vector<EqualRecords> chosen = selected();
    if (chosen.empty()) return;
    std::size_t records = 0;
    for (const EqualRecords& group : chosen) records += group.size() - 1;
    if (app_.mainFrm.bConfirmDelete) {
        const int count = static_cast<int>(records);
        const std::string one = core::tr("Delete %n record and keep the first of the group?",
                                         "Delete %n records and keep the first of the group?", count);
        const std::string many = core::tr("Delete %n record and keep the first of %1 groups?",
                                          "Delete %n records and keep the first of %1 groups?", count);
        const std::string text = chosen.size() == 1 ? one : core::fill(many, {std::to_string(chosen.size())});
        if (app_.platform.msgBox(text, platform::Icon::Exclamation, core::tr("Confirm Deletion"),
                                 platform::Buttons::YesNo) != platform::Answer::Yes)
            return;
    }
    deleteAllButFirst(app_, chosen);
    find();
}

} // namespace search
