#include "cli/command.h"
#include "cli/infoJson.h"
#include "cli/output.h"
#include "cli/session.h"
#include "core/number.h"
#include "file/archive/zip.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

using core::Column;
using core::Document;

struct InfoOptions {
    std::string file;
    bool json = false;
};

std::vector<ArchiveEntry> entriesOf(const std::string& file) {
    std::vector<ArchiveEntry> entries;
    file::Zip Zip;
    Zip.OpenArchive(file);
    entries.reserve(static_cast<std::size_t>(Zip.FileCount()));
    for (int i = 0; i < Zip.FileCount(); ++i)
        entries.push_back({Zip.FileNameAt(i), Zip.commentAt(i), Zip.sizeAt(i)});
    return entries;
}

// What a column does by itself: its expression, its sum, its serial number or date.
std::string automationOf(const Column& column, const Document& document) {
    std::string text;
    const auto add = [&](const std::string& what) { text += (text.empty() ? "" : ", ") + what; };
    if (const auto* formula = document.formulas.find(column.Text))
        add("= " + formula->item.substr(formula->item.find(',') + 1));
    if (document.totaledCols.contains(column.Text)) add("totaled");
    if (document.optionedCols.contains(column.Text)) {
        const core::Item* serial = document.SerialsLV.find(column.Text);
        add(serial != nullptr ? "serial number, last " + serial->subItem(1).str() : "today's date");
    }
    return text;
}

void appendColumns(std::string& out, const Document& document) {
    TextTable table({{"Column"}, {"Type"}, {"Width", true}, {"Position", true}, {"By itself"}});
    for (const Column& column : document.LV.columns) {
        if (column.Index == 1) continue;
        table.row({column.Text, core::typeName(column.type()), core::numberText(column.Width),
                   std::to_string(column.Position), automationOf(column, document)});
    }
    table.appendTo(out);
}

// "8 fields, 10 labels, 1 box"
std::string layoutInWords(const core::LayoutObjects& layout) {
    const struct {
        int count;
        const char* one;
        const char* many;
    } kinds[] = {{layout.layoutField.count(), "field", "fields"},
                 {layout.tLabel.count(), "label", "labels"},
                 {layout.pbLine.count() + layout.vLine.count(), "line", "lines"},
                 {layout.pBox.count(), "box", "boxes"},
                 {layout.imgHolder.count(), "picture", "pictures"},
                 {layout.clipPic.count(), "clip art", "clip arts"}};
    std::string words;
    for (const auto& kind : kinds) {
        if (kind.count == 0) continue;
        if (!words.empty()) words += ", ";
        words += std::to_string(kind.count) + " " + (kind.count == 1 ? kind.one : kind.many);
    }
    return words.empty() ? "empty" : words;
}

std::string paperInWords(std::int16_t size, std::int16_t orientation, const core::LayoutOptions& options) {
    std::string paper = "paper " + std::to_string(size);
    if (size == core::letterPaper) paper = "Letter";
    if (size == core::legalPaper) paper = "Legal";
    if (size == core::customPaper)
        paper = core::numberText(options.customPaperLength) + " x " +
                core::numberText(options.customPaperHeight) + " in";
    return paper + (orientation == core::landscape ? ", landscape" : ", portrait");
}

std::string infoInWords(const Document& document, const std::vector<ArchiveEntry>& entries) {
    const core::LayoutOptions& options = document.layoutOptions;
    const core::ReportData& report = document.reportData;
    std::string out;
    const auto line = [&](const char* label, const std::string& text) {
        out.append(label).append(printable(text)).push_back('\n');
    };
    line("Style:    ", styleName(document));
    if (document.bInvoiceStyle) line("View:     ", viewName(document));
    line("Design:   ", document.lockPassword.empty() ? "not locked" : "locked");
    line("Records:  ", std::to_string(document.LV.count() - 1));
    line("Layout:   ", layoutInWords(document.layout) + "; " +
                           paperInWords(options.layoutPaperSize, options.layoutOrientation, options));
    line("Report:   ", (report.reportTitle.empty() ? "no title" : "\"" + report.reportTitle + "\"") + "; " +
                           paperInWords(report.reportPaperSize, report.reportOrientation, options));
    out.push_back('\n');
    appendColumns(out, document);
    out.push_back('\n');
    TextTable table({{"Entry"}, {"Bytes", true}, {"Comment"}});
    for (const ArchiveEntry& entry : entries)
        table.row({entry.name, std::to_string(entry.size), entry.comment});
    table.appendTo(out);
    return out;
}

int printInfo(const InfoOptions& options) {
    Session session(options.file);
    session.open();
    const std::vector<ArchiveEntry> entries = entriesOf(options.file);
    const Document& document = session.app.document;
    writeOut(options.json ? infoAsJson(document, entries) : infoInWords(document, entries));
    return done;
}

} // namespace

Run setUpInfo(CLI::App& command) {
    const auto options = std::make_shared<InfoOptions>();
    addFileArgument(command, options->file);
    command.add_flag("--json", options->json, "As JSON, with the whole layout");
    return [options] { return printInfo(*options); };
}

} // namespace cli
