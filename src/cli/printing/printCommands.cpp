#include "print/printCommands.h"
#include "app/fileSettings.h"
#include "cli/command.h"
#include "cli/output.h"
#include "cli/printing/paperOption.h"
#include "cli/printing/printer.h"
#include "cli/printing/printing.h"
#include "cli/printing/reportOptions.h"
#include "cli/session.h"
#include "core/text.h"
#include "drawing/papers.h"
#include "labels/labelChoice.h"
#include "print/layoutPrinting.h"
#include "print/previewPage.h"
#include "print/reportPrinting.h"
#include "storage/openFile.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <memory>
#include <utility>

namespace cli {

namespace {

using drawing::DrawTarget;

struct PrintOptions {
    std::string file;
    std::string output;
    std::string columns; // "A,B"; empty: those of the database
    std::string title;
    bool hasTitle = false;
    bool many = false;
    std::string records; // "i1,i2"; empty: all
    ReportOptions report;
    std::string paper; // a name; empty: that of the database
};

} // namespace

void printInto(Session& session, const std::string& output, const Print& print) {
    const std::unique_ptr<drawing::Printer> printer = makePrinter(output, session.file);
    printInto(session, output, *printer, print);
}

void printInto(Session& session, const std::string& output, drawing::Printer& printer, const Print& print) {
    session.open();
    session.refuseAsOutput(output);
    session.platform.setPrinter(&printer);
    app::App& app = session.app;
    try {
        storage::extractClipArt(app);
        const std::string name = std::filesystem::path(session.file).stem().string();
        const std::unique_ptr<DrawTarget> target = session.platform.openPrinter(name);
        print(app, *target);
        if (!target->close()) {
            const std::string why = target->failure();
            throw Failure(output, "could not be written" + (why.empty() ? "" : ": " + why));
        }
    } catch (const core::RunTimeError& error) {
        throw Failure(output, error.what());
    }
    session.platform.setPrinter(nullptr);
}

namespace {

// In an invoice database the report shows the invoices or their items, whichever the file was left with.
void chooseColumns(Session& session, const PrintOptions& options) {
    core::Document& document = session.app.document;
    core::NamedCollection& printed = document.printedCols;
    const core::RecordsList& list = document.bInvoiceStyle ? document.iLV : document.LV;
    if (!options.columns.empty()) {
        printed.clear();
        for (const std::string_view name : core::split(options.columns, ',')) {
            const core::Column& known = session.column(name);
            if (list.columns.find(known.Text) == nullptr)
                throw Failure(options.file, "the report does not show the column \"" + known.Text + "\"");
            printed.add(known.Text);
        }
    }
    if (!printed.empty()) return;
    // A database that nobody has chosen columns for would come out as empty lines.
    for (const core::Column& column : list.columns)
        if (column.Index != 1) printed.add(column.Text);
}

// Prints on the named paper, as if the database had it.
void choosePaper(Session& session, const PrintOptions& options, std::int16_t& paperSize) {
    if (const drawing::PaperSize* paper = drawing::findPaper(std::string_view(options.paper)))
        paperSize = static_cast<std::int16_t>(paper->code);
    const bool isKnown = paperSize == 0 || session.platform.paperExtent(paperSize);
    if (!isKnown)
        std::cerr << "fwk: " << options.file << ": the paper with the code " << paperSize
                  << " is not known: it is printed on Letter\n";
}

int printReport(const PrintOptions& options) {
    Session session(options.file);
    printInto(session, options.output, [&](app::App& app, DrawTarget& target) {
        chooseColumns(session, options);
        choosePaper(session, options, app.document.reportData.reportPaperSize);
        if (options.hasTitle) app.document.reportData.reportTitle = options.title;
        print::previewPage(app).bReportSelectedOnly = false;
        applyReportOptions(session, options.report);
        print::drawReport(app, target, print::reportList(app));
    });
    return done;
}

// The rows of the records with those keys.
std::vector<int> rowsOf(const PrintOptions& options, core::RecordsList& list) {
    std::vector<int> rows;
    for (const std::string_view key : core::split(options.records, ',')) {
        const core::Item* item = list.find(key);
        if (item == nullptr || item->isTotals())
            throw Failure(options.file, "no record \"" + std::string(key) + "\"");
        rows.push_back(list.indexOf(*item));
    }
    return rows;
}

// The window knows the file by its whole path.
void useChosenLabels(app::App& app, const PrintOptions& options) {
    app::keepFileSettings(app, platform::FileSettings::defaultFile());
    std::string& path = app.document.currentFile;
    const std::string told = std::exchange(path, std::filesystem::absolute(path).string());
    const auto choice = labels::labelChoice(app);
    if (choice) labels::useLabelChoice(app, *choice);
    path = told;
    if (!choice || options.paper.empty() || core::equalsNoCase(options.paper, choice->stock.paper)) return;
    std::string reason = "the labels that were chosen for it, ";
    reason.append(choice->stock.maker).append(" ").append(choice->stock.number);
    reason.append(", are on paper of the size ").append(choice->stock.paper);
    throw Failure(options.file, reason.append(": leave out --paper"));
}

void printMany(app::App& app, DrawTarget& target, const std::vector<int>& rows) {
    app.mainFrm.selectedRows = rows;
    print::previewPage(app).bLayoutSelectedOnly = !rows.empty();
    print::previewPage(app).iLayoutIndex = 0;
    app.mainFrm.theListView->MultiSelect = false;
    if (!print::PrintMultipleLayouts(app, target))
        throw Failure(app.document.currentFile, "no layout fits on a sheet");
}

int printLayouts(const PrintOptions& options) {
    Session session(options.file);
    printInto(session, options.output, [&](app::App& app, DrawTarget& target) {
        core::Document& document = app.document;
        // The layout shows an invoice as it stands in LV, whichever view the lists have.
        core::RecordsList& list = document.LV;
        std::vector<int> rows;
        if (!options.records.empty()) rows = rowsOf(options, list);
        if (options.many && document.bInvoiceStyle)
            throw Failure(options.file, "invoices print one to a page only");
        if (list.count() < 2) throw Failure(options.file, "there are no records");
        if (options.many) useChosenLabels(app, options);
        std::int16_t& paperSize = document.layoutOptions.layoutPaperSize;
        if (!options.paper.empty() || paperSize != core::customPaper)
            choosePaper(session, options, paperSize);
        if (options.many)
            printMany(app, target, rows);
        else
            print::printEachLayout(app, target, list, rows.empty() ? nullptr : &rows);
    });
    return done;
}

void addOutputOption(CLI::App& command, std::string& output) {
    command.add_option("-o,--output", output, "The PDF file, which is overwritten")
        ->required()
        ->type_name("OUT.pdf");
}

constexpr const char* inPlaceOfTheDatabases =
    "The paper in place of the database's: A4, A5, Letter, Legal ...";

} // namespace

Run setUpReport(CLI::App& command) {
    const auto options = std::make_shared<PrintOptions>();
    addFileArgument(command, options->file);
    addOutputOption(command, options->output);
    command.add_option("--columns", options->columns, "Only these columns")->type_name("A,B");
    CLI::Option* title =
        command.add_option("--title", options->title, "The title in place of the database's")
            ->type_name("TEXT");
    addReportOptions(command, options->report);
    addPaperOption(command, options->paper, inPlaceOfTheDatabases);
    return [options, title] {
        options->hasTitle = title->count() > 0;
        return printReport(*options);
    };
}

Run setUpLayouts(CLI::App& command) {
    const auto options = std::make_shared<PrintOptions>();
    addFileArgument(command, options->file);
    addOutputOption(command, options->output);
    command.add_flag("--many", options->many, "As many to a page as fit");
    command.add_option("--records", options->records, "Only the records with these keys")
        ->type_name("KEY,KEY");
    addPaperOption(command, options->paper, inPlaceOfTheDatabases);
    return [options] { return printLayouts(*options); };
}

} // namespace cli
