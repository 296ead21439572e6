#include "shell/typedWords.h"

#include "entry/retrieveData.h"
#include "entry/shownRecord.h"
#include "layout/layoutPage.h"
#include "layout/sheet.h"
#include "storage/recoveryCopies.h"

namespace shell {

using app::App;

TypedWords::TypedWords(App& app) : app_(app) {
    const core::Document& document = app.document;
    if (document.bInvoiceStyle || layout::isDesignMode(app) || !storage::unsavedWork(app).isTyped) return;
    const core::Item* record = entry::recordOnSheet(app);
    if (record == nullptr) return;
    key_ = record->Key.str();
    document.layout.layoutField.forEach([&](const core::LayoutField& field) {
        const core::Column* column = document.LV.columns.find(field.Tag);
        if (column == nullptr || column->Index == 1) return;
        const std::string stored = entry::shownText(*column, core::RecordsList::cell(*record, *column));
        if (field.Text != stored) fields_.emplace_back(field.Index, field.Text);
    });
}

void TypedWords::stay() const {
    core::Item* record = fields_.empty() ? nullptr : app_.document.LV.find(key_);
    if (record == nullptr) return;
    app_.document.LV.MultiSelect = false;
    app_.document.LV.setSelectedItem(record);
}

void TypedWords::putBack() const {
    if (fields_.empty() || entry::sheet(app_).shownKey != key_) return;
    for (const auto& [index, text] : fields_)
        if (core::LayoutField* field = app_.document.layout.layoutField.find(index)) field->Text = text;
    app_.changes.announce(app_, app::Change::Unsaved);
}

} // namespace shell
