#include "exchange/textRows.h"

#include "core/text.h"
#include "core/translate.h"

#include <algorithm>
#include <optional>

namespace exchange {

namespace {

// More than the largest database holds. The bound keeps a hostile table from taking all memory.
constexpr std::size_t mostTableCells = 2'000'000;

class TabbedReader {
public:
    explicit TabbedReader(std::string_view text) : text_(text) {}

    TextRows read() {
        while (at_ < text_.size()) {
            rows_.cell(nextCell());
            if (at_ < text_.size() && text_[at_] == '\t') {
                ++at_;
                if (at_ == text_.size()) rows_.cell({});
                continue;
            }
            rows_.endRow();
            skipEnd(at_);
        }
        if (rows_.cellsInRow() > 0) rows_.endRow();
        return rows_.take();
    }

private:
    bool isCellEnd(std::size_t at) const {
        return at == text_.size() || text_[at] == '\t' || text_[at] == '\n' || text_[at] == '\r';
    }
    void skipEnd(std::size_t& at) const {
        if (at < text_.size()) at += text_.compare(at, 2, "\r\n") == 0 ? 2 : 1;
    }

    std::string nextCell() {
        if (text_[at_] == '"')
            if (auto cell = quotedCell()) return *std::move(cell);
        const std::size_t from = at_;
        while (!isCellEnd(at_)) ++at_;
        return std::string(text_.substr(from, at_ - from));
    }

    std::optional<std::string> quotedCell() {
        std::string cell;
        std::size_t at = at_ + 1;
        while (at < text_.size()) {
            if (text_[at] == '\r') {
                cell.push_back('\n');
                skipEnd(at);
                continue;
            }
            if (text_[at] == '"' && (++at == text_.size() || text_[at] != '"')) {
                if (!isCellEnd(at)) return std::nullopt;
                at_ = at;
                return cell;
            }
            cell.push_back(text_[at++]);
        }
        return std::nullopt;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    RowCollector rows_;
};

} // namespace

void RowCollector::cell(std::string text) {
    if (++cells_ > mostTableCells)
        throw TableError(core::fill(core::tr("it has more than %1 cells"), {std::to_string(mostTableCells)}));
    row_.cells.push_back(std::move(text));
}

void RowCollector::endRow() {
    row_.number = numberOfRow_++;
    const bool isBlank =
        std::ranges::all_of(row_.cells, [](const std::string& cell) { return core::trim(cell).empty(); });
    if (!isBlank) rows_.push_back(std::move(row_));
    row_ = {};
}

TextRows readTabbedRows(std::string_view text) {
    return TabbedReader(text).read();
}

} // namespace exchange
