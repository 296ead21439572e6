#pragma once

#include "app/app.h"

namespace print {

// The list that a report shows: in an invoice database the invoice list, or what was found.
core::RecordsList& reportList(app::App& app);

// The paper of the report; landscape on letter paper where the database has none yet.
drawing::PageSetup reportPage(app::App& app);

// Draws the report: all of it on a printer, a page a call on the preview. A failure ends in a message and
// leaves what has been drawn.
void PrintReport(app::App& app, drawing::DrawTarget& target, core::RecordsList& theList);
// The same, but a failure is raised.
void drawReport(app::App& app, drawing::DrawTarget& target, core::RecordsList& theList);

// Draws the report that the preview shows from its start, where one is on view.
void showReportAnew(app::App& app);

// The sums of the selected records under a rule.
void printSelectedTotals(core::Document& document, drawing::DrawTarget& target,
                         const core::RecordsList& theList);

bool isPrintedColumn(const core::Document& document, std::string_view title);
void printTitleCentred(drawing::DrawTarget& target, float x, int width, std::string_view text);
// After the end of a line the next one begins at the left margin of the report.
void printLeftAligned(const core::Document& document, drawing::DrawTarget& target, float x,
                      std::string_view text, bool bEndOfLine);
void printRightAligned(const core::Document& document, drawing::DrawTarget& target, float x, int width,
                       std::string_view text, bool bEndOfLine);

} // namespace print
