#include "labels/labelPage.h"

#include "core/number.h"
#include "print/layoutPrinting.h"
#include "print/margins.h"

#include <algorithm>
#include <cmath>

namespace labels {

using print::LayoutExtent;
using print::layoutExtent;
using print::twipsPerInch;

namespace {

// Where the told way would put the first and the last of a row or column, by its own sums.
std::optional<double> offBy(double paper, double before, double behind, double extent, double spacing,
                            int count, double start, double pitch) {
    const double room = paper - before - behind, each = extent + spacing;
    if (!(each > 0) || std::trunc(room / each) != count) return std::nullopt;
    const double pad = core::roundHalfEven(core::roundHalfEven(room - each * count + spacing) / 2);
    const double first = before + pad, last = first + (count - 1) * each;
    return std::max(std::abs(first - start), std::abs(last - (start + (count - 1) * pitch)));
}

} // namespace

ToldPage toldPage(const LabelStock& stock) {
    constexpr double slack = 2; // twips: the room is told rounded, and has to hold all of the labels
    const double gapX = std::max(stock.columnPitch - stock.width, 0.0);
    const double gapY = std::max(stock.rowPitch - stock.height, 0.0);
    ToldPage page;
    // A single label leaves the other direction to decide.
    if (stock.columns > 1 && stock.rows > 1)
        page.spacing = std::floor(std::min(gapX, gapY));
    else if (stock.columns > 1)
        page.spacing = std::floor(gapX);
    else if (stock.rows > 1)
        page.spacing = std::floor(gapY);
    page.spacing = std::floor(std::min({page.spacing, 2 * stock.left, 2 * stock.top}));
    const double pitchX = std::max(stock.columnPitch, stock.width),
                 pitchY = std::max(stock.rowPitch, stock.height);
    page.extentX = pitchX - page.spacing;
    page.extentY = pitchY - page.spacing;
    page.left = std::max(std::round(stock.left - page.spacing / 2 - slack / 2), 0.0);
    page.top = std::max(std::round(stock.top - page.spacing / 2 - slack / 2), 0.0);
    page.right = std::max(std::floor(stock.paperWidth - page.left - stock.columns * pitchX - slack), 0.0);
    page.bottom = std::max(std::floor(stock.paperHeight - page.top - stock.rows * pitchY - slack), 0.0);
    return page;
}

core::LayoutOptions labelPage(const LabelStock& stock) {
    const ToldPage page = toldPage(stock);
    const auto inches = [](double twips) { return static_cast<float>(twips / twipsPerInch); };
    core::LayoutOptions options;
    options.layoutPaperSize = static_cast<std::int16_t>(stock.paperCode);
    options.layoutOrientation = core::portrait;
    options.customPaperLength = inches(stock.paperWidth);
    options.customPaperHeight = inches(stock.paperHeight);
    options.layoutLeftMargin = inches(page.left);
    options.layoutTopMargin = inches(page.top);
    options.layoutRightMargin = inches(page.right);
    options.layoutBottomMargin = inches(page.bottom);
    options.layoutSpacing = inches(page.spacing);
    return options;
}

std::optional<double> deviation(const LabelStock& stock, const core::LayoutObjects& objects) {
    const ToldPage page = toldPage(stock);
    const LayoutExtent extent =
        layoutExtent(objects, static_cast<float>(page.left), static_cast<float>(page.top));
    const auto x = offBy(stock.paperWidth, page.left, page.right, static_cast<double>(extent.maxWidth),
                         page.spacing, stock.columns, stock.left, stock.columnPitch);
    const auto y = offBy(stock.paperHeight, page.top, page.bottom, static_cast<double>(extent.maxHeight),
                         page.spacing, stock.rows, stock.top, stock.rowPitch);
    if (!x || !y) return std::nullopt;
    return millimetresOf(std::max(*x, *y));
}

} // namespace labels
