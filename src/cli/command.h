#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

// Exit codes that scripts depend on.
constexpr int done = 0;
constexpr int failed = 1;
constexpr int wrongCommandLine = 2;

// The seconds that a command waits for another program to finish with the database.
constexpr double usualWait = 5;

// What a command does once its arguments are known; answers the exit code. Refusals and failures are
// raised as Failure.
using Run = std::function<int()>;

// One command of the tool. setUp declares the arguments; they are stored by the time Run is called.
struct Command {
    const char* name;
    const char* summary;
    Run (*setUp)(CLI::App& command);
};

Run setUpInfo(CLI::App& command);
Run setUpRecords(CLI::App& command);
Run setUpCheck(CLI::App& command);
Run setUpNew(CLI::App& command);
Run setUpColumn(CLI::App& command);
Run setUpExpression(CLI::App& command);
Run setUpTotal(CLI::App& command);
Run setUpRecalculate(CLI::App& command);
Run setUpSerial(CLI::App& command);
Run setUpAdd(CLI::App& command);
Run setUpUpdate(CLI::App& command);
Run setUpDelete(CLI::App& command);
Run setUpDuplicate(CLI::App& command);
Run setUpSearch(CLI::App& command);
Run setUpReplace(CLI::App& command);
Run setUpSet(CLI::App& command);
Run setUpCodes(CLI::App& command);
Run setUpDuplicates(CLI::App& command);
Run setUpSummary(CLI::App& command);
Run setUpStatistics(CLI::App& command);
Run setUpSort(CLI::App& command);
Run setUpClone(CLI::App& command);
Run setUpSaveAs(CLI::App& command);
Run setUpLock(CLI::App& command);
Run setUpUnlock(CLI::App& command);
Run setUpClean(CLI::App& command);
Run setUpVersions(CLI::App& command);
Run setUpRestore(CLI::App& command);
Run setUpReport(CLI::App& command);
Run setUpLayouts(CLI::App& command);
Run setUpLabels(CLI::App& command);
Run setUpThumbnail(CLI::App& command);
Run setUpExport(CLI::App& command);
Run setUpImport(CLI::App& command);
Run setUpPaste(CLI::App& command);

// The command line as the program was started with.
char** commandLine();

// Lets the words of --where begin with a "-" where they are none of the options; in their order.
void markWhereWords(const CLI::App& command, std::vector<std::string>& words);

// Arguments that many commands share.
void addFileArgument(CLI::App& command, std::string& file);
// Of commands that write a database: FILE, and the seconds to wait for another writer.
void addWaitOption(CLI::App& command, double& seconds);
void addWrittenFileArgument(CLI::App& command, std::string& file, double& seconds);
void addYesFlag(CLI::App& command, bool& yes, const char* description);

} // namespace cli
