#include "core/text.h"
#include "core/translate.h"
#include "exchange/formats/formats.h"
#include "exchange/toldTypes.h"
#include "file/archive/packedPart.h"
#include "file/archive/zip.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

namespace exchange::ods {

namespace {

constexpr std::string_view mediaType = "application/vnd.oasis.opendocument.spreadsheet";
constexpr std::string_view xmlHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr std::string_view namespaces =
    " xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
    " xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\""
    " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
    " xmlns:style=\"urn:oasis:names:tc:opendocument:xmlns:style:1.0\""
    " xmlns:number=\"urn:oasis:names:tc:opendocument:xmlns:datastyle:1.0\""
    " xmlns:fo=\"urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0\""
    " xmlns:config=\"urn:oasis:names:tc:opendocument:xmlns:config:1.0\""
    " xmlns:of=\"urn:oasis:names:tc:opendocument:xmlns:of:1.2\" office:version=\"1.2\"";

// What XML has no way to say is left out.
void appendXml(std::string& out, std::string_view text) {
    for (const char c : text) {
        if (c == '<')
            out.append("&lt;");
        else if (c == '&')
            out.append("&amp;");
        else if (c == '"')
            out.append("&quot;");
        else if (static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n')
            out.push_back(c);
    }
}

// The lines as paragraphs; blanks that XML would take for one are told.
void appendParagraphs(std::string& out, std::string_view text) {
    for (const std::string_view line : core::split(text, '\n')) {
        out.append("<text:p>");
        std::size_t plain = 0;
        for (std::size_t at = 0; at < line.size(); ++at) {
            const bool bEdge = at == 0 || at + 1 == line.size() || line[at - 1] == ' ';
            if (line[at] != '\t' && !(line[at] == ' ' && bEdge)) continue;
            appendXml(out, line.substr(plain, at - plain));
            plain = at + 1;
            out.append(line[at] == ' ' ? "<text:s/>" : "<text:tab/>");
        }
        appendXml(out, line.substr(plain));
        out.append("</text:p>");
    }
}

// "d", "m", "n0", "z3": a date, money, a number with so many places, and one that shows no zero in front; "b"
// behind it in the Totals row.
std::string styleOf(const OutCell& cell, bool bBold) {
    std::string name;
    if (cell.what == OutCell::What::Date) name = "d";
    if (cell.what == OutCell::What::Money) name = "m";
    if (cell.what == OutCell::What::Number) {
        name = cell.bLeadingZero ? "n" : "z";
        name.append(std::to_string(cell.places));
    }
    if (bBold) name.push_back('b');
    return name;
}

void appendNumberStyle(std::string& out, const std::string& name) {
    if (name == "d") {
        out.append("<number:date-style style:name=\"Nd\"><number:month number:style=\"long\"/>"
                   "<number:text>/</number:text><number:day number:style=\"long\"/>"
                   "<number:text>/</number:text><number:year number:style=\"long\"/></number:date-style>");
        return;
    }
    const bool bMoney = name == "m";
    out.append("<number:number-style style:name=\"N").append(name).append("\">");
    if (bMoney) out.append("<number:text>$</number:text>");
    out.append("<number:number number:decimal-places=\"").append(bMoney ? "2" : name.substr(1));
    out.append("\" number:min-decimal-places=\"").append(bMoney ? "2" : name.substr(1));
    out.append("\" number:min-integer-digits=\"").append(name.starts_with('n') ? "1" : "0").append("\"");
    if (bMoney) out.append(" number:grouping=\"true\"");
    out.append("/></number:number-style>");
}

class ContentWriter {
public:
    explicit ContentWriter(const OutTable& table)
        : table_(table), formulas_(table, OutFormulas::Style::Ods) {}

    // The text has some forty times the bytes of the cells, so that it is never in memory as a whole.
    file::PackedPart write(const Progress& progress) {
        constexpr std::size_t rowsBetween = 500;
        file::PackedPart content;
        content.append(heading());
        for (std::size_t row = 0; row < table_.rows.size(); ++row) {
            appendRow(row);
            content.append(rows_);
            rows_.clear();
            if (row % rowsBetween == 0) tellProgress(progress, row, table_.rows.size());
        }
        content.append("</table:table></office:spreadsheet></office:body></office:document-content>\n");
        return content;
    }

private:
    std::string heading() {
        std::string out(xmlHead);
        out.append("<office:document-content").append(namespaces).append("><office:automatic-styles>");
        findStyles();
        appendStyles(out);
        out.append("</office:automatic-styles><office:body><office:spreadsheet><table:table table:name=\"");
        appendXml(out, table_.title.empty() ? "Records" : table_.title);
        out.append("\">");
        for (std::size_t i = 0; i < table_.columns.size(); ++i)
            out.append("<table:table-column table:style-name=\"w").append(std::to_string(i)).append("\"/>");
        out.append("<table:table-header-rows><table:table-row>");
        for (const OutColumn& column : table_.columns) {
            out.append("<table:table-cell table:style-name=\"b\" office:value-type=\"string\">");
            appendParagraphs(out, column.name);
            out.append("</table:table-cell>");
        }
        return out.append("</table:table-row></table:table-header-rows>");
    }

    // They stand in front of the cells.
    void findStyles() {
        std::string last;
        for (std::size_t row = 0; row < table_.rows.size(); ++row)
            for (std::size_t i = 0; i < table_.columns.size(); ++i) {
                const std::string_view text = cellIn(table_, row, i);
                if (text.empty() || table_.columns[i].type == core::ColumnType::Text) continue;
                std::string style = styleOf(outCell(table_.columns[i].type, text), isBold(row));
                if (style == last) continue;
                if (!style.empty()) styles_.insert(style);
                last = std::move(style);
            }
        if (table_.bLastIsTotals) styles_.insert("b");
    }

    bool isBold(std::size_t row) const { return table_.bLastIsTotals && row + 1 == table_.rows.size(); }

    void appendRow(std::size_t row) {
        const bool bBold = isBold(row);
        rows_.append("<table:table-row>");
        for (std::size_t i = 0; i < table_.columns.size(); ++i) {
            const std::string_view text = cellIn(table_, row, i);
            if (text.empty()) {
                rows_.append("<table:table-cell/>");
                continue;
            }
            appendCell(row, i, text, bBold);
        }
        rows_.append("</table:table-row>");
    }

    void appendCell(std::size_t row, std::size_t column, std::string_view text, bool bBold) {
        const OutCell cell = outCell(table_.columns[column].type, text);
        const std::string style = styleOf(cell, bBold);
        rows_.append("<table:table-cell");
        if (!style.empty()) rows_.append(" table:style-name=\"").append(style).append("\"");
        if (const auto formula = formulas_.at(row, column, cell)) {
            rows_.append(" table:formula=\"");
            appendXml(rows_, *formula);
            rows_.append("\"");
        }
        if (cell.what == OutCell::What::Text)
            rows_.append(" office:value-type=\"string\">");
        else if (cell.what == OutCell::What::Date)
            rows_.append(" office:value-type=\"date\" office:date-value=\"").append(cell.iso).append("\">");
        else
            appendNumber(cell);
        appendParagraphs(rows_, text);
        rows_.append("</table:table-cell>");
    }

    void appendNumber(const OutCell& cell) {
        const bool bMoney = cell.what == OutCell::What::Money;
        rows_.append(bMoney ? " office:value-type=\"currency\" office:currency=\"USD\""
                            : " office:value-type=\"float\"");
        rows_.append(" office:value=\"").append(cell.digits).append("\">");
    }

    void appendStyles(std::string& out) const {
        for (std::size_t i = 0; i < table_.columns.size(); ++i) {
            constexpr double twipsOfInch = 1440;
            std::array<char, 32> width{};
            std::snprintf(width.data(), width.size(), "%.3fin",
                          std::clamp(table_.columns[i].widthTwips / twipsOfInch, 0.1, 20.0));
            out.append("<style:style style:name=\"w").append(std::to_string(i));
            out.append(
                "\" style:family=\"table-column\"><style:table-column-properties style:column-width=\"");
            out.append(width.data()).append("\"/></style:style>");
        }
        std::set<std::string> numbers;
        for (const std::string& style : styles_)
            if (const std::string number = style.substr(0, style.find('b')); !number.empty())
                numbers.insert(number);
        for (const std::string& number : numbers) appendNumberStyle(out, number);
        std::set<std::string> all = styles_;
        all.insert("b");
        for (const std::string& style : all) {
            const std::string number = style.substr(0, style.find('b'));
            out.append("<style:style style:name=\"").append(style).append("\" style:family=\"table-cell\"");
            if (!number.empty()) out.append(" style:data-style-name=\"N").append(number).append("\"");
            out.append(">");
            if (style.ends_with('b')) out.append("<style:text-properties fo:font-weight=\"bold\"/>");
            out.append("</style:style>");
        }
    }

    const OutTable& table_;
    OutFormulas formulas_;
    std::set<std::string> styles_;
    std::string rows_;
};

// The heading row stays in sight.
std::string settings(const OutTable& table) {
    std::string out(xmlHead);
    const auto item = [&](std::string_view name, std::string_view type, std::string_view value) {
        out.append("<config:config-item config:name=\"")
            .append(name)
            .append("\" config:type=\"")
            .append(type);
        out.append("\">").append(value).append("</config:config-item>");
    };
    out.append("<office:document-settings").append(namespaces);
    out.append("><office:settings><config:config-item-set config:name=\"ooo:view-settings\">"
               "<config:config-item-map-indexed config:name=\"Views\"><config:config-item-map-entry>");
    item("ViewId", "string", "view1");
    out.append("<config:config-item-map-named config:name=\"Tables\">"
               "<config:config-item-map-entry config:name=\"");
    appendXml(out, table.title.empty() ? "Records" : table.title);
    out.append("\">");
    item("VerticalSplitMode", "short", "2");
    item("VerticalSplitPosition", "int", "1");
    item("ActiveSplitRange", "short", "2");
    item("PositionTop", "int", "0");
    item("PositionBottom", "int", "1");
    out.append("</config:config-item-map-entry></config:config-item-map-named></config:config-item-map-entry>"
               "</config:config-item-map-indexed></config:config-item-set></office:settings>");
    return out.append("</office:document-settings>\n");
}

// The types of the columns.
std::string properties(const OutTable& table) {
    std::string out(xmlHead);
    out.append("<office:document-meta xmlns:meta=\"urn:oasis:names:tc:opendocument:xmlns:meta:1.0\"");
    out.append(namespaces).append("><office:meta>");
    std::size_t number = 0;
    for (const std::string& heading : typedHeadings(table)) {
        out.append("<meta:user-defined meta:name=\"").append(typeProperty).append(std::to_string(++number));
        out.append("\">");
        appendXml(out, heading);
        out.append("</meta:user-defined>");
    }
    return out.append("</office:meta></office:document-meta>\n");
}

std::string manifest() {
    std::string out(xmlHead);
    out.append("<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\""
               " manifest:version=\"1.2\">");
    const auto entry = [&](std::string_view path, std::string_view type) {
        out.append("<manifest:file-entry manifest:full-path=\"").append(path);
        out.append("\" manifest:media-type=\"").append(type).append("\"/>");
    };
    entry("/", mediaType);
    entry("content.xml", "text/xml");
    entry("meta.xml", "text/xml");
    entry("settings.xml", "text/xml");
    return out.append("</manifest:manifest>\n");
}

} // namespace

void write(const Target& target, const OutTable& table, const Progress& progress) {
    if (table.columns.empty()) refuseSheet(core::tr("it has no columns"));
    file::Zip zip;
    zip.CreateArchive(target.file, {}, target.like);
    // In front and as it is, so that the type can be told from the first bytes of the file.
    zip.addPart("mimetype", mediaType, true);
    zip.addPart("content.xml", ContentWriter(table).write(progress));
    zip.addPart("meta.xml", properties(table));
    zip.addPart("settings.xml", settings(table));
    zip.addPart("META-INF/manifest.xml", manifest());
    zip.CloseArchive();
}

} // namespace exchange::ods
