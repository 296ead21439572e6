#include "calc/columns.h"
#include "calc/formulas.h"
#include "calc/serialNumbers.h"
#include "cli/command.h"
#include "cli/invoiceEntry.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/tables/formatOption.h"
#include "cli/tables/sheetImport.h"
#include "cli/tables/tableFile.h"
#include "core/text.h"
#include "entry/editRecord.h"
#include "entry/invoiceRecords.h"
#include "exchange/columnTypes.h"
#include "file/archive/zip.h"
#include "storage/newDatabase.h"

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <limits>
#include <set>
#include <sys/stat.h>

namespace cli {

namespace {

using core::Column;
using core::ColumnType;
using core::Item;
using core::RecordsList;
using exchange::CsvTable;
using exchange::TableColumn;

constexpr const char* aboutImport =
    "TABLE.csv has a header line; \",\", \";\" or tabs divide it, and it is UTF-8 or Windows-1252.\n"
    "Without FILE a database is made. Column names have \"_\" for blanks. When every header cell is of the\n"
    "form NAME:TYPE, as export writes them, the columns have these types and the cells stay to the letter.\n"
    "Otherwise a column is Number, Currency (\"$5\", \"$1,234.50\") or Date (mm/dd/yyyy) when all its cells "
    "are,\n"
    "and else Text.\n"
    "With FILE the rows become new records, stored as add stores them: types in the header do not count, "
    "columns\n"
    "that the table leaves out take what a new record proposes, and calculated ones are calculated.\n"
    "An option that says how the table is written has all the others recognised: the separator, the "
    "encoding,\n"
    "the order of dates, decimal marks and currency signs of each column. Cells that cannot be stored so "
    "are\n"
    "told, and nothing is stored; with --yes they are empty. TABLE.csv may be - for standard input.\n"
    "The table may also be .xlsx, .ods, .json, .sqlite, .html or .vcf, by its ending or --format; hidden "
    "rows "
    "and\n"
    "columns are left out. --sheet tells which sheet, otherwise it is the first one.\n"
    "Prints how many records there are more.";

struct ImportOptions {
    std::string file, table;
    double wait = usualWait;
    bool invoice = false, yes = false;
    WrittenTable written;
    std::string format, sheet;
};

// What needs the user's consent. Without it nothing is stored, so that nothing is lost unasked.
void ask(const ImportOptions& options, const std::string& what) {
    if (!options.yes) throw Failure(options.table, what + "; --yes stores it all the same");
}

std::string atCell(const CsvTable& table, std::size_t row, std::size_t column) {
    return "line " + std::to_string(table.lineOf(row)) + ": the cell of \"" +
           printable(table.header()[column]) + "\"";
}

void askAboutDividers(const ImportOptions& options, const CsvTable& table) {
    for (std::size_t row = 0; row < table.rowCount(); ++row)
        for (std::size_t i = 0; i < table.header().size(); ++i)
            if (table.cell(row, i).find('|') != std::string_view::npos)
                ask(options, atCell(table, row, i) + " holds a \"|\", which divides cells in the file");
}

// --- A new database

Column& addColumn(const ImportOptions& options, core::Document& document, const TableColumn& column) {
    const std::string name = exchange::columnName(column.name);
    if (name.find('|') != std::string::npos)
        throw Failure(options.table, "the column name \"" + name + "\" holds a \"|\"");
    if (column.type == ColumnType::Picture && options.invoice)
        throw Failure(options.file, "an invoice database has no Picture columns");
    if (const Column* same = document.LV.columns.find(name))
        throw Failure(options.table, same->Index == 1
                                         ? "no column can have the name \"" + name + "\""
                                         : "the column \"" + name + "\" stands in its header twice");
    return calc::addColumn(document, name, std::to_string(static_cast<int>(column.type)));
}

void fillDatabase(core::Document& document, const CsvTable& table, const std::vector<TableColumn>& columns) {
    RecordsList& records = document.LV;
    records.reserve(table.rowCount() + 1);
    for (std::size_t row = 0; row < table.rowCount(); ++row) {
        Item& record = records.add(document.nextKey());
        for (std::size_t i = 0; i < columns.size(); ++i)
            record.cells[i] = exchange::storedCell(columns[i], table.cell(row, i));
    }
    core::moveTotals(records);
}

void tellOfImages(const ImportOptions& options, const CsvTable& table,
                  const std::vector<TableColumn>& columns) {
    std::set<std::string_view> images;
    for (std::size_t i = 0; i < columns.size(); ++i)
        for (std::size_t row = 0; row < table.rowCount() && columns[i].type == ColumnType::Picture; ++row)
            if (const std::string_view name = table.cell(row, i); !name.empty()) images.insert(name);
    if (!images.empty())
        std::cerr << "fwk: " << printable(options.file) << ": it has none of the images that are named ("
                  << images.size() << ")\n";
}

// Made elsewhere; it takes its place as a copy of a finished database does.
void makeDatabase(Session& session, const ImportOptions& options, const CsvTable& table) {
    const std::vector<TableColumn> columns = exchange::columnsOf(table, options.invoice);
    if (columns.size() > calc::mostColumns)
        throw Failure(options.table, "it has " + std::to_string(columns.size()) +
                                         " columns, a database has at most " +
                                         std::to_string(calc::mostColumns));
    app::App& app = session.app;
    app.document.bInvoiceStyle = options.invoice;
    session.change([&] {
        storage::createEmptyArchive(app, session.platform.workFolder() / "new.fwk");
        for (const TableColumn& column : columns) addColumn(options, app.document, column);
        storage::finishNewDatabase(app);
        fillDatabase(app.document, table, columns);
        app::setDocumentModified(app, true);
    });
    session.saveAs(options.file);
    tellOfImages(options, table, columns);
}

// --- An existing one

// The database's columns in the order of the table's. A header cell is a column's name, or one with a
// type behind it.
std::vector<const Column*> matchingColumns(Session& session, const ImportOptions& options,
                                           const CsvTable& table) {
    const core::ColumnHeaders& known = session.app.document.LV.columns;
    const auto find = [&](std::string_view name) {
        const Column* column = known.find(name);
        if (column == nullptr) column = known.find(exchange::columnName(name));
        return column == nullptr || column->Index == 1 ? nullptr : column;
    };
    std::vector<std::string> names(table.header().begin(), table.header().end());
    if (!std::ranges::all_of(names, find))
        if (const auto typed = exchange::typedColumns(table))
            std::ranges::transform(*typed, names.begin(), &TableColumn::name);
    std::vector<const Column*> columns;
    for (const std::string& name : names) {
        const Column* column = find(name);
        if (column == nullptr) throw Failure(options.file, "no column \"" + name + "\"");
        if (std::ranges::find(columns, column) != columns.end())
            throw Failure(options.table, "the column \"" + column->Text + "\" stands in its header twice");
        columns.push_back(column);
    }
    return columns;
}

void askAboutImages(const ImportOptions& options, const CsvTable& table,
                    const std::vector<const Column*>& columns) {
    file::Zip Zip;
    Zip.OpenArchive(options.file);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!columns[i]->isType(ColumnType::Picture)) continue;
        for (std::size_t row = 0; row < table.rowCount(); ++row) {
            const std::string name(core::trim(table.cell(row, i)));
            if (!name.empty() && !Zip.contains(name))
                ask(options,
                    atCell(table, row, i) + " names an image \"" + name + "\" that the database has not");
        }
    }
}

