#include "search/duplicates.h"

#include "app/hourglass.h"
#include "core/text.h"
#include "core/totalsRow.h"
#include "entry/editRecord.h"
#include "search/filter/filterMode.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace search {

using app::App;
using core::Column;
using core::Item;
using core::RecordsList;

namespace {

// Each cell behind its length, so that no two records share a text that have other cells.
void appendCell(std::string& key, std::string_view cell, bool bIgnoreCase) {
    if (bIgnoreCase) cell = core::trim(cell);
    const std::size_t size = cell.size();
    key.append(reinterpret_cast<const char*>(&size), sizeof size);
    if (bIgnoreCase)
        core::appendUpper(key, cell);
    else
        key.append(cell);
}

// Results whose records are gone.
void removeLostResults(App& app) {
    core::Document& document = app.document;
    RecordsList& results = document.searchLV;
    if (!results.Visible) return;
    results.removeIf(
        [&](const Item& row) { return !row.isTotals() && document.LV.find(row.Tag) == nullptr; });
    if (results.count() < 2) {
        leaveResults(app);
        return;
    }
    core::resetTotalsRow(results);
    const core::TotalsRowUpdater totals(document, results);
    results.forEach([&](const Item& row) {
        if (!row.isTotals()) totals.update(core::TotalsMode::Add, row);
    });
    if (results.selectedItem() == nullptr) results.setSelectedItem(&results.at(1));
    app::showRecordCount(app, results);
}

} // namespace

std::vector<EqualRecords> findDuplicates(const RecordsList& records,
                                         const std::vector<const Column*>& columns, bool bIgnoreCase) {
    std::vector<EqualRecords> groups;
    if (columns.empty()) return groups;
    std::unordered_map<std::string, std::size_t> places; // in groups
    places.reserve(static_cast<std::size_t>(records.count()));
    std::string key; // kept so that it is allocated once
    records.forEach([&](const Item& record) {
        if (record.isTotals()) return;
        key.clear();
        for (const Column* column : columns) appendCell(key, RecordsList::cell(record, *column), bIgnoreCase);
        const auto [place, isNew] = places.try_emplace(key, groups.size());
        if (isNew) groups.emplace_back();
        groups[place->second].push_back(&record);
    });
    std::erase_if(groups, [](const EqualRecords& group) { return group.size() < 2; });
    return groups;
}

bool isComparedAtFirst(const core::Document& document, const Column& column) {
    return column.Index != 1 && !column.isType(core::ColumnType::Calculation) &&
           !document.optionedCols.contains(column.Text);
}

void showRecords(App& app, const std::vector<EqualRecords>& groups) {
    app.mainFrm.control("Search").Value = true;
    app.mainFrm.control("Delete").Enabled = false;
    std::unordered_map<std::string, std::vector<const Item*>> rows;
    if (app.document.bInvoiceStyle)
        sourceList(app.document).forEach([&](const Item& row) { rows[row.Text.str()].push_back(&row); });
    std::vector<const Item*> shown;
    for (const EqualRecords& group : groups)
        for (const Item* record : group) {
            if (!app.document.bInvoiceStyle) {
                shown.push_back(record);
                continue;
            }
            const std::vector<const Item*>& found = rows[record->Key.str()];
            shown.insert(shown.end(), found.begin(), found.end());
        }
    forgetFilter(app);
    takeOverColumns(app.document);
    showRows(app, shown);
}

int deleteAllButFirst(App& app, const std::vector<EqualRecords>& groups) {
    RecordsList& records = app.document.LV;
    const app::Hourglass hourglass(app);
    std::unordered_set<const Item*> gone;
    for (const EqualRecords& group : groups) gone.insert(group.begin() + 1, group.end());
    if (gone.empty()) return 0;
    const int before = records.count();
    records.MultiSelect = true;
    records.clearSelection();
    bool isFirst = true;
    records.forEach([&](Item& record) {
        if (!gone.contains(&record)) return;
        if (std::exchange(isFirst, false)) records.setSelectedItem(&record);
        record.Selected = true;
    });
    const bool bConfirm = std::exchange(app.mainFrm.bConfirmDelete, false); // whoever calls has asked
    entry::deleteRecords(app);
    app.mainFrm.bConfirmDelete = bConfirm;
    removeLostResults(app);
    app.changes.announce(app, app::Change::CurrentRecord);
    return before - records.count();
}

} // namespace search
