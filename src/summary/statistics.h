#pragma once

#include "summary/summary.h"

namespace summary {

struct FrequentValue {
    std::string value; // "(empty)" is not among them
    std::size_t count = 0;
};

// What there is to know of one column.
struct Statistics {
    core::ColumnType type = core::ColumnType::None;
    std::size_t records = 0;
    std::size_t values = 0; // that are not empty; an item row is one
    std::size_t empty = 0;
    std::size_t different = 0; // numbers and dates by what they are, not by how they are written
    // Least and greatest in the order of the column. Mean, median and sum are of numbers, the median of dates
    // too, where it is the earlier one of two in the middle.
    Value least, greatest, mean, median, sum;
    std::vector<FrequentValue> mostFrequent; // the most frequent first, equals in the order of the column
};

constexpr std::size_t usualFrequent = 10;

// Of all records of LV, or of the given ones. Raises elementNotFound.
Statistics statisticsOf(const core::Document& document, std::string_view column,
                        std::chrono::year_month_day today, std::size_t mostFrequent = usualFrequent,
                        const std::vector<const core::Item*>* records = nullptr);

// The figures with their names, as they are shown one below the other; those that there are none of are left
// out.
std::vector<std::pair<std::string, std::string>> namedFigures(const Statistics& statistics);

} // namespace summary
