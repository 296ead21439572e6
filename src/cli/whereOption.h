#pragma once

#include "cli/session.h"
#include "search/criterion.h"

#include <string>
#include <vector>

namespace CLI {
class Option;
}

namespace cli {

// What records must hold, as search and the commands that work on what a search would find take it.
struct WhereOption {
    std::vector<std::string> words; // as typed, one behind the other
    std::vector<search::Group> groups;

    // Makes groups of the words. Raises the error of a wrong command line.
    void read();
};

CLI::Option* addWhereOption(CLI::App& command, WhereOption& where);

// Finds the records as the window's dialog does: the results stand in searchLV.
void find(Session& session, const WhereOption& where);

} // namespace cli
