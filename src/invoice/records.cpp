#include "invoice/records.h"

#include "calc/itemColumns.h"
#include "core/text.h"
#include "invoice/views.h"

#include <map>

namespace invoice {

using app::App;
using core::Column;
using core::Item;
using core::LayoutField;
using core::RecordsList;

namespace {

// The value of one row; a cell without a separator has none.
std::string partOf(const std::vector<std::string_view>& parts, std::size_t row) {
    return parts.size() > 1 && row < parts.size() ? std::string(parts[row]) : std::string();
}

} // namespace

Item& addInvoiceRecord(App& app) {
    core::Document& document = app.document;
    RecordsList& records = document.LV;
    records.MultiSelect = false;
    const std::string key = document.nextKey();
    records.add(key);
    if (records.count() >= 3) {
        app::showRecordCount(app, records);
        app.mainFrm.Slider1.Max = records.count() - 1;
    }
    core::moveTotals(records);
    app::setDocumentModified(app, true);
    records.MultiSelect = false; // moveTotals has switched it on
    Item& record = records.byKey(key);
    records.setSelectedItem(&record);
    refreshRows(app.document);
    return record;
}

void retrieveInvoiceRecord(core::Document& document) {
    const Item* record = document.LV.selectedItem();
    if (document.LV.count() < 2 || record == nullptr) return;
    const calc::ItemColumns items(document);
    std::map<std::string_view, std::size_t> rows; // how many fields of a group have been filled
    document.layout.layoutField.forEach([&](LayoutField& field) {
        const Column* column = document.LV.columns.find(field.Tag);
        if (column == nullptr || column->Index == 1) {
            field.Text.clear();
            return;
        }
        const std::string_view cell = RecordsList::cell(*record, *column);
        if (items.contains(field.Tag))
            field.Text = partOf(core::split(cell, core::itemSeparator), rows[column->Text]++);
        else
            field.Text = column->isType(core::ColumnType::Text) ? cell : core::trim(cell);
    });
}

} // namespace invoice
