#include "tables/importFrm.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"
#include "exchange/columnTypes.h"
#include "file/fileHandle.h"
#include "storage/openFile.h"
#include "storage/saveFile.h"
#include "storage/saveSteps.h"
#include "tables/importSteps.h"
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

// The reason alone: the sentences that it ends tell already that the table cannot be read.
std::string reasonOf(const std::exception& error) {
    const std::string known = core::tr("Invalid file format") + ": ";
    const std::string_view text = error.what();
    return std::string(text.starts_with(known) ? text.substr(known.size()) : text);
}

bool isCancelled(const std::exception& error) {
    const auto* failed = dynamic_cast<const core::RunTimeError*>(&error);
    return failed != nullptr && failed->number == core::errors::cancelled;
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
            {core::tr("Import"), "",
             core::tr(
                 "Tables (*.csv)|*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.json;*.sqlite;*.sqlite3;*.db;*.html;*.vcf|"
                 "All Files (*.*)|*.*")});
        if (!chosen) return;
        file = *chosen;
    }
    app.platform.showForm("importFrm");
}

importFrm::importFrm(app::App& app)
    : app_(app), file_(std::exchange(app.rooms.of<ImportRequest>().file, {})) {
    encodingCbo.entries = {"UTF-8", "UTF-16", core::tr("UTF-16 (big endian)"), "Windows-1252"};
    separatorCbo.entries = {core::tr("Comma"), core::tr("Semicolon"), core::tr("Tab"), core::tr("Bar")};
    quoteCbo.entries = {"\"", "'", core::tr("None")};
    styleCbo.entries = {core::tr("Standard"), core::tr("Invoice")};
    const core::Document& document = app.document;
    Opt1Enabled = document.LV.columns.count() > 1 && !document.searchLV.Visible &&
                  !(document.bInvoiceStyle && document.bInvoiceView);
    const app::Hourglass hourglass(app);
    try {
        ImportSteps steps(app);
        readFile();
        readTable(steps);
        if (!table_ && !canBeReadOtherwise()) throw exchange::TableError(problem_);
        if (table_ && Opt1Enabled && isKnownTable()) {
            Opt1 = 1;
            findTargets(steps);
        }
    } catch (const std::exception& error) {
        if (!isCancelled(error))
            app::warn(app, core::fill(core::tr("The table cannot be imported: %1"), {reasonOf(error)}));
        unloaded = true;
    }
    if (!unloaded) showAll();
}

// What does not depend on what is chosen.
void importFrm::readFile() {
    const auto format = tableFormat(file_);
    if (!format) throw exchange::TableError(core::tr("the program knows no table of this kind"));
    format_ = *format;
    isText_ = isDelimited(format_);
    encodingCbo.Visible = separatorCbo.Visible = quoteCbo.Visible = isText_;
    if (isText_) {
        auto bytes = file::readSmallFile(file_, mostTableBytes);
        if (!bytes) throw exchange::TableError(core::tr("it is larger than 256 MB"));
        bytes_ = *std::move(bytes);
        const exchange::Encoding encoding = exchange::recognizedEncoding(bytes_);
        encodingCbo.ListIndex = static_cast<int>(encoding);
        try {
            constexpr std::size_t head = std::size_t{256} << 10U; // more than recognition looks at
            delimiters_ = exchange::recognizedDelimiters(
                exchange::decodedText(std::string_view(bytes_).substr(0, head), encoding));
        } catch (const exchange::TableError&) {
            // No text in this encoding: told when the table is read.
        }
    } else {
        sheetCbo.entries = exchange::sheetNames(file_, format_);
    }
    sheetCbo.Visible = sheetCbo.entries.size() > 1;
}

