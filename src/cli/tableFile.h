#pragma once

#include "exchange/csvReader.h"

#include <memory>
#include <string>

namespace cli {

// Reads a table from a file or a pipe. Raises Failure with what is wrong with it.
std::unique_ptr<exchange::CsvTable> readTable(const std::string& file);

// All of it. Raises Failure when it cannot be read or is larger than a table can be.
std::string standardInput();
inline const std::string standardInputName = "standard input";

} // namespace cli
