#include "exchange/csvWriter.h"

#include <algorithm>

namespace exchange {

void CsvWriter::cell(std::string_view text) {
    if (cells_++ > 0) out_.push_back(separator_);
    isEmpty_ = cells_ == 1 && text.empty();
    if (std::ranges::none_of(text, [this](char c) { return quoted_[static_cast<unsigned char>(c)]; })) {
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
