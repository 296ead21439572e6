#include "cli/printing/printer.h"
#include "qtprint/pdfFile.h"

namespace cli {

std::unique_ptr<drawing::Printer> makePrinter(const std::string& output, const std::string& database) {
    return qtprint::makePdfPrinter(output, database);
}

} // namespace cli
