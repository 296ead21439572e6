#include "labels/labelDesign.h"

#include "core/objectRef.h"
#include "core/text.h"
#include "core/translate.h"
#include "layout/sheet.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace labels {

using core::Column;
using core::Document;

namespace {

constexpr const char* fontName = "Arial";
constexpr float smallestFit = 6, largestFit = 14, fitStep = 0.5F; // points
constexpr std::size_t mostLines = 50, mostPieces = 200, mostText = 2000;

// A column, or the words between two.
struct Piece {
    const Column* column = nullptr;
    std::string words;
};
using Pieces = std::vector<Piece>;

const Column* columnOf(const Document& document, std::string_view name) {
    const Column* column = document.LV.columns.find(name);
    return column == nullptr || column->Index == 1 || column->isType(core::ColumnType::Picture) ? nullptr
                                                                                                : column;
}

// What is in braces and no column stays as it is.
Pieces piecesOf(const Document& document, std::string_view line) {
    Pieces pieces;
    const auto addWords = [&](std::string_view words) {
        if (words.empty()) return;
        if (pieces.empty() || pieces.back().column != nullptr) pieces.emplace_back();
        pieces.back().words.append(words);
    };
    while (!line.empty()) {
        const std::size_t open = line.find('{'),
                          close = open == std::string_view::npos ? open : line.find('}', open);
        if (close == std::string_view::npos) break;
        addWords(line.substr(0, open));
        const Column* column = columnOf(document, core::trim(line.substr(open + 1, close - open - 1)));
        if (column == nullptr)
            addWords(line.substr(open, close + 1 - open));
        else
            pieces.push_back({column, {}});
        line.remove_prefix(close + 1);
    }
    addWords(line);
    return pieces;
}

// The room for texts on a label, from its corner.
struct Area {
    double left = 0, top = 0, width = 0, height = 0;
};

Area textArea(const LabelStock& stock) {
    constexpr double mostInset = 170, share = 0.07; // twips: 3 mm
    const double inset = std::min(mostInset, share * std::min(stock.width, stock.height));
    switch (stock.shape) {
    case LabelShape::Round:
    case LabelShape::Ellipse: {
        constexpr double inscribed = 0.7; // of an ellipse: half the root of two
        return {stock.width * (1 - inscribed) / 2, stock.height * (1 - inscribed) / 2,
                stock.width * inscribed, stock.height * inscribed};
    }
    case LabelShape::Cd: // above the hole
        return {stock.width * 0.25, stock.height * 0.09, stock.width * 0.5, stock.height * 0.24};
    default:
        return {inset, inset, stock.width - 2 * inset, stock.height - 2 * inset};
    }
}

// The picture takes a square at the left, a third of the width at most.
double pictureWidth(const Area& area, const LabelText& text) {
    if (text.pictureColumn.empty()) return 0;
    return text.lines.empty() ? area.width : std::min(area.height, area.width / 3);
}

struct MeasuredLine {
    Pieces pieces;
    std::vector<std::string> longest; // of each piece, in the record whose line is the longest
};

std::vector<MeasuredLine> measuredLines(const Document& document, const LabelText& text) {
    std::vector<MeasuredLine> lines;
    for (const std::string& line : text.lines) {
        MeasuredLine measured{piecesOf(document, line), {}};
        std::size_t most = 0;
        const auto look = [&](auto&& textOf) {
            std::size_t length = 0;
            for (const Piece& piece : measured.pieces) length += core::length(textOf(piece));
            if (length < most || (length == 0 && !measured.longest.empty())) return;
            most = length;
            measured.longest.clear();
            for (const Piece& piece : measured.pieces)
                measured.longest.emplace_back(std::string_view(textOf(piece)).substr(0, mostText));
        };
        const auto wordsOf = [](const Piece& piece) {
            return std::string_view(piece.column == nullptr ? std::string_view(piece.words)
                                                            : std::string_view());
        };
        look(wordsOf);
        document.LV.forEach([&](const core::Item& record) {
            if (record.isTotals()) return;
            look([&](const Piece& piece) -> std::string_view {
                if (piece.column == nullptr) return piece.words;
                return core::RecordsList::cell(record, *piece.column).view();
            });
        });
        lines.push_back(std::move(measured));
    }
    return lines;
}

drawing::TextFont fontOf(float FontSize) {
    drawing::TextFont font;
    font.FontName = fontName;
    font.FontSize = FontSize;
    return font;
}

bool fits(const std::vector<MeasuredLine>& lines, const drawing::TextFont& font, double width, double height,
          drawing::TextMetrics& metrics) {
    if (static_cast<double>(metrics.textHeight(font)) * static_cast<double>(lines.size()) > height)
        return false;
    return std::ranges::all_of(lines, [&](const MeasuredLine& line) {
        std::string whole;
        for (const std::string& each : line.longest) whole.append(each);
        return static_cast<double>(metrics.textWidth(font, whole)) <= width;
    });
}

// Puts the pieces of a line side by side, each with the share of the width that its longest text needs.
class LinePlacer {
public:
    LinePlacer(core::LayoutObjects& objects, const drawing::TextFont& font, drawing::TextMetrics& metrics)
        : objects_(objects), font_(font), metrics_(metrics) {}

