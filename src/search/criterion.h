#pragma once

#include "core/dates.h"
#include "core/document.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace search {

// How a group compares; the numbers are the indexes of its option buttons.
enum Comparison { greaterOrEqual = 0, lessOrEqual, exact, within, range };

// One of the three groups of the search dialog, as the user left it.
struct Group {
    std::string column;
    int comparison = greaterOrEqual;
    std::string value;
    std::string to; // the upper bound of a range

    bool isBlank() const;
};

// A group made ready for many records: what was typed is read once.
class Criterion {
public:
    Criterion(const core::Document& document, const core::RecordsList& source, const Group& group,
              std::chrono::year_month_day today);

    // Raises typeMismatch when a date has to be compared with something that is none.
    bool matches(const core::Item& record);

private:
    bool matchesNumber(std::string_view cell) const;
    bool matchesDate(const core::Item& record, std::string_view cell, core::DayValue day) const;
    bool matchesText(const core::Item& record, std::string_view cell);
    core::DayValue dayOf(const std::optional<core::DayValue>& day, const std::string& typed) const;

    int comparison_;
    std::chrono::year_month_day today_;
    bool isNumeric_;
    int subItem_;      // of the column in the list that is searched
    int upperSubItem_; // where the upper bound of a range of dates or texts looks
    std::string needle_, upper_;
    double needleNumber_ = 0, upperNumber_ = 0;
    std::string needleNumberText_;
    std::optional<core::DayValue> needleDay_, upperDay_;
    std::string folded_; // the cell in upper case; kept so that it is allocated once
};

} // namespace search
