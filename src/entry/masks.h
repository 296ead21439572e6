#pragma once

#include "app/app.h"

#include <string>
#include <string_view>

namespace entry {

// A text box that a record is typed into; Tag names its column.
struct EntryBox {
    std::string Tag;
    std::string Text;
    int SelStart = 0; // caret, in characters
};

// Completes a typed amount: without a point, the last two of three or more characters become the
// cents. Number columns, empty texts and texts with a point pass. A text that is no number is told
// and stays.
void completeCurrencyText(app::App& app, EntryBox& box);

// Puts the slashes of a date behind the second and the fifth character. It knows nothing of digits. In
// another form than the program's own the separators are put in where the user types (ValueBoxes).
void insertDateSlashes(const app::App& app, EntryBox& box);

// The first row of theListView, from startRow on, in which some cell contains the text, whatever the
// case. The Totals row takes part. nullptr when there is none.
core::Item* findItemContaining(app::App& app, std::string_view text, int startRow);

} // namespace entry
