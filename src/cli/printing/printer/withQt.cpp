#include "cli/printing/printer.h"
#include "qtprint/pagePicture.h"
#include "qtprint/pdfFile.h"

namespace cli {

std::unique_ptr<drawing::Printer> makePrinter(const std::string& output, const std::string& database) {
    return qtprint::makePdfPrinter(output, database);
}

std::unique_ptr<drawing::Printer> makePicturePrinter(const std::string& output, const std::string& database,
                                                     int pixels) {
    return qtprint::makePicturePrinter(output, database, pixels);
}

} // namespace cli
