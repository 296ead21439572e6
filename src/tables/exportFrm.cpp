#include "tables/exportFrm.h"

#include "app/hourglass.h"
#include "calc/formulas.h"
#include "core/runTimeError.h"
#include "core/translate.h"
#include "search/manyRecords.h"
#include "storage/saveSteps.h"

#include <algorithm>
#include <filesystem>

namespace tables {

namespace {

using exchange::Format;

struct Kind {
    Format format;
    std::string_view name, ending;
};
constexpr std::array<Kind, 8> kinds = {{{Format::Xlsx, core::marked("Excel workbook"), ".xlsx"},
                                        {Format::Ods, core::marked("OpenDocument spreadsheet"), ".ods"},
                                        {Format::Csv, core::marked("Values divided by commas"), ".csv"},
                                        {Format::Tsv, core::marked("Values divided by tabs"), ".tsv"},
                                        {Format::Html, core::marked("Web page"), ".html"},
                                        {Format::Json, core::marked("JSON"), ".json"},
                                        {Format::Sqlite, core::marked("SQLite database"), ".sqlite"},
                                        {Format::Vcard, core::marked("Address cards"), ".vcf"}}};

// What the form was left with, for the next time.
struct LastExport {
    int format = 0;
    bool bTotals = false, bFormulas = false, bPictures = false;
};

} // namespace

void mnuExportTable_Click(app::App& app) {
    if (app.document.LV.columns.count() < 2)
        app::inform(app, core::tr("Your database has no columns to export."));
    else
        app.platform.showForm("exportFrm");
}

exportFrm::exportFrm(app::App& app) : app_(app) {
    using search::Scope;
    for (const Scope each : {search::selectedRecords, search::foundRecords, search::allRecords}) {
        const auto place = static_cast<std::size_t>(each);
        if (each != search::foundRecords || app.document.searchLV.Visible)
            records_.at(place) = search::recordsIn(app, each);
        Opt1.at(place) = {!records_.at(place).empty(), records_.at(place).size()};
    }
    Opt1[search::allRecords].Enabled = true; // a table without rows has its columns still
    scope = search::allRecords;
    // The current record is always selected, so one that is selected says little.
    if (Opt1[search::foundRecords].Enabled)
        scope = search::foundRecords;
    else if (Opt1[search::selectedRecords].Records > 1)
        scope = search::selectedRecords;
    const core::ColumnHeaders& columns = app.document.LV.columns;
    const core::ColumnHeaders& shown = search::listOnShow(app.document).columns;
    const auto add = [&](const core::Column* column, bool isShown) {
        if (column == nullptr || column->Index == 1 || std::ranges::find(columns_, column) != columns_.end())
            return;
        columns_.push_back(column);
        List1.push_back({column->Text, isShown});
    };
    for (const int index : shown.displayOrder())
        if (index > 1) add(columns.find(shown.at(index).Text), true);
    for (const int index : columns.displayOrder()) add(&columns.at(index), app.document.bInvoiceStyle);
    for (const Kind& kind : kinds)
        formatCbo.push_back(core::tr(kind.name).append(" (").append(kind.ending).append(")"));
    const LastExport& last = app.rooms.of<LastExport>();
    ListIndex = last.format;
    Check1 = last.bTotals;
    Check2 = last.bFormulas;
    Check3 = last.bPictures;
    show();
}

core::Item* exportFrm::totals() const {
    if (scope == search::selectedRecords) return nullptr;
    return scope == search::foundRecords ? app_.document.searchLV.totals() : app_.document.LV.totals();
}

Format exportFrm::format() const {
    return kinds.at(static_cast<std::size_t>(ListIndex)).format;
}

// What cannot come of the columns that are chosen is not offered.
bool exportFrm::isPictureChosen() const {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (List1[i].Checked && columns_[i]->type() == core::ColumnType::Picture) return true;
    return false;
}

bool exportFrm::isFormulaChosen() const {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (List1[i].Checked && !expressionOf(*columns_[i]).empty()) return true;
    return false;
}

void exportFrm::show() {
    Check1Enabled = totals() != nullptr && format() != Format::Vcard;
    // The items of an invoice share a cell, which no formula of a spreadsheet works on.
    Check2Enabled = (format() == Format::Xlsx || format() == Format::Ods) && !app_.document.bInvoiceStyle &&
                    isFormulaChosen();
    Check3Enabled = takesPictures(format()) && !app_.document.currentFile.empty() && isPictureChosen();
    bPicturesInside = hasPicturesInside(format());
    OKButtonEnabled = std::ranges::any_of(List1, &Column::Checked);
}

void exportFrm::Opt1_Click(int chosen) {
    if (Opt1.at(static_cast<std::size_t>(chosen)).Enabled) scope = chosen;
    show();
}

void exportFrm::List1_ItemCheck(std::size_t column, bool checked) {
    List1.at(column).Checked = checked;
    show();
}

void exportFrm::checkAll(bool checked) {
    for (Column& column : List1) column.Checked = checked;
    show();
}

void exportFrm::formatCbo_Click(int entry) {
    ListIndex = entry;
    show();
}

std::string exportFrm::expressionOf(const core::Column& column) const {
    for (const auto& entry : app_.document.formulas) {
        const calc::Formula formula(entry.item);
        if (formula.name == column.Text && !formula.isUndefined()) return std::string(formula.expression);
    }
    return {};
}

exchange::OutTable exportFrm::table() {
    exchange::OutTable out;
    out.title = app_.document.reportData.reportTitle;
    if (out.title.empty()) out.title = std::filesystem::path(app_.document.currentFile).stem().string();
    std::vector<const core::Column*> columns;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (!List1[i].Checked) continue;
        const core::Column& column = *columns_[i];
        columns.push_back(&column);
        out.columns.push_back({column.Text, column.type(), column.Width,
                               Check2 && Check2Enabled ? expressionOf(column) : std::string()});
    }
    const auto add = [&](const core::Item& item) {
        exchange::OutRow row;
        row.reserve(columns.size());
        for (const core::Column* column : columns) row.emplace_back(core::RecordsList::cell(item, *column));
        out.rows.push_back(std::move(row));
    };
    const auto& records = records_.at(static_cast<std::size_t>(scope));
    out.rows.reserve(records.size() + 1);
    for (const core::Item* record : records) add(*record);
    out.bLastIsTotals = Check1 && Check1Enabled;
    if (out.bLastIsTotals) add(*totals());
    return out;
}

