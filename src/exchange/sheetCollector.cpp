#include "exchange/sheetCollector.h"

#include "core/encoding.h"
#include "core/runTimeError.h"
#include "core/translate.h"

#include <algorithm>
#include <iterator>

namespace exchange {

namespace {

constexpr std::size_t textWithin = 15; // bytes that a string keeps in itself
constexpr std::size_t blockBytes = 16; // that a block of memory costs beside its text

[[noreturn]] void refuseMoreThan(std::size_t most, const std::string& pattern) {
    refuseSheet(core::fill(pattern, {std::to_string(most)}));
}

} // namespace

void refuseSheet(const std::string& reason) {
    core::raise(core::errors::badFileFormat, reason);
}

void tellProgress(const Progress& progress, std::size_t done, std::size_t total) {
    constexpr std::size_t whole = 100;
    if (progress && !progress(static_cast<int>(total == 0 ? whole : std::min(done, total) * whole / total)))
        core::raise(core::errors::cancelled);
}

void SheetCollector::cell(SheetCell cell) {
    if (cell.kind == SheetCell::Kind::Empty || (cell.kind == SheetCell::Kind::Text && cell.text.empty())) {
        ++pendingCells_;
        return;
    }
    if (column() >= SheetBounds::columns)
        refuseMoreThan(SheetBounds::columns, core::tr("it has more than %1 columns"));
    row_.resize(column());
    pendingCells_ = 0;
    if (cells_ + row_.size() >= SheetBounds::cells)
        refuseMoreThan(SheetBounds::cells, core::tr("it has more than %1 cells"));
    if (!core::isAscii(cell.text)) cell.text = core::sanitizeUtf8(cell.text);
    if (cell.text.view().find('\0') != std::string_view::npos) {
        std::string text = cell.text.str();
        std::erase(text, '\0');
        cell.text = text;
    }
    if (cell.text.size() > textWithin) textBytes_ += cell.text.size() + blockBytes;
    if (textBytes_ > SheetBounds::textBytes) refuseSheet(core::tr("its texts are too long"));
    row_.push_back(std::move(cell));
}

void SheetCollector::keep(const SheetRow& row) {
    if (sheet_.rows.size() >= SheetBounds::rows)
        refuseMoreThan(SheetBounds::rows, core::tr("it has more than %1 rows"));
    cells_ += row.size();
    if (cells_ > SheetBounds::cells)
        refuseMoreThan(SheetBounds::cells, core::tr("it has more than %1 cells"));
    sheet_.rows.push_back(row);
}

void SheetCollector::endRow() {
    endRow(1);
}

void SheetCollector::endRow(std::size_t times) {
    pendingCells_ = 0;
    if (row_.empty()) {
        pendingRows_ += times;
        return;
    }
    if (row() > SheetBounds::rows || times > SheetBounds::rows)
        refuseMoreThan(SheetBounds::rows, core::tr("it has more than %1 rows"));
    for (; pendingRows_ > 0; --pendingRows_) keep({});
    for (std::size_t i = 1; i < times; ++i) {
        for (const SheetCell& each : row_)
            if (each.text.size() > textWithin) textBytes_ += each.text.size() + blockBytes;
        if (textBytes_ > SheetBounds::textBytes) refuseSheet(core::tr("its texts are too long"));
        keep(row_);
    }
    // Moved, and without the room that a growing row has kept.
    SheetRow exact;
    exact.reserve(row_.size());
    std::ranges::move(row_, std::back_inserter(exact));
    row_.clear();
    keep({});
    cells_ += exact.size();
    if (cells_ > SheetBounds::cells)
        refuseMoreThan(SheetBounds::cells, core::tr("it has more than %1 cells"));
    sheet_.rows.back() = std::move(exact);
}

} // namespace exchange