exchange::Sheet importFrm::readSheet(ImportSteps& steps) {
    const exchange::Progress progress = steps.next(15);
    if (!isText_)
        return exchange::readSheet(file_, format_, static_cast<std::size_t>(sheetCbo.ListIndex), progress);
    exchange::Sheet sheet;
    const auto encoding = static_cast<exchange::Encoding>(encodingCbo.ListIndex);
    const std::string text = exchange::decodedText(bytes_, encoding);
    sheet.rows = exchange::readDelimited(text, delimiters_, progress);
    return sheet;
}

void importFrm::readTable(ImportSteps& steps) {
    separatorCbo.ListIndex = placeIn(separators, delimiters_.separator);
    quoteCbo.ListIndex = placeIn(quotes, delimiters_.quote);
    List2Index = 0;
    problem_.clear();
    Hints hints;
    // Semicolons divide tables where commas divide numbers.
    if (isText_ && delimiters_.separator == ';') hints = {DateOrder::DayMonthYear, ',', false, false};
    try {
        exchange::Sheet sheet = readSheet(steps);
        table_.emplace(std::move(sheet), hints, true, app_.platform.today(), steps.next(55));
        findTargets(steps);
    } catch (const std::exception& error) {
        if (isCancelled(error)) throw;
        problem_ = reasonOf(error);
        table_.reset();
        records_.reset();
    }
}

// The form is of use as long as another choice may help.
bool importFrm::canBeReadOtherwise() const {
    return isText_ ? bytes_.find_first_not_of(" \t\r\n") != std::string::npos : sheetCbo.Visible;
}

void importFrm::work(const std::function<void(ImportSteps&)>& steps) {
    const app::Hourglass hourglass(app_);
    const auto before = std::apply([](const auto&... each) { return std::tuple(each...); }, choices());
    try {
        ImportSteps taken(app_);
        steps(taken);
        Check2 = false; // said of other cells
    } catch (const core::RunTimeError& error) {
        if (!isCancelled(error)) throw;
        choices() = before;
    }
    showAll();
}

void importFrm::workOnTable(const std::function<void(ImportSteps&)>& steps) {
    if (table_) work(steps); // where none can be read there is nothing to choose
}

// After another choice of how the file is read.
void importFrm::readAgain(int& choice, int entry) {
    work([&](ImportSteps& steps) {
        choice = entry;
        delimiters_ = {separators.at(static_cast<std::size_t>(separatorCbo.ListIndex)),
                       quotes.at(static_cast<std::size_t>(quoteCbo.ListIndex))};
        readTable(steps);
    });
}

// Every column of the table is one of the open database.
bool importFrm::isKnownTable() const {
    if (!table_->hasHeadings()) return false;
    const NewRecords named(app_, {table_->headingRow()}, Headings::Yes);
    return std::ranges::all_of(named.sources(), [](const auto& source) { return source.target != nullptr; });
}

void importFrm::findTargets(ImportSteps& steps) {
    targets_ = {{}, std::vector<std::string>(table_->columns().size())};
    if (isAppending()) targets_ = tables::findTargets(app_, *table_, steps.next(15));
    makeRecords(steps);
}

// What is refused in the open database has to be asked of it.
void importFrm::makeRecords(ImportSteps& steps) {
    records_.reset();
    if (isAppending()) records_ = std::make_shared<NewRecords>(newRecordsOf(app_, *table_, steps.next(15)));
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
    workOnTable([&](ImportSteps& steps) {
        table_->setHeadings(checked, steps.next(70));
        findTargets(steps);
    });
}

void importFrm::Opt1_Click(int choice) {
    if (choice == Opt1 || (choice == 1 && !Opt1Enabled)) return;
    work([&](ImportSteps& steps) {
        Opt1 = choice;
        if (!table_) return;
        // Every column again, with a type of its own.
        if (!isAppending()) table_->setHeadings(Check1, steps.next(70));
        findTargets(steps);
    });
}

void importFrm::List2_Click(int column) {
    if (List2.empty()) return;
    List2Index = std::clamp(column, 0, static_cast<int>(List2.size()) - 1);
    showColumn();
}

