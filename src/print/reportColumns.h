#pragma once

#include "core/document.h"
#include "core/text.h"
#include "print/reportPrinting.h"

#include <string>
#include <string_view>
#include <vector>

namespace print {

constexpr float columnGap = 250;          // twips, ahead of each printed column
constexpr double twipsPerCharacter = 160; // of the width of a text column
constexpr float ruleGap = 10;

// A column as the lines of a report need it.
struct ReportColumn {
    const core::Column* column = nullptr;
    bool isPrinted = false;
    bool isNumeric = false;
    int width = 0;              // twips, of a column of numbers
    std::size_t characters = 0; // that a column of texts shows
};

// All columns of the list, in the order that the user sees.
std::vector<ReportColumn> reportColumns(const core::Document& document, const core::RecordsList& theList);

// With blanks behind it, up to so many characters.
std::string padded(std::string_view text, std::size_t characters);

// What of a text its column has room for; a number is never cut.
std::string_view fittingText(const ReportColumn& column, std::string_view text);

// Prints a line from the current place; textOf gives the text of a ReportColumn.
template <typename TextOf>
void printReportLine(const core::Document& document, drawing::DrawTarget& target,
                     const std::vector<ReportColumn>& columns, TextOf&& textOf) {
    for (std::size_t place = 0; place < columns.size(); ++place) {
        const ReportColumn& entry = columns[place];
        const bool last = place + 1 == columns.size();
        if (!entry.isPrinted) {
            if (last) printRightAligned(document, target, target.CurrentX, 0, {}, true);
            continue;
        }
        target.CurrentX += columnGap;
        const std::string_view text = textOf(entry);
        if (entry.isNumeric)
            printRightAligned(document, target, target.CurrentX, entry.width, text, last);
        else
            printLeftAligned(document, target, target.CurrentX, padded(text, entry.characters), last);
    }
}

} // namespace print
