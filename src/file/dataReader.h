#pragma once

#include "core/document.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace file {

// In twips; a file that asks for a wider column gets this.
constexpr double widestColumn = 1e6;

// What a reader that wants to know more than the document gets told on the way. Lines count from 1.
struct ReadObserver {
    std::function<void(int line, std::string_view what)> finding;
};

// Reads the text of data.dat into a cleared document. Raises a core::RunTimeError for a text that
// cannot be a database; what was read so far stays in the document.
void readDataFile(std::string text, core::Document& document, const ReadObserver* observer = nullptr);

} // namespace file
