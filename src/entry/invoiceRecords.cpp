#include "entry/invoiceRecords.h"

#include "calc/invoiceCalculation.h"
#include "calc/itemColumns.h"
#include "calc/serialNumbers.h"
#include "core/format.h"
#include "core/text.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "entry/allOrNone.h"
#include "entry/editRecord.h"
#include "entry/shownRecord.h"
#include "invoice/records.h"
#include "invoice/views.h"

#include <set>

namespace entry {

namespace {

using app::App;
using core::Column;
using core::ColumnType;
using core::Document;
using core::Item;
using core::LayoutField;
using core::RecordsList;

// The last two digits of an amount typed without a point are cents.
std::string withCents(const std::string& text) {
    if (text.find('.') != std::string::npos) return text;
    if (core::length(core::trim(text)) <= 2) return text + ".00";
    const std::size_t size = core::length(text);
    return std::string(core::left(text, size - 2)) + "." + std::string(core::right(text, 2));
}

std::string filledCell(const Column& column, const std::string& text) {
    return column.isType(ColumnType::Currency) ? core::format(withCents(text), core::Mask::InvoiceMoney)
                                               : text;
}

void writeCells(core::Document& document, Item& record, bool bUpdate, const ColumnNames* only) {
    const calc::ItemColumns items(document);
    std::set<std::string, std::less<>> begun; // groups that have their first value
    document.layout.layoutField.forEach([&](const LayoutField& field) {
        const Column* column = document.LV.columns.find(field.Tag);
        if (column == nullptr || column->Index == 1 || (only != nullptr && !only->contains(field.Tag)))
            return;
        core::CellText& cell = RecordsList::cell(record, *column);
        if (!items.contains(field.Tag)) {
            cell = invoiceCell(*column, field.Text);
            return;
        }
        const bool isFirst = begun.insert(field.Tag).second;
        const std::string before = isFirst && bUpdate ? std::string() : cell.str();
        cell = before + itemValue(*column, field.Text) + core::itemSeparator;
    });
}

void copyRow(const RecordsList& from, const Item& source, const RecordsList& to, Item& target) {
    for (const Column& column : to.columns) {
        if (column.Index == 1) continue;
        const Column* same = from.columns.find(column.Text);
        if (same != nullptr) RecordsList::cell(target, column) = RecordsList::cell(source, *same).str();
    }
}

// The rows of the results that came from the record show what the view shows now.
void refreshResults(App& app) {
    Document& document = app.document;
    if (app.mainFrm.theListView != &document.searchLV) return;
    const Item* selected = document.searchLV.selectedItem();
    if (selected == nullptr) return;
    const std::string key = selected->Text.str();
    Item* row = document.searchLV.findText(key);
    const Item* source = document.iLV.findText(key);
    while (row != nullptr && source != nullptr) {
        copyRow(document.iLV, *source, document.searchLV, *row);
        if (!document.bInvoiceView) return;
        const int nextRow = document.searchLV.indexOf(*row) + 1;
        const int nextSource = document.iLV.indexOf(*source) + 1;
        row = nextRow <= document.searchLV.count() ? document.searchLV.findText(key, nextRow) : nullptr;
        source = nextSource <= document.iLV.count() ? document.iLV.findText(key, nextSource) : nullptr;
    }
}

} // namespace

std::string invoiceCell(const Column& column, const std::string& text) {
    if (!text.empty()) return filledCell(column, text);
    if (column.isType(ColumnType::Currency)) return "$.00";
    return column.isType(ColumnType::Number) ? "0" : "";
}

// An empty box of an item row leaves an empty slot.
std::string itemValue(const Column& column, const std::string& text) {
    return text.empty() ? std::string() : filledCell(column, text);
}

void editInvoiceRecord(App& app, bool bUpdate, const ColumnNames* only) {
    RecordsList& records = app.document.LV;
    records.MultiSelect = false;
    Item* record = bUpdate ? recordOfRow(app) : &invoice::addInvoiceRecord(app);
    if (record == nullptr || record->isTotals()) return;
    if (bUpdate)
        core::UpdateTotalsRow(app.document, core::TotalsMode::Subtract, records, records.indexOf(*record));
    writeCells(app.document, *record, bUpdate, only);
    calc::calculateInvoice(app, records, records.indexOf(*record));
    core::UpdateTotalsRow(app.document, core::TotalsMode::Add, records, records.indexOf(*record));
    records.setSelectedItem(record);
    app::setDocumentModified(app, true);
    records.MultiSelect = false;
    invoice::refreshRows(app.document);
    refreshResults(app);
}

void proposeValues(App& app) {
    Document& document = app.document;
    document.layout.layoutField.forEach([&](LayoutField& field) {
        field.Text = calc::proposedValue(app, field.Tag).value_or(std::string());
        Item* serial = document.SerialsLV.findText(field.Tag);
        if (document.bInvoiceStyle && serial != nullptr) serial->subItem(1) = field.Text;
    });
}

std::vector<calc::Uncalculated> addInvoices(App& app, int count, const std::function<void(int row)>& fill) {
    RecordsList& records = app.document.LV;
    requireKeys(app.document, count);
    std::vector<const Item*> added;
    std::vector<calc::Uncalculated> failed;
    addAllOrNone(app.document, [&] {
        for (int row = 0; row < count; ++row) {
            proposeValues(app);
            fill(row);
            Item& record = records.add(app.document.nextKey());
            writeCells(app.document, record, true, nullptr);
            if (const auto reason = calc::tryCalculateInvoice(app.document, records, records.count()))
                failed.push_back({record.Key.str(), *reason});
            added.push_back(&record);
        }
    });
    if (added.empty()) return failed;
    core::moveTotals(records); // and the last invoice is the selected one
    records.MultiSelect = false;
    const core::TotalsRowUpdater totals(app.document, records);
    for (const Item* record : added) totals.update(core::TotalsMode::Add, *record);
    app::setDocumentModified(app, true);
    invoice::rebuildView(app.document);
    return failed;
}

bool deleteInvoices(App& app) {
    Document& document = app.document;
    if (document.iLV.empty()) return false;
    if (app.mainFrm.bConfirmDelete) {
        const platform::Answer answer =
            app.platform.msgBox(core::tr("Are you sure?"), platform::Icon::Exclamation,
                                core::tr("Confirm Deletion"), platform::Buttons::YesNo);
        if (answer != platform::Answer::Yes) return false;
    }
    std::set<std::string, std::less<>> gone;
    document.iLV.forEach([&](Item& row) {
        if (!row.Selected || row.Text == core::totalsKey) return;
        gone.insert(row.Text.str());
        row.Selected = false;
    });
    const Item* row = document.iLV.selectedItem();
    const Item* next = row == nullptr ? nullptr : nextThatStays(document.iLV, *row, [&](const Item& item) {
        return gone.contains(item.Text.view());
    });
    document.LV.removeIf(
        [&](const Item& record) { return !record.isTotals() && gone.contains(record.Key.view()); });
    if (!gone.empty()) {
        document.LV.clearSelection();
        document.LV.setSelectedItem(next == nullptr ? nullptr : document.LV.find(next->Text));
    }
    app::setDocumentModified(app, true);
    invoice::refreshRows(app.document);
    if (document.LV.count() >= 3) {
        app::showRecordCount(app, document.iLV);
        app.mainFrm.Slider1.Max = document.iLV.count() - 1;
    }
    return true;
}

void removeInvoiceRows(core::Document& document, const std::string& key) {
    RecordsList& results = document.searchLV;
    if (results.Visible)
        results.removeIf([&](const Item& row) { return !row.isTotals() && row.Text == key; });
    invoice::refreshRows(document);
}

void Delete_ButtonClick(App& app) {
    if (app.mainFrm.SSTab1 != app::reportTab || app.document.searchLV.Visible) return;
    // By the list on view, not by the style: a new database that is cancelled half-way has chosen another
    // one.
    if (!app.document.iLV.Visible)
        deleteRecords(app);
    else if (!app.document.bInvoiceView)
        deleteInvoices(app);
}

} // namespace entry
