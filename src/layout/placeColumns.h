#pragma once

#include "app/app.h"

namespace layout {

// Fills an empty page, in design mode: a label and a box for each column one below the other between the
// margins, in as many blocks side by side as they need, and the pictures at the right.
void placeAllColumns(app::App& app);

} // namespace layout
