#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/tables/tableFile.h"
#include "tables/toldCells.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace cli {

namespace {

using tables::NewRecords;

constexpr const char* aboutPaste =
    "The rows of the table on standard input become new records. They have tabs between their cells, as a\n"
    "spreadsheet puts them on the clipboard, or are a table of an HTML page. When most cells of the first "
    "row are\n"
    "names of columns, each cell goes into the column of its heading, otherwise into the column of its place "
    "on\n"
    "screen. Columns that are left out take what a new record proposes, calculated ones are calculated.\n"
    "A cell that its column cannot take (no number, no date, a \"|\") is told on standard error, and nothing "
    "is\n"
    "stored. Prints how many records there are more.";

struct PasteOptions {
    std::string file;
    double wait = usualWait;
    bool headings = false, noHeadings = false, yes = false;
};

exchange::TextRows readRows() {
    try {
        const std::string text = exchange::textOf(standardInput());
        exchange::TextRows rows =
            exchange::isHtml(text) ? exchange::readHtmlRows(text) : exchange::readTabbedRows(text);
        if (rows.empty()) throw Failure(standardInputName, "it has no rows");
        return rows;
    } catch (const exchange::TableError& error) {
        throw Failure(standardInputName, error.what());
    }
}

// What only the user can settle. With his consent the rest is stored.
std::vector<std::string> openQuestions(const NewRecords& records) {
    std::vector<std::string> questions;
    for (const NewRecords::Source& source : records.sources())
        if (!source.whyLeftOut.empty()) questions.push_back(source.whyLeftOut);
    std::ranges::move(tables::refusedInWords(records), std::back_inserter(questions));
    return questions;
}

int run(const PasteOptions& options) {
    using tables::Headings;
    const Headings headings =
        options.headings ? Headings::Yes : (options.noHeadings ? Headings::No : Headings::Guess);
    exchange::TextRows rows = readRows(); // nobody has to wait for who gives it
    Session session(options.file, options.wait);
    session.openToWrite();
    NewRecords records(session.app, std::move(rows), headings);
    if (records.count() > records.room())
        throw Failure(options.file, "it has room for " + std::to_string(records.room()) +
                                        " more records, not " + std::to_string(records.count()));
    const std::vector<std::string> questions = openQuestions(records);
    tellRows(standardInputName, questions);
    if (!questions.empty() && !options.yes)
        throw Failure(options.file, "nothing is stored; --yes leaves out what cannot be stored");
    std::vector<calc::Uncalculated> failed;
    session.change([&] { failed = records.store(); });
    session.save();
    std::vector<std::string> uncalculated;
    uncalculated.reserve(failed.size());
    for (const auto& [key, reason] : failed)
        uncalculated.push_back(
            std::string(key).append(" is stored, but cannot be calculated (").append(reason) + ')');
    tellRows(options.file, uncalculated);
    writeOutcome(std::to_string(records.count()) + "\n");
    return done;
}

} // namespace

Run setUpPaste(CLI::App& command) {
    const auto options = std::make_shared<PasteOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    auto* headings =
        command.add_flag("--headings", options->headings, "The first row has the names of the columns");
    command.add_flag("--no-headings", options->noHeadings, "The first row is a record")->excludes(headings);
    addYesFlag(command, options->yes,
               "Store the records without the cells that are refused and without unknown columns");
    command.footer(aboutPaste);
    return [options] { return run(*options); };
}

} // namespace cli
