#pragma once

#include "drawing/printer.h"

#include <memory>
#include <string>

namespace cli {

// `fwk` itself has no Qt in it, which would take most commands longer to load than their work: there both go
// on as the program that has, and come back only where that is not installed, as a Failure.

// The PDF file that is printed into, which takes its permissions from the database.
std::unique_ptr<drawing::Printer> makePrinter(const std::string& output, const std::string& database);
// A PNG file with one page, whose longer side has so many pixels; see qtprint/pagePicture.h.
std::unique_ptr<drawing::Printer> makePicturePrinter(const std::string& output, const std::string& database,
                                                     int pixels);

} // namespace cli
