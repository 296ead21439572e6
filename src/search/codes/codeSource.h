#pragma once

#include "core/document.h"

#include <string>
#include <string_view>
#include <vector>

namespace search {

// A text that takes its pieces from the columns of a record: "{Name}, {Phone}". A brace itself is written
// twice.
class CodeSource {
public:
    // The document outlives it, with its columns as they are. Raises RunTimeError for a brace that is left
    // open and for a name that no column has, with the place.
    CodeSource(const core::Document& document, std::string_view text);

    // Empty where all columns that are named are empty.
    std::string textOf(const core::Item& record) const;

private:
    struct Piece {
        std::string text;
        const core::Column* column = nullptr; // instead of the text
    };
    std::vector<Piece> pieces_;
};

// The text with another name of a column in its braces.
std::string withColumnRenamed(std::string_view text, std::string_view from, std::string_view to);

} // namespace search
