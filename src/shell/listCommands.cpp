#include "shell/listCommands.h"

#include "core/text.h"
#include "entry/entryFrm.h"
#include "entry/navBar.h"
#include "search/codes/makeCodeFrm.h"
#include "search/filter/folding.h"
#include "shell/commands.h"
#include "shell/listEvents.h"
#include "shell/mainWindow.h"

#include <algorithm>

namespace shell {

using app::App;
using core::RecordsList;

namespace {

constexpr std::string_view separator = "-";

bool isDesignOn(const App& app) {
    const auto design = app.mainFrm.controls.find("Design");
    return design != app.mainFrm.controls.end() && design->second.Value;
}

// The list is in front, and it has records.
bool hasRecords(const App& app) {
    return app.mainFrm.SSTab1Enabled && app.mainFrm.SSTab1 == app::reportTab &&
           visibleList(app.document).count() >= 2;
}

// An amount is found by its digits too.
bool beginsWith(std::string_view cell, const std::string& wanted) {
    const std::string text = search::folded(core::left(cell, wanted.size() + 1));
    return text.starts_with(wanted) || (text.starts_with('$') && text.substr(1).starts_with(wanted));
}

int firstRow(const RecordsList& list, const core::Column& column, const std::string& wanted, int from) {
    for (int row = from; row <= list.count(); ++row)
        if (const core::Item& item = list.at(row);
            !item.isTotals() && beginsWith(RecordsList::cell(item, column).view(), wanted))
            return row;
    return 0;
}

} // namespace

std::vector<std::string_view> contextMenuKeys(const RecordsList& list, const core::Document& document) {
    std::vector<std::string_view> wanted = {"mnuOpenPage"};
    const auto add = [&](std::initializer_list<std::string_view> keys) {
        wanted.insert(wanted.end(), keys.begin(), keys.end());
    };
    if (!document.bInvoiceStyle) add({"mnuOpenForm"});
    add({separator, "mnuNewRecord"});
    if (!document.bInvoiceStyle) add({"mnuDuplicate"});
    if (&list != &document.searchLV && !(document.bInvoiceStyle && document.bInvoiceView)) add({"Delete"});
    add({separator, "mnuUndo", "mnuRedo", separator, "mnuCopy", "mnuCopyHeadings", "mnuPaste", separator,
         "mnuSetValues"});
    if (search::hasPictureColumn(document)) add({"mnuMakeCode"});
    add({"mnuReplace", "mnuSearch", separator, "mnuSelectedTotals", "Selected_As_Report"});
    std::vector<std::string_view> keys;
    for (const std::string_view key : wanted) {
        const bool isDouble = key == separator && keys.back() == separator;
        if ((key == separator && !isDouble) || (key != separator && hasCommand(key))) keys.push_back(key);
    }
    return keys;
}

std::string_view defaultMenuKey(App& app, const RecordsList& list) {
    return opensOnPage(app, list) ? "mnuOpenPage" : "mnuOpenForm";
}

bool canOpenOnPage(const App& app) {
    return hasRecords(app);
}

void openOnPage(App& app) {
    showOnPage(app, visibleList(app.document));
}

bool canOpenInForm(const App& app) {
    return hasRecords(app) && !app.document.bInvoiceStyle;
}

void openInForm(App& app) {
    showInForm(app, visibleList(app.document));
}

bool canAddRecord(const App& app) {
    return app.mainFrm.SSTab1Enabled && app.mainFrm.SSTab1 != app::previewTab && !isDesignOn(app);
}

void newRecord(App& app) {
    RecordsList& list = visibleList(app.document);
    // The form adds nothing to results, the page does.
    const bool inForm =
        app.mainFrm.SSTab1 == app::reportTab && &list != &app.document.searchLV && !opensOnPage(app, list);
    if (inForm) {
        entry::formOpening(app).bNew = true;
        showInForm(app, list);
        entry::formOpening(app).bNew = false; // a database without columns has no form to show
        return;
    }
    if (app.mainFrm.SSTab1 == app::reportTab) SSTab1_Click(app, app::layoutTab);
    if (app.mainFrm.SSTab1 == app::layoutTab) entry::layoutNavBar_ButtonClick(app, "New");
}

void sortList(App& app, RecordsList& list, int columnIndex, Order order) {
    // Every sort turns the order round.
    list.SortOrder = order == Order::Ascending ? 1 : 0;
    list_ColumnClick(app, list, columnIndex);
}

int rowBeginningWith(const RecordsList& list, const core::Column& column, std::string_view typed,
                     int currentRow) {
    const std::string wanted = search::folded(typed);
    if (wanted.empty()) return 0;
    if (const int row = firstRow(list, column, wanted, 1); row != 0) return row;
    const std::string letter(core::left(wanted, 1));
    if (!core::replaceAll(wanted, letter, "").empty()) return 0;
    const int next = firstRow(list, column, letter, std::max(currentRow, 0) + 1);
    return next != 0 ? next : firstRow(list, column, letter, 1);
}

} // namespace shell
