#include "cli/tables/sheetImport.h"

#include "calc/columns.h"
#include "cli/output.h"
#include "cli/tables/tableFile.h"
#include "exchange/delimited.h"
#include "storage/newDatabase.h"
#include "tables/toldCells.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace cli {

namespace {

using tables::ImportTable;
using tables::NewRecords;

// Without the user's consent nothing is stored, so that nothing is lost unasked.
void settle(const SheetImport& import, const std::vector<std::string>& questions) {
    tellRows(import.table, questions);
    if (!questions.empty() && !import.yes)
        throw Failure(import.table, "nothing is stored; --yes leaves out what cannot be stored");
}

void makeOf(Session& session, const SheetImport& import, ImportTable& table) {
    if (const std::string why = table.whyNoDatabase(); !why.empty()) throw Failure(import.table, why);
    if (import.invoice && std::ranges::any_of(table.columns(), [](const ImportTable::Column& column) {
            return column.how.as.type == core::ColumnType::Picture;
        }))
        throw Failure(import.file, "an invoice database has no Picture columns");
    settle(import, tables::refusedInWords(table));
    app::App& app = session.app;
    app.document.bInvoiceStyle = import.invoice;
    session.change([&] {
        storage::createEmptyArchive(app, session.platform.workFolder() / "new.fwk");
        tables::addImportedColumns(app.document, table);
        storage::finishNewDatabase(app);
        tables::takeImportedRecords(app, app.document, table);
        app::setDocumentModified(app, true);
    });
    session.saveAs(import.file);
}

void appendTo(Session& session, const SheetImport& import, ImportTable& table) {
    session.openToWrite();
    if (import.invoice && !session.app.document.bInvoiceStyle)
        throw Failure(import.file, "it is no invoice database");
    std::vector<std::string> questions;
    for (const std::string& why : tables::findTargets(session.app, table).whyLeftOut)
        if (!why.empty()) questions.push_back(why);
    NewRecords records = tables::newRecordsOf(session.app, table);
    if (records.count() > records.room())
        throw Failure(import.file, "it has room for " + std::to_string(records.room()) +
                                       " more records, not " + std::to_string(records.count()));
    std::ranges::move(tables::refusedInWords(table), std::back_inserter(questions));
    std::ranges::move(tables::refusedInWords(records), std::back_inserter(questions));
    settle(import, questions);
    std::vector<calc::Uncalculated> failed;
    session.change([&] { failed = records.store(); });
    session.save();
    std::vector<std::string> uncalculated;
    uncalculated.reserve(failed.size());
    for (const auto& [key, reason] : failed)
        uncalculated.push_back(
            std::string(key).append(" is stored, but cannot be calculated (").append(reason) + ')');
    tellRows(import.file, uncalculated);
}

} // namespace

bool WrittenTable::isTold() const {
    return noHeadings || !(dates + decimal + encoding + separator + quotes).empty();
}

tables::Hints WrittenTable::hints() const {
    tables::Hints hints;
    hints.bDatesTold = !dates.empty();
    if (dates == "dmy") hints.dates = tables::DateOrder::DayMonthYear;
    if (dates == "ymd") hints.dates = tables::DateOrder::YearMonthDay;
    hints.bDecimalTold = !decimal.empty();
    if (decimal == ",") hints.decimal = ',';
    return hints;
}

void addWrittenTableOptions(CLI::App& command, WrittenTable& written) {
    command.add_option("--dates", written.dates, "The order of day, month and year: dmy, mdy or ymd")
        ->check(CLI::IsMember({"dmy", "mdy", "ymd"}))
        ->type_name("ORDER");
    command.add_option("--decimal", written.decimal, "What divides the fraction of a number: , or .")
        ->check(CLI::IsMember({",", "."}))
        ->type_name("MARK");
    command
        .add_option("--encoding", written.encoding, "Of the table: utf-8, utf-16le, utf-16be or windows-1252")
        ->check(CLI::IsMember({"utf-8", "utf-16le", "utf-16be", "windows-1252"}))
        ->type_name("NAME");
    command.add_option("--separator", written.separator, "What divides the cells: , ; | or tab")
        ->check(CLI::IsMember({",", ";", "|", "tab"}))
        ->type_name("MARK");
    command.add_option("--quotes", written.quotes, "What stands around cells: \", ' or none")
        ->check(CLI::IsMember({"\"", "'", "none"}))
        ->type_name("MARK");
    command.add_flag("--no-headings", written.noHeadings, "The first row is a record");
}

exchange::Sheet readTextSheet(const std::string& table, const WrittenTable& written) {
    using exchange::Encoding;
    const std::string bytes = readBytes(table);
    try {
        Encoding encoding = exchange::recognizedEncoding(bytes);
        if (written.encoding == "utf-8") encoding = Encoding::Utf8;
        if (written.encoding == "utf-16le") encoding = Encoding::Utf16Le;
        if (written.encoding == "utf-16be") encoding = Encoding::Utf16Be;
        if (written.encoding == "windows-1252") encoding = Encoding::Windows1252;
        const std::string text = exchange::decodedText(bytes, encoding);
        exchange::Delimiters delimiters = exchange::recognizedDelimiters(text);
        if (!written.separator.empty())
            delimiters.separator = written.separator == "tab" ? '\t' : written.separator.front();
        if (!written.quotes.empty())
            delimiters.quote = written.quotes == "none" ? '\0' : written.quotes.front();
        exchange::Sheet sheet;
        sheet.rows = exchange::readDelimited(text, delimiters);
        return sheet;
    } catch (const exchange::TableError& error) {
        throw Failure(table, error.what());
    }
}

std::size_t importSheet(Session& session, const SheetImport& import, exchange::Sheet sheet,
                        const WrittenTable& written) {
    try {
        ImportTable table(std::move(sheet), written.hints(), false, session.platform.today());
        if (table.hasHeadings() == written.noHeadings) table.setHeadings(!written.noHeadings);
        struct stat status {};
        if (::lstat(import.file.c_str(), &status) == 0)
            appendTo(session, import, table);
        else if (errno == EIO || errno == ESTALE)
            throw Failure(import.file,
                          std::strerror(errno)); // there may be one, which is not to be made anew
        else
            makeOf(session, import, table);
        return table.count();
    } catch (const exchange::TableError& error) {
        throw Failure(import.table, error.what());
    }
}

} // namespace cli
