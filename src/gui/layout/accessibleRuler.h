#pragma once

namespace gui {

// A screen reader takes a ruler for a slider, whose value is the place of the chosen guide in inches.
void tellRulerRole();

} // namespace gui
