#pragma once

#include "core/document.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace calc {

// What is odd about the numbers of a column that ought to have each of them once.
struct SerialFindings {
    struct Gap {
        std::int64_t first = 0, last = 0; // that no record has
    };
    struct Repeat {
        std::int64_t number = 0;
        std::vector<const core::Item*> records; // in the order of the list
    };

    std::vector<Gap> gaps; // between the lowest and the highest number, by number
    std::vector<Repeat> repeats;
    std::vector<const core::Item*> unnumbered; // whose cells are no whole numbers

    bool isEmpty() const { return gaps.empty() && repeats.empty() && unnumbered.empty(); }
};

// The names of the columns that have serial numbers.
std::vector<std::string> serialColumns(const core::Document& document);

// The records of LV by their numbers in one column. The cells of an invoice's item rows count one by one.
SerialFindings checkSerials(const core::Document& document, const core::Column& column);

// "7 missing", "9 to 12 missing"; "12 twice", "12 occurs 3 times".
std::string gapText(const SerialFindings::Gap& gap);
std::string repeatText(const SerialFindings::Repeat& repeat);

} // namespace calc
