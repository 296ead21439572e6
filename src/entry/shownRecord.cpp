#include "entry/shownRecord.h"

#include "layout/sheet.h"

namespace entry {

using core::Document;
using core::Item;

Item* recordOfRow(app::App& app) {
    Document& document = app.document;
    if (app.mainFrm.theListView != &document.searchLV) return document.LV.selectedItem();
    const Item* result = document.searchLV.selectedItem();
    // A new invoice was not searched for, so no result is selected.
    if (result == nullptr) return document.bInvoiceStyle ? document.LV.selectedItem() : nullptr;
    return document.LV.find(document.bInvoiceStyle ? result->Text : result->Key);
}

Item* recordOnSheet(app::App& app) {
    const Sheet& page = sheet(app);
    if (app.mainFrm.SSTab1 != app::layoutTab || layout::isDesignMode(app)) return nullptr;
    if (page.shownKey.empty() || page.shownList != app.mainFrm.theListView) return nullptr;
    Item* record = recordOfRow(app);
    return record != nullptr && record->Key == page.shownKey ? record : nullptr;
}

void bindSheet(app::App& app) {
    const Item* record = recordOfRow(app);
    const bool isRecord = record != nullptr && !record->isTotals();
    sheet(app).shownList = app.mainFrm.theListView;
    sheet(app).shownKey = isRecord ? record->Key.str() : std::string();
}

void unbindSheet(app::App& app) {
    sheet(app).shownList = nullptr;
    sheet(app).shownKey.clear();
}

} // namespace entry
