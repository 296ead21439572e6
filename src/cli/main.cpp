#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <iostream>
#include <malloc.h>
#include <map>

namespace cli {

namespace {

constexpr Command commands[] = {
    {"info", "Tells what a database is", setUpInfo},
    {"records", "Prints the records and the Totals row", setUpRecords},
    {"search", "Prints the records found, or saves them as a database of their own", setUpSearch},
    {"summary", "Counts records in groups, with sums, means, least and greatest values", setUpSummary},
    {"statistics", "Tells figures and the most frequent values of a column", setUpStatistics},
    {"check", "Tells what is wrong with a database, one finding a line", setUpCheck},
    {"new", "Makes a database with these columns", setUpNew},
    {"add", "Adds a record", setUpAdd},
    {"update", "Changes cells of a record", setUpUpdate},
    {"delete", "Deletes records", setUpDelete},
    {"duplicate", "Adds copies of a record", setUpDuplicate},
    {"sort", "Sorts the records by a column and stores that order", setUpSort},
    {"column", "Adds, renames or removes a column", setUpColumn},
    {"expression", "Prints or sets the expression of a calculation column", setUpExpression},
    {"total", "Chooses the columns to total, and recalculates", setUpTotal},
    {"recalculate", "Recalculates all records and the Totals row", setUpRecalculate},
    {"serial", "Sets a serial counter, or checks the numbers", setUpSerial},
    {"replace", "Replaces words, and prints how many cells have changed", setUpReplace},
    {"set", "Sets a column of many records, and prints how many have changed", setUpSet},
    {"codes", "Makes QR or bar codes in a column of pictures, and prints how many have changed", setUpCodes},
    {"duplicates", "Lists the records that are equal, or deletes all but the first of them", setUpDuplicates},
    {"lock", "Locks the design with a password, read from standard input", setUpLock},
    {"unlock", "Opens a locked design with its password, read from standard input", setUpUnlock},
    {"clone", "Makes a database of the same design without records", setUpClone},
    {"save-as", "Saves a database under another name, with its images", setUpSaveAs},
    {"clean", "Removes the images that nothing refers to, and prints what went", setUpClean},
    {"versions", "Lists the states of a database that saves have replaced", setUpVersions},
    {"restore", "Makes a database as it was in one of its versions", setUpRestore},
    {"report", "Prints the report of all records into a PDF file", setUpReport},
    {"layouts", "Prints the layout of each record into a PDF file", setUpLayouts},
    {"labels", "Lists the label stocks that have these words or this size", setUpLabels},
    {"thumbnail", "Draws the layout of the first record into a PNG file", setUpThumbnail},
    {"export", "Writes the records with their column types into a table", setUpExport},
    {"import", "Makes a database from a table, or appends the table's rows", setUpImport},
    {"paste", "Makes new records of the rows of a table on standard input", setUpPaste},
};

constexpr const char* exitCodes =
    "Exit code: 0 done; 1 refused or failed, a line on standard error says why; "
    "2 the command line is wrong.";

char** startedWith = nullptr;

int tellWrongCommandLine(const CLI::App& program, const std::string& what) {
    std::cerr << "fwk: " << what << "\n\n" << program.help();
    return wrongCommandLine;
}

bool isUnknownCommand(std::string_view word) {
    return !word.starts_with('-') &&
           std::ranges::none_of(commands, [&](const Command& command) { return word == command.name; });
}

std::string whatIsWrongWithWait(const std::string& text) {
    constexpr double most = 24.0 * 60 * 60;
    double seconds = -1;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, seconds);
    if (error == std::errc() && stopped == end && seconds >= 0 && seconds <= most) return {};
    return "\"" + printable(text) + "\" is no number of seconds";
}

int runProgram(int argc, char** argv) {
    startedWith = argv;
    CLI::App program("Works on Ferrowick databases from the command line.", "fwk");
    program.set_version_flag("--version", "fwk " FERROWICK_VERSION);
    program.require_subcommand(1);
    program.footer(exitCodes);
    program.get_formatter()->label("SUBCOMMAND", "COMMAND");
    program.get_formatter()->label("Subcommands", "Commands");
    std::map<const CLI::App*, Run> runs;
    for (const Command& command : commands) {
        CLI::App* subcommand = program.add_subcommand(command.name, command.summary);
        runs[subcommand] = command.setUp(*subcommand);
    }
    if (argc < 2) return tellWrongCommandLine(program, "A command is required");
    if (isUnknownCommand(argv[1]))
        return tellWrongCommandLine(program, "no command \"" + printable(argv[1]) + '"');
    try {
        std::vector<std::string> words(argv + 1, argv + argc);
        for (const char* name : {"search", "set", "summary", "statistics"})
            if (words.front() == name) markWhereWords(*program.get_subcommand(name), words);
        std::ranges::reverse(words); // as they are taken
        program.parse(std::move(words));
    } catch (const CLI::Success& help) {
        return program.exit(help);
    } catch (const CLI::ParseError& error) {
        return tellWrongCommandLine(program, error.what());
    }
    return runs[program.get_subcommands().front()]();
}

} // namespace

char** commandLine() {
    return startedWith;
}

void addFileArgument(CLI::App& command, std::string& file) {
    command.add_option("FILE", file, "The database")->required();
}

void addWaitOption(CLI::App& command, double& seconds) {
    command
        .add_option("--wait", seconds,
                    "Wait so many seconds while another program changes the database, 5 when not told")
        ->type_name("S")
        ->check(whatIsWrongWithWait);
}

void addWrittenFileArgument(CLI::App& command, std::string& file, double& seconds) {
    addFileArgument(command, file);
    addWaitOption(command, seconds);
}

void addYesFlag(CLI::App& command, bool& yes, const char* description) {
    command.add_flag("--yes", yes, description);
}

} // namespace cli

int main(int argc, char** argv) {
    // The text of a database goes through some large buffers, one behind the other. Kept, their memory serves
    // the next one; handed back, the system clears it anew.
    constexpr int keptBytes = 256 * 1024 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, keptBytes);
    ::mallopt(M_TRIM_THRESHOLD, keptBytes);
    try {
        return cli::runProgram(argc, argv);
    } catch (const std::bad_alloc&) {
        std::cerr << "fwk: out of memory\n";
    } catch (const std::exception& error) {
        // What no command expects, of the libraries too: it is told, and the exit code is that of a failure.
        std::cerr << "fwk: " << cli::printable(error.what()) << '\n';
    }
    return cli::failed;
}
