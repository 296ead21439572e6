#include "cli/whereOption.h"

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

} // namespace

// COLUMN HOW VALUE, and TO when HOW is range.
void WhereOption::read() {
    const auto wrong = [](const std::string& text) { return CLI::ValidationError("--where", text); };
    auto word = words.begin();
    const auto next = [&](const char* what) {
        if (word == words.end()) throw wrong(std::string(what) + " is missing");
        return word->starts_with(wordMark) ? (word++)->substr(1) : *word++;
    };
    while (word != words.end()) {
        Group group;
        group.column = next("COLUMN");
        const std::string typed = next("HOW");
        const auto* const how = std::ranges::find(hows, typed);
        if (how == hows.end())
            throw wrong("HOW is ge, le, is, within or range (which alone takes TO), not \"" + typed + "\"");
        group.comparison = static_cast<int>(how - hows.begin());
        group.value = next("VALUE");
        if (group.comparison == search::range) group.to = next("TO");
        groups.push_back(std::move(group));
    }
    if (groups.size() > mostGroups) throw wrong("there are three at most");
}

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

CLI::Option* addWhereOption(CLI::App& command, WhereOption& where) {
    return command
        .add_option("--where", where.words,
                    "What the records must hold, up to three times; HOW is ge, le, is, within or range, "
                    "which takes TO")
        ->expected(3, 4)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->type_name("COLUMN HOW VALUE [TO]");
}

void find(Session& session, const WhereOption& where) {
    search::mnuSearch_Click(session.app);
    search::searchFrm form(session.app);
    for (std::size_t i = 0; i < where.groups.size(); ++i)
        fillIn(session, form, static_cast<int>(i), where.groups[i]);
    try {
        form.searchBtn_Click();
    } catch (const core::RunTimeError& error) {
        throw Failure(session.file, error.what());
    }
    form.closeBtn_Click();
}

} // namespace cli
