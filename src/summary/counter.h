#pragma once

#include "summary/summary.h"

namespace summary {

// Counts the values of one column: sum, least and greatest as they come.
class Counter {
public:
    Counter(core::ColumnType type, std::chrono::year_month_day today) : type_(type), today_(today) {}

    void add(std::string_view value);

    std::size_t count() const { return count_; } // of the values that are numbers, or days
    Value value(FigureKind kind) const;
    // A number as this column's are shown, or a day.
    Value shown(const Amount& amount) const;
    core::ColumnType shownType() const;
    // The number that a value counts for; of a date its day.
    std::optional<Amount> read(std::string_view value) const;
    // A mean: with two decimals more than its values have, and at least four.
    Amount meanOf(const Amount& sum, std::size_t count) const;

private:
    core::ColumnType type_;
    std::chrono::year_month_day today_;
    std::size_t count_ = 0;
    Amount sum_, least_, greatest_;
    int places_ = 0; // that the values have at most
    bool bMoney_ = false;
};

} // namespace summary
