#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "search/replaceFrm.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

struct ReplaceOptions {
    std::string file, find, replacement;
    std::vector<std::string> columns;
    double wait = usualWait;
};

int run(const ReplaceOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    if (!search::mayReplace(session.app)) throw Failure(session.file, "words have not been replaced");
    search::replaceFrm form(session.app);
    form.Text1 = options.find;
    form.Text2 = options.replacement;
    for (const std::string& name : options.columns)
        form.List1.at(static_cast<std::size_t>(session.column(name).Index - 1)).Selected = true;
    const int changed = options.columns.empty() ? form.Command1_Click() : form.Command3_Click();
    session.save();
    writeOutcome(std::to_string(changed) + "\n");
    return done;
}

} // namespace

Run setUpReplace(CLI::App& command) {
    const auto options = std::make_shared<ReplaceOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("FIND", options->find, "The word to find, in any case")->required();
    command.add_option("REPLACEMENT", options->replacement, "What takes its place")->required();
    command.add_option("--column", options->columns, "In these columns alone")->type_name("NAME ...");
    return [options] { return run(*options); };
}

} // namespace cli
