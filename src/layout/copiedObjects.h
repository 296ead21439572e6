#pragma once

#include "core/layoutObjects.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace layout {

// Objects of a page on their way over the clipboard, with the pictures of the clip art among them.
struct CopiedObjects {
    struct Picture {
        std::string name; // of its entry
        std::string bytes;
    };
    core::LayoutObjects layout;
    std::vector<Picture> pictures;
};

// The picture of one clip art takes no more room than this on the clipboard.
constexpr std::size_t mostPictureBytes = std::size_t{32} << 20;

// The objects as lines of the file.
std::string linesOf(const CopiedObjects& copied, std::string_view lineEnd);
// With a line ahead that says what it is, and the pictures in lines of Base64 behind.
std::string wholeTextOf(const CopiedObjects& copied);

// What stands in a text of either kind. It can come from anywhere: nothing for one that has a line that is
// no object or damaged, objects of no sensible size, or too many of them.
std::optional<CopiedObjects> readCopied(std::string_view text);

} // namespace layout
