#include "shell/listEvents.h"

#include "shell/mainWindow.h"

#include <algorithm>

namespace shell {

using app::App;
using core::Column;
using core::ColumnType;
using core::RecordsList;

namespace {

bool canBeTypedIn(const Column& column) {
    switch (column.type()) {
    case ColumnType::Date:
    case ColumnType::Currency:
    case ColumnType::Text:
    case ColumnType::Number:
        return true;
    default:
        return false;
    }
}

void showEntryForm(App& app) {
    const core::ColumnHeaders& columns = app.document.LV.columns;
    if (columns.count() < 2) {
        app::inform(app, "Your database has no columns, please add some in the database properties dialog.");
        return;
    }
    if (std::ranges::any_of(columns, canBeTypedIn)) app.platform.showForm("entryFrm");
}

// Shows on the layout page the record that a row of the invoice list or of the results came from.
void showRecordOf(App& app, const RecordsList& list) {
    const core::Item* row = list.selectedItem();
    if (row == nullptr || row->Text.empty()) return;
    app.document.LV.MultiSelect = false;
    app.document.LV.setSelectedItem(&app.document.LV.byKey(row->Text));
    SSTab1_Click(app, app::layoutTab);
}

void results_DblClick(App& app, RecordsList& results) {
    if (results.count() == 1) return;
    if (app.document.bInvoiceStyle) {
        showRecordOf(app, results);
        return;
    }
    // Asked is whether the menu item is enabled, not whether it is checked. It is wanted so.
    if (app.mainFrm.control("mnuLayoutDoubleClick").Enabled)
        SSTab1_Click(app, app::layoutTab);
    else if (results.count() >= 2)
        app.platform.showForm("entryFrm");
}

} // namespace

void list_ColumnClick(App& app, RecordsList& list, int columnIndex) {
    if (list.count() < 2 || list.totals() == nullptr) return;
    list.Sorted = true;
    const Column& column = list.columns.at(columnIndex);
    const bool keyInText = &list != &app.document.iLV && !app.document.bInvoiceStyle;
    if (keyInText || &list == &app.document.LV)
        core::sortByColumnKey(list, column);
    else
        core::sortByHiddenColumn(list, column);
    core::moveTotals(list);
    app.mainFrm.listScroll = app::ListScroll::Stay; // though the last record is the current one now
    app.changes.announce(app, app::Change::CurrentRecord);
}

void list_DblClick(App& app, RecordsList& list) {
    if (&list == &app.document.searchLV)
        results_DblClick(app, list);
    else if (&list == &app.document.iLV)
        showRecordOf(app, list);
    else if (app.document.bInvoiceStyle || app.mainFrm.bLayoutDblClick)
        SSTab1_Click(app, app::layoutTab);
    else
        showEntryForm(app);
    app::allowManySelected(app);
}

void list_KeyDown(App& app, int keyCode) {
    if (keyCode == ctrlKey) app.mainFrm.bCtrlDown = true;
}

void list_KeyUp(App& app) {
    app.mainFrm.bCtrlDown = false;
}

} // namespace shell
