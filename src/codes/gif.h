#pragma once

#include <string>
#include <string_view>

namespace codes {

// A GIF of black and white pixels, row by row from the top, '1' for black. Width and height are at most
// 65,535, and there are as many pixels as they ask for.
std::string blackAndWhiteGif(std::string_view pixels, int width, int height);

} // namespace codes
