#include "tables/importFrm.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "exchange/columnTypes.h"
#include "file/fileHandle.h"
#include "storage/openFile.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"
#include "tables/counted.h"
#include "tables/placeIn.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

namespace tables {

namespace {

using core::ColumnType;

constexpr std::size_t mostTableBytes = std::size_t{256} << 20U;
constexpr std::array<char, 4> separators = {',', ';', '\t', '|'};
constexpr std::array<char, 3> quotes = {'"', '\'', '\0'};

struct ImportRequest {
    std::string file; // empty: the user is asked
};

bool isDelimited(exchange::Format format) {
    return format == exchange::Format::Csv || format == exchange::Format::Tsv;
}

std::optional<exchange::Format> tableFormat(std::string_view fileName) {
    if (core::equalsNoCase(std::filesystem::path(fileName).extension().string(), ".txt"))
        return exchange::Format::Csv;
    return exchange::formatOf(fileName);
}

} // namespace

bool isTableFile(std::string_view fileName) {
    return tableFormat(fileName).has_value();
}

void chooseTableToImport(app::App& app, const std::string& file) {
    app.rooms.of<ImportRequest>().file = file;
}

void mnuImportTable_Click(app::App& app) {
    std::string& file = app.rooms.of<ImportRequest>().file;
    if (file.empty()) {
        const auto chosen = app.platform.showOpen(
            {"Import", "",
             "Tables (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|"
             "All Files (*.*)|*.*"});
        if (!chosen) return;
        file = *chosen;
    }
    app.platform.showForm("importFrm");
}

importFrm::importFrm(app::App& app)
    : app_(app), file_(std::exchange(app.rooms.of<ImportRequest>().file, {})) {
    encodingCbo.entries = {"UTF-8", "UTF-16", "UTF-16 (big endian)", "Windows-1252"};
    separatorCbo.entries = {"Comma", "Semicolon", "Tab", "Bar"};
    quoteCbo.entries = {"\"", "'", "None"};
    const core::Document& document = app.document;
    Opt1Enabled = document.LV.columns.count() > 1 && !document.searchLV.Visible &&
                  !(document.bInvoiceStyle && document.bInvoiceView);
    const app::Hourglass hourglass(app);
    try {
        readFile();
        readTable();
        if (Opt1Enabled && isKnownTable()) Opt1_Click(1);
    } catch (const std::exception& error) {
        const auto* failed = dynamic_cast<const core::RunTimeError*>(&error);
        if (failed == nullptr || failed->number != core::errors::cancelled)
            app::warn(app, std::string("The table cannot be imported: ").append(error.what()));
        unloaded = true;
    }
    if (!unloaded) showAll();
}

// What does not depend on what is chosen.
void importFrm::readFile() {
    const auto format = tableFormat(file_);
    if (!format) core::raise(core::errors::badFileFormat, "the program knows no table of this kind");
    format_ = *format;
    isText_ = isDelimited(format_);
    encodingCbo.Visible = separatorCbo.Visible = quoteCbo.Visible = isText_;
    if (isText_) {
        auto bytes = file::readSmallFile(file_, mostTableBytes);
        if (!bytes) core::raise(core::errors::badFileFormat, "it is larger than 256 MB");
        bytes_ = *std::move(bytes);
        const exchange::Encoding encoding = exchange::recognizedEncoding(bytes_);
        encodingCbo.ListIndex = static_cast<int>(encoding);
        delimiters_ = exchange::recognizedDelimiters(exchange::decodedText(bytes_, encoding));
    } else {
        sheetCbo.entries = exchange::sheetNames(file_, format_);
    }
    sheetCbo.Visible = sheetCbo.entries.size() > 1;
}

void importFrm::readTable() {
    separatorCbo.ListIndex = placeIn(separators, delimiters_.separator);
    quoteCbo.ListIndex = placeIn(quotes, delimiters_.quote);
    exchange::Sheet sheet;
    Hints hints;
    if (isText_) {
        const auto encoding = static_cast<exchange::Encoding>(encodingCbo.ListIndex);
        sheet.rows = exchange::readDelimited(exchange::decodedText(bytes_, encoding), delimiters_);
        // Semicolons divide tables where commas divide numbers.
        if (delimiters_.separator == ';') hints = {DateOrder::DayMonthYear, ',', false, false};
    } else {
        constexpr int percents = 100;
        sheet = exchange::readSheet(file_, format_, static_cast<std::size_t>(sheetCbo.ListIndex),
                                    [&](int percent) {
                                        return app_.platform.tellProgress(
                                            "Reading the table", std::min(percent, percents - 1), percents);
                                    });
        app_.platform.tellProgress("Reading the table", percents, percents);
    }
    // Made first: the table that is shown stays when this one cannot be had.
    ImportTable read(std::move(sheet), hints, true, app_.platform.today());
    table_ = std::move(read);
    List2Index = 0;
    Check2 = false;
    findTargets();
}

// After another choice of how the file is read; what cannot be read so is told, and the form stays as it was.
void importFrm::readAgain(int& choice, int entry) {
    const app::Hourglass hourglass(app_);
    const auto delimiters = delimiters_;
    const int before = std::exchange(choice, entry);
    delimiters_ = {separators.at(static_cast<std::size_t>(separatorCbo.ListIndex)),
                   quotes.at(static_cast<std::size_t>(quoteCbo.ListIndex))};
    try {
        readTable();
    } catch (const std::exception& error) {
        choice = before;
        delimiters_ = delimiters;
        const auto* failed = dynamic_cast<const core::RunTimeError*>(&error);
        if (failed == nullptr || failed->number != core::errors::cancelled)
            app::warn(app_, std::string("The table cannot be read so: ").append(error.what()));
    }
    showAll();
}

// Every column of the table is one of the open database.
bool importFrm::isKnownTable() const {
    if (!table_->hasHeadings()) return false;
    const NewRecords named(app_, {table_->headingRow()}, Headings::Yes);
    return std::ranges::all_of(named.sources(), [](const auto& source) { return source.target != nullptr; });
}

void importFrm::findTargets() {
    targets_ = {{}, std::vector<std::string>(table_->columns().size())};
    if (isAppending()) targets_ = tables::findTargets(app_, *table_);
    makeRecords();
}

// What is refused in the open database has to be asked of it.
void importFrm::makeRecords() {
    records_.reset();
    if (isAppending()) records_.emplace(newRecordsOf(app_, *table_));
}

// --- events

void importFrm::sheetCbo_Click(int entry) {
    readAgain(sheetCbo.ListIndex, entry);
}

void importFrm::encodingCbo_Click(int entry) {
    readAgain(encodingCbo.ListIndex, entry);
}

void importFrm::separatorCbo_Click(int entry) {
    readAgain(separatorCbo.ListIndex, entry);
}

void importFrm::quoteCbo_Click(int entry) {
    readAgain(quoteCbo.ListIndex, entry);
}

void importFrm::Check1_Click(bool checked) {
    const app::Hourglass hourglass(app_);
    table_->setHeadings(checked);
    findTargets();
    showAll();
}

void importFrm::Opt1_Click(int choice) {
    if (choice == Opt1 || (choice == 1 && !Opt1Enabled)) return;
    const app::Hourglass hourglass(app_);
    Opt1 = choice;
    if (!isAppending()) table_->setHeadings(Check1); // every column again, with a type of its own
    findTargets();
    showAll();
}

void importFrm::List2_Click(int column) {
    List2Index = std::clamp(column, 0, static_cast<int>(List2.size()) - 1);
    showColumn();
}

void importFrm::List2_ItemCheck(int column, bool checked) {
    const auto place = static_cast<std::size_t>(column);
    List2Index = column;
    if (!isAppending()) {
        table_->setImport(place, checked);
    } else if (!checked) {
        table_->setTarget(place, nullptr);
    } else {
        // The first column that no other one goes into.
        const auto& columns = table_->columns();
        const auto free = std::ranges::find_if(targets_.choices, [&](const core::Column* target) {
            return std::ranges::none_of(columns, [&](const auto& taken) { return taken.target == target; });
        });
        if (free != targets_.choices.end()) table_->setTarget(place, *free);
    }
    targets_.whyLeftOut[place].clear();
    makeRecords();
    showAll();
}

void importFrm::Text1_Change(const std::string& text) {
    Text1 = text;
    table_->setName(column(), text);
    showColumns();
    showRefusals();
}

void importFrm::targetCbo_Click(int entry) {
    const app::Hourglass hourglass(app_);
    const core::Column* target =
        entry < 1 ? nullptr : targets_.choices.at(static_cast<std::size_t>(entry) - 1);
    for (std::size_t i = 0; i < table_->columns().size(); ++i)
        if (target != nullptr && table_->columns()[i].target == target) table_->setTarget(i, nullptr);
    table_->setTarget(column(), target);
    targets_.whyLeftOut[column()].clear();
    makeRecords();
    showAll();
}

void importFrm::typeCbo_Click(int entry) {
    const app::Hourglass hourglass(app_);
    const ColumnType type = types.at(static_cast<std::size_t>(entry));
    if (type != table_->columns()[column()].how.as.type) table_->setType(column(), type);
    showAll();
}

void importFrm::readAsCbo_Click(int entry) {
    const app::Hourglass hourglass(app_);
    ReadAs as = table_->columns()[column()].how.as;
    if (as.type == ColumnType::Date)
        as.dates = static_cast<DateOrder>(entry);
    else
        as.decimal = entry == 1 ? ',' : '.';
    table_->setReadAs(column(), as);
    makeRecords();
    showAll();
}

void importFrm::Command1_Click() {
    const app::Hourglass hourglass(app_);
    table_->keepAsText();
    showAll();
}

void importFrm::Check2_Click(bool checked) {
    Check2 = checked;
    showRefusals();
}

void importFrm::OKButton_Click() {
    if (!okEnabled) return;
    try {
        if (isAppending())
            appendToOpen();
        else if (!makeNew())
            return;
        unloaded = true;
    } catch (const core::RunTimeError& error) {
        if (error.number == core::errors::cancelled) return; // given up: the form stays as it is
        if (isAppending()) throw;
        storage::tellReason(app_, storage::tellFailure(app_, true, error));
    }
}

void importFrm::appendToOpen() {
    const app::Hourglass hourglass(app_);
    const std::vector<calc::Uncalculated> failed = records_->store();
    if (failed.empty()) return;
    std::string text = counted(failed.size(), "of the records cannot be calculated: ",
                               "of the records cannot be calculated. The first one: ");
    app::warn(app_, text.append(failed.front().reason));
}

// False when the user has thought better of it.
bool importFrm::makeNew() {
    std::string& open = app_.document.currentFile;
    if (app_.document.bModified && !open.empty()) {
        const int answer = app_.platform.choose("The open database has changes that are not saved.",
                                                app::title, {"&Save", "&Do Not Save"});
        if (answer < 0) return false;
        if (answer == 0) {
            storage::tellReason(app_, storage::SaveFile(app_, false, false));
            if (app_.document.bModified) return false;
        }
    }
    const auto target = app_.platform.showNew({"Specify Name For New Database",
                                               std::filesystem::path(file_).stem().string() + ".fwk",
                                               std::string(platform::databaseFilter)});
    if (!target) return false;
    std::error_code none;
    if (*target == open || std::filesystem::equivalent(*target, open, none)) {
        app::inform(app_, "The new database cannot take the place of the one that is open.");
        return false;
    }
    {
        const app::Hourglass hourglass(app_);
        if (!writeImported(app_, *target, *table_)) return false;
    }
    open = *target;
    storage::OpenFile(app_, true);
    return true;
}

} // namespace tables
