#pragma once

#include <QKeySequence>

#include <vector>

namespace gui {

struct EntryFrmButton {
    const char* key; // and, translated, what a screen reader calls it; none: a gap
    const char* tip;
    const char* icon;
    QKeySequence keys;
};
// From left to right.
const std::vector<EntryFrmButton>& entryFrmButtons();

} // namespace gui
