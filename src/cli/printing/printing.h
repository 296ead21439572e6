#pragma once

#include "cli/session.h"

#include <functional>
#include <string>

namespace cli {

// Opens the database and the PDF file, prints, and closes the file. A failure leaves an older file as it was.
void printInto(Session& session, const std::string& output,
               const std::function<void(app::App&, drawing::DrawTarget&)>& print);

} // namespace cli
