#pragma once

#include "core/text.h"

#include <string>
#include <vector>

// The cases of a table in one text: "what -> is wanted; of this -> that". Blanks beside the marks belong to
// them, all others to the cells. Cells that a case leaves out are empty.
inline std::vector<std::vector<std::string>> table(std::string_view text, std::size_t cells = 2) {
    if (text.ends_with("; ")) text.remove_suffix(2);
    const std::string marked = core::replaceAll(core::replaceAll(text, "; ", "\x1E"), " -> ", "\x1F");
    std::vector<std::vector<std::string>> cases;
    for (const std::string_view row : core::split(marked, '\x1E')) {
        const auto pieces = core::split(row, '\x1F');
        cases.emplace_back(pieces.begin(), pieces.end());
        cases.back().resize(std::max(cases.back().size(), cells));
    }
    return cases;
}
