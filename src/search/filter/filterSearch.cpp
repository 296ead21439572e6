#include "search/filter/filterSearch.h"

#include "core/text.h"

#include <algorithm>
#include <cstring>

namespace search {

namespace {

using Test = FilterTerm::Test;

// Few records are looked at one by one, and many in one go through all of them.
constexpr std::size_t fewOf = 8;

class TermSearch {
public:
    TermSearch(const FilterTerm& term, const FoldedTexts& texts, std::chrono::year_month_day today)
        : term_(term), texts_(texts), today_(today) {
        if (term.test == Test::Numbers) values_ = &texts.numbers(place());
        if (term.test == Test::Days) values_ = &texts.days(place(), today);
    }

    // Takes those out of the records that do not pass.
    void keep(Passed& records) const {
        const auto count = static_cast<std::size_t>(std::ranges::count(records, 1));
        if (term_.test == Test::Contains && !term_.needle.empty() && count * fewOf > records.size()) {
            Passed holding(records.size(), 0);
            for (std::size_t column = 0; column < texts_.columns(); ++column)
                if (term_.column == anyColumn || column == place())
                    markHolding(texts_.column(column), holding);
            const char wanted = term_.isNegated ? 0 : 1;
            for (std::size_t row = 0; row < records.size(); ++row)
                records[row] = static_cast<char>(records[row] & (holding[row] == wanted ? 1 : 0));
            return;
        }
        for (std::size_t row = 0; row < records.size(); ++row)
            if (records[row] != 0 && holds(row) == term_.isNegated) records[row] = 0;
    }

private:
    std::size_t place() const { return static_cast<std::size_t>(term_.column); }

    void markHolding(const FoldedTexts::Column& column, Passed& holding) const {
        const char* const begin = column.texts.data();
        const char* const end = begin + column.texts.size();
        const char* from = begin;
        std::size_t row = 0;
        while (const void* found = memmem(from, static_cast<std::size_t>(end - from), term_.needle.data(),
                                          term_.needle.size())) {
            const auto at = static_cast<std::uint32_t>(static_cast<const char*>(found) - begin);
            while (column.from[row + 1] <= at) ++row;
            holding[row] = 1;
            from = begin + column.from[++row];
        }
    }

    bool holds(std::size_t row) const {
        if (term_.test == Test::Contains && term_.column == anyColumn) {
            for (std::size_t column = 0; column < texts_.columns(); ++column)
                if (contains(texts_.column(column).text(row))) return true;
            return false;
        }
        const std::string_view text = texts_.column(place()).text(row);
        switch (term_.test) {
        case Test::Contains:
            return contains(text);
        case Test::Filled:
            return !core::trim(text).empty();
        case Test::Numbers:
        case Test::Days:
            if (const std::int64_t value = (*values_)[row]; value != FoldedTexts::none)
                return isWithin(value);
            return text.ends_with(core::itemSeparator) &&
                   holdsInOne(text, [&](std::string_view one) { return isValueWithin(one); });
        default:
            return holdsInOne(text, [&](std::string_view one) { return compares(one); });
        }
    }

    bool contains(std::string_view text) const { return text.find(term_.needle) != std::string_view::npos; }
    bool isWithin(std::int64_t value) const { return value >= term_.first && value <= term_.last; }

    bool isValueWithin(std::string_view text) const {
        if (term_.test == Test::Numbers) {
            const std::optional<std::int64_t> number = filterNumber(text);
            return number && isWithin(*number);
        }
        const std::optional<core::DayValue> day = core::dateValue(text, today_);
        return day && isWithin(*day);
    }

    bool compares(std::string_view text) const {
        text = core::trim(text);
        if (text.empty()) return false;
        const int order = text.compare(term_.needle);
        if (term_.test == Test::Equal) return order == 0;
        return (term_.isInclusive && order == 0) || (term_.test == Test::Above ? order > 0 : order < 0);
    }

    // In the text, or in one of the values that each stand in front of a separator.
    template <typename Check>
    static bool holdsInOne(std::string_view text, const Check& check) {
        if (!text.ends_with(core::itemSeparator)) return check(text);
        return std::ranges::any_of(core::split(text, core::itemSeparator), check);
    }

    const FilterTerm& term_;
    const FoldedTexts& texts_;
    std::chrono::year_month_day today_;
    const std::vector<std::int64_t>* values_ = nullptr;
};

} // namespace

Passed passing(const Filter& filter, const FoldedTexts& texts, std::chrono::year_month_day today,
               const Passed* among) {
    Passed all = among != nullptr ? *among : Passed(texts.rows(), 1);
    if (filter.empty()) return all;
    Passed passed;
    for (const std::vector<FilterTerm>& terms : filter.alternatives) {
        Passed records = all;
        for (const FilterTerm& term : terms) TermSearch(term, texts, today).keep(records);
        if (passed.empty()) {
            passed = std::move(records);
            continue;
        }
        for (std::size_t row = 0; row < passed.size(); ++row)
            passed[row] = static_cast<char>(passed[row] | records[row]);
    }
    return passed;
}

} // namespace search
