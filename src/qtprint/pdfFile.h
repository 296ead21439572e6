#pragma once

#include "platform/drawTarget.h"
#include "platform/printer.h"

#include <filesystem>
#include <memory>
#include <string>

namespace qtprint {

// Prints into a PDF file, which takes the place of an older one when it is closed and complete. Raises
// what AtomicFile does when the file cannot be written.
std::unique_ptr<platform::DrawTarget> openPdfFile(const std::filesystem::path& file,
                                                  const std::string& documentName,
                                                  platform::TextMetrics& metrics);

// A printer into that file for a program without a display.
std::unique_ptr<platform::Printer> makePdfPrinter(const std::filesystem::path& file);

} // namespace qtprint
