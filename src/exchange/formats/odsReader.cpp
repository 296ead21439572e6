#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/sheetNumbers.h"
#include "exchange/formats/xmlPieces.h"
#include "exchange/toldTypes.h"
#include "file/archive/zip.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>

namespace exchange::ods {

namespace {

using Kind = SheetCell::Kind;

class Document {
public:
    explicit Document(const std::filesystem::path& file) { zip_.OpenArchive(file); }

    XmlPieces content() const {
        auto part = zip_.openEntry("content.xml", SheetBounds::fileBytes);
        if (!part) refuseSheet(core::tr("it has no content.xml"));
        return XmlPieces(*std::move(part));
    }

    std::vector<std::string> toldTypes() const {
        std::vector<std::string> headings;
        auto part = zip_.openEntry("meta.xml", SheetBounds::fileBytes);
        if (!part) return headings;
        XmlPieces pieces(*std::move(part));
        pugi::xml_document tree;
        for (auto each = pieces.next(" user-defined "); !each.name.empty();
             each = pieces.next(" user-defined ")) {
            pieces.read(each, tree);
            const pugi::xml_node node = tree.document_element();
            if (std::string_view(attributeOf(node, "name").value()).starts_with(typeProperty))
                headings.emplace_back(node.text().get());
        }
        return headings;
    }

private:
    file::Zip zip_;
};

std::size_t repeats(const pugi::xml_node& node, std::string_view name) {
    return std::max<std::size_t>(countIn(attributeOf(node, name)), 1);
}

bool isShown(const pugi::xml_node& node) {
    const std::string_view visibility = attributeOf(node, "visibility").value();
    return visibility.empty() || visibility == "visible";
}

// The paragraphs of a cell, a line each, without the notes and drawings in it. As a walk, since a hostile
// file can nest them as deep as it likes.
class CellText : public pugi::xml_tree_walker {
public:
    static std::string of(const pugi::xml_node& cell) {
        CellText text;
        for (const pugi::xml_node& child : cell) {
            if (localName(child) != "p") continue;
            if (text.paragraphs_++ > 0) text.text_.push_back('\n');
            pugi::xml_node paragraph = child;
            paragraph.traverse(text);
        }
        return std::move(text.text_);
    }

    bool for_each(pugi::xml_node& node) override {
        constexpr std::size_t mostBlanks = 32'767;
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
            if (localName(node.parent()) != "ruby-text") appendText(node.value());
            return true;
        }
        const std::string_view name = localName(node);
        if (name == "s") text_.append(std::min(repeats(node, "c"), mostBlanks), ' ');
        if (name == "tab") text_.push_back('\t');
        if (name == "line-break") text_.push_back('\n');
        if (name == "s" || name == "tab" || name == "line-break") bLastBlank_ = false;
        return text_.size() <= SheetBounds::textBytes;
    }

private:
    // Blanks and line ends of the XML count as one blank.
    void appendText(std::string_view text) {
        for (const char c : text) {
            const bool bBlank = c == ' ' || c == '\n' || c == '\r' || c == '\t';
            if (!bBlank || !bLastBlank_) text_.push_back(bBlank ? ' ' : c);
            bLastBlank_ = bBlank;
        }
    }

    std::string text_;
    int paragraphs_ = 0;
    bool bLastBlank_ = false;
};

// Not every program tells an amount by the type of its cell.
bool hasCurrencySign(std::string_view shown) {
    return std::ranges::any_of(std::array<std::string_view, 4>{"$", "\u20AC", "\u00A3", "\u00A5"},
                               [&](std::string_view sign) { return shown.find(sign) != shown.npos; });
}

SheetCell cellOf(const pugi::xml_node& node) {
    const std::string_view type = attributeOf(node, "value-type").value();
    if (type == "float" || type == "percentage" || type == "currency") {
        const auto number = doubleIn(attributeOf(node, "value").value());
        const std::string shown = CellText::of(node);
        if (!number) return {Kind::Text, shown};
        return {Kind::Number, digitsAsShown(numberDigits(*number), shown),
                type == "currency" || hasCurrencySign(shown)};
    }
    if (type == "date") return isoCell(attributeOf(node, "date-value").value());
    if (type == "time") return durationCell(attributeOf(node, "time-value").value());
    if (type == "boolean")
        return {Kind::Boolean,
                std::string_view(attributeOf(node, "boolean-value").value()) == "true" ? "true" : "false"};
    if (const pugi::xml_attribute text = attributeOf(node, "string-value")) return {Kind::Text, text.value()};
    return {Kind::Text, CellText::of(node)};
}

class SheetReader {
public:
    explicit SheetReader(XmlPieces& pieces) : pieces_(pieces) {}

