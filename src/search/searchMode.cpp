#include "search/searchMode.h"

#include "app/windowState.h"
#include "calc/selectedTotals.h"
#include "core/totalsRow.h"
#include "entry/navBar.h"
#include "search/filter/filterMode.h"
#include "search/searchEngine.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace search {

using app::App;
using core::Column;
using core::Item;
using core::RecordsList;

namespace {

bool hasColumns(const core::Document& document) {
    return document.LV.columns.count() > 1;
}

// What a result has in its Tag.
std::string keyOf(const core::Document& document, const Item& row) {
    return (document.bInvoiceStyle ? row.Text : row.Key).str();
}

// But for what is calculated, and what was written.
bool isTheSame(const core::ColumnHeaders& columns, const Item& result, const Item& row,
               std::string_view written) {
    return result.cells.size() == row.cells.size() && std::ranges::all_of(columns, [&](const Column& column) {
               return column.Index == 1 || column.isType(core::ColumnType::Calculation) ||
                      column.Text == written ||
                      RecordsList::cell(result, column) == RecordsList::cell(row, column);
           });
}

void openDialog(App& app) {
    app.mainFrm.control("Delete").Enabled = false;
    calc::RefreshSelectedTotals(app.document);
    // The record of a sheet that is new is none of the results.
    const bool bResultsGone = app.document.searchLV.Visible && !entry::isSheetNew(app);
    forgetFilter(app);
    takeOverColumns(app.document);
    app.platform.showForm("searchFrm");
    if (bResultsGone) app.changes.announce(app, app::Change::CurrentRecord);
}

} // namespace

void leaveResults(App& app) {
    app.mainFrm.control("Search").Value = false;
    app.mainFrm.control("Delete").Enabled = app.mainFrm.SSTab1 == app::reportTab;
    showAllRecords(app);
}

void Search_ButtonClick(App& app) {
    if (!hasColumns(app.document)) return;
    if (app.mainFrm.control("Search").Value)
        leaveResults(app);
    else
        mnuSearch_Click(app);
}

void mnuSearch_Click(App& app) {
    if (!hasColumns(app.document)) return;
    // Who closes the dialog without a search sees all records, and no list that is empty without a reason.
    if (filterBar(app).isOn && !entry::isSheetNew(app)) leaveFilter(app);
    app.mainFrm.control("Search").Value = true;
    openDialog(app);
}

void takeOverColumns(core::Document& document) {
    const core::RecordsList& source = sourceList(document);
    core::RecordsList& results = document.searchLV;
    results.clear();
    results.columns.clear();
    std::vector<int> positions;
    for (const Column& column : source.columns) {
        Column& copy = results.columns.add(column.Text, column.Text, column.Width);
        copy.align = column.align;
        copy.Tag = column.Tag;
        if (column.isType(core::ColumnType::Picture)) copy.Icon = "Picture";
        positions.push_back(column.Position);
    }
    results.columns.setPositions(positions);
}

// In an invoice database too it is LV that commands work on afterwards, and LV's records that are
// counted, not those of the list on show. It is wanted so.
void showAllRecords(App& app) {
    app.document.searchLV.Visible = false;
    calc::RefreshSelectedTotals(app.document); // the sums were those of a result
    app.mainFrm.theListView = &app.document.LV;
    app.mainFrm.listScroll = app::ListScroll::ToCurrent;
    app::allowManySelected(app); // the layout page may have taken it from the records in the meantime
    app.mainFrm.control("Formulas").Enabled = true;
    app::showRecordCount(app, app.document.LV);
    app.changes.announce(app, app::Change::CurrentRecord);
}

void followRecords(App& app) {
    core::Document& document = app.document;
    RecordsList& results = document.searchLV;
    if (!results.Visible || results.empty()) return;
    // An invoice can have several rows among the results, and which of them is which is not known any more.
    if (document.bInvoiceStyle) return leaveResults(app);
    results.removeIf(
        [&](const Item& result) { return !result.isTotals() && document.LV.find(result.Tag) == nullptr; });
    core::resetTotalsRow(results);
    const core::TotalsRowUpdater totals(document, results);
    Item* current = results.selectedItem();
    results.forEach([&](Item& result) {
        if (result.isTotals()) return;
        const Item& record = document.LV.byKey(result.Tag);
        result.cells = record.cells;
        totals.update(core::TotalsMode::Add, result);
        if (&record == document.LV.selectedItem()) current = &result;
    });
    results.clearSelection();
    results.setSelectedItem(current);
}

void refreshResults(App& app, std::string_view written) {
    core::Document& document = app.document;
    RecordsList& results = document.searchLV;
    if (!results.Visible || results.empty()) return;
    std::unordered_map<std::string, std::vector<const Item*>> rows;
    sourceList(document).forEach([&](const Item& row) { rows[keyOf(document, row)].push_back(&row); });
    core::resetTotalsRow(results);
    const core::TotalsRowUpdater totals(document, results);
    results.forEach([&](Item& result) {
        if (result.isTotals()) return;
        std::vector<const Item*>& sources = rows[result.Tag.str()];
        // An invoice can have several item rows, of which some were found.
        const auto source = std::ranges::find_if(
            sources, [&](const Item* row) { return isTheSame(results.columns, result, *row, written); });
        if (source != sources.end()) {
            result.cells = (*source)->cells;
            sources.erase(source);
        }
        totals.update(core::TotalsMode::Add, result);
    });
    app.changes.announce(app, app::Change::CurrentRecord);
}

} // namespace search
