#include "core/document.h"

#include "core/runTimeError.h"
#include "core/translate.h"

#include <limits>

namespace core {

Document::Document() {
    LV.columns.add("Index", "Index", 0);
    for (RecordsList* sums : {&LV3, &SerialsLV, &scratchLV}) sums->columns.add("Name", "Name");
    for (RecordsList* sums : {&LV3, &SerialsLV}) sums->columns.add("Value", "Value");
    iLV.Visible = false;
    searchLV.Visible = false;
    LV3.Visible = false;
}

void Document::clear() {
    LV.clear();
    LV.columns.clear();
    LV.columns.add("Index", "Index", 0);
    iLV.clear();
    iLV.columns.clear();
    SerialsLV.clear();
    lockPassword.clear();
    for (NamedCollection* collection : {&locks, &optionedCols, &totaledCols, &formulas, &printedCols,
                                        &prnItemCols, &prnInvoiceCols, &invoiceCols, &itemLevelCols})
        collection->clear();
}

std::string Document::nextKey() {
    if (iLastKey == std::numeric_limits<std::int16_t>::max())
        raise(errors::overflow, core::tr("record keys"));
    return "i" + std::to_string(++iLastKey);
}

} // namespace core
