#include "exchange/csvWriter.h"

namespace exchange {

void CsvWriter::cell(std::string_view text) {
    if (cells_++ > 0) out_.push_back(',');
    isEmpty_ = cells_ == 1 && text.empty();
    if (text.find_first_of(quoted_) == std::string_view::npos) {
        out_.append(text);
        return;
    }
    out_.push_back('"');
    for (const char c : text) {
        if (c == '"') out_.push_back('"');
        out_.push_back(c);
    }
    out_.push_back('"');
}

void CsvWriter::endLine() {
    // A line without a character would be no row.
    if (isEmpty_ && cells_ > 0) out_.append("\"\"");
    out_.push_back('\n');
    cells_ = 0;
    isEmpty_ = true;
}

} // namespace exchange
