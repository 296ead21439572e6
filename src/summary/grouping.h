#pragma once

#include "core/document.h"
#include "core/translate.h"
#include "summary/amount.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace summary {

// How finely the values of a column are told apart.
struct Step {
    enum class Kind : std::uint8_t { Each, Year, Quarter, Month, Day, Width };
    Kind kind = Kind::Each;
    Amount width; // of Kind::Width, above zero: from 0 to below it, from it to below twice of it ...

    bool operator==(const Step&) const = default;
};

struct GroupBy {
    std::string column;
    Step step;

    bool operator==(const GroupBy&) const = default;
};

// "year", "quarter", "month" or "day" for a column of dates, "10" or "0.5" for one of numbers; nothing for
// what is no step of such a column.
std::optional<Step> stepNamed(std::string_view word, core::ColumnType type);
// "year", "10"; empty for Each.
std::string stepName(const Step& step);
// What stands over the groups: "Planted (year)", "Cost (steps of 10)".
std::string headingOf(const GroupBy& by);

// A day in a cell of a date column, counted from 1970; nothing for what is no date.
std::optional<std::chrono::sys_days> dayIn(std::string_view cell, std::chrono::year_month_day today);

constexpr const char* emptyLabel = core::marked("(empty)");

// One group's value of a column: what it is called, and where it stands among the others. The empty one comes
// first, then numbers or days by value, then texts as the column sorts them, which is by their capitals.
struct GroupKey {
    enum class Rank : std::uint8_t { Empty, Value, Text };
    Rank rank = Rank::Empty;
    Amount value;
    std::string label; // the cell itself, "2015", "2015-Q2", "2015-04", "10 to below 20" or "(empty)"

    bool operator<(const GroupKey& other) const;
    bool operator==(const GroupKey& other) const = default;
};

// Sorts cells of one column into groups. A cell's text is looked at once, however many records have it; the
// texts have to outlive the reader.
class GroupReader {
public:
    GroupReader(core::ColumnType type, const Step& step, std::chrono::year_month_day today)
        : type_(type), step_(step), today_(today) {}

    // The place of the cell's group in keys().
    std::uint32_t groupOf(std::string_view cell);
    const std::vector<GroupKey>& keys() const { return keys_; }
    // For each place in keys() the place in their order.
    std::vector<std::uint32_t> order() const;

private:
    GroupKey keyOf(std::string_view cell) const;
    GroupKey dateKey(std::string_view cell) const;
    GroupKey numberKey(std::string_view cell) const;

    core::ColumnType type_;
    Step step_;
    std::chrono::year_month_day today_;
    std::vector<GroupKey> keys_;
    std::unordered_map<std::string_view, std::uint32_t> byCell_;
    std::unordered_map<std::string, std::uint32_t> byIdentity_;
};

} // namespace summary
