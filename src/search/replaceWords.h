#pragma once

#include "core/recordsList.h"

#include <functional>
#include <string>
#include <string_view>

namespace search {

// Replaces one word by another, in cells whose words stand between single blanks. A word matches in any
// case, also with a comma or a point behind it; other punctuation keeps it from matching. Blanks stay as
// they are, so that cutting a word leaves two.
class WordReplacer {
public:
    WordReplacer(std::string_view find, std::string_view replacement);

    // Whether the cell has another text than before.
    bool replaceInCell(core::CellText& cell);
    // All cells of the sub-items that the test holds for, the Totals row's too. Answers how many have
    // changed.
    int replaceInList(core::RecordsList& list, const std::function<bool(int subItem)>& takesPart);

private:
    bool hasMatch(std::string_view cell);
    bool isEqual(std::string_view word, std::string_view end);
    void replaceWord(std::string& word);

    std::string find_;
    std::string replacement_;
    std::string folded_; // kept so that it is allocated once
};

} // namespace search