    // `right` is where the last piece ends. Where there is no room for all, the columns give way: words keep
    // theirs, with the blanks beside them, unless they alone would take more than half.
    void place(const MeasuredLine& line, double left, double right, double top, double height) {
        double x = left, words = 0, columns = 0;
        for (std::size_t i = 0; i < line.pieces.size(); ++i)
            (line.pieces[i].column == nullptr ? words : columns) += needs(line, i);
        const double room = right - left, needed = words + columns, kept = words <= room / 2 ? words : 0;
        const double scale = needed > room && needed > kept ? (room - kept) / (needed - kept) : 1;
        for (std::size_t i = 0; i < line.pieces.size(); ++i) {
            const Piece& piece = line.pieces[i];
            const bool isLast = i + 1 == line.pieces.size();
            const double share = piece.column == nullptr && kept > 0 ? 1 : scale;
            const double width = isLast ? std::max(right - x, 1.0) : needs(line, i) * share;
            if (piece.column != nullptr)
                place(field(*piece.column), x, top, width, height);
            else if (!core::trim(piece.words).empty() || line.pieces.size() == 1)
                placeWords(piece.words, x, top, width, height, share);
            x += width; // blanks alone are a gap
        }
    }

private:
    static constexpr double least = 60; // twips

    double needs(const MeasuredLine& line, std::size_t i) const {
        const double width = metrics_.textWidth(font_, line.longest[i]);
        if (line.pieces[i].column == nullptr) return width;
        constexpr double slack = 1.05, frame = 100; // of a box on the sheet
        return std::max(width * slack + frame, least);
    }
    core::LayoutField& field(const Column& column) {
        core::LayoutField& field = objects_.layoutField.load(objects_.layoutField.lowestFreeIndex());
        field.Tag = field.Text = column.Key;
        field.align = column.isNumeric() ? core::Alignment::Right : core::Alignment::Left;
        return field;
    }
    // The blanks around them become gaps, which are told by their width when the label is printed.
    void placeWords(std::string_view words, double x, double top, double width, double height, double share) {
        const std::string_view behind = core::ltrim(words), bare = core::rtrim(behind);
        const double gap = share * metrics_.textWidth(font_, words.substr(0, words.size() - behind.size()));
        const double gapBehind = share * metrics_.textWidth(font_, behind.substr(bare.size()));
        core::Label& label = objects_.tLabel.load(objects_.tLabel.lowestFreeIndex());
        label.Text = bare;
        constexpr double slack = 1.05, rounding = 30; // of the screen, which would wrap the last letter
        constexpr double leastGap = 25;               // that counts as one
        const double own = slack * static_cast<double>(metrics_.textWidth(font_, bare)) + rounding;
        const double most = width - gap - std::min(gapBehind, leastGap);
        place(label, x + gap, top, std::max(std::min(most, own), 1.0), height);
    }
    template <typename Object>
    void place(Object& object, double x, double top, double width, double height) {
        object.Visible = true;
        object.Left = static_cast<float>(x);
        object.Top = static_cast<float>(top);
        object.Width = static_cast<float>(width);
        object.Height = static_cast<float>(height);
        object.FontName = font_.FontName;
        object.FontSize = font_.FontSize;
    }

    core::LayoutObjects& objects_;
    const drawing::TextFont& font_;
    drawing::TextMetrics& metrics_;
};

} // namespace

LabelText proposedLabel(const Document& document) {
    const std::vector<int> order = document.LV.columns.displayOrder();
    std::set<const Column*> taken;
    // The first column that is called so, in braces; a column serves once.
    const auto find = [&](std::initializer_list<std::string_view> names) {
        std::string piece;
        for (const int index : order) {
            const Column& column = document.LV.columns.at(index);
            const std::string name = core::upper(column.Key);
            const auto isCalled = [&](std::string_view each) {
                const std::size_t at = name.find(each);
                return at != std::string::npos && (at == 0 || name[at - 1] == '_' || name[at - 1] == ' ');
            };
            if (columnOf(document, column.Key) == nullptr || name.find("MAIL") != std::string::npos ||
                !std::ranges::any_of(names, isCalled) || !taken.insert(&column).second)
                continue;
            return piece.append("{").append(column.Key).append("}");
        }
        return piece;
    };
    const auto joined = [](std::string line, std::string_view between, const std::string& piece) {
        if (!line.empty() && !piece.empty()) line.append(between);
        return line.append(piece);
    };
    const std::string first = find({"FIRST", "GIVEN", "FORENAME"}),
                      company = find({"COMPANY", "ORGANI", "FIRM"});
    const std::string name = joined(first, " ", find({"LAST", "SURNAME", "FAMILY", "NAME"}));
    const std::string street = find({"STREET", "ADDRESS"}), second = find({"STREET", "ADDRESS"});
    const std::string zip = find({"ZIP", "POSTAL", "POSTCODE"}), city = find({"CITY", "TOWN"});
    const std::string state = find({"STATE", "PROVINCE"}), country = find({"COUNTRY"});
    // With a state the post wants the code behind it.
    const std::string place =
        state.empty() ? joined(zip, " ", city) : joined(joined(city, ", ", state), " ", zip);
    LabelText text;
    for (const std::string* line : {&name, &company, &street, &second, &place, &country})
        if (!line->empty()) text.lines.push_back(*line);
    if (!street.empty() || !place.empty()) return text;
    constexpr std::size_t few = 3;
    text.lines.clear();
    for (const int index : order) {
        const Column& column = document.LV.columns.at(index);
        if (columnOf(document, column.Key) == nullptr || text.lines.size() >= few) continue;
        std::string piece = "{";
        text.lines.push_back(piece.append(column.Key).append("}"));
    }
    return text;
}

