#include "entry/navBar.h"
#include "layout/layoutPage.h"

#include "calc/serialNumbers.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "entry/editRecord.h"
#include "entry/fieldEvents.h"
#include "entry/invoiceRecords.h"
#include "entry/retrieveData.h"
#include "entry/shownRecord.h"
#include "invoice/records.h"
#include "layout/images.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>

namespace entry {

using app::App;
using core::Document;
using core::Item;
using core::RecordsList;

namespace {

// In an invoice database the rows found are those of the invoice list; the record is the one in LV. It has
// to follow, or what is typed for one invoice would be stored in another.
void selectItem(App& app, Item& item) {
    Document& document = app.document;
    app.mainFrm.theListView->MultiSelect =
        false; // the sheet shows one record, and Delete takes the selected ones
    app.mainFrm.theListView->setSelectedItem(&item);
    app.mainFrm.listScroll = app::ListScroll::ToCurrent; // it was chosen here, while the list is out of sight
    if (document.bInvoiceStyle && document.searchLV.Visible)
        if (Item* record = document.LV.find(item.Text)) document.LV.setSelectedItem(record);
}

void selectRow(App& app, int row) {
    selectItem(app, app.mainFrm.theListView->at(row));
    app.mainFrm.Slider1.Value = std::min(row, app.mainFrm.Slider1.Max);
}

int currentRow(const App& app) {
    const RecordsList& list = *app.mainFrm.theListView;
    const Item* item = list.selectedItem();
    return item == nullptr ? 1 : list.indexOf(*item);
}

void goFirst(App& app) {
    if (!app.mainFrm.theListView->empty()) selectRow(app, 1);
    showRecord(app);
}

void goBack(App& app) {
    const int row = currentRow(app);
    if (row > 1) selectRow(app, row - 1);
    showRecord(app);
}

// The Totals row, the last one, is never reached.
void goNext(App& app) {
    const int row = currentRow(app);
    if (row + 1 <= app.mainFrm.theListView->count() - 1) selectRow(app, row + 1);
    showRecord(app);
}

void goLast(App& app) {
    const int count = app.mainFrm.theListView->count();
    if (count > 1) selectRow(app, count - 1);
    showRecord(app);
}

void newRecord(App& app) {
    sheet(app).bFieldChanged = false; // the texts change, which ends what Backspace has begun
    Document& document = app.document;
    clearSheet(app.document);
    proposeValues(app);
    unbindSheet(app);
    app.mainFrm.control("layoutNavBar.New").Value = true; // until another record is shown
    if (!document.bInvoiceStyle) return;
    invoice::addInvoiceRecord(app);
    // It is none of those found: what is typed must not reach the one that was on the sheet before.
    if (document.searchLV.Visible) {
        document.searchLV.clearSelection();
        document.searchLV.setSelectedItem(nullptr);
    }
    bindSheet(app);
    layout::layoutPage(app).layoutPic2.Visible = true;
}

// The record that is meant by a button, or nothing after a message. A sheet of a new record has none yet,
// though there is a current one: the button would change or delete what nobody sees.
Item* recordMeant(App& app) {
    Item* record = recordOnSheet(app);
    if (isSheetNew(app) && !app.document.bInvoiceStyle)
        app::inform(app,
                    core::tr("This record is new.  To store it please click on the Add toolbar button."));
    else if (record == nullptr)
        app::inform(app, core::tr("There is no record on the page."));
    return record;
}

// A damaged file can have objects of a column that is not there.
bool isColumn(const core::Document& document, const std::string& name) {
    const core::Column* column = document.LV.columns.find(name);
    return column != nullptr && column->Index != 1;
}

// The sheet's pictures as cells. One that came from the clipboard is stored now. Nothing, after a message,
// when the archive cannot take it: the sheet then stays as it is, and no record is half written.
std::optional<std::vector<BoxText>> pictureTexts(App& app) {
    std::vector<BoxText> texts;
    try {
        app.document.layout.imgHolder.forEach([&](core::ImgHolder& holder) {
            if (!isColumn(app.document, holder.Tag)) return;
            if (holder.ToolTipText == layout::clipboardMark)
                holder.ToolTipText = layout::storeClipboardImage(app, holder.viewImage);
            texts.push_back({holder.Tag, holder.ToolTipText});
        });
    } catch (const core::RunTimeError& error) {
        app::warn(app,
                  core::fill(core::tr("The picture could not be added to the database: %1"), {error.what()}));
        return std::nullopt;
    }
    return texts;
}

bool writeSheet(App& app, bool bUpdate) {
    // The field that is being typed in has kept the focus; it gets its check and format all the same.
    if (app.mainFrm.iFieldFocus != 0) layoutField_LostFocus(app, app.mainFrm.iFieldFocus);
    std::vector<BoxText> fields;
    app.document.layout.layoutField.forEach([&](const core::LayoutField& field) {
        if (isColumn(app.document, field.Tag)) fields.push_back({field.Tag, field.Text});
    });
    const std::optional<std::vector<BoxText>> pictures = pictureTexts(app);
    if (!pictures) return false;
    EditRecord(app, bUpdate, fields, *pictures);
    return true;
}

void addSheet(App& app) {
    if (app.document.bInvoiceStyle) {
        if (recordOnSheet(app) == nullptr) return;
        editInvoiceRecord(app, true);
        app.document.layout.layoutField.forEach([](core::LayoutField& field) { field.Text.clear(); });
        return;
    }
    if (writeSheet(app, false)) newRecord(app);
}

void updateSheet(App& app) {
    if (recordMeant(app) == nullptr) return;
    if (app.document.bInvoiceStyle) {
        editInvoiceRecord(app, true);
        app.mainFrm.control("layoutNavBar.New").Value = false;
        showRecord(app);
        return;
    }
    if (writeSheet(app, true)) showRecord(app);
}

// What follows the records that have gone takes their place on the sheet; at the end the last record does.
void selectBehindGone(RecordsList& list, int row) {
    if (list.selectedItem() == nullptr && list.count() > 1)
        list.setSelectedItem(&list.at(std::clamp(row, 1, list.count() - 1)));
}

void deleteShown(App& app) {
    Item* record = recordMeant(app);
    if (record == nullptr) return;
    const int row = currentRow(app);
    // Others may be selected in the list, or have stayed so from being shown or printed.
    app.document.LV.MultiSelect = false;
    app.document.LV.setSelectedItem(record);
    RecordsList& results = app.document.searchLV;
    Item* result = results.Visible && !app.document.bInvoiceStyle ? results.selectedItem() : nullptr;
    if (!deleteRecords(app)) return;
    if (result != nullptr && !result->isTotals()) results.remove(*result);
    if (results.Visible && results.count() > 1)
        selectRow(app, std::clamp(row, 1, results.count() - 1));
    else
        selectBehindGone(app.document.LV, row);
    clearSheet(app.document);
    app.changes.announce(app, app::Change::CurrentRecord);
}

const std::map<std::string_view, std::function<void(App&)>>& routines() {
    static const std::map<std::string_view, std::function<void(App&)>> all = {
        {"New", newRecord}, {"Add", addSheet}, {"Update", updateSheet}, {"Delete", deleteShown},
        {"First", goFirst}, {"Back", goBack},  {"Next", goNext},        {"Last", goLast},
    };
    return all;
}

} // namespace

std::span<const NavButton> navButtons() {
    static constexpr std::array<NavButton, 8> buttons = {{
        {"New", core::marked("Create New Record"), "recordNew"},
        {"Add", core::marked("Add Record"), "recordAdd"},
        {"Update", core::marked("Update Record"), "recordUpdate"},
        {"Delete", core::marked("Delete Record"), "recordDelete"},
        {"First", core::marked("Go To First Record"), "first"},
        {"Back", core::marked("View Previous Record"), "back"},
        {"Next", core::marked("View Next Record"), "next"},
        {"Last", core::marked("Go To Last Record"), "last"},
    }};
    return buttons;
}

bool isNavButtonEnabled(const App& app, std::string_view key) {
    const auto control = app.mainFrm.controls.find("layoutNavBar." + std::string(key));
    return control == app.mainFrm.controls.end() || control->second.Enabled;
}

bool isSheetNew(const App& app) {
    const auto control = app.mainFrm.controls.find("layoutNavBar.New");
    return control != app.mainFrm.controls.end() && control->second.Value;
}

void layoutNavBar_ButtonClick(App& app, std::string_view key) {
    const auto routine = routines().find(key);
    if (routine != routines().end() && isNavButtonEnabled(app, key)) routine->second(app);
}

void Slider1_Change(App& app, int value) {
    RecordsList& list = *app.mainFrm.theListView;
    app.mainFrm.Slider1.Value = value;
    if (list.count() < 2) return;
    selectItem(app, list.at(std::clamp(value, 1, list.count() - 1))); // the Totals row is no record
    showRecord(app);
}

} // namespace entry
