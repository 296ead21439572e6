#pragma once

#include "app/app.h"

#include <string>
#include <vector>

namespace print {

// A column that is too narrow for what it prints: a text is cut, a number pushes its neighbours aside.
struct NarrowColumn {
    std::string name;
    int shown = 0, longest = 0; // in characters
    float width = 0;            // twips, that shows all, or as much as the sheet has room for
    float present = 0;          // its width now
};

// How the columns of a report fit their texts, and the sheet.
struct ReportFit {
    std::vector<NarrowColumn> narrow;
    std::vector<std::string> beyond; // columns that reach over the edge of the paper

    bool canWiden() const;
    // "Too narrow for the longest text: Planted (9 of 10 characters)."; empty where all fits.
    std::string text() const;
};

// Looks at all texts that the report prints, headings too. Only one that has more bytes than its column
// has room is looked at closely, and none is measured but a single character.
ReportFit fitOf(app::App& app, core::RecordsList& theList);

// As if the user had drawn the columns wider. Search results and the list that they come from alike.
void widenColumns(app::App& app, core::RecordsList& theList, const ReportFit& fit);

// Of the report that the preview shows.
inline ReportFit& previewFit(app::App& app) {
    return app.rooms.of<ReportFit>();
}
// Widens the columns of the report on the preview, and draws it anew from its start.
void Widen_Click(app::App& app);

} // namespace print
