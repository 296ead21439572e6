#pragma once

namespace gui {

constexpr int toolbarIconSize = 24; // pixels
constexpr int pageIconSize = 20;    // pixels, in the toolbars of a page
constexpr int twipsPerInch = 1440;
constexpr int scrollStep = 240; // twips

} // namespace gui