    // Behind the tag of the table.
    Sheet read(const Progress& progress) {
        constexpr std::string_view parts = " table-column table-row table ";
        constexpr std::size_t rowsBetween = 500;
        std::size_t rows = 0;
        pugi::xml_document tree;
        for (auto each = pieces_.next(parts, true); !each.name.empty(); each = pieces_.next(parts, true)) {
            if (each.name == "table" && each.isEnd) break;
            if (each.name == "table" || each.isEnd) continue;
            const bool bRow = each.name == "table-row";
            pieces_.read(each, tree);
            if (bRow)
                readRow(tree.document_element());
            else
                readColumn(tree.document_element());
            if (bRow && rows++ % rowsBetween == 0) tellProgress(progress, pieces_.at(), pieces_.size());
        }
        return collector_.take();
    }

private:
    void readColumn(const pugi::xml_node& node) {
        const std::size_t count = repeats(node, "number-columns-repeated");
        if (hidden_.size() < SheetBounds::columns)
            hidden_.resize(std::min(hidden_.size() + count, SheetBounds::columns), !isShown(node));
    }

    void readRow(const pugi::xml_node& node) {
        if (!isShown(node)) return;
        std::size_t column = 0;
        for (const pugi::xml_node& cell : node) {
            const bool bCovered =
                localName(cell) == "covered-table-cell"; // by the one that is merged with it
            if (!bCovered && localName(cell) != "table-cell") continue;
            const std::size_t count = repeats(cell, "number-columns-repeated");
            SheetCell read = bCovered ? SheetCell() : cellOf(cell);
            const bool bBlank = read.kind == Kind::Empty || read.text.empty();
            for (std::size_t i = 0; i < count; ++i, ++column) {
                // Beyond what can be hidden, blanks need no look at each.
                if (bBlank && column >= hidden_.size()) {
                    collector_.blanks(count - i);
                    column += count - i;
                    break;
                }
                if (column < hidden_.size() && hidden_[column]) continue;
                collector_.cell(bBlank ? SheetCell() : read);
            }
        }
        collector_.endRow(repeats(node, "number-rows-repeated"));
    }

    XmlPieces& pieces_;
    std::vector<bool> hidden_;
    SheetCollector collector_;
};

// Goes through the tables that are shown; `atTable` is told each name, and whether nothing is in it, and
// answers false when it has what it wants.
void eachTable(XmlPieces& pieces, const std::function<bool(const std::string& name, bool isEmpty)>& atTable) {
    constexpr std::string_view parts = " style table ";
    int depth = 0;
    pugi::xml_document tree;
    std::set<std::string, std::less<>> hidden; // styles of sheets
    for (auto each = pieces.next(parts, true); !each.name.empty(); each = pieces.next(parts, true)) {
        if (each.name == "style") {
            if (each.isEnd) continue;
            pieces.read(each, tree);
            const pugi::xml_node style = tree.document_element();
            const std::string_view display =
                attributeOf(childOf(style, "table-properties"), "display").value();
            if (display == "false") hidden.insert(attributeOf(style, "name").value());
            continue;
        }
        if (!each.isEnd && depth == 0) {
            pieces.readTag(each, tree);
            const pugi::xml_node table = tree.document_element();
            const bool bShown = !hidden.contains(std::string_view(attributeOf(table, "style-name").value()));
            if (bShown && !atTable(attributeOf(table, "name").value(), each.isEmpty)) return;
        }
        if (!each.isEmpty) depth += each.isEnd ? -1 : 1;
    }
}

} // namespace

std::vector<std::string> names(const std::filesystem::path& file) {
    const Document document(file);
    XmlPieces pieces = document.content();
    std::vector<std::string> names;
    eachTable(pieces, [&](const std::string& name, bool) {
        if (names.size() >= SheetBounds::columns) refuseSheet(core::tr("it has too many sheets"));
        names.push_back(name);
        return true;
    });
    if (names.empty()) refuseSheet(core::tr("it has no sheets"));
    return names;
}

Sheet read(const std::filesystem::path& file, std::size_t sheet, const Progress& progress) {
    const Document document(file);
    XmlPieces pieces = document.content();
    std::vector<std::string> names;
    bool isWithoutRows = false;
    eachTable(pieces, [&](const std::string& name, bool isEmpty) {
        names.push_back(name);
        isWithoutRows = isEmpty;
        return names.size() <= sheet;
    });
    std::string name = sheetAt(names, sheet);
    Sheet table;
    if (!isWithoutRows) table = SheetReader(pieces).read(progress); // or it would read the next one
    table.name = std::move(name);
    table.bTyped = true;
    restoreTypes(table, document.toldTypes());
    return table;
}

} // namespace exchange::ods
