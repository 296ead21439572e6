// Feeds any bytes to the reader of data.dat. Whatever it makes of them, it must end with a document or
// with a run-time error, and a document must come through a save and an open unchanged.

#include "core/document.h"
#include "core/runTimeError.h"
#include "file/dataReader.h"
#include "file/dataWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

// Commands find the Totals row by its key and take it for the last.
void checkTotals(const core::Document& document) {
    bool seen = false;
    document.LV.forEach([&](const core::Item& item) {
        if (seen) {
            std::cerr << "the Totals row is not the one last row\n";
            std::abort();
        }
        seen = item.isTotals();
    });
}

std::string savedAgain(const std::string& bytes) {
    core::Document document;
    file::readDataFile(bytes, document);
    return file::encodeDataFile(file::writeDataFile(document, false));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string saved;
    try {
        core::Document document;
        int findings = 0;
        const file::ReadObserver observer{[&](int, std::string_view) { ++findings; }};
        file::readDataFile(std::string(reinterpret_cast<const char*>(data), size), document, &observer);
        checkTotals(document);
        saved = file::encodeDataFile(file::writeDataFile(document, false));
    } catch (const core::RunTimeError&) {
        return 0; // no database
    }
    // Rows of a table without columns are empty lines, so it takes a save to be rid of them.
    const std::string once = savedAgain(saved);
    if (const std::string twice = savedAgain(once); twice != once) {
        std::cerr << "a saved database does not come back as it was\n";
        std::abort();
    }
    return 0;
}