// By whatever name. It would be gone behind a table that took its place.
bool exportFrm::isOpenFile(const std::string& target) const {
    std::error_code error;
    return !app_.document.currentFile.empty() &&
           std::filesystem::equivalent(target, app_.document.currentFile, error);
}

// The ending says what is in the file, so it is set where it says something else.
std::optional<std::string> exportFrm::askForFile() const {
    const Kind& kind = kinds.at(static_cast<std::size_t>(ListIndex));
    std::string name = std::filesystem::path(app_.document.currentFile).stem().string();
    if (name.empty()) name = "Untitled";
    std::string filter = core::tr(kind.name);
    filter.append(" (*").append(kind.ending).append(")|*").append(kind.ending).append("|");
    filter.append(core::tr("All Files (*.*)|*.*"));
    auto target = app_.platform.showSave({core::tr("Export"), name.append(kind.ending), filter});
    if (target && exchange::formatOf(*target) != kind.format) target->append(kind.ending);
    if (target && isOpenFile(*target)) {
        app::warn(
            app_,
            core::tr("This is the file of the open database. Please choose another name for the table."));
        return std::nullopt;
    }
    if (target && !storage::mayWriteTo(app_, *target)) target.reset();
    return target;
}

void exportFrm::write(const std::string& target, ExportPictures& pictures) {
    constexpr int percents = 100;
    const auto telling = [&](const std::string& what) {
        return [this, what](int percent) {
            return app_.platform.tellProgress(what, std::min(percent, percents - 1), percents);
        };
    };
    const std::string writing = core::tr("Writing the table");
    struct Told {
        ~Told() { app.platform.tellProgress(what, percents, percents); }
        app::App& app;
        const std::string& what;
    } const told{app_, writing};
    exchange::OutTable out = table();
    if (Check3 && Check3Enabled)
        pictures.unpack(target, format(), out, telling(core::tr("Unpacking the pictures")));
    exchange::writeSheet(target, format(), out, telling(writing), app_.document.currentFile);
}

void exportFrm::OKButton_Click() {
    if (!OKButtonEnabled) return;
    const std::optional<std::string> target = askForFile();
    if (!target) return;
    ExportPictures pictures(app_);
    if (Check3 && Check3Enabled && !bPicturesInside && !pictures.mayWriteBeside(*target)) return;
    app_.rooms.of<LastExport>() = {ListIndex, Check1, Check2, Check3};
    try {
        const app::Hourglass hourglass(app_);
        write(*target, pictures);
    } catch (const core::RunTimeError& error) {
        if (error.number != core::errors::cancelled)
            app::warn(app_, core::fill(core::tr("The table could not be written: %1"), {error.what()}));
        return;
    }
    pictures.finish();
    unloaded = true;
}

} // namespace tables
