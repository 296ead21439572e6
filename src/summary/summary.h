#pragma once

#include "summary/grouping.h"

#include <array>
#include <cstddef>
#include <utility>

namespace summary {

enum class FigureKind : std::uint8_t { Sum, Mean, Least, Greatest };
constexpr std::array<FigureKind, 4> figureKinds = {FigureKind::Sum, FigureKind::Mean, FigureKind::Least,
                                                   FigureKind::Greatest};

// What is counted of a column. Sums and means are of numbers and amounts, least and greatest of dates too.
struct Figure {
    FigureKind kind = FigureKind::Sum;
    std::string column;

    bool operator==(const Figure&) const = default;
};
std::string nameOf(FigureKind kind);         // "Sum"
std::string headingOf(const Figure& figure); // "Sum of Cost"
bool isCounted(FigureKind kind, core::ColumnType type);

struct Request {
    std::vector<GroupBy> by; // one or two
    std::vector<Figure> figures;

    bool operator==(const Request&) const = default;
};

// A figure as it is shown, and what it is for a bar or another program. Nothing of both where no record of
// the group has a value.
struct Value {
    std::string text;             // "$1,234.50", "12.5", "04/12/2015"
    std::optional<Amount> number; // none of a date
};

struct Group {
    std::vector<GroupKey> keys; // of each column that is grouped by; none for the grand total
    std::size_t records = 0;
    std::vector<Value> figures;

    // "Hedge, 2015", each part cut to so many letters.
    std::string name(std::size_t mostLetters = std::string::npos) const;
};

struct Summary {
    Request request;
    std::vector<core::ColumnType> figureTypes; // Currency, Number or Date, for each figure
    std::vector<Group> groups;                 // in the order of the first column, then of the second
    Group total;                               // counts each record once
    std::vector<std::pair<const core::Item*, std::uint32_t>> members; // records of LV, and places in groups

    std::vector<const core::Item*> membersOf(std::size_t group) const;
};

// Groups records of LV: the given ones, or all. Raises elementNotFound for a column that there is not.
//
// In an invoice database a column of the item rows holds several values. A record is then in each group that
// one of them belongs to, and counts there once; values in the same item row belong together,
// and rows that nobody has filled in count nowhere. What such a
// record has one value of counts in full in each of its groups, but in the grand total once.
Summary summarise(const core::Document& document, const Request& request, std::chrono::year_month_day today,
                  const std::vector<const core::Item*>* records = nullptr);

} // namespace summary
