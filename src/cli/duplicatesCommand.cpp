#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "core/text.h"
#include "search/duplicates.h"
#include "search/manyRecords.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

namespace cli {

namespace {

using core::Column;
using search::EqualRecords;
using Columns = std::vector<const Column*>;

struct DuplicatesOptions {
    std::string file, by;
    bool json = false, ignoreCase = false, remove = false, yes = false;
    double wait = usualWait;
};

constexpr std::size_t mostKeys = 10; // of a group that a table names

Columns comparedColumns(Session& session, const std::string& names) {
    Columns columns;
    if (names.empty()) {
        for (const Column& column : session.app.document.LV.columns)
            if (search::isComparedAtFirst(session.app.document, column)) columns.push_back(&column);
        return columns;
    }
    for (const std::string_view name : core::split(names, ',')) columns.push_back(&session.column(name));
    return columns;
}

std::string asJson(const std::vector<EqualRecords>& groups, const Columns& columns) {
    std::string out = "{\"columns\": [";
    const auto appendList = [&](const auto& items, const auto& textOf) {
        bool isFirst = true;
        for (const auto* item : items) {
            if (!std::exchange(isFirst, false)) out.append(", ");
            appendJsonText(out, textOf(*item));
        }
        out.push_back(']');
    };
    appendList(columns, [](const Column& column) { return std::string_view(column.Text); });
    out.append(",\n \"groups\": [");
    for (const EqualRecords& group : groups) {
        out.append(out.back() == '[' ? "\n  {\"keys\": [" : ",\n  {\"keys\": [");
        appendList(group, [](const core::Item& record) { return record.Key.view(); });
        out.append(", \"cells\": [");
        appendList(columns, [&](const Column& column) {
            return core::RecordsList::cell(*group.front(), column).view();
        });
        out.push_back('}');
    }
    out.append("]}\n");
    return out;
}

std::string firstKeysOf(const EqualRecords& group) {
    std::string keys;
    for (std::size_t i = 0; i < std::min(group.size(), mostKeys); ++i) {
        if (i > 0) keys.push_back(' ');
        keys.append(group[i]->Key.view());
    }
    if (group.size() > mostKeys) keys.append(" ...");
    return keys;
}

// No table for no groups.
std::string asTable(const std::vector<EqualRecords>& groups, const Columns& columns) {
    std::string out;
    if (groups.empty()) return out;
    std::vector<TextTable::Heading> headings{{"Records", true}, {"Keys"}};
    for (const Column* column : columns) headings.push_back({column->Text, column->isNumeric()});
    TextTable table(headings);
    for (const EqualRecords& group : groups) {
        const std::string count = std::to_string(group.size()), keys = firstKeysOf(group);
        std::vector<std::string_view> cells{count, keys};
        for (const Column* column : columns)
            cells.push_back(core::RecordsList::cell(*group.front(), *column).view());
        table.row(cells);
    }
    table.appendTo(out);
    return out;
}

void removeRecords(Session& session, const std::vector<EqualRecords>& groups, bool yes) {
    std::size_t records = 0;
    for (const EqualRecords& group : groups) records += group.size() - 1;
    if (records > 0 && !yes)
        throw Failure(session.file, "--yes deletes " + search::counted(records, "record", "records") +
                                        " behind the first of a group");
    int gone = 0;
    session.change([&] { gone = search::deleteAllButFirst(session.app, groups); });
    if (gone > 0) session.save();
    writeOutcome(std::to_string(gone) + "\n");
}

int run(const DuplicatesOptions& options) {
    Session session(options.file, options.wait);
    options.remove ? session.openToWrite() : session.open();
    const Columns columns = comparedColumns(session, options.by);
    const std::vector<EqualRecords> groups =
        search::findDuplicates(session.app.document.LV, columns, options.ignoreCase);
    if (options.remove)
        removeRecords(session, groups, options.yes);
    else
        writeOut(options.json ? asJson(groups, columns) : asTable(groups, columns));
    return done;
}

} // namespace

Run setUpDuplicates(CLI::App& command) {
    const auto options = std::make_shared<DuplicatesOptions>();
    addFileArgument(command, options->file);
    command
        .add_option(
            "--by", options->by,
            "The columns that are equal; all but serial numbers, dates of entry and calculations when "
            "not told")
        ->type_name("A,B");
    command.add_flag("--ignore-case", options->ignoreCase, "Ignore capitals, and blanks at the ends");
    CLI::Option* json = command.add_flag("--json", options->json, "As JSON");
    CLI::Option* remove =
        command.add_flag("--delete", options->remove, "Delete all but the first of each group")
            ->excludes(json);
    command.add_flag("--yes", options->yes, "Do not refuse to delete")->needs(remove);
    addWaitOption(command, options->wait);
    return [options] { return run(*options); };
}

} // namespace cli
