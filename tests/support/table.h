#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

// The cases of a table in one text: "what -> is wanted; of this -> that". Blanks beside the marks belong to
// them, all others to the cells. Cells that a case leaves out are empty.
inline std::vector<std::vector<std::string>> table(std::string_view text, std::size_t cells = 2) {
    const auto next = [](std::string_view& rest, std::string_view mark) {
        const std::size_t end = std::min(rest.find(mark), rest.size());
        const std::string_view piece = rest.substr(0, end);
        rest.remove_prefix(std::min(end + mark.size(), rest.size()));
        return piece;
    };
    std::vector<std::vector<std::string>> cases;
    while (!text.empty()) {
        std::string_view row = next(text, "; ");
        cases.emplace_back();
        while (!row.empty()) cases.back().emplace_back(next(row, " -> "));
        cases.back().resize(std::max(cases.back().size(), cells));
    }
    return cases;
}