namespace {

// Notes the columns of a line, each of which stands once on a label; empty where nothing is wrong.
std::string faultOfLine(const Document& document, const std::string& line, std::set<const Column*>& used) {
    if (line.size() > mostText) return core::tr("A line of the label is too long.");
    std::size_t at = 0;
    while ((at = line.find('{', at)) != std::string::npos) {
        const std::size_t close = line.find('}', at);
        if (close == std::string::npos) return core::tr("A column is written in braces: {Name}.");
        const std::string name(core::trim(std::string_view(line).substr(at + 1, close - at - 1)));
        const Column* column = columnOf(document, name);
        if (column == nullptr)
            return core::fill(core::tr("There is no column \"%1\" whose text could be printed."), {name});
        if (!used.insert(column).second)
            return core::fill(core::tr("The column \"%1\" stands on the label twice."), {name});
        at = close;
        if (used.size() > mostPieces) return core::tr("The label has too many columns.");
    }
    return {};
}

} // namespace

std::string faultOf(const Document& document, const LabelText& text) {
    if (text.lines.size() > mostLines) return core::tr("A label has 50 lines at most.");
    std::set<const Column*> used;
    for (const std::string& line : text.lines)
        if (std::string fault = faultOfLine(document, line, used); !fault.empty()) return fault;
    if (!text.pictureColumn.empty()) {
        const Column* column = document.LV.columns.find(text.pictureColumn);
        if (column == nullptr || !column->isType(core::ColumnType::Picture))
            return core::fill(core::tr("There is no picture column \"%1\"."), {text.pictureColumn});
    }
    if (used.empty() && text.pictureColumn.empty())
        return core::tr("Choose at least one column for the label.");
    return {};
}

LabelDesign designLabel(const Document& document, const LabelStock& stock, const LabelText& text,
                        drawing::TextMetrics& metrics) {
    const Area area = textArea(stock);
    const ToldPage page = toldPage(stock);
    const double picture = pictureWidth(area, text), gap = picture > 0 ? area.left / 2 : 0;
    const double left = page.left + area.left + picture + gap;
    const double width = area.width - picture - gap;
    const std::vector<MeasuredLine> lines = measuredLines(document, text);
    LabelDesign design;
    design.FontSize = text.FontSize > 0 ? text.FontSize : largestFit;
    if (text.FontSize <= 0)
        while (design.FontSize > smallestFit &&
               !fits(lines, fontOf(design.FontSize), width, area.height, metrics))
            design.FontSize -= fitStep;
    const drawing::TextFont font = fontOf(design.FontSize);
    design.bFits = fits(lines, font, width, area.height, metrics);
    const double height = metrics.textHeight(font);
    double y = page.top + area.top;
    if (text.bCentred) y += std::max(area.height - height * static_cast<double>(lines.size()), 0.0) / 2;
    LinePlacer placer(design.objects, font, metrics);
    for (std::size_t i = 0; i < lines.size(); ++i, y += height) {
        // The last line and the ends of the first reach the corner of the label, which the extent is taken
        // from.
        const bool isLast = i + 1 == lines.size();
        const double bottom = page.top + page.extentY;
        placer.place(lines[i], left, i == 0 ? page.left + page.extentX : left + width, y,
                     isLast && bottom > y + height ? bottom - y : height);
    }
    if (picture > 0) {
        core::ImgHolder& holder = design.objects.imgHolder.load(1);
        holder.Tag = text.pictureColumn;
        holder.Visible = true;
        holder.Left = static_cast<float>(page.left + area.left);
        holder.Top = static_cast<float>(page.top + area.top);
        holder.Width = static_cast<float>(lines.empty() ? page.extentX - area.left : picture);
        holder.Height = static_cast<float>(lines.empty() ? page.extentY - area.top : area.height);
    }
    return design;
}

void placeDesign(app::App& app, LabelDesign& design) {
    layout::unloadObjects(app);
    app.document.locks.clear(); // or they would hold objects that get the same names
    core::LayoutObjects& own = app.document.layout;
    const auto take = [&](auto& to, auto& from) {
        from.forEach([&](auto& object) {
            auto& loaded = to.load(object.Index);
            loaded = object;
            core::bringToFront(own, loaded);
        });
    };
    take(own.layoutField, design.objects.layoutField);
    take(own.tLabel, design.objects.tLabel);
    take(own.imgHolder, design.objects.imgHolder);
}

} // namespace labels
