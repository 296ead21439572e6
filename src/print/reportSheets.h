#pragma once

#include "app/app.h"
#include "print/reportChoices.h"

namespace print {

// The choices that the list on show can follow: groups by a column that it does not have are none.
ReportChoices reportChoices(const app::App& app, const core::RecordsList& theList);

// Draws the report as the choices want it: all of its sheets on a printer, one a call on the preview, which
// looks like the paper. There iReportStartRow and iReportPageStart count sheets, of a line each, and both
// targets break at the same record.
void drawReportSheets(app::App& app, drawing::DrawTarget& target, core::RecordsList& theList,
                      const ReportChoices& choices);

} // namespace print
