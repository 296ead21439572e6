#pragma once

#include "drawing/drawTarget.h"
#include "drawing/printer.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace qtprint {

// Prints into a PDF file, which takes the place of an older one when it is closed and complete; a new one
// takes the permissions of the database. Raises what AtomicFile does when the file cannot be written. Once it
// is in its place, made is called, which raises nothing.
std::unique_ptr<drawing::DrawTarget>
openPdfFile(const std::filesystem::path& file, const std::string& documentName, drawing::TextMetrics& metrics,
            const std::filesystem::path& database = {}, const std::function<void()>& made = {});

// A printer into that file for a program without a display.
std::unique_ptr<drawing::Printer> makePdfPrinter(const std::filesystem::path& file,
                                                 const std::filesystem::path& database);

} // namespace qtprint
