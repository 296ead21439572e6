#include "search/manyRecords.h"

#include "app/windowState.h"
#include "calc/selectedTotals.h"
#include "core/translate.h"

#include <unordered_set>

namespace search {

using app::App;
using core::Document;
using core::Item;
using core::RecordsList;

namespace {

const core::CellText& recordKeyOf(const Document& document, const RecordsList& list, const Item& row) {
    const bool standsForRecord = document.bInvoiceStyle && &list != &document.LV;
    return standsForRecord ? row.Text : row.Key;
}

} // namespace

RecordsList& listOnShow(Document& document) {
    if (document.searchLV.Visible) return document.searchLV;
    return document.iLV.Visible ? document.iLV : document.LV;
}

std::vector<Item*> recordsIn(App& app, Scope scope) {
    Document& document = app.document;
    RecordsList& list = scope == allRecords     ? document.LV
                        : scope == foundRecords ? document.searchLV
                                                : listOnShow(document);
    std::vector<Item*> records;
    std::unordered_set<const Item*> taken;
    list.forEach([&](Item& row) {
        if (row.isTotals() || (scope == selectedRecords && !row.Selected)) return;
        Item* record = &list == &document.LV ? &row : document.LV.find(recordKeyOf(document, list, row));
        if (record != nullptr && !record->isTotals() && taken.insert(record).second)
            records.push_back(record);
    });
    return records;
}

void selectRecords(App& app, const std::vector<const Item*>& records) {
    Document& document = app.document;
    std::unordered_set<std::string> keys;
    for (const Item* record : records) keys.insert(record->Key.str());
    const auto select = [&](RecordsList& list) {
        list.MultiSelect = true;
        list.clearSelection();
        bool isFirst = true;
        list.forEach([&](Item& row) {
            if (row.isTotals() || !keys.contains(recordKeyOf(document, list, row).str())) return;
            if (isFirst) list.setSelectedItem(&row);
            isFirst = false;
            row.Selected = true;
        });
    };
    RecordsList& list = listOnShow(document);
    select(document.LV);
    if (&list != &document.LV) select(list);
    calc::list_Click(app, list);
    app.mainFrm.listScroll = app::ListScroll::ToCurrent;
    app.changes.announce(app, app::Change::CurrentRecord);
}

std::string nameOf(const Document& document, const Item& record) {
    for (const int index : document.LV.columns.displayOrder()) {
        const core::Column& column = document.LV.columns.at(index);
        if (column.Index != 1 && !RecordsList::cell(record, column).empty())
            return RecordsList::cell(record, column).str();
    }
    return core::tr("(empty)");
}

std::string counted(std::size_t number, const char* one, const char* many) {
    std::string text = std::to_string(number);
    text.append(" ").append(number == 1 ? one : many);
    return text;
}

} // namespace search
