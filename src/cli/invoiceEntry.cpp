#include "cli/invoiceEntry.h"

#include "core/text.h"
#include "entry/invoiceRecords.h"
#include "entry/navBar.h"

namespace cli {

namespace {

std::vector<core::LayoutField*> fieldsOf(Session& session, const core::Column& column) {
    std::vector<core::LayoutField*> fields;
    session.app.document.layout.layoutField.forEach([&](core::LayoutField& field) {
        if (field.Tag == column.Text) fields.push_back(&field);
    });
    return fields;
}

// "2@3@" for two rows; what stands behind the last separator is no value.
void fillFields(Session& session, const CellValue& value) {
    const std::vector<core::LayoutField*> fields = fieldsOf(session, *value.column);
    const std::string named = "the column \"" + value.column->Text + "\"";
    if (fields.empty()) throw Failure(session.file, named + " has no field on the layout");
    if (fields.size() == 1) {
        fields.front()->Text = value.text;
        return;
    }
    std::vector<std::string_view> parts = core::split(value.text, core::itemSeparator);
    if (parts.back().empty()) parts.pop_back();
    if (parts.size() > fields.size())
        throw Failure(session.file, named + " has " + std::to_string(fields.size()) + " rows on the layout");
    for (std::size_t row = 0; row < fields.size(); ++row)
        fields[row]->Text = row < parts.size() ? std::string(parts[row]) : std::string();
}

void store(Session& session, const std::vector<CellValue>& values, const entry::ColumnNames* only) {
    fillInvoice(session, values);
    session.change([&] { entry::editInvoiceRecord(session.app, true, only); });
}

} // namespace

void fillInvoice(Session& session, const std::vector<CellValue>& values) {
    for (const CellValue& value : values) fillFields(session, value);
}

core::Item& addInvoice(Session& session, const std::vector<CellValue>& values) {
    session.change([&] { entry::layoutNavBar_ButtonClick(session.app, "New"); });
    core::Item& record = *session.app.document.LV.selectedItem();
    store(session, values, nullptr);
    return record;
}

void updateInvoice(Session& session, core::Item& record, const std::vector<CellValue>& values) {
    session.change([&] {
        session.app.document.LV.MultiSelect = false;
        session.app.document.LV.setSelectedItem(&record);
    });
    // A cell that the layout's fields cannot hold as it is would come out of them as another one.
    entry::ColumnNames named;
    for (const CellValue& value : values) named.insert(value.column->Text);
    store(session, values, &named);
}

} // namespace cli
