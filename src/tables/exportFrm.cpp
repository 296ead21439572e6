#include "tables/exportFrm.h"

#include "app/hourglass.h"
#include "calc/formulas.h"
#include "core/runTimeError.h"
#include "exchange/pictures.h"
#include "search/manyRecords.h"
#include "storage/saveSteps.h"
#include "tables/counted.h"

#include <algorithm>
#include <filesystem>

namespace tables {

namespace {

using exchange::Format;

struct Kind {
    Format format;
    std::string_view name, ending;
};
constexpr std::array<Kind, 8> kinds = {{{Format::Xlsx, "Excel workbook", ".xlsx"},
                                        {Format::Ods, "OpenDocument spreadsheet", ".ods"},
                                        {Format::Csv, "Values divided by commas", ".csv"},
                                        {Format::Tsv, "Values divided by tabs", ".tsv"},
                                        {Format::Html, "Web page", ".html"},
                                        {Format::Json, "JSON", ".json"},
                                        {Format::Sqlite, "SQLite database", ".sqlite"},
                                        {Format::Vcard, "Address cards", ".vcf"}}};

// What the form was left with, for the next time.
struct LastExport {
    int format = 0;
};

} // namespace

void mnuExportTable_Click(app::App& app) {
    if (app.document.LV.columns.count() < 2)
        app::inform(app, "Your database has no columns to export.");
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
        formatCbo.push_back(std::string(kind.name).append(" (").append(kind.ending).append(")"));
    ListIndex = app.rooms.of<LastExport>().format;
    show();
}

core::Item* exportFrm::totals() const {
    if (scope == search::selectedRecords) return nullptr;
    return scope == search::foundRecords ? app_.document.searchLV.totals() : app_.document.LV.totals();
}

void exportFrm::show() {
    const Format format = this->format();
    Check1Enabled = totals() != nullptr && format != Format::Vcard;
    // The items of an invoice share a cell, which no formula of a spreadsheet works on.
    Check2Enabled = (format == Format::Xlsx || format == Format::Ods) && !app_.document.bInvoiceStyle &&
                    std::ranges::any_of(
                        columns_, [&](const core::Column* column) { return !expressionOf(*column).empty(); });
    Check3Enabled = false;
    for (std::size_t i = 0; i < List1.size(); ++i)
        Check3Enabled =
            Check3Enabled || (List1[i].Checked && columns_[i]->type() == core::ColumnType::Picture);
    Check3Enabled = Check3Enabled && format != Format::Vcard && !app_.document.currentFile.empty();
    OKButtonEnabled = std::ranges::any_of(List1, &Column::Checked);
}

Format exportFrm::format() const {
    return kinds.at(static_cast<std::size_t>(ListIndex)).format;
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
        std::vector<std::string> row;
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

// The ending says what is in the file, so it is set where it says something else.
std::optional<std::string> exportFrm::askForFile() const {
    const Kind& kind = kinds.at(static_cast<std::size_t>(ListIndex));
    std::string name = std::filesystem::path(app_.document.currentFile).stem().string();
    if (name.empty()) name = "Untitled";
    std::string filter(kind.name);
    filter.append(" (*").append(kind.ending).append(")|*").append(kind.ending).append("|All Files (*.*)|*.*");
    auto target = app_.platform.showSave({"Export", name.append(kind.ending), filter});
    if (target && exchange::formatOf(*target) != kind.format) target->append(kind.ending);
    if (target && !storage::mayWriteTo(app_, *target)) target.reset();
    return target;
}

// Raises cancelled, and what unpacking and writing raise.
void exportFrm::write(const std::string& file) {
    constexpr int percents = 100;
    const auto telling = [&](const char* what) {
        return [this, what](int percent) {
            return app_.platform.tellProgress(what, std::min(percent, percents - 1), percents);
        };
    };
    exchange::OutTable out = table();
    std::vector<std::string> missing;
    if (Check3 && Check3Enabled) {
        const bool isInside = format() == Format::Xlsx;
        const auto folder =
            isInside ? app_.platform.workFolder() / "pictures" : exchange::picturesBeside(file);
        missing = exchange::unpackPictures(app_.document.currentFile, out, folder,
                                           telling("Taking the pictures out"));
        if (isInside) out.pictures = folder;
    }
    exchange::writeSheet(file, format(), out, telling("Writing the table"));
    if (!out.pictures.empty()) {
        std::error_code none; // what stays there goes with the work folder
        std::filesystem::remove_all(out.pictures, none);
    }
    if (missing.empty()) return;
    std::string text = counted(missing.size(), "picture is", "pictures are");
    app::warn(app_, text.append(" not in the database. The first one: ").append(missing.front()));
}

void exportFrm::OKButton_Click() {
    if (!OKButtonEnabled) return;
    const std::optional<std::string> target = askForFile();
    if (!target) return;
    app_.rooms.of<LastExport>().format = ListIndex;
    const app::Hourglass hourglass(app_);
    try {
        write(*target);
        unloaded = true;
    } catch (const core::RunTimeError& error) {
        if (error.number != core::errors::cancelled)
            app::warn(app_, std::string("The table could not be written: ").append(error.what()));
    }
    constexpr int whole = 1;
    app_.platform.tellProgress("Writing the table", whole, whole);
}

} // namespace tables
