#pragma once

#include "drawing/printer.h"

#include <filesystem>
#include <memory>

namespace qtprint {

// Draws one page into a PNG file for a program without a display: that part of the page on which something
// stands, with a little room around it, so that its longer side has so many pixels. The file takes the place
// of an older one when it is closed and complete, with the permissions of the database where it is new. A
// page with nothing on it is no picture; close() fails then.
std::unique_ptr<drawing::Printer> makePicturePrinter(const std::filesystem::path& file,
                                                     const std::filesystem::path& database, int pixels);

} // namespace qtprint
