#pragma once

#include "drawing/drawTarget.h"
#include "drawing/printer.h"

#include <filesystem>
#include <memory>
#include <string>

namespace qtprint {

// Prints into a PDF file, which takes the place of an older one when it is closed and complete. Raises
// what AtomicFile does when the file cannot be written.
std::unique_ptr<drawing::DrawTarget> openPdfFile(const std::filesystem::path& file,
                                                 const std::string& documentName,
                                                 drawing::TextMetrics& metrics);

// A printer into that file for a program without a display.
std::unique_ptr<drawing::Printer> makePdfPrinter(const std::filesystem::path& file);

} // namespace qtprint
