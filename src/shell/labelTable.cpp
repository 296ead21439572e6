#include "shell/labelTable.h"

#include "core/runTimeError.h"
#include "file/fileHandle.h"
#include "platform/programFiles.h"

namespace shell {

std::vector<print::LabelStock> installedLabelStocks() {
    constexpr std::size_t maxBytes = std::size_t{16} * 1024 * 1024;
    const auto table = platform::programFile("stocks/labels.tsv");
    if (!table) return {};
    const auto text = file::readSmallFile(*table, maxBytes);
    if (!text) core::raise(core::errors::badFileFormat, table->string());
    return print::readLabelStocks(*text);
}

} // namespace shell
