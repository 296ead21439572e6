#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/whereOption.h"
#include "search/manyRecords.h"
#include "search/searchMode.h"
#include "search/setValues.h"

#include <CLI/CLI.hpp>
#include <optional>

namespace cli {

namespace {

struct SetOptions {
    std::string file, column;
    std::optional<std::string> value, expression;
    WhereOption where;
    bool all = false;
    double wait = usualWait;
};

std::vector<core::Item*> recordsMeant(Session& session, const SetOptions& options) {
    if (options.all) return search::recordsIn(session.app, search::allRecords);
    find(session, options.where);
    std::vector<core::Item*> records = search::recordsIn(session.app, search::foundRecords);
    search::leaveResults(session.app);
    return records;
}

search::SetOutcome setColumn(Session& session, const SetOptions& options) {
    const bool isExpression = options.expression.has_value();
    const search::NewValue value{session.column(options.column).Text,
                                 session.typed(isExpression ? *options.expression : *options.value),
                                 isExpression};
    search::ValueMaker maker(session.app, value);
    if (maker.fault()) throw Failure(session.file, *maker.fault());
    search::SetOutcome outcome;
    session.change([&] { outcome = search::setValues(session.app, maker, recordsMeant(session, options)); });
    if (outcome.refused != nullptr)
        throw Failure(session.file, outcome.refused->Key.str() + " would get no value (" + outcome.reason +
                                        "), so that nothing is set");
    return outcome;
}

int run(const SetOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    const search::SetOutcome outcome = setColumn(session, options);
    std::vector<std::string> rows;
    for (const calc::Uncalculated& row : outcome.uncalculated)
        rows.push_back(row.key + " is stored, but cannot be calculated (" + row.reason + ")");
    tellRows(session.file, rows);
    if (outcome.changed > 0) session.save();
    writeOutcome(std::to_string(outcome.changed) + "\n");
    return done;
}

void readWords(SetOptions& options) {
    if (!options.value && !options.expression) throw CLI::RequiredError("VALUE or --expression");
    if (!options.all && options.where.words.empty()) throw CLI::RequiredError("--where or --all");
    options.where.read();
}

} // namespace

Run setUpSet(CLI::App& command) {
    const auto options = std::make_shared<SetOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("COLUMN", options->column, "The column to set")->required();
    CLI::Option* value = command.add_option("VALUE", options->value, "The value; an empty text clears cells");
    command
        .add_option("--expression", options->expression,
                    "Work the value out from the columns of each record, blanks around every operator")
        ->type_name("EXPRESSION")
        ->excludes(value);
    CLI::Option* where = addWhereOption(command, options->where);
    command.add_flag("--all", options->all, "Set all records")->excludes(where);
    command.parse_complete_callback([options] { readWords(*options); });
    return [options] { return run(*options); };
}

} // namespace cli
