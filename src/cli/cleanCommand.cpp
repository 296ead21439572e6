#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "storage/cleanDatabase.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

struct CleanOptions {
    std::string file;
    double wait = usualWait;
};

int clean(const CleanOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    session.refuseIfChanged();
    std::string removed;
    session.change([&] {
        for (const std::string& name : storage::cleanDatabase(session.app))
            removed.append(printable(name)).push_back('\n');
    });
    session.tellNoted();
    writeOutcome(removed);
    return done;
}

} // namespace

Run setUpClean(CLI::App& command) {
    const auto options = std::make_shared<CleanOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.footer("Prints the names of the images that went, one a line. GIF images are never removed.");
    return [options] { return clean(*options); };
}

} // namespace cli
