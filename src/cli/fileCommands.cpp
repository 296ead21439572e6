#include "cli/command.h"
#include "cli/session.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

struct FileOptions {
    std::string file, target;
    double wait = usualWait;
    bool yes = false;
};

// Both commands of the File menu take the same arguments.
Run setUpCopy(CLI::App& command, void (Session::*copy)(const std::string&)) {
    const auto options = std::make_shared<FileOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("NEW.fwk", options->target, "The file to make")->required();
    addYesFlag(command, options->yes, "Overwrite a file of that name");
    return [options, copy] {
        Session session(options->file, options->wait);
        session.platform.setAnswersYes(options->yes);
        session.open();
        (session.*copy)(options->target);
        return done;
    };
}

} // namespace

Run setUpClone(CLI::App& command) {
    return setUpCopy(command, &Session::clone);
}

Run setUpSaveAs(CLI::App& command) {
    return setUpCopy(command, &Session::saveAs);
}

} // namespace cli
