#include "entry/editRecord.h"

#include "calc/serialNumbers.h"
#include "core/format.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/totalsRow.h"
#include "core/translate.h"
#include "entry/allOrNone.h"
#include "entry/invoiceRecords.h"
#include "entry/shownRecord.h"

#include <limits>

namespace entry {

namespace {

using app::App;
using core::Column;
using core::ColumnType;
using core::Document;
using core::Item;
using core::RecordsList;

bool worksOnResults(const App& app) {
    return app.mainFrm.theListView == &app.document.searchLV;
}

// Below two records the count and the slider keep what they showed. It is wanted so.
void showCount(App& app) {
    const RecordsList& records = app.document.LV;
    if (records.count() < 3) return;
    app::showRecordCount(app, records);
    app.mainFrm.Slider1.Max = records.count() - 1;
}

// A name that is no column is found out before anything is written, so that the document stays whole.
void checkColumns(const RecordsList& records, const std::vector<BoxText>& boxes) {
    for (const BoxText& box : boxes) static_cast<void>(records.columns[box.Tag]);
}

Item& addRecord(App& app) {
    Document& document = app.document;
    Item& record = document.LV.add(document.nextKey());
    showCount(app);
    core::moveTotals(document.LV);
    document.LV.MultiSelect = false; // moveTotals has switched it on
    return record;
}

void writeCells(core::Document& document, Item& record, const std::vector<BoxText>& boxes, bool bUpdate) {
    for (const BoxText& box : boxes) {
        const Column& column = document.LV.columns[box.Tag];
        RecordsList::cell(record, column) = cellText(column.type(), box.Text);
        if (column.isType(ColumnType::Number) && !box.Text.empty() && !bUpdate)
            calc::advanceSerial(document, box.Tag);
    }
}

void copyToResult(App& app, const Item& record) {
    if (!worksOnResults(app)) return;
    if (Item* result = app.document.searchLV.selectedItem()) result->cells = record.cells;
}

} // namespace

void requireKeys(const Document& document, int records) {
    if (records > std::numeric_limits<std::int16_t>::max() - document.iLastKey)
        core::raise(core::errors::overflow, core::tr("record keys"));
}

std::string cellText(ColumnType type, std::string_view text) {
    if (type == ColumnType::Currency) return text.empty() ? "$.00" : core::format(text, core::Mask::Money);
    if (type == ColumnType::Number && text.empty()) return "0";
    return std::string(text);
}

Item* EditRecord(App& app, bool bUpdate, const std::vector<BoxText>& theFields,
                 const std::vector<BoxText>& pictures) {
    Document& document = app.document;
    RecordsList& records = document.LV;
    Item* record = nullptr;
    if (bUpdate) {
        records.MultiSelect = false; // and so it stays when there is nothing to write to
        record = recordOfRow(app);
        if (record == nullptr || record->isTotals()) return nullptr;
    }
    checkColumns(records, theFields);
    checkColumns(records, pictures);
    if (bUpdate)
        core::UpdateTotalsRow(document, core::TotalsMode::Subtract, records, records.indexOf(*record));
    else
        record = &addRecord(app);
    writeCells(app.document, *record, theFields, bUpdate);
    for (const BoxText& picture : pictures)
        RecordsList::cell(*record, records.columns[picture.Tag]) = picture.Text;
    calc::CalculateRow(app, records.indexOf(*record), records);
    core::UpdateTotalsRow(document, core::TotalsMode::Add, records, records.indexOf(*record));
    records.setSelectedItem(record);
    // A new record is none of those found. In the cells of one that is, it would be stored over that one with
    // the next update.
    if (bUpdate) copyToResult(app, *record);
    app::setDocumentModified(app, true);
    records.MultiSelect = false;
    return record;
}

std::vector<calc::Uncalculated>
addRecords(App& app, int count, const std::function<void(int row, std::vector<BoxText>& boxes)>& fill) {
    Document& document = app.document;
    RecordsList& records = document.LV;
    requireKeys(document, count);
    std::vector<calc::Uncalculated> failed;
    if (count < 1) return failed;
    records.reserve(static_cast<std::size_t>(records.count()) + static_cast<std::size_t>(count));
    calc::RowCalculator formulas(app, records);
    std::vector<const Item*> added;
    std::vector<BoxText> boxes;
    addAllOrNone(document, [&] {
        for (int row = 0; row < count; ++row) {
            fill(row, boxes);
            Item& record = records.add(document.nextKey());
            writeCells(document, record, boxes, false);
            if (const auto reason = formulas.tryCalculate(record))
                failed.push_back({record.Key.str(), *reason});
            added.push_back(&record);
        }
    });
    core::moveTotals(records); // and the last record is the selected one
    records.MultiSelect = false;
    const core::TotalsRowUpdater totals(document, records);
    for (const Item* record : added) totals.update(core::TotalsMode::Add, *record);
    showCount(app);
    app::setDocumentModified(app, true);
    return failed;
}

Item* nextThatStays(RecordsList& list, const Item& from, const std::function<bool(const Item&)>& goes) {
    const auto stays = [&](int row) { return !list.at(row).isTotals() && !goes(list.at(row)); };
    const int start = list.indexOf(from);
    for (int row = start; row <= list.count(); ++row)
        if (stays(row)) return &list.at(row);
    for (int row = start - 1; row >= 1; --row)
        if (stays(row)) return &list.at(row);
    return nullptr;
}

bool deleteRecords(App& app) {
    RecordsList& records = app.document.LV;
    const Item* focused = records.selectedItem();
    if (focused == nullptr || focused->isTotals()) return false;
    if (app.mainFrm.bConfirmDelete) {
        const platform::Answer answer =
            app.platform.msgBox(core::tr("Are you sure?"), platform::Icon::Exclamation,
                                core::tr("Confirm Deletion"), platform::Buttons::YesNo);
        if (answer != platform::Answer::Yes) return false;
    }
    const std::string key = focused->Key.str();
    Item* next = nextThatStays(records, *focused, [](const Item& item) { return item.Selected; });
    const core::TotalsRowUpdater totals(app.document, records);
    records.removeIf([&](const Item& item) {
        if (!item.Selected || item.isTotals()) return false;
        totals.update(core::TotalsMode::Subtract, item);
        return true;
    });
    records.setSelectedItem(next);
    showCount(app);
    app::setDocumentModified(app, true);
    if (app.document.bInvoiceStyle) removeInvoiceRows(app.document, key);
    return true;
}

void duplicateRecord(App& app, Item& source, int copies) {
    Document& document = app.document;
    RecordsList& records = document.LV;
    requireKeys(document, copies);
    std::vector<Item*> added;
    for (int copy = 0; copy < copies; ++copy) {
        Item& item = records.add(document.nextKey());
        item.cells = source.cells;
        added.push_back(&item);
    }
    if (!added.empty()) {
        core::moveTotals(records);
        const core::TotalsRowUpdater totals(document, records);
        for (const Item* item : added) totals.update(core::TotalsMode::Add, *item);
        // The source stays the selected record; moveTotals has chosen the last one.
        added.back()->Selected = false;
        records.setSelectedItem(&source);
        showCount(app);
    }
    app::setDocumentModified(app, true);
}

void mnuDuplicate_Click(App& app) {
    Item* source = recordOfRow(app);
    if (source == nullptr || source->isTotals()) {
        app::inform(app, core::tr("You cannot duplicate the totals row."));
        return;
    }
    const std::string answer =
        app.platform.inputBox(core::tr("How many copies?"), core::tr("Duplicate Record"), "1");
    try {
        duplicateRecord(app, *source, core::toInt16(core::val(answer)));
    } catch (const core::RunTimeError& error) {
        if (error.number != core::errors::overflow) throw;
        app::inform(app, core::tr("A database has no room for so many records."));
    }
}

} // namespace entry
