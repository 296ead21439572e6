#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace storage {

// The text of each box of the Entry Form, with the name of its column in front.
using BoxTexts = std::vector<std::pair<std::string, std::string>>;
struct TypedInForm {
    std::string key; // of the current record
    BoxTexts boxes;
};

// What is kept beside the records of unsaved work: where they belong, and what was typed and not stored.
struct RecoveryNote {
    std::string file; // full path of the database; empty when it had none yet
    std::int64_t modified =
        0;                 // when it was written last, in nanoseconds since 1970, and its size, by which a
    std::int64_t size = 0; // later change by somebody else is noticed
    std::int64_t time = 0; // of the copy, in seconds since 1970
    int records = 0;       // without the Totals row
    long long process = 0; // that kept it
    bool isTyped = false;  // the sheet holds what is not stored
    int row = 0;           // the place of the record on the sheet or in the form, from 1; 0 for a new one
    std::vector<std::pair<int, std::string>> fields; // the Index of each field with its text
    BoxTexts boxes;                                  // of the Entry Form, if it holds what is not stored
};

// A line for each, and back. Lines that are not understood are passed over.
[[nodiscard]] std::string noteText(const RecoveryNote& note);
[[nodiscard]] RecoveryNote readNote(std::string_view text);

} // namespace storage