void importFrm::List2_ItemCheck(int column, bool checked) {
    workOnTable([&](ImportSteps& steps) {
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
                return std::ranges::none_of(columns,
                                            [&](const auto& taken) { return taken.target == target; });
            });
            if (free != targets_.choices.end()) table_->setTarget(place, *free);
        }
        targets_.whyLeftOut[place].clear();
        makeRecords(steps);
    });
}

void importFrm::Text1_Change(const std::string& text) {
    if (!table_) return;
    Text1 = text;
    table_->setName(column(), text);
    showColumns();
    showRefusals();
}

void importFrm::targetCbo_Click(int entry) {
    workOnTable([&](ImportSteps& steps) {
        const core::Column* target =
            entry < 1 ? nullptr : targets_.choices.at(static_cast<std::size_t>(entry) - 1);
        for (std::size_t i = 0; i < table_->columns().size(); ++i)
            if (target != nullptr && table_->columns()[i].target == target) table_->setTarget(i, nullptr);
        table_->setTarget(column(), target);
        targets_.whyLeftOut[column()].clear();
        makeRecords(steps);
    });
}

void importFrm::typeCbo_Click(int entry) {
    workOnTable([&](ImportSteps&) {
        const ColumnType type = types.at(static_cast<std::size_t>(entry));
        if (type != table_->columns()[column()].how.as.type) table_->setType(column(), type);
    });
}

void importFrm::readAsCbo_Click(int entry) {
    workOnTable([&](ImportSteps& steps) {
        ReadAs as = table_->columns()[column()].how.as;
        if (as.type == ColumnType::Date)
            as.dates = static_cast<DateOrder>(entry);
        else
            as.decimal = entry == 1 ? ',' : '.';
        table_->setReadAs(column(), as);
        makeRecords(steps);
    });
}

// "Recognised", "None", and the signs.
void importFrm::signCbo_Click(int entry) {
    workOnTable([&](ImportSteps& steps) {
        CurrencySign sign;
        if (entry == 1) sign.emplace();
        if (entry > 1) sign = currencySigns()[static_cast<std::size_t>(entry) - 2];
        table_->setSign(column(), sign);
        makeRecords(steps);
    });
}

void importFrm::styleCbo_Click(int entry) {
    styleCbo.ListIndex = entry;
    if (table_) showRefusals();
}

void importFrm::Command1_Click() {
    workOnTable([&](ImportSteps&) { table_->keepAsText(); });
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
    const std::string text = core::tr("%n of the records cannot be calculated: %1",
                                      "%n of the records cannot be calculated. The first one: %1",
                                      static_cast<int>(failed.size()));
    app::warn(app_, core::fill(text, {failed.front().reason}));
}

// False when the user has thought better of it.
bool importFrm::makeNew() {
    std::string& open = app_.document.currentFile;
    if (app_.document.bModified && !open.empty()) {
        const int answer = app_.platform.choose(core::tr("The open database has changes that are not saved."),
                                                app::title, {core::tr("&Save"), core::tr("&Do Not Save")});
        if (answer < 0) return false;
        if (answer == 0) {
            storage::tellReason(app_, storage::SaveFile(app_, false, false));
            if (app_.document.bModified) return false;
        }
    }
    const auto target = app_.platform.showNew({core::tr("Specify Name For New Database"),
                                               std::filesystem::path(file_).stem().string() + ".fwk",
                                               core::tr(platform::databaseFilter)});
    if (!target) return false;
    std::error_code none;
    if (*target == open || std::filesystem::equivalent(*target, open, none)) {
        app::inform(app_, core::tr("The new database cannot take the place of the one that is open."));
        return false;
    }
    {
        const app::Hourglass hourglass(app_);
        if (!writeImported(app_, *target, *table_, styleCbo.ListIndex == 1)) return false;
    }
    open = *target;
    storage::OpenFile(app_, true);
    return true;
}

} // namespace tables
