#pragma once

#include "drawing/printer.h"

#include <memory>
#include <string>

namespace cli {

// The PDF file that is printed into, which takes its permissions from the database. `fwk` itself has no Qt in
// it, which would take most commands longer to load than their work: there it goes on as the program that
// has, and comes back only where that is not installed, as a Failure.
std::unique_ptr<drawing::Printer> makePrinter(const std::string& output, const std::string& database);

} // namespace cli
