#pragma once

namespace gui {

// What is drawn by hand tells a screen reader what it is. Called once, before the first window.
void tellRoles();

} // namespace gui
