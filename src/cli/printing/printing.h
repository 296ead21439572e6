#pragma once

#include "cli/session.h"

#include <functional>
#include <string>

namespace cli {

using Print = std::function<void(app::App&, drawing::DrawTarget&)>;

// Opens the database and the file that is printed into, prints, and closes the file. A failure leaves an
// older file as it was.
void printInto(Session& session, const std::string& output, drawing::Printer& printer, const Print& print);
// The same into a PDF file.
void printInto(Session& session, const std::string& output, const Print& print);

} // namespace cli
