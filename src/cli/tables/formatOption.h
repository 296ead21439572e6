#pragma once

#include "exchange/sheet.h"

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

// The kind of a table, where its file name does not tell it: "csv", "xlsx" ...
void addFormatOption(CLI::App& command, std::string& format);
std::optional<exchange::Format> formatNamed(const std::string& name);

// The place, from 0, of the sheet that is told by its name or by its number from 1. Raises Failure.
std::size_t sheetNamed(const std::string& table, exchange::Format format, const std::string& sheet);

} // namespace cli
