#include "search/searchMode.h"

#include "app/layoutRoutines.h"
#include "calc/selectedTotals.h"
#include "search/searchEngine.h"

#include <vector>

namespace search {

using app::App;
using core::Column;

namespace {

bool hasColumns(const App& app) {
    return app.document.LV.columns.count() > 1;
}

void openDialog(App& app) {
    app.mainFrm.control("Delete").Enabled = false;
    calc::RefreshSelectedTotals(app);
    takeOverColumns(app);
    app.platform.showForm("searchFrm");
}

void leaveResults(App& app) {
    app.mainFrm.control("Delete").Enabled = true;
    showAllRecords(app);
}

} // namespace

void Search_ButtonClick(App& app) {
    if (!hasColumns(app)) return;
    app::Control& button = app.mainFrm.control("Search");
    button.Value = !button.Value;
    if (button.Value)
        openDialog(app);
    else
        leaveResults(app);
}

void mnuSearch_Click(App& app) {
    if (!hasColumns(app)) return;
    app.mainFrm.control("Search").Value = true;
    openDialog(app);
}

void takeOverColumns(App& app) {
    const core::RecordsList& source = sourceList(app.document);
    core::RecordsList& results = app.document.searchLV;
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
    app.mainFrm.theListView = &app.document.LV;
    app.mainFrm.control("Formulas").Enabled = true;
    app::showRecordCount(app, app.document.LV);
    app::refreshShownRecord(app);
}

} // namespace search
