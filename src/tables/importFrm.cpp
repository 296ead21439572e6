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

#include <algorithm>
#include <array>
#include <filesystem>

namespace tables {

namespace {

using core::ColumnType;

constexpr std::size_t previewRows = 20;
constexpr std::size_t shownRefused = 1000;
constexpr std::size_t mostTableBytes = std::size_t{256} << 20U;
constexpr std::array<char, 4> separators = {',', ';', '\t', '|'};
constexpr std::array<char, 3> quotes = {'"', '\'', '\0'};
constexpr std::array types = {ColumnType::Text, ColumnType::Number,      ColumnType::Currency,
                              ColumnType::Date, ColumnType::Calculation, ColumnType::Picture};

struct ImportRequest {
    std::string file; // empty: the user is asked
};

bool isTextFile(exchange::Format format) {
    return format == exchange::Format::Csv || format == exchange::Format::Tsv;
}

std::optional<exchange::Format> tableFormat(std::string_view fileName) {
    if (core::equalsNoCase(std::filesystem::path(fileName).extension().string(), ".txt"))
        return exchange::Format::Csv;
    return exchange::formatOf(fileName);
}

template <typename Values, typename Value>
int placeIn(const Values& values, const Value& value) {
    const auto place = std::ranges::find(values, value) - std::begin(values);
    return place == std::ssize(values) ? -1 : static_cast<int>(place);
}

std::vector<std::string> waysToRead(const ReadAs& as) {
    if (as.bToTheLetter) return {"As it is"};
    if (as.type == ColumnType::Date) return {"Day, month, year", "Month, day, year", "Year, month, day"};
    if (as.type == ColumnType::Number || as.type == ColumnType::Currency) return {"1,234.50", "1.234,50"};
    return {"As it is"};
}

int wayToRead(const ReadAs& as) {
    if (as.bToTheLetter) return 0;
    if (as.type == ColumnType::Date) return static_cast<int>(as.dates);
    const bool isNumber = as.type == ColumnType::Number || as.type == ColumnType::Currency;
    return isNumber && as.decimal == ',' ? 1 : 0;
}

std::string noteOf(const Recognized& how) {
    std::string note;
    if (how.bDatesOpen || how.bDecimalOpen) {
        note.append("Please check: \"").append(how.example).append("\" can be read in two ways.");
    }
    if (!how.sign.empty()) {
        note.append(note.empty() ? "" : " ").append("The sign ").append(how.sign);
        note.append(" is not kept: amounts are shown with $.");
    }
    return note;
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
    file.clear();
}

importFrm::importFrm(app::App& app) : app_(app), file_(app.rooms.of<ImportRequest>().file) {
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
    isText_ = isTextFile(format_);
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
    table_.emplace(std::move(sheet), hints, true, app_.platform.today());
    List2Index = 0;
    Check2 = false;
    findTargets();
}

// After another choice of how the file is read; what cannot be read so is told, and the form stays.
void importFrm::readAgain() {
    const app::Hourglass hourglass(app_);
    try {
        readTable();
    } catch (const std::exception& error) {
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

void importFrm::showAll() {
    Check1 = table_->hasHeadings();
    Label1 = std::filesystem::path(file_).filename().string();
    Label1.append(": ").append(counted(table_->count(), "record", "records")).append(".");
    showColumns();
    showColumn();
    showRows();
    showRefusals();
}

void importFrm::showColumns() {
    List2.clear();
    for (std::size_t i = 0; i < table_->columns().size(); ++i) {
        const ImportTable::Column& column = table_->columns()[i];
        Column shown;
        shown.Checked = column.bImport;
        shown.Name = column.name;
        if (isAppending()) shown.Name = column.target != nullptr ? column.target->Text : column.heading;
        if (column.bImport) {
            shown.Type = core::typeName(column.how.as.type);
            shown.ReadAs = waysToRead(column.how.as).at(static_cast<std::size_t>(wayToRead(column.how.as)));
            shown.Note = noteOf(column.how);
        } else {
            shown.Note = targets_.whyLeftOut[i];
        }
        List2.push_back(std::move(shown));
    }
}

void importFrm::showColumn() {
    const ImportTable::Column& column = table_->columns()[this->column()];
    const ReadAs& as = column.how.as;
    Text1 = column.name;
    Text1Visible = !isAppending();
    targetCbo.Visible = isAppending();
    targetCbo.entries = {"(leave out)"};
    for (const core::Column* target : targets_.choices) targetCbo.entries.push_back(target->Text);
    targetCbo.ListIndex = placeIn(targets_.choices, column.target) + 1;
    typeCbo.entries.clear();
    // Pictures and calculations come from this program alone.
    const std::size_t offered = placeIn(types, as.type) > 3 ? types.size() : 4;
    for (std::size_t i = 0; i < offered; ++i) typeCbo.entries.emplace_back(core::typeName(types.at(i)));
    typeCbo.ListIndex = placeIn(types, as.type);
    typeCbo.Enabled = column.bImport && !isAppending();
    readAsCbo.entries = waysToRead(as);
    readAsCbo.ListIndex = wayToRead(as);
    readAsCbo.Enabled = column.bImport && readAsCbo.entries.size() > 1;
}

void importFrm::showRows() {
    Grid1.assign(std::min(previewRows, table_->count()), {});
    for (std::size_t row = 0; row < Grid1.size(); ++row) {
        Grid1[row].Number = table_->rowNumber(row);
        for (std::size_t i = 0; i < table_->columns().size(); ++i) {
            CheckedCell cell;
            if (table_->columns()[i].bImport) cell = table_->cell(row, i);
            Grid1[row].Refused.push_back(!cell.reason.empty());
            Grid1[row].Cells.push_back(cell.reason.empty() ? std::move(cell.text)
                                                           : std::string(table_->written(row, i)));
        }
    }
}

void importFrm::showRefusals() {
    List1.clear();
    for (const ImportTable::Refusal& refusal : table_->refusals(shownRefused))
        List1.push_back({std::to_string(refusal.row), List2[refusal.column].Name, std::string(refusal.value),
                         refusal.reason});
    std::size_t refused = table_->refusedCount();
    if (records_) {
        for (const NewRecords::Refusal& refusal : records_->refusals(shownRefused))
            List1.push_back({std::to_string(refusal.row), List2[refusal.column].Name,
                             std::string(refusal.value), refusal.reason});
        refused += records_->refusedCount();
    }
    Label2.clear();
    const auto add = [&](const std::string& sentence) {
        Label2.append(Label2.empty() ? "" : "\n").append(sentence);
    };
    std::string why;
    if (!isAppending())
        why = table_->whyNoDatabase();
    else if (std::ranges::none_of(List2, &Column::Checked))
        why = "No column is chosen.";
    else if (table_->count() > records_->room())
        why = "The database has room for " + counted(records_->room(), "more record.", "more records.");
    else if (table_->count() == 0)
        why = "The table has no records.";
    for (const Column& column : List2)
        if (!column.Note.empty()) add(column.Name + ": " + column.Note);
    if (refused > 0) add(counted(refused, "cell cannot be stored:", "cells cannot be stored:"));
    if (!why.empty()) add(why);
    const bool canBeText =
        std::ranges::any_of(table_->refusals(shownRefused), [&](const ImportTable::Refusal& refusal) {
            return table_->columns()[refusal.column].how.as.type != ColumnType::Text;
        });
    Command1Visible = !isAppending() && canBeText;
    Check2Visible = refused > 0;
    okEnabled = why.empty() && (refused == 0 || Check2);
}

// --- events

void importFrm::sheetCbo_Click(int entry) {
    sheetCbo.ListIndex = entry;
    readAgain();
}

void importFrm::encodingCbo_Click(int entry) {
    encodingCbo.ListIndex = entry;
    readAgain();
}

void importFrm::separatorCbo_Click(int entry) {
    delimiters_.separator = separators.at(static_cast<std::size_t>(entry));
    readAgain();
}

void importFrm::quoteCbo_Click(int entry) {
    delimiters_.quote = quotes.at(static_cast<std::size_t>(entry));
    readAgain();
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
