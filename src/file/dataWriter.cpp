#include "file/dataWriter.h"

#include "core/encoding.h"
#include "core/number.h"
#include "core/text.h"
#include "file/layoutLines.h"
#include "file/values.h"

namespace file {

namespace {

using core::Column;
using core::Document;

constexpr std::string_view dosLineEnd = "\r\n";
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

class Writer {
public:
    explicit Writer(std::string& out) : out_(out) {}

    void line(std::string_view text) { out_.append(text).append(dosLineEnd); }
    void section(std::string_view marker) { out_.append(marker); }
    Writer& element(std::string_view text) {
        out_.append(text).push_back('|');
        return *this;
    }
    Writer& element(float number) { return element(std::string_view(core::numberText(number))); }
    Writer& element(int number) { return element(std::string_view(std::to_string(number))); }
    void end() { out_.append(dosLineEnd); }
    void collection(std::string_view marker, const core::NamedCollection& items) {
        section(marker);
        for (const auto& entry : items) element(std::string_view(entry.item));
        end();
    }

private:
    std::string& out_;
};

// The user sizes and drags the columns of iLV, which he sees in place of LV.
void takeOverInvoiceColumns(Document& document) {
    if (!document.bInvoiceStyle) return;
    for (const Column& shown : document.iLV.columns) {
        if (shown.Index == 1) continue;
        if (Column* column = document.LV.columns.find(shown.Text)) column->Width = shown.Width;
    }
}

// Only the list of the view on show follows iLV; the other view's stays as it stood.
void refreshPositions(Document& document) {
    core::NamedCollection& positions = document.bInvoiceView ? document.itemLevelCols : document.invoiceCols;
    positions.clear();
    for (const Column& shown : document.iLV.columns) positions.add(std::to_string(shown.Position));
}

void writeLayoutOptions(Writer& out, const core::LayoutOptions& options) {
    out.section("[Layout Options]");
    out.element(options.customPaperLength).element(options.customPaperHeight);
    out.element(options.layoutLeftMargin).element(options.layoutTopMargin);
    out.element(options.layoutBottomMargin).element(options.layoutRightMargin);
    out.element(static_cast<int>(options.layoutPaperSize))
        .element(static_cast<int>(options.layoutOrientation));
    out.element(options.layoutSpacing).end();
}

// The margins stand in another order here than among the layout options.
void writeReportData(Writer& out, const core::ReportData& report) {
    out.section("[Report Data   ]");
    out.element(report.reportLeftMargin).element(report.reportRightMargin);
    out.element(report.reportTopMargin).element(report.reportBottomMargin);
    out.element(static_cast<int>(report.reportPaperSize)).element(static_cast<int>(report.reportOrientation));
    out.element(std::string_view(report.reportTitle)).element(booleanText(report.bReportBoldHeaders)).end();
}

void writeColumns(Writer& out, const core::ColumnHeaders& columns) {
    const auto list = [&](std::string_view marker, bool withHidden, auto&& write) {
        out.section(marker);
        for (const Column& column : columns)
            if (withHidden || column.Index != 1) write(column);
        out.end();
    };
    list("[Column Names  ]", false,
         [&](const Column& column) { out.element(std::string_view(column.Text)); });
    list("[Column Types  ]", false, [&](const Column& column) { out.element(std::string_view(column.Tag)); });
    list("[Column Widths ]", false, [&](const Column& column) { out.element(column.Width); });
    list("[Column Spots  ]", true, [&](const Column& column) { out.element(column.Position); });
}

void writeIncrements(Writer& out, const core::RecordsList& serials, bool bClone) {
    out.section("[Increments    ]");
    serials.forEach([&](const core::Item& serial) {
        out.element(std::string_view(serial.Text.str() + "," + (bClone ? "0" : serial.subItem(1).str())));
    });
    out.end();
}

std::size_t estimatedSize(const Document& document) {
    std::size_t size = 8192;
    document.LV.forEach([&](const core::Item& item) {
        for (const core::CellText& cell : item.cells) size += cell.size() + 1;
        size += 2;
    });
    return size;
}

void appendDesign(std::string& text, Document& document, bool bClone) {
    Writer out(text);
    takeOverInvoiceColumns(document);
    out.line("[LayoutStart]");
    writeLayoutLines(text, document.layout, dosLineEnd);
    out.line("[LayoutEnd]");
    writeLayoutOptions(out, document.layoutOptions);
    writeColumns(out, document.LV.columns);
    refreshPositions(document);
    out.collection("[InvoiceCols   ]", document.invoiceCols);
    out.collection("[ItemLevelCols ]", document.itemLevelCols);
    out.collection("[Printed Cols  ]", document.printedCols);
    out.collection("[PrnInvoiceCols]", document.prnInvoiceCols);
    out.collection("[PrnItemCols   ]", document.prnItemCols);
    writeReportData(out, document.reportData);
    out.collection("[Formulas      ]", document.formulas);
    out.collection("[Totaled Cols  ]", document.totaledCols);
    out.collection("[Optioned Cols ]", document.optionedCols);
    writeIncrements(out, document.SerialsLV, bClone);
    out.collection("[Locks         ]", document.locks);
    out.section("[DatabaseStyle ]");
    out.line(booleanText(document.bInvoiceStyle));
    out.section("[InvoiceView   ]");
    out.line(booleanText(document.bInvoiceView));
    out.section("[Lock          ]");
    out.line(document.lockPassword);
    out.line("[Begin Data    ]");
}

} // namespace

std::string writeDataFile(Document& document, bool bClone) {
    std::string text;
    if (!bClone) text.reserve(estimatedSize(document));
    appendDesign(text, document, bClone);
    if (bClone) return text;
    const RowWriter rows(document.LV.columns);
    document.LV.forEach([&](const core::Item& item) { rows.append(text, item); });
    return text;
}

std::string writeDesign(Document& document, bool bClone) {
    std::string text;
    appendDesign(text, document, bClone);
    return text;
}

RowWriter::RowWriter(const core::ColumnHeaders& columns) {
    for (const Column& column : columns)
        if (column.Index != 1) isText_.push_back(column.isType(core::ColumnType::Text));
}

void RowWriter::append(std::string& out, const core::Item& item) const {
    Writer line(out);
    for (std::size_t i = 0; i < isText_.size() && i < item.cells.size(); ++i) {
        const std::string_view cell = item.cells[i];
        line.element(isText_[i] ? cell : core::trim(cell));
    }
    line.end();
}

std::string encodeDataFile(std::string text) {
    if (!core::intoWindows1252(text)) text.insert(0, utf8Mark);
    return text;
}

} // namespace file
