#pragma once

#include "cli/session.h"

#include <string>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace cli {

CLI::Option* addFilterOption(CLI::App& command, std::string& filter);

// Leaves the records that pass, and their sums, in the open document, which is for printing alone from then
// on. An empty filter changes nothing. Raises a failure that says where the filter is wrong, and why.
void keepPassing(Session& session, const std::string& filter);

// Finds the records as the window's filter bar does: the results stand in searchLV.
void findPassing(Session& session, const std::string& filter);

} // namespace cli
