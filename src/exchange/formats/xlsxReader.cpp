#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/formats/mergedCells.h"
#include "exchange/formats/sheetNumbers.h"
#include "exchange/formats/xmlPieces.h"
#include "exchange/toldTypes.h"
#include "file/archive/zip.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace exchange::xlsx {

namespace {

using Kind = SheetCell::Kind;
using std::filesystem::path;

struct Part {
    std::string type, target; // "worksheet", "xl/worksheets/sheet1.xml"
};

[[noreturn]] void refuseWithout(const std::string& name) {
    refuseSheet(core::fill(core::tr("it has no %1"), {name}));
}

std::string partOf(const file::Zip& zip, const std::string& name) {
    auto text = zip.readEntry(name, SheetBounds::fileBytes);
    if (!text) refuseWithout(name);
    return *std::move(text);
}

XmlPieces piecesOf(const file::Zip& zip, const std::string& name) {
    auto part = zip.openEntry(name, SheetBounds::fileBytes);
    if (!part) refuseWithout(name);
    return XmlPieces(*std::move(part));
}

// What a part of the file relies on, by the names that it uses.
std::map<std::string, Part> relationsOf(const file::Zip& zip, const std::string& part) {
    std::map<std::string, Part> relations;
    const path where(part);
    const std::string name = (where.parent_path() / "_rels" / (where.filename().string() + ".rels")).string();
    pugi::xml_document tree;
    readXml(partOf(zip, name), tree);
    for (const pugi::xml_node& node : tree.document_element()) {
        const std::string target = attributeOf(node, "Target").value();
        const path whole = target.starts_with('/') ? path(target.substr(1)) : where.parent_path() / target;
        relations[attributeOf(node, "Id").value()] = {
            path(attributeOf(node, "Type").value()).filename().string(), whole.lexically_normal().string()};
    }
    return relations;
}

bool isTrue(const pugi::xml_attribute& attribute) {
    const std::string_view value = attribute.value();
    return value == "1" || value == "true";
}

// "_x000D_" stands for a character that XML does not have.
void appendDecoded(std::string& out, std::string_view text) {
    constexpr std::size_t codeLength = 7;
    for (std::size_t at = 0; at < text.size();) {
        unsigned code = 0;
        const std::string_view piece = text.substr(at, codeLength);
        if (piece.size() == codeLength && piece.starts_with("_x") && piece.back() == '_') {
            const auto [end, error] = std::from_chars(piece.data() + 2, piece.data() + 6, code, 16);
            const bool bHalf = code >= 0xD800 && code <= 0xDFFF; // of a pair, and no character
            if (error == std::errc() && end == piece.data() + 6 && !bHalf) {
                if (code != '\r' && code != 0) core::appendCodePoint(out, code);
                at += codeLength;
                continue;
            }
        }
        if (text[at] != '\r') out.push_back(text[at]);
        ++at;
    }
}

// The text of its runs, without what tells how to read it aloud.
std::string textOfRuns(const pugi::xml_node& node) {
    std::string text;
    for (const pugi::xml_node& child : node) {
        if (localName(child) == "t") appendDecoded(text, child.text().get());
        if (localName(child) == "r") appendDecoded(text, childOf(child, "t").text().get());
    }
    return text;
}

class Workbook {
public:
    explicit Workbook(const path& file) {
        zip_.OpenArchive(file);
        std::string main;
        for (const auto& [id, part] : relationsOf(zip_, "")) {
            if (part.type == "officeDocument") main = part.target;
            if (part.type == "custom-properties") properties_ = part.target;
        }
        if (main.empty()) refuseSheet(core::tr("it has no workbook"));
        const auto relations = relationsOf(zip_, main);
        for (const auto& [id, part] : relations) {
            if (part.type == "sharedStrings") strings_ = part.target;
            if (part.type == "styles") styles_ = part.target;
        }
        pugi::xml_document tree;
        readXml(partOf(zip_, main), tree);
        const pugi::xml_node root = tree.document_element();
        b1904 = isTrue(attributeOf(childOf(root, "workbookPr"), "date1904"));
        for (const pugi::xml_node& node : childOf(root, "sheets")) {
            const auto part = relations.find(attributeOf(node, "id").value());
            const bool bHidden = std::string_view(attributeOf(node, "state").value()).ends_with("idden");
            if (bHidden || part == relations.end() || part->second.type != "worksheet") continue;
            names.emplace_back(attributeOf(node, "name").value());
            targets_.push_back(part->second.target);
        }
        if (names.empty()) refuseSheet(core::tr("it has no sheets"));
    }

