#include "shell/listEvents.h"

#include "core/translate.h"
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
        app::inform(
            app,
            core::tr("Your database has no columns, please add some in the database properties dialog."));
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

void showOnPage(App& app, RecordsList& list) {
    const bool isOfRecords =
        &list == &app.document.iLV || (&list == &app.document.searchLV && app.document.bInvoiceStyle);
    if (isOfRecords)
        showRecordOf(app, list);
    else
        SSTab1_Click(app, app::layoutTab);
}

void showInForm(App& app, RecordsList& list) {
    if (&list != &app.document.searchLV)
        showEntryForm(app);
    else if (list.count() >= 2)
        app.platform.showForm("entryFrm");
}

bool opensOnPage(App& app, const RecordsList& list) {
    if (app.document.bInvoiceStyle || &list == &app.document.iLV) return true;
    // Asked of results is whether the menu item is enabled, not whether it is checked. It is wanted so.
    return &list == &app.document.searchLV ? app.mainFrm.control("mnuLayoutDoubleClick").Enabled
                                           : app.mainFrm.bLayoutDblClick;
}

void list_DblClick(App& app, RecordsList& list) {
    const bool isEmpty = &list == &app.document.searchLV && list.count() == 1;
    if (!isEmpty) opensOnPage(app, list) ? showOnPage(app, list) : showInForm(app, list);
    app::allowManySelected(app);
}

void list_KeyDown(App& app, int keyCode) {
    if (keyCode == ctrlKey) app.mainFrm.bCtrlDown = true;
}

void list_KeyUp(App& app) {
    app.mainFrm.bCtrlDown = false;
}

} // namespace shell
