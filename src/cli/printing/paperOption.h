#pragma once

#include <string>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace cli {

// "--paper NAME"; a name that no paper has is refused with the names that there are.
CLI::Option* addPaperOption(CLI::App& command, std::string& paper, const char* about);

} // namespace cli