    XmlPieces sheet(std::size_t sheet) const { return piecesOf(zip_, targets_[sheet]); }

    std::vector<std::string> sharedStrings() const {
        std::vector<std::string> strings;
        if (strings_.empty() || !zip_.contains(strings_)) return strings;
        XmlPieces pieces = piecesOf(zip_, strings_);
        std::size_t bytes = 0;
        pugi::xml_document tree;
        for (auto each = pieces.next(" si "); !each.name.empty(); each = pieces.next(" si ")) {
            pieces.read(each, tree);
            strings.push_back(textOfRuns(tree.document_element()));
            bytes += strings.back().size();
            if (strings.size() > mostStrings || bytes > SheetBounds::textBytes)
                refuseSheet(core::tr("its texts are too long"));
        }
        return strings;
    }

    std::vector<std::string> typedHeadings() const {
        std::vector<std::string> headings;
        if (properties_.empty() || !zip_.contains(properties_)) return headings;
        pugi::xml_document tree;
        readXml(partOf(zip_, properties_), tree);
        for (const pugi::xml_node& node : tree.document_element())
            if (std::string_view(attributeOf(node, "name").value()).starts_with(typeProperty))
                headings.emplace_back(childOf(node, "lpwstr").text().get());
        return headings;
    }

    // The shape of the numbers of each style.
    std::vector<NumberShape> shapes() const {
        std::vector<NumberShape> shapes;
        if (styles_.empty() || !zip_.contains(styles_)) return shapes;
        pugi::xml_document tree;
        readXml(partOf(zip_, styles_), tree);
        const pugi::xml_node root = tree.document_element();
        std::map<std::size_t, NumberShape> own;
        for (const pugi::xml_node& node : childOf(root, "numFmts"))
            own[countIn(attributeOf(node, "numFmtId"))] = shapeOf(attributeOf(node, "formatCode").value());
        for (const pugi::xml_node& node : childOf(root, "cellXfs")) {
            if (node.type() != pugi::node_element) continue; // blanks between them do not count
            const std::size_t id = countIn(attributeOf(node, "numFmtId"));
            const auto found = own.find(id);
            shapes.push_back(found == own.end() ? builtInShape(id) : found->second);
        }
        return shapes;
    }

    std::vector<std::string> names;
    bool b1904 = false;

private:
    static constexpr std::size_t mostStrings = 1'000'000;

    file::Zip zip_;
    std::vector<std::string> targets_;
    std::string strings_, styles_, properties_;
};

// "BC12" is in column 54, from 0; what has no letters is in the next one.
std::size_t columnOf(std::string_view place, std::size_t next) {
    constexpr std::size_t letters = 26;
    std::size_t column = 0;
    for (const char c : place) {
        if (c < 'A' || c > 'Z') break;
        column = column * letters + static_cast<std::size_t>(c - 'A' + 1);
        if (column > SheetBounds::columns * letters) break;
    }
    return column == 0 ? next : column - 1;
}

class SheetReader {
public:
    SheetReader(const Workbook& book, std::size_t sheet)
        : book_(book), sheet_(sheet), shapes_(book.shapes()), strings_(book.sharedStrings()) {}

    Sheet read(const Progress& progress) {
        readParts(" row col mergeCell ", progress);
        if (!merged_.empty()) {
            // What is merged stands behind the rows, and has to be known before them.
            collector_ = {};
            hidden_.clear();
            nextRow_ = 1;
            readParts(" row col ", progress);
        }
        Sheet sheet = collector_.take();
        sheet.bTyped = true;
        return sheet;
    }

private:
    void readParts(std::string_view names, const Progress& progress) {
        constexpr std::size_t rowsBetween = 500;
        XmlPieces pieces = book_.sheet(sheet_);
        pugi::xml_document tree;
        std::size_t rows = 0;
        for (auto each = pieces.next(names); !each.name.empty(); each = pieces.next(names)) {
            const bool bRow = each.name == "row", bColumn = each.name == "col";
            pieces.read(each, tree);
            const pugi::xml_node node = tree.document_element();
            if (bRow)
                readRow(node);
            else if (bColumn)
                readColumn(node);
            else
                merged_.add(attributeOf(node, "ref").value());
            if (bRow && rows++ % rowsBetween == 0) tellProgress(progress, pieces.at(), pieces.size());
        }
    }

