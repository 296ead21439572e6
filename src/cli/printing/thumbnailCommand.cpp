#include "cli/command.h"
#include "cli/printing/printer.h"
#include "cli/printing/printing.h"
#include "cli/session.h"
#include "print/layoutPrinting.h"
#include "print/printCommands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <sys/resource.h>
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

int drawThumbnail(const ThumbnailOptions& options) {
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
