#pragma once

#include "core/translate.h"
#include "print/reportChoices.h"
#include "print/reportColumns.h"
#include "print/reportFigures.h"

#include <cstdint>
#include <string>
#include <vector>

namespace print {

// The sheets of a report whose user has chosen more than records: what stands on each, from the top down.
struct ReportPlan {
    enum class Kind : std::uint8_t {
        Row,
        Heading,   // of a group
        Continued, // the same on the sheets that the group goes on to
        Subtotal,  // under a group
        Brought,   // the sums of all sheets before
        Carried,   // with those of this sheet
        Totals,    // the Totals row, or the sums of the selected records
    };
    struct Entry {
        Kind kind = Kind::Row;
        int number = 0; // of a row in the list from 1, or the place of a group
    };
    // Sums with what they are called. The label stands ahead of them, or has a line of its own.
    struct Sums {
        std::string label;
        bool ownLine = false;
        std::vector<std::string> texts; // by column; empty where none is totaled
    };
    struct Group {
        std::string heading;
        Sums subtotal;
    };
    struct Sheet {
        std::vector<Entry> entries;
        std::vector<std::string> carried; // by column
    };

    std::vector<Group> groups;
    std::vector<Sheet> sheets; // one at least
};

// Lengths in twips.
struct SheetMeasures {
    float line = 0;      // height of a line
    float headings = 0;  // height of the column headings with their rule
    float room = 0;      // from the first line to where the last one ends
    float labelRoom = 0; // ahead of the first sum
    float character = 0; // width of one
    float sumsLabel = 0; // width of the label of the sums of all sheets before, or with this one
};

// How high an entry is; the blank half line ahead of a heading is there unless it is a sheet's first.
float heightOf(const ReportPlan& plan, const SheetMeasures& measures, ReportPlan::Entry entry, bool isFirst);

constexpr const char *carriedLabel = core::marked("Carried forward"),
                     *broughtLabel = core::marked("Brought forward");

ReportPlan planReport(app::App& app, const core::RecordsList& list, const std::vector<ReportColumn>& columns,
                      const ReportChoices& choices, const SheetMeasures& measures);

} // namespace print
