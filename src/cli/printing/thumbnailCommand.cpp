#include "cli/command.h"
#include "cli/printing/printer.h"
#include "cli/printing/printing.h"
#include "cli/session.h"
#include "print/layoutPrinting.h"
#include "print/printCommands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace cli {

namespace {

constexpr int smallest = 16, largest = 2048; // pixels

struct ThumbnailOptions {
    std::string file, output;
    int pixels = 256;
};

// Desktops draw thumbnails of whatever has been downloaded, without being asked to: what takes more than this
// has none. The limits go along to the program that draws.
void limitWork() {
    constexpr rlim_t mostSeconds = 3;
    constexpr rlim_t mostBytes = rlim_t{1} << 30;
    struct Limit {
        decltype(RLIMIT_CPU) of;
        rlim_t most;
    };
    for (const Limit& limit :
         {Limit{RLIMIT_CPU, mostSeconds}, Limit{RLIMIT_AS, mostBytes}, Limit{RLIMIT_CORE, 0}}) {
        struct rlimit limits {};
        if (::getrlimit(limit.of, &limits) != 0) throw Failure("the limits of the system cannot be read");
        limits.rlim_cur = std::min(limits.rlim_cur, limit.most);
        if (::setrlimit(limit.of, &limits) != 0) throw Failure("the work cannot be limited");
    }
}

// What the limits end cannot clear up behind itself. So the work is done by a child, with a folder of its own
// for all that it unpacks; the program that draws makes one more in it, which is cheaper than to tell it not
// to. Answers how the child ended; nothing in the child.
std::optional<int> workInChild() {
    std::string folder = (std::filesystem::temp_directory_path() / "ferrowick-thumbnail-XXXXXX").string();
    if (::mkdtemp(folder.data()) == nullptr) throw Failure(folder, "could not be made");
    const pid_t child = ::fork();
    if (child == 0) {
        ::setenv("TMPDIR", folder.c_str(), 1);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a file manager that gives up ends us alone
        return std::nullopt;
    }
    int status = 0;
    while (child > 0 && ::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    std::error_code ignored; // of a folder for temporary files
    std::filesystem::remove_all(folder, ignored);
    if (child < 0) throw Failure("no process could be started");
    if (WIFSIGNALED(status)) throw Failure("drawing it took too long");
    return WEXITSTATUS(status);
}

int drawThumbnail(const ThumbnailOptions& options) {
    if (const std::optional<int> ended = workInChild()) return *ended;
    limitWork();
    Session session(options.file);
    const auto printer = makePicturePrinter(options.output, options.file, options.pixels);
    printInto(session, options.output, *printer, [](app::App& app, drawing::DrawTarget& target) {
        core::RecordsList& list = app.document.LV; // an invoice is drawn whole, whichever view the lists have
        const std::vector<int> first{1};
        if (list.count() > 0 && !list.at(1).isTotals())
            print::printEachLayout(app, target, list, &first);
        else
            print::PrintLayout(app, target); // as it is designed
    });
    return done;
}

} // namespace

Run setUpThumbnail(CLI::App& command) {
    const auto options = std::make_shared<ThumbnailOptions>();
    addFileArgument(command, options->file);
    command.add_option("-o,--output", options->output, "The PNG file, which is overwritten")
        ->required()
        ->type_name("OUT.png");
    command.add_option("--size", options->pixels, "Of its longer side in pixels, 256 when not told")
        ->type_name("N")
        ->check(CLI::Range(smallest, largest));
    command.footer("Draws the first record on its page, for file managers. A database whose page is empty, "
                   "or that takes\nmore than three seconds or a gigabyte to draw, has no thumbnail.");
    return [options] { return drawThumbnail(*options); };
}

} // namespace cli