    void readColumn(const pugi::xml_node& node) {
        if (!isTrue(attributeOf(node, "hidden"))) return;
        const std::size_t last = std::min(countIn(attributeOf(node, "max")), SheetBounds::columns);
        hidden_.resize(SheetBounds::columns);
        for (std::size_t i = countIn(attributeOf(node, "min")); i >= 1 && i <= last; ++i)
            hidden_[i - 1] = true;
    }

    void readRow(const pugi::xml_node& node) {
        const std::size_t number = countIn(attributeOf(node, "r"));
        if (number != 0 && number < nextRow_) refuseSheet(core::tr("its rows are out of order"));
        if (number != 0) collector_.blankRows(number - nextRow_);
        nextRow_ = (number == 0 ? nextRow_ : number) + 1;
        if (isTrue(attributeOf(node, "hidden"))) return;
        std::size_t next = 0;
        for (const pugi::xml_node& cell : node) {
            if (localName(cell) != "c") continue;
            const std::size_t column = columnOf(attributeOf(cell, "r").value(), next);
            if (column < next) refuseSheet(core::tr("its cells are out of order"));
            // Only as far as it can matter, since a hidden one is left out.
            for (; next < column && next < SheetBounds::columns; ++next) skip(next);
            if (column > next) collector_.blanks(column - next);
            if (merged_.covers({nextRow_ - 2, column}))
                skip(column);
            else if (!isHidden(column))
                readCell(cell);
            next = column + 1;
        }
        collector_.endRow();
    }
    bool isHidden(std::size_t column) const { return column < hidden_.size() && hidden_[column]; }
    void skip(std::size_t column) {
        if (!isHidden(column)) collector_.blanks(1);
    }

    void readCell(const pugi::xml_node& cell) {
        const std::string_view type = attributeOf(cell, "t").value();
        const std::string_view value = childOf(cell, "v").text().get();
        if (type == "inlineStr") return collector_.text(textOfRuns(childOf(cell, "is")));
        if (type == "s") return collector_.text(shared(value));
        if (type == "b")
            return value.empty() ? collector_.blanks(1)
                                 : collector_.cell(Kind::Boolean, value == "1" ? "true" : "false");
        if (type == "d") {
            return collector_.cell(isoCell(value));
        }
        if (type == "str" || type == "e") {
            std::string text;
            appendDecoded(text, value);
            return collector_.text(std::move(text));
        }
        const auto number = doubleIn(value);
        if (!number) return collector_.text(std::string(value));
        const std::size_t style = countIn(attributeOf(cell, "s"));
        collector_.cell(
            shapedCell(*number, style < shapes_.size() ? shapes_[style] : NumberShape(), book_.b1904));
    }

    const std::string& shared(std::string_view index) const {
        std::size_t place = 0;
        const auto [end, error] = std::from_chars(index.data(), index.data() + index.size(), place);
        if (error != std::errc() || place >= strings_.size())
            refuseSheet(core::tr("it names a text that is not there"));
        return strings_[place];
    }

    const Workbook& book_;
    std::size_t sheet_;
    std::vector<NumberShape> shapes_;
    std::vector<std::string> strings_;
    std::vector<bool> hidden_;
    MergedCells merged_;
    std::size_t nextRow_ = 1;
    SheetCollector collector_;
};

} // namespace

std::vector<std::string> names(const path& file) {
    return Workbook(file).names;
}

Sheet read(const path& file, std::size_t sheet, const Progress& progress) {
    const Workbook book(file);
    const std::string& name = sheetAt(book.names, sheet);
    Sheet table = SheetReader(book, sheet).read(progress);
    table.name = name;
    restoreTypes(table, book.typedHeadings());
    return table;
}

} // namespace exchange::xlsx
