#include "cli/filterOption.h"

#include "core/text.h"
#include "core/totalsRow.h"
#include "search/filter/filterMode.h"
#include "search/searchEngine.h"
#include "search/searchMode.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <unordered_set>

namespace cli {

namespace {

// A filter that is unfinished too: here nobody types on.
void check(const Session& session, const std::string& text, const std::optional<search::FilterError>& error) {
    if (!error) return;
    std::string message = "--filter, character ";
    message.append(std::to_string(core::length(std::string_view(text).substr(0, error->offset)) + 1));
    throw Failure(session.file, message.append(": ").append(error->reason));
}

void hint(const Session& session, const std::string& doubt) {
    if (!doubt.empty()) std::cerr << "fwk: " << session.file << ": --filter: " << doubt << '\n';
}

} // namespace

CLI::Option* addFilterOption(CLI::App& command, std::string& filter) {
    return command
        .add_option("--filter", filter,
                    "Only the records that pass: words, \"a phrase\", -word, Column:text, 'Column>10', "
                    "Column:2015..2018, | for or")
        ->type_name("TEXT");
}

void keepPassing(Session& session, const std::string& filter) {
    core::Document& document = session.app.document;
    if (core::trim(filter).empty()) return;
    const search::Filter read = search::parseFilter(session.app, document.LV, filter);
    check(session, filter, read.error);
    const search::Passed passed = search::recordsPassing(session.app, read);
    std::unordered_set<const core::Item*> gone;
    std::size_t row = 0;
    document.LV.forEach([&](const core::Item& record) {
        if (!record.isTotals() && passed.at(row++) == 0) gone.insert(&record);
    });
    if (gone.size() == row) hint(session, read.doubt);
    document.LV.removeIf([&](const core::Item& record) { return gone.contains(&record); });
    core::resetTotalsRow(document.LV);
    const core::TotalsRowUpdater totals(document, document.LV);
    document.LV.forEach([&](const core::Item& record) {
        if (!record.isTotals()) totals.update(core::TotalsMode::Add, record);
    });
}

void findPassing(Session& session, const std::string& filter) {
    search::setFilter(session.app, filter);
    check(session, filter, search::filterBar(session.app).error);
    hint(session, search::filterBar(session.app).doubt);
    if (session.app.document.searchLV.Visible) return;
    // All of them are found.
    std::vector<const core::Item*> all;
    search::sourceList(session.app.document).forEach([&](const core::Item& row) {
        if (!row.isTotals()) all.push_back(&row);
    });
    search::takeOverColumns(session.app.document);
    search::showRows(session.app, all);
}

} // namespace cli
