#include "cli/command.h"
#include "cli/invoiceEntry.h"
#include "cli/output.h"
#include "cli/recordEntry.h"
#include "cli/session.h"
#include "core/number.h"
#include "entry/editRecord.h"
#include "shell/listEvents.h"

#include <CLI/CLI.hpp>
#include <optional>

namespace cli {

namespace {

struct RecordOptions {
    std::string file, key, copies, column;
    std::vector<std::string> keys, cells;
    bool descending = false;
    double wait = usualWait;
};

int add(const RecordOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    const std::vector<CellValue> values = cellValues(session, options.cells);
    const bool isInvoice = session.app.document.bInvoiceStyle;
    const core::Item& added = isInvoice ? addInvoice(session, values) : addRecord(session, values);
    const std::string key = added.Key.str();
    session.save();
    writeOutcome(key + "\n");
    return done;
}

int update(const RecordOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    core::Item& record = session.record(options.key);
    const std::vector<CellValue> values = cellValues(session, options.cells);
    if (session.app.document.bInvoiceStyle)
        updateInvoice(session, record, values);
    else
        updateRecord(session, record, values);
    session.save();
    return done;
}

int deleteRecords(const RecordOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    core::RecordsList& records = session.app.document.LV;
    records.clearSelection();
    records.setSelectedItem(&session.record(options.keys.front()));
    for (const std::string& key : options.keys) session.record(key).Selected = true;
    session.app.mainFrm.bConfirmDelete = false;
    session.change([&] { entry::deleteRecords(session.app); });
    session.save();
    return done;
}

int duplicate(const RecordOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    core::Item& source = session.record(options.key);
    session.change(
        [&] { entry::duplicateRecord(session.app, source, core::toInt16(core::val(options.copies))); });
    session.save();
    return done;
}

int sortRecords(const RecordOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    core::RecordsList& list = session.app.document.LV;
    // A click on a header turns the order round, whatever it was.
    list.SortOrder = options.descending ? 0 : 1;
    const int index = session.column(options.column).Index;
    session.change([&] { shell::list_ColumnClick(session.app, list, index); });
    session.save();
    return done;
}

// What the window's box would read as another number than the one that is meant ("1,000" as 1) is refused.
std::string whatIsWrongWithCopies(const std::string& copies) {
    const std::optional<double> number = core::toDouble(copies);
    if (number && *number >= 0 && *number == core::val(copies)) return {};
    return "\"" + copies + "\" is no number of copies";
}

CLI::Option* addCellsArgument(CLI::App& command, RecordOptions& options, const char* description) {
    return command.add_option("CELL", options.cells, description)->option_text("NAME=VALUE ...");
}

} // namespace

Run setUpAdd(CLI::App& command) {
    const auto options = std::make_shared<RecordOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    addCellsArgument(command, *options, "What the record is to hold; the others start as in a new record");
    return [options] { return add(*options); };
}

Run setUpUpdate(CLI::App& command) {
    const auto options = std::make_shared<RecordOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("KEY", options->key, "The record, as \"records\" shows it")->required();
    addCellsArgument(command, *options, "The new values; the other cells stay")->required();
    return [options] { return update(*options); };
}

Run setUpDelete(CLI::App& command) {
    const auto options = std::make_shared<RecordOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("KEY", options->keys, "The records, as \"records\" shows them")->required();
    return [options] { return deleteRecords(*options); };
}

Run setUpDuplicate(CLI::App& command) {
    const auto options = std::make_shared<RecordOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("KEY", options->key, "The record, as \"records\" shows it")->required();
    command.add_option("COPIES", options->copies, "How many copies")
        ->required()
        ->check(whatIsWrongWithCopies);
    return [options] { return duplicate(*options); };
}

Run setUpSort(CLI::App& command) {
    const auto options = std::make_shared<RecordOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("COLUMN", options->column, "The column to sort by")->required();
    command.add_flag("--descending", options->descending, "From the highest to the lowest");
    return [options] { return sortRecords(*options); };
}

} // namespace cli
