#include "cli/command.h"
#include "cli/recordsOutput.h"
#include "cli/session.h"
#include "core/dates.h"
#include "core/text.h"
#include "search/searchFrm.h"
#include "search/searchMode.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>

namespace cli {

namespace {

using search::Group;

struct SearchOptions {
    std::string file;
    std::vector<std::string> where; // as typed, one behind the other
    std::vector<Group> groups;
    bool json = false, csv = false;
    std::string target;
    double wait = usualWait;
    bool yes = false;
};

// In the order of the comparisons.
constexpr std::array<std::string_view, 5> hows = {"ge", "le", "is", "within", "range"};
constexpr std::size_t mostGroups = 3;
constexpr char wordMark = '\0'; // no argument holds it

// Of a short name no more than itself counts: "-old" is a word.
bool isOption(const CLI::App& command, const std::string& word) {
    if (word == "--") return true;
    const bool isName = word.starts_with("--") || word.size() == 2;
    return isName && word.starts_with('-') &&
           command.get_option_no_throw(word.substr(0, word.find('='))) != nullptr;
}

// COLUMN HOW VALUE, and TO when HOW is range.
void readGroups(SearchOptions& options) {
    const auto wrong = [](const std::string& text) { return CLI::ValidationError("--where", text); };
    auto word = options.where.begin();
    const auto next = [&](const char* what) {
        if (word == options.where.end()) throw wrong(std::string(what) + " is missing");
        return word->starts_with(wordMark) ? (word++)->substr(1) : *word++;
    };
    while (word != options.where.end()) {
        Group group;
        group.column = next("COLUMN");
        const std::string typed = next("HOW");
        const auto* const how = std::ranges::find(hows, typed);
        if (how == hows.end())
            throw wrong("HOW is ge, le, is, within or range (which alone takes TO), not \"" + typed + "\"");
        group.comparison = static_cast<int>(how - hows.begin());
        group.value = next("VALUE");
        if (group.comparison == search::range) group.to = next("TO");
        options.groups.push_back(std::move(group));
    }
    if (options.groups.size() > mostGroups) throw wrong("there are three at most");
}

// The dialog empties a box of a Date column that holds no date.
void checkDate(Session& session, const core::Column& column, const std::string& text) {
    if (!column.isType(core::ColumnType::Date) || core::trim(text).empty()) return;
    if (!core::isDate(text, session.platform.today()))
        throw Failure(session.file, "\"" + text + "\" is no date for the column \"" + column.Text + "\"");
}

// Fills in the dialog as a user does, without its help with the typing of amounts.
void fillIn(Session& session, search::searchFrm& form, int number, const Group& group) {
    const core::Column& column = session.column(group.column);
    checkDate(session, column, group.value);
    checkDate(session, column, group.to);
    const std::vector<std::string>& titles = form.list(number).items;
    const auto title = std::ranges::find(titles, column.Text);
    if (title == titles.end())
        throw Failure(session.file, "the view on show has no column \"" + column.Text + "\"");
    form.List_Click(number, static_cast<int>(title - titles.begin()));
    form.Opt_Click(number, group.comparison);
    const std::size_t value = 2 * static_cast<std::size_t>(number);
    form.SearchText.at(value).Text = group.value;
    form.SearchText.at(value + 1).Text = group.to;
}

void search(Session& session, const std::vector<Group>& groups) {
    search::mnuSearch_Click(session.app);
    search::searchFrm form(session.app);
    for (std::size_t i = 0; i < groups.size(); ++i) fillIn(session, form, static_cast<int>(i), groups[i]);
    try {
        form.searchBtn_Click();
    } catch (const core::RunTimeError& error) {
        throw Failure(session.file, error.what());
    }
    form.closeBtn_Click();
}

void print(core::RecordsList& results, const SearchOptions& options) {
    std::vector<const core::Column*> columns;
    for (const core::Column& column : results.columns)
        if (column.Index != 1) columns.push_back(&column);
    printRecords(results, columns,
                 options.json  ? RecordsForm::Json
                 : options.csv ? RecordsForm::Csv
                               : RecordsForm::Table);
}

int run(const SearchOptions& options) {
    Session session(options.file, options.wait);
    session.platform.setAnswersYes(options.yes);
    session.open();
    search(session, options.groups);
    if (!options.target.empty()) session.saveSearch(options.target);
    // Records that went into a file are printed only when a form is asked for.
    if (options.target.empty() || options.json || options.csv) print(session.app.document.searchLV, options);
    return done;
}

} // namespace

void markWhereWords(const CLI::App& command, std::vector<std::string>& words) {
    constexpr std::string_view name = "--where";
    int wanted = 0; // words of the group
    for (std::string& word : words) {
        if (word == name || word.starts_with("--where=")) {
            wanted = word == name ? 3 : 2;
        } else if (isOption(command, word)) {
            wanted = 0;
        } else if (wanted > 0) {
            if (wanted-- == 2 && word == hows[search::range]) ++wanted; // TO
            if (word.starts_with('-')) word.insert(word.begin(), wordMark);
        }
    }
}

Run setUpSearch(CLI::App& command) {
    const auto options = std::make_shared<SearchOptions>();
    addFileArgument(command, options->file);
    command
        .add_option("--where", options->where,
                    "What the records must hold, up to three times; HOW is ge, le, is, within or range, "
                    "which takes TO")
        ->required()
        ->expected(3, 4)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->type_name("COLUMN HOW VALUE [TO]");
    CLI::Option* json =
        command.add_flag("--json", options->json, "As JSON, with the keys and the Totals row");
    command.add_flag("--csv", options->csv, "As CSV, with a header line")->excludes(json);
    CLI::Option* target = command.add_option("-o", options->target, "Save them as a database of their own")
                              ->type_name("NEW.fwk");
    command.add_flag("--yes", options->yes, "Overwrite a file of that name")->needs(target);
    addWaitOption(command, options->wait);
    command.parse_complete_callback([options] { readGroups(*options); });
    return [options] { return run(*options); };
}

} // namespace cli
