#include "search/searchFrm.h"

#include "calc/selectedTotals.h"
#include "core/dates.h"
#include "core/text.h"
#include "core/translate.h"
#include "search/searchMode.h"

namespace search {

using core::ColumnType;

namespace {

constexpr int groupCount = 3;

} // namespace

std::string searchFrm::ColumnList::Text() const {
    return ListIndex < 0 ? std::string() : items.at(static_cast<std::size_t>(ListIndex));
}

searchFrm::searchFrm(app::App& app) : app_(app) {
    for (int group = 0; group < groupCount; ++group) {
        for (const core::Column& column : sourceList(app.document).columns)
            if (column.Index != 1) list(group).items.push_back(column.Text);
        // In an invoice database a view can be without a column to search.
        if (!list(group).items.empty()) List_Click(group, 0);
    }
}

searchFrm::ColumnList& searchFrm::list(int group) {
    return group == 0 ? List1 : group == 1 ? List2 : List3;
}

searchFrm::Options& searchFrm::options(int group) {
    return group == 0 ? Opt1 : group == 1 ? Opt2 : Opt3;
}

bool searchFrm::isType(int group, ColumnType type) {
    const core::Column* column = app_.document.LV.columns.find(list(group).Text());
    return column != nullptr && column->isType(type);
}

bool searchFrm::isDate(const std::string& text) const {
    return core::isDate(text, app_.platform.today());
}

void searchFrm::List_Click(int group, int entry) {
    list(group).ListIndex = entry;
    const std::string column = list(group).Text();
    const bool isDateColumn = app_.document.isDateColumn(column);
    options(group).rangeEnabled = isDateColumn || app_.document.isNumericColumn(column);
    if (!isDateColumn) return;
    for (const int index : {2 * group, 2 * group + 1}) {
        std::string& text = SearchText.at(static_cast<std::size_t>(index)).Text;
        if (!isDate(text)) text.clear();
    }
}

void searchFrm::Opt_Click(int group, int option) {
    options(group).Value = option;
    if (list(group).Text().empty()) app::inform(app_, core::tr("You must select a field to search by."));
}

// Nothing here skips the mask, so an automatic slash that is deleted comes straight back. It is wanted
// so.
void searchFrm::SearchText_Change(int index) {
    if (isType(groupOf(index), ColumnType::Date))
        entry::insertDateSlashes(app_, SearchText.at(static_cast<std::size_t>(index)));
}

void searchFrm::SearchText_KeyDown(int index, int keyCode) {
    if (keyCode != enterKey) return;
    SearchText_LostFocus(index);
    searchBtn_Click();
}

void searchFrm::SearchText_LostFocus(int index) {
    const int group = groupOf(index);
    entry::EntryBox& box = SearchText.at(static_cast<std::size_t>(index));
    box.Tag = list(group).Text();
    if (isType(group, ColumnType::Currency)) entry::completeCurrencyText(app_, box);
    if (isType(group, ColumnType::Date) && !core::trim(box.Text).empty() && !isDate(box.Text)) {
        box.Text.clear();
        app::inform(app_, core::tr("You entered an invalid date."));
    }
}

void searchFrm::searchBtn_Click() {
    Groups groups;
    for (int group = 0; group < groupCount; ++group) {
        const std::size_t value = 2 * static_cast<std::size_t>(group);
        groups.at(static_cast<std::size_t>(group)) = {list(group).Text(), options(group).Value,
                                                      SearchText.at(value).Text,
                                                      SearchText.at(value + 1).Text};
    }
    findRecords(app_, groups);
}

void searchFrm::allBtn_Click() {
    showAllRecords(app_);
}

void searchFrm::closeBtn_Click() {
    Form_QueryUnload();
    Form_Unload();
}

void searchFrm::Form_QueryUnload() {
    if (app_.mainFrm.theListView->Name == "LV") app_.mainFrm.control("Search").Value = false;
}

void searchFrm::Form_Unload() {
    if (!app_.document.searchLV.Visible && app_.mainFrm.SSTab1 == app::reportTab)
        app_.mainFrm.control("Delete").Enabled = true;
    calc::RefreshSelectedTotals(app_.document);
    unloaded = true;
}

} // namespace search
