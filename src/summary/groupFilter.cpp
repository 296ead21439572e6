#include "summary/groupFilter.h"

#include "core/text.h"
#include "search/filter/filter.h"

namespace summary {

namespace {

using core::ColumnType;
using Kind = Step::Kind;

constexpr std::size_t longestName = 60; // of a group, in words

// "2015-Q2" is no word of the filters.
std::string monthsOf(std::string_view quarter) {
    constexpr std::size_t yearDigits = 4;
    const std::string_view year = quarter.substr(0, yearDigits);
    const int last = 3 * (quarter.back() - '0');
    const auto month = [&](int number) {
        std::string text(year);
        return text.append(number < 10 ? "-0" : "-").append(std::to_string(number));
    };
    return month(last - 2).append("..").append(month(last));
}

std::string pieceOf(const GroupBy& by, ColumnType type, const GroupKey& key) {
    const auto plain = [&](std::string_view comparison, std::string_view value) {
        return search::filterPiece(by.column, comparison, "").append(value);
    };
    if (key.rank == GroupKey::Rank::Empty) return plain("=", "\"\"");
    if (key.rank == GroupKey::Rank::Text) {
        const bool bTexts = type == ColumnType::Text || type == ColumnType::Picture;
        // Where values are compared, what is none of them can only be looked for.
        return search::filterPiece(by.column, bTexts ? "=" : ":", key.label);
    }
    if (by.step.kind == Kind::Width) {
        Amount high = key.value;
        high += by.step.width;
        return plain(">=", key.value.text()).append(1, ' ').append(plain("<", high.text()));
    }
    if (by.step.kind == Kind::Quarter) return plain(":", monthsOf(key.label));
    return plain("=", type == ColumnType::Date ? key.label : key.value.text());
}

} // namespace

std::string filterTextOf(const core::Document& document, const Request& request, const Group& group) {
    std::string text;
    for (std::size_t i = 0; i < request.by.size(); ++i) {
        if (i > 0) text.append(1, ' ');
        const core::Column& column = document.LV.columns[request.by[i].column];
        text.append(pieceOf(request.by[i], column.type(), group.keys.at(i)));
    }
    return text;
}

std::string wordsOf(const Request& request, const Group& group) {
    std::string words;
    for (std::size_t i = 0; i < request.by.size(); ++i) {
        if (i > 0) words.append(", ");
        const std::string& label = group.keys.at(i).label;
        words.append(headingOf(request.by[i])).append(": ").append(core::left(label, longestName));
        if (core::length(label) > longestName) words.append("...");
    }
    return words;
}

} // namespace summary
