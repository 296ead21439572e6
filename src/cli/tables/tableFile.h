#pragma once

#include "exchange/csvReader.h"

#include <memory>
#include <string>

namespace cli {

// A table from a file or a pipe; "-" is standard input. Raises Failure when it cannot be read or is larger
// than a table can be.
std::string readBytes(const std::string& file);
// The same as comma-separated values. Raises Failure with what is wrong with it.
std::unique_ptr<exchange::CsvTable> readTable(const std::string& file);

// All of it. Raises Failure when it cannot be read or is larger than a table can be.
std::string standardInput();
inline const std::string standardInputName = "standard input";

} // namespace cli
