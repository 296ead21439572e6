#pragma once

#include "platform/platform.h"

#include <QPrinter>

#include <memory>
#include <optional>

namespace gui {

// The chosen printer: one of the system's, or the built-in one that prints into PDF files. At the start it
// is the system's default printer, or the built-in one where the system has none.
class SystemPrinter {
public:
    bool isPdf();
    std::string deviceName();
    // Those of a printer of the system.
    std::vector<platform::PaperName> papers();
    // The PDF file is what a print into a file is to be called.
    std::optional<platform::PrintChoice> showDialog(const platform::PrintChoice& present,
                                                    const QString& pdfFile, QWidget* parent);
    // The file that was named in the dialog; empty when there is none, or it has been used.
    QString takeFileName();
    // A printer of the system, for the jobs of one command.
    std::unique_ptr<drawing::DrawTarget> open(const std::string& documentName, drawing::TextMetrics& metrics);

private:
    QPrinter& printer();

    std::unique_ptr<QPrinter> printer_; // made when it is first asked for, since the system is slow to tell
    QString fileName_;
};

} // namespace gui
