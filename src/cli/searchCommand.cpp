#include "cli/command.h"
#include "cli/filterOption.h"
#include "cli/recordsOutput.h"
#include "cli/session.h"
#include "cli/whereOption.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

struct SearchOptions {
    std::string file;
    WhereOption where;
    std::string filter;
    bool json = false, csv = false;
    std::string target;
    double wait = usualWait;
    bool yes = false;
};

void print(core::RecordsList& results, const SearchOptions& options) {
    std::vector<const core::Column*> columns;
    for (const core::Column& column : results.columns)
        if (column.Index != 1) columns.push_back(&column);
    printRecords(results, columns,
                 options.json  ? RecordsForm::Json
                 : options.csv ? RecordsForm::Csv
                               : RecordsForm::Table);
}

int run(const SearchOptions& options) {
    Session session(options.file, options.wait);
    session.platform.setAnswersYes(options.yes);
    session.open();
    options.where.groups.empty() ? findPassing(session, options.filter) : find(session, options.where);
    if (!options.target.empty()) session.saveSearch(options.target);
    // Records that went into a file are printed only when a form is asked for.
    if (options.target.empty() || options.json || options.csv) print(session.app.document.searchLV, options);
    return done;
}

} // namespace

Run setUpSearch(CLI::App& command) {
    const auto options = std::make_shared<SearchOptions>();
    addFileArgument(command, options->file);
    CLI::Option* where = addWhereOption(command, options->where);
    CLI::Option* filter = addFilterOption(command, options->filter)->excludes(where);
    CLI::Option* json =
        command.add_flag("--json", options->json, "As JSON, with the keys and the Totals row");
    command.add_flag("--csv", options->csv, "As CSV, with a header line")->excludes(json);
    CLI::Option* target = command.add_option("-o", options->target, "Save them as a database of their own")
                              ->type_name("NEW.fwk");
    command.add_flag("--yes", options->yes, "Overwrite a file of that name")->needs(target);
    addWaitOption(command, options->wait);
    command.parse_complete_callback([options, where, filter] {
        if (where->empty() && filter->empty()) throw CLI::RequiredError("--where or --filter");
        options->where.read();
    });
    return [options] { return run(*options); };
}

} // namespace cli
