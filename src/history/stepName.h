#pragma once

#include "history/undoStack.h"

namespace history {

// What a step is called, by what it has changed: "Delete Record". `stack` has what it changed that into.
std::string nameOf(const Step& step, const UndoStack& stack);

} // namespace history