// What would be typed into the box. A date sorts only with its leading zeros. An amount of a table that tells
// its types is its value, and not the digits of a key pad, whose last two are cents.
std::string boxText(const Column& column, std::string_view cell, bool isTyped) {
    if (column.isType(ColumnType::Text)) return std::string(cell);
    if (isTyped && column.isType(ColumnType::Currency))
        return exchange::storedCell({{}, ColumnType::Currency, true}, cell);
    if (column.isType(ColumnType::Date)) return exchange::storedCell({{}, ColumnType::Date, true}, cell);
    return std::string(core::trim(cell));
}

std::vector<calc::Uncalculated> appendRecords(Session& session, const CsvTable& table,
                                              const std::vector<const Column*>& columns) {
    app::App& app = session.app;
    std::vector<const Column*> others; // that can be typed into
    for (const Column& column : app.document.LV.columns)
        if (column.Index != 1 && !column.isType(ColumnType::Calculation) &&
            !column.isType(ColumnType::Picture) && std::ranges::find(columns, &column) == columns.end())
            others.push_back(&column);
    const bool isTyped = exchange::typedColumns(table).has_value();
    const auto fill = [&](int row, std::vector<entry::BoxText>& boxes) {
        if (row == 0) {
            for (const Column* column : columns) boxes.push_back({column->Text, {}});
            for (const Column* column : others) boxes.push_back({column->Text, {}});
        }
        for (std::size_t i = 0; i < columns.size(); ++i)
            boxes[i].Text = boxText(*columns[i], table.cell(static_cast<std::size_t>(row), i), isTyped);
        for (std::size_t i = 0; i < others.size(); ++i)
            boxes[columns.size() + i].Text = calc::proposedValue(app, others[i]->Text).value_or("");
    };
    std::vector<calc::Uncalculated> failed;
    session.change([&] { failed = entry::addRecords(app, static_cast<int>(table.rowCount()), fill); });
    return failed;
}

