#pragma once

#include <algorithm>
#include <iterator>

namespace tables {

// The place of a value in a list, from 0; -1 where it is not.
template <typename Values, typename Value>
int placeIn(const Values& values, const Value& value) {
    const auto place = std::ranges::find(values, value) - std::begin(values);
    return place == std::ssize(values) ? -1 : static_cast<int>(place);
}

} // namespace tables
