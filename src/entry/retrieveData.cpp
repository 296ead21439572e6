#include "entry/retrieveData.h"

#include "app/windowState.h"
#include "core/text.h"
#include "entry/shownRecord.h"
#include "invoice/records.h"

#include <utility>

namespace entry {

using app::App;
using core::Column;
using core::Item;
using core::RecordsList;

namespace {

struct SharedPictures {
    layout::ImageArchive* archive = nullptr;
};

} // namespace

ManyRecordsShown::ManyRecordsShown(App& app)
    : app_(app), archive_(app), before_(std::exchange(app.rooms.of<SharedPictures>().archive, &archive_)) {}

ManyRecordsShown::~ManyRecordsShown() {
    app_.rooms.of<SharedPictures>().archive = before_;
}

const Item* currentRecord(const App& app) {
    const RecordsList& list = *app.mainFrm.theListView;
    return list.count() < 2 ? nullptr : list.selectedItem();
}

std::string shownText(const Column& column, std::string_view cell) {
    return std::string(column.isType(core::ColumnType::Text) ? cell : core::trim(cell));
}

void retrieveFields(App& app) {
    // A new invoice is a record from the start, and stays new as long as the sheet shows it.
    if (recordOnSheet(app) == nullptr) app.mainFrm.control("layoutNavBar.New").Value = false;
    bindSheet(app);
    if (app.document.bInvoiceStyle) {
        // What is shown is LV's current record, which has to be the one of the row.
        Item* record = recordOfRow(app);
        if (record == nullptr) return;
        if (record != app.document.LV.selectedItem()) app.document.LV.setSelectedItem(record);
        sheet(app).bFieldChanged = false; // as below
        invoice::retrieveInvoiceRecord(app.document);
        return;
    }
    const Item* record = currentRecord(app);
    if (record == nullptr) return;
    sheet(app).bFieldChanged = false; // the texts change, which ends what Backspace has begun
    app.document.layout.layoutField.forEach([&](core::LayoutField& field) {
        // A field whose column has been removed shows nothing.
        const Column* column = app.document.LV.columns.find(field.Tag);
        field.Text = column == nullptr || column->Index == 1
                         ? std::string()
                         : shownText(*column, RecordsList::cell(*record, *column));
    });
}

void retrievePictures(App& app) {
    const Item* record = currentRecord(app);
    if (record == nullptr || app.document.layout.imgHolder.count() == 0) return;
    layout::ImageArchive own(app);
    layout::ImageArchive* shared = app.rooms.of<SharedPictures>().archive;
    layout::ImageArchive& archive = shared == nullptr ? own : *shared;
    app.document.layout.imgHolder.forEach([&](core::ImgHolder& holder) {
        const Column* column = app.document.LV.columns.find(holder.Tag);
        if (column == nullptr || column->Index == 1) return;
        const std::string name = RecordsList::cell(*record, *column).str();
        holder.ToolTipText = name;
        layout::fitImage(app, holder, holder.viewImage, layout::unpackedImage(app, name, archive));
    });
}

void clearSheet(core::Document& document) {
    document.layout.layoutField.forEach([](core::LayoutField& field) { field.Text.clear(); });
    document.layout.imgHolder.forEach([](core::ImgHolder& holder) {
        holder.viewImage.path.clear();
        holder.ToolTipText.clear();
    });
}

void refreshShownRecord(App& app) {
    if (app.mainFrm.SSTab1 != app::layoutTab) return;
    if (app.mainFrm.control("Design").Value) {
        retrieveFields(app); // the pictures keep the frames they are designed in
        return;
    }
    const core::Document& document = app.document;
    if (document.bInvoiceStyle && document.searchLV.Visible && document.searchLV.count() < 2) {
        app::showReportTab(app); // no invoice to show: the page is no place to stay, as it is none to go to
        return;
    }
    if (currentRecord(app) == nullptr) clearSheet(app.document);
    showRecord(app);
}

void showPage(App& app) {
    if (currentRecord(app) == nullptr && app.document.LV.count() > 1) clearSheet(app.document);
    showRecord(app);
}

void showRecord(App& app) {
    retrieveFields(app);
    if (!app.document.bInvoiceStyle) retrievePictures(app);
}

} // namespace entry
