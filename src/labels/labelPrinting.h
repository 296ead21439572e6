#pragma once

#include "core/layoutObjects.h"
#include "labels/labelChoice.h"

#include <string>
#include <string_view>
#include <vector>

namespace labels {

// How many labels there are of each record that is printed: one row of theListView after the other.
struct LabelCopies {
    std::vector<int> rows;
    std::vector<long> ends; // labels up to and with that of the row in the same place
    int without = 0;        // records whose column has no number above 0: they get none
    int cut = 0;            // records with more than LabelChoice::mostCopies: they get so many

    long labels() const { return ends.empty() ? 0 : ends.back(); }
};
// Of the selected rows (app.mainFrm.selectedRows), or of all.
LabelCopies countLabels(const app::App& app, const LabelChoice& choice, bool bSelectedOnly);
// "120 labels on 6 sheets", with what else there is to say of the copies.
std::string aboutLabels(const LabelChoice& choice, const LabelCopies& copies);
int labelSheets(const LabelChoice& choice, const LabelCopies& copies);

// Draws the next sheet of labels on the preview, or all sheets on a printer. False after a message: too many
// labels, or none. Raises cancelled when the user gives up a long print.
bool printLabels(app::App& app, drawing::DrawTarget& target, const LabelChoice& choice);
// Hands these to the room that prints.
void printOnStocks(app::App& app);
// The preview's buttons, where labels are shown: iLayoutIndex counts places of sheets, used ones too. False
// where none are.
bool placeLabels(app::App& app, std::string_view key);

// One label from objects that hold the texts of a record, moved by so much. Closed up, empty lines are left
// out, the texts of a line follow each other, and one that is too wide is drawn smaller, then cut.
void drawLabel(const app::App& app, const core::LayoutObjects& objects, drawing::DrawTarget& target, float dx,
               float dy, bool bClosedUp, float right);
void drawOutline(const LabelStock& stock, drawing::DrawTarget& target, float left, float top,
                 drawing::LineStyle style);

} // namespace labels
