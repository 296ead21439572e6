#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "storage/cleanDatabase.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

int clean(const std::string& file) {
    Session session(file);
    session.open();
    std::string removed;
    session.change([&] {
        for (const std::string& name : storage::cleanDatabase(session.app))
            removed.append(printable(name)).push_back('\n');
    });
    session.tellVersionFailure();
    writeOutcome(removed);
    return done;
}

} // namespace

Run setUpClean(CLI::App& command) {
    const auto file = std::make_shared<std::string>();
    addFileArgument(command, *file);
    command.footer("Prints the names of the images that went, one a line. GIF images are never removed.");
    return [file] { return clean(*file); };
}

} // namespace cli
