#pragma once

#include "app/app.h"
#include "labels/labelStocks.h"

#include <optional>
#include <string>

namespace labels {

// What labels are printed on, and how. The database has no place for it: it is the user's, by file.
struct LabelChoice {
    static constexpr int mostCopies = 1000;       // of one record
    static constexpr int mostLabels = 100'000;    // of one print
    static constexpr int mostOnOneSheet = 10'000; // of a sheet that the user describes

    LabelStock stock;
    int start = 1;            // the first place of the first sheet that is free, from 1
    int copies = 1;           // of each record
    std::string copiesColumn; // the column that says how many instead; empty: none
    bool bOutlines = false;   // to lay the print over a sheet before one is used up
    bool bClosedUp = true;    // empty lines are left out, and the words of a line follow each other
};

// A line of the table without a line end, to a thousandth of a millimetre.
std::string labelStockLine(const LabelStock& stock);
std::optional<LabelStock> labelStockOf(std::string_view line);

// What was chosen for the open database last.
std::optional<LabelChoice> keptLabelChoice(const app::App& app);
// The same where it is in force: not in an invoice database, whose invoices print one to a page, and not when
// the page has other margins by now. Nothing, and layouts print as they always did.
std::optional<LabelChoice> labelChoice(const app::App& app);
// Nothing ends the choice. False when it is too long to be kept.
bool keepLabelChoice(app::App& app, const std::optional<LabelChoice>& choice);
// For this run alone, ahead of what is kept.
void useLabelChoice(app::App& app, const LabelChoice& choice);

} // namespace labels
