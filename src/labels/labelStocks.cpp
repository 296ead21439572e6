#include "labels/labelStocks.h"

#include "core/text.h"
#include "drawing/papers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

namespace labels {

namespace {

constexpr double millimetresPerInch = 25.4, millimetresPerCentimetre = 10;
constexpr double mostMillimetres = 2000;
constexpr int mostAcross = 200;
constexpr double slack = 0.5; // in millimetres: sheets are cut no better, and sizes are told rounded

constexpr std::array<std::pair<std::string_view, LabelShape>, 5> shapes = {{
    {"rectangle", LabelShape::Rectangle},
    {"rounded", LabelShape::Rounded},
    {"round", LabelShape::Round},
    {"ellipse", LabelShape::Ellipse},
    {"cd", LabelShape::Cd},
}};

double twipsOf(double millimetres) {
    return millimetres / millimetresOf(1);
}

template <class Number>
std::optional<Number> wholeNumber(std::string_view text) {
    Number number{};
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) return std::nullopt;
    return number;
}

std::optional<double> lengthOf(std::string_view text) {
    const auto length = wholeNumber<double>(text);
    // Written so that what is no number is refused too.
    if (!length || !(*length >= 0 && *length <= mostMillimetres)) return std::nullopt;
    return length;
}

// "38.1", "2 5/8", "2-5/8", "5/8"; a comma may stand for the point.
std::optional<double> measureOf(std::string_view text) {
    const std::string written = core::replaceAll(core::trim(text), ",", ".");
    std::string_view rest = written;
    double whole = 0;
    const std::size_t slash = rest.find('/');
    if (slash == std::string_view::npos) return lengthOf(rest);
    if (const std::size_t gap = rest.find_first_of(" -"); gap < slash) {
        const auto front = lengthOf(rest.substr(0, gap));
        if (!front) return std::nullopt;
        whole = *front;
        rest.remove_prefix(gap + 1);
    }
    const std::size_t at = rest.find('/');
    const auto above = lengthOf(core::trim(rest.substr(0, at))),
               below = lengthOf(core::trim(rest.substr(at + 1)));
    if (!above || !below || *below == 0) return std::nullopt;
    return whole + *above / *below;
}

// The unit at the end of the text, which is taken off, in millimetres; millimetres when there is none.
double takeUnit(std::string& text) {
    constexpr std::array<std::pair<std::string_view, double>, 5> units = {{
        {"MM", 1},
        {"CM", millimetresPerCentimetre},
        {"INCHES", millimetresPerInch},
        {"IN", millimetresPerInch},
        {"\"", millimetresPerInch},
    }};
    for (const auto& [name, millimetres] : units) {
        if (!text.ends_with(name)) continue;
        text.resize(text.size() - name.size());
        return millimetres;
    }
    return 1;
}

using Size = std::pair<double, double>; // in millimetres

std::optional<Size> sizeOf(std::string_view text) {
    std::string written = core::upper(core::replaceAll(core::trim(text), "\u00D7", "x"));
    const double unit = takeUnit(written);
    const std::size_t by = written.find('X');
    if (by == std::string::npos) return std::nullopt;
    std::string first(core::rtrim(std::string_view(written).substr(0, by)));
    const double firstUnit = takeUnit(first); // of 1" x 4", where it is the same
    const auto width = measureOf(first), height = measureOf(std::string_view(written).substr(by + 1));
    if (!width || !height) return std::nullopt;
    return Size(*width * std::max(unit, firstUnit), *height * unit);
}

bool setPaper(LabelStock& stock, std::string_view name) {
    stock.paper = name;
    for (const drawing::PaperSize& paper : drawing::papers()) {
        if (paper.name != name) continue;
        stock.paperCode = paper.code;
        stock.paperWidth = static_cast<double>(paper.Width);
        stock.paperHeight = static_cast<double>(paper.Height);
        return true;
    }
    const auto size = sizeOf(name);
    if (!size) return false;
    stock.paperCode = drawing::customPaperCode;
    stock.paperWidth = twipsOf(size->first);
    stock.paperHeight = twipsOf(size->second);
    return true;
}

// Whether so many labels find room along one side of the paper.
bool fits(int count, double start, double pitch, double size, double paper) {
    constexpr double rounding = 0.01; // of the table's last digit, in millimetres
    return count >= 1 && count <= mostAcross && size > 0 && pitch >= size - twipsOf(rounding) &&
           start + (count - 1) * pitch + size <= paper + twipsOf(slack);
}

std::optional<LabelStock> stockOf(std::string_view line) {
    enum Cell { Maker, Number, Kind, Paper, Columns, Rows, FirstLength, Shape = FirstLength + 6, Cells };
    const std::vector<std::string_view> cells = core::split(line, '\t');
    if (cells.size() != Cells || cells[Maker].empty() || cells[Number].empty()) return std::nullopt;
    LabelStock stock;
    stock.maker = cells[Maker];
    stock.number = cells[Number];
    stock.kind = cells[Kind];
    stock.columns = wholeNumber<int>(cells[Columns]).value_or(0);
    stock.rows = wholeNumber<int>(cells[Rows]).value_or(0);
    std::size_t cell = FirstLength;
    for (double* length :
         {&stock.width, &stock.height, &stock.left, &stock.top, &stock.columnPitch, &stock.rowPitch}) {
        const auto millimetres = lengthOf(cells[cell++]);
        if (!millimetres) return std::nullopt;
        *length = twipsOf(*millimetres);
    }
    const auto* shape =
        std::ranges::find(shapes, cells[Shape], [](const auto& entry) { return entry.first; });
    if (shape == shapes.end() || !setPaper(stock, cells[Paper])) return std::nullopt;
    stock.shape = shape->second;
    if (!fits(stock.columns, stock.left, stock.columnPitch, stock.width, stock.paperWidth) ||
        !fits(stock.rows, stock.top, stock.rowPitch, stock.height, stock.paperHeight))
        return std::nullopt;
    return stock;
}

bool isOfSize(const LabelStock& stock, const Size& size) {
    const auto isNear = [](double twips, double millimetres) {
        return std::abs(millimetresOf(twips) - millimetres) <= slack;
    };
    return (isNear(stock.width, size.first) && isNear(stock.height, size.second)) ||
           (isNear(stock.width, size.second) && isNear(stock.height, size.first));
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    for (const std::string_view word : core::split(text, ' '))
        if (!word.empty()) words.push_back(core::upper(word));
    return words;
}

} // namespace

