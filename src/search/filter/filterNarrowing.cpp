#include "search/filter/filter.h"

#include <algorithm>

namespace search {

namespace {

using Test = FilterTerm::Test;

bool implies(const FilterTerm& now, const FilterTerm& before) {
    if (now == before) return true;
    if (now.isNegated || before.isNegated) return false;
    const bool isThere = now.column == before.column || before.column == anyColumn;
    if (before.test == Test::Filled) return now.column == before.column;
    return isThere && now.test == Test::Contains && before.test == Test::Contains &&
           now.needle.find(before.needle) != std::string::npos;
}

} // namespace

bool isNarrower(const Filter& now, const Filter& before) {
    if (before.empty()) return true;
    if (now.empty() || before.alternatives.size() != 1) return false;
    return std::ranges::all_of(now.alternatives, [&](const std::vector<FilterTerm>& terms) {
        return std::ranges::all_of(before.alternatives.front(), [&](const FilterTerm& old) {
            return std::ranges::any_of(terms, [&](const FilterTerm& term) { return implies(term, old); });
        });
    });
}

} // namespace search
