#include "cli/command.h"
#include "cli/session.h"
#include "shell/listEvents.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

struct SortOptions {
    std::string file, column;
    bool descending = false;
};

int sortRecords(const SortOptions& options) {
    Session session(options.file);
    session.open();
    core::RecordsList& list = session.app.document.LV;
    // A click on a header turns the order round, whatever it was.
    list.SortOrder = options.descending ? 0 : 1;
    shell::list_ColumnClick(session.app, list, session.column(options.column).Index);
    session.save();
    return done;
}

} // namespace

Run setUpSort(CLI::App& command) {
    const auto options = std::make_shared<SortOptions>();
    addFileArgument(command, options->file);
    command.add_option("COLUMN", options->column, "The column to sort by")->required();
    command.add_flag("--descending", options->descending, "From the highest to the lowest");
    return [options] { return sortRecords(*options); };
}

} // namespace cli