std::string_view shapeName(LabelShape shape) {
    for (const auto& [name, named] : shapes)
        if (named == shape) return name;
    return {};
}

LabelStock::Position LabelStock::position(int n) const {
    const int place = std::max(n - 1, 0) % std::max(perSheet(), 1), across = std::max(columns, 1);
    const int column = place % across, row = place / across;
    return {left + column * columnPitch, top + row * rowPitch};
}

std::vector<LabelStock> readLabelStocks(std::string_view table) {
    std::vector<LabelStock> stocks;
    bool isHeading = true;
    for (std::string_view line : core::split(table, '\n')) {
        if (std::exchange(isHeading, false)) continue;
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (auto stock = stockOf(line)) stocks.push_back(*std::move(stock));
    }
    return stocks;
}

std::vector<const LabelStock*> findLabelStocks(const std::vector<LabelStock>& stocks, std::string_view text) {
    std::vector<const LabelStock*> found;
    const auto size = sizeOf(text);
    const std::vector<std::string> words = wordsOf(text);
    for (const LabelStock& stock : stocks) {
        std::string about = stock.maker;
        for (const std::string* part : {&stock.number, &stock.kind, &stock.paper}) {
            about.push_back(' ');
            about.append(*part);
        }
        about = core::upper(about);
        const auto isIn = [&](const std::string& word) { return about.find(word) != std::string::npos; };
        if (size ? isOfSize(stock, *size) : std::ranges::all_of(words, isIn)) found.push_back(&stock);
    }
    std::stable_partition(found.begin(), found.end(), [&](const LabelStock* stock) {
        return std::ranges::find(words, core::upper(stock->number)) != words.end();
    });
    return found;
}

bool isCalled(const LabelStock& stock, std::string_view name) {
    std::string whole = stock.maker;
    whole.append(" ").append(stock.number);
    return core::equalsNoCase(whole, name) || core::equalsNoCase(stock.number, name);
}

} // namespace labels
