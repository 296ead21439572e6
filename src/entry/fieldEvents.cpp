#include "entry/fieldEvents.h"

#include "core/number.h"
#include "core/text.h"
#include "core/translate.h"
#include "entry/invoiceRecords.h"
#include "entry/masks.h"
#include "entry/retrieveData.h"
#include "entry/shownRecord.h"
#include "layout/sheet.h"

namespace entry {

using app::App;
using core::Column;
using core::ColumnType;
using core::LayoutField;

namespace {

bool isBrowsing(App& app) {
    return !app.mainFrm.control("Design").Value;
}

const Column* columnOf(const core::Document& document, const LayoutField* field) {
    return field == nullptr ? nullptr : document.LV.columns.find(field->Tag);
}

} // namespace

void layoutField_GotFocus(App& app, int index) {
    if (!isBrowsing(app)) return;
    app.mainFrm.iFieldFocus = index;
    // The focus can come back to a field before the page shows its record: what stands there is an older one.
    if (!app.document.bInvoiceStyle || recordOnSheet(app) == nullptr) return;
    // Each arrival in a single or a calculated field stores the whole sheet and works it out: this is how the
    // sums of an invoice keep up with typing.
    const LayoutField* field = app.document.layout.layoutField.find(index);
    const Column* column = columnOf(app.document, field);
    if (column == nullptr) return;
    const bool isCalculated = column->isType(ColumnType::Calculation);
    if (!isCalculated && layout::isRepeatedField(app.document.layout, *field)) return;
    editInvoiceRecord(app, true);
    retrieveFields(app);
}

void layoutField_LostFocus(App& app, int index) {
    if (!isBrowsing(app) || app.document.bInvoiceStyle) return;
    LayoutField* field = app.document.layout.layoutField.find(index);
    const Column* column = columnOf(app.document, field);
    if (column == nullptr || !column->isNumeric()) return;
    if (!core::isNumeric(field->Text)) {
        field->Text = "0";
        return;
    }
    if (!column->isType(ColumnType::Currency)) return;
    EntryBox box{field->Tag, field->Text};
    completeCurrencyText(app, box);
    field->Text = box.Text;
}

void layoutField_KeyDown(App& app, int KeyCode) {
    if (KeyCode == backspaceKey) sheet(app).bFieldChanged = true;
}

bool layoutField_KeyPress(App& app, int index, char32_t character) {
    if (character == enterKey) {
        app::inform(app, core::tr("Please allow your text to wrap automatically."));
        return false;
    }
    const Column* column = columnOf(app.document, app.document.layout.layoutField.find(index));
    if (column == nullptr || !column->isNumeric() || character == U'.') return true;
    std::string text;
    core::appendCodePoint(text, character);
    return core::isNumeric(text);
}

int layoutField_Change(App& app, int index, std::string_view text) {
    LayoutField* field = app.document.layout.layoutField.find(index);
    if (field == nullptr || !isBrowsing(app)) return -1;
    field->Text = text;
    app.changes.announce(app, app::Change::Unsaved);
    bool& bFieldChanged = sheet(app).bFieldChanged;
    if (bFieldChanged) {
        bFieldChanged = false;
        return -1;
    }
    const Column* column = columnOf(app.document, field);
    if (column == nullptr || !column->isType(ColumnType::Date)) return -1;
    EntryBox box{field->Tag, field->Text, -1};
    insertDateSlashes(app, box);
    field->Text = box.Text;
    return box.SelStart;
}

} // namespace entry