// An invoice is stored through the fields of the layout. What a column without a field lacks anyway, and
// what is calculated, needs none.
std::vector<calc::Uncalculated> appendInvoices(Session& session, const CsvTable& table,
                                               const std::vector<const Column*>& columns) {
    const core::Document& document = session.app.document;
    std::set<std::string_view> calculated, onLayout;
    for (const auto& formula : document.formulas) {
        const calc::Formula parts(formula.item);
        if (!parts.isUndefined()) calculated.insert(parts.name);
    }
    document.layout.layoutField.forEach([&](const core::LayoutField& field) { onLayout.insert(field.Tag); });
    const bool isTyped = exchange::typedColumns(table).has_value();
    const auto fill = [&](int row) {
        std::vector<CellValue> values;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const std::string text =
                boxText(*columns[i], table.cell(static_cast<std::size_t>(row), i), isTyped);
            const bool isBlank = text.empty() && !onLayout.contains(columns[i]->Text);
            if (!isBlank && !calculated.contains(columns[i]->Text)) values.push_back({columns[i], text});
        }
        fillInvoice(session, values);
    };
    std::vector<calc::Uncalculated> failed;
    session.change(
        [&] { failed = entry::addInvoices(session.app, static_cast<int>(table.rowCount()), fill); });
    return failed;
}

void append(Session& session, const ImportOptions& options, const CsvTable& table) {
    session.openToWrite();
    const core::Document& document = session.app.document;
    if (options.invoice && !document.bInvoiceStyle) throw Failure(options.file, "it is no invoice database");
    const std::vector<const Column*> columns = matchingColumns(session, options, table);
    constexpr std::size_t mostRecords = std::numeric_limits<decltype(document.iLastKey)>::max();
    const auto records = static_cast<std::size_t>(document.iLastKey);
    if (records + table.rowCount() > mostRecords)
        throw Failure(options.file, "it would have " + std::to_string(records + table.rowCount()) +
                                        " records, " + std::to_string(mostRecords) + " is the most");
    session.change([&] { askAboutImages(options, table, columns); });
    const std::vector<calc::Uncalculated> failed = document.bInvoiceStyle
                                                       ? appendInvoices(session, table, columns)
                                                       : appendRecords(session, table, columns);
    session.save();
    std::vector<std::string> rows;
    rows.reserve(failed.size());
    for (const auto& [key, reason] : failed)
        rows.push_back(std::string(key).append(" is stored, but cannot be calculated (").append(reason) +
                       ')');
    tellRows(options.file, rows);
}

// What is read cell by cell; nothing for a table of comma-separated values.
std::optional<exchange::Sheet> sheetOf(const ImportOptions& options) {
    const auto format =
        options.format.empty() ? exchange::formatOf(options.table) : formatNamed(options.format);
    const bool isText = !format || *format == exchange::Format::Csv || *format == exchange::Format::Tsv;
    if (isText && !options.sheet.empty()) throw Failure(options.table, "it has no sheets");
    if (isText && !options.written.isTold()) return std::nullopt;
    if (isText) return readTextSheet(options.table, options.written);
    try {
        const std::size_t place = sheetNamed(options.table, *format, options.sheet);
        return exchange::readSheet(options.table, *format, place);
    } catch (const core::RunTimeError& error) {
        throw Failure(options.table, error.what());
    }
}

int run(const ImportOptions& options) {
    if (std::optional<exchange::Sheet> sheet = sheetOf(options)) {
        Session session(options.file, options.wait);
        session.reserve();
        const SheetImport import{options.file, options.table, options.invoice, options.yes};
        const std::size_t records = importSheet(session, import, *std::move(sheet), options.written);
        writeOutcome(std::to_string(records) + "\n");
        return done;
    }
    const auto table = readTable(options.table);
    askAboutDividers(options, *table);
    Session session(options.file, options.wait);
    session.reserve(); // so that of two that find no database the second one appends
    struct stat status {};
    if (::lstat(options.file.c_str(), &status) == 0)
        append(session, options, *table);
    else if (errno == EIO || errno == ESTALE)
        throw Failure(options.file, std::strerror(errno)); // there may be one, which is not to be made anew
    else
        makeDatabase(session, options, *table);
    writeOutcome(std::to_string(table->rowCount()) + "\n");
    return done;
}

} // namespace

Run setUpImport(CLI::App& command) {
    const auto options = std::make_shared<ImportOptions>();
    command.add_option("FILE", options->file, "The database, to make or to append to")->required();
    command.add_option("TABLE.csv", options->table, "The table")->required();
    command.add_flag("--invoice", options->invoice, "Make an invoice database");
    addWrittenTableOptions(command, options->written);
    addFormatOption(command, options->format);
    command.add_option("--sheet", options->sheet, "The sheet, or table of a database, by number or name")
        ->type_name("N|NAME");
    addYesFlag(command, options->yes,
               "Store cells with a \"|\", which divides them in the file, and images that FILE has not");
    addWaitOption(command, options->wait);
    command.footer(aboutImport);
    return [options] { return run(*options); };
}

} // namespace cli
