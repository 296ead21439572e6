#pragma once

#include "cli/command.h"
#include "cli/session.h"
#include "print/reportChoices.h"

#include <string>

namespace cli {

// The choices of "fwk report" beside its columns and its title. They hold for this print alone.
struct ReportOptions {
    print::ReportChoices choices;
    std::string groupBy; // "Planted:month"
    bool widen = false;
};

void addReportOptions(CLI::App& command, ReportOptions& options);

// Once the columns are chosen: hands the choices on, and tells on standard error which columns are too
// narrow, or widens them. Raises Failure for groups by what the report does not have.
void applyReportOptions(Session& session, const ReportOptions& options);

} // namespace cli
