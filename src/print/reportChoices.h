#pragma once

#include "app/app.h"

#include <string>

namespace print {

// What a report has on each of its sheets beside its records. All of it is off unless the user has chosen it
// for the open file; it is kept by file in the user's settings, and a database knows nothing of it.
struct ReportChoices {
    bool heads = false;       // title and column headings on each sheet
    bool pageNumbers = false; // "3 of 8"
    bool date = false;
    bool sheetTotals = false; // carried forward at the end of a sheet, brought forward at the next one's top
    std::string groupColumn = {}; // empty for none
    std::string groupStep = {};   // "month" or "100"; empty for each value by itself

    // Whether the report is laid out sheet by sheet.
    bool any() const { return heads || pageNumbers || date || sheetTotals || !groupColumn.empty(); }
    bool operator==(const ReportChoices&) const = default;
};

ReportChoices reportChoices(const app::App& app);
void setReportChoices(app::App& app, const ReportChoices& choices);

} // namespace print
