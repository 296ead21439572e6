#include "cli/columnArgument.h"
#include "cli/command.h"
#include "cli/filterOption.h"
#include "cli/recordsOutput.h"
#include "cli/session.h"
#include "core/text.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

struct ListOptions {
    std::string file;
    bool json = false, csv = false;
    std::string columns; // "A,B"; empty: all
    std::string filter;
};

int run(const ListOptions& options) {
    Session session(options.file);
    session.open();
    keepPassing(session, options.filter);
    printRecords(session.app.document.LV, session.columns(namesIn(options.columns)),
                 options.json  ? RecordsForm::Json
                 : options.csv ? RecordsForm::Csv
                               : RecordsForm::Table);
    return done;
}

} // namespace

Run setUpRecords(CLI::App& command) {
    const auto options = std::make_shared<ListOptions>();
    addFileArgument(command, options->file);
    CLI::Option* json =
        command.add_flag("--json", options->json, "As JSON, with the keys and the Totals row");
    command.add_flag("--csv", options->csv, "As CSV, with a header line")->excludes(json);
    command.add_option("--columns", options->columns, "These columns alone, in this order")->type_name("A,B");
    addFilterOption(command, options->filter);
    return [options] { return run(*options); };
}

} // namespace cli
