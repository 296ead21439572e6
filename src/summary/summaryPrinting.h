#pragma once

#include "app/app.h"
#include "summary/summary.h"

namespace summary {

// Draws the summary on the paper of the report: its title, the headings on each sheet, the groups with their
// bars where there is room for them, and the grand total.
void drawSummary(app::App& app, drawing::DrawTarget& target, const Summary& summary, std::string_view title,
                 int barFigure);

} // namespace summary
