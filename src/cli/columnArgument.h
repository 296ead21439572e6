#pragma once

#include <string>
#include <vector>

namespace CLI {
class Option;
}

namespace cli {

// A column to make, as "NAME:TYPE". A name may hold a colon, a type does not.
struct ColumnArgument {
    explicit ColumnArgument(const std::string& argument);

    std::string name;
    int typeOpt; // the option button of Database Properties; -1 for a type that does not exist
};

// The names of a list, "A,B".
std::vector<std::string> namesIn(const std::string& list);

// Has the command line refused when an argument is no NAME:TYPE.
void expectColumns(CLI::Option& option);

} // namespace cli
