#include "cli/command.h"
#include "cli/filterOption.h"
#include "cli/output.h"
#include "cli/printing/paperOption.h"
#include "cli/printing/printing.h"
#include "cli/session.h"
#include "core/number.h"
#include "core/text.h"
#include "exchange/csvWriter.h"
#include "labels/labelDesign.h"
#include "labels/labelPrinting.h"
#include "print/previewPage.h"
#include "shell/labelTable.h"

#include <CLI/CLI.hpp>
#include <array>
#include <cmath>
#include <iostream>
#include <nlohmann/json.hpp>

namespace cli {

namespace {

using labels::LabelStock;
using Stocks = std::vector<const LabelStock*>;

struct LabelsOptions {
    std::vector<std::string> words;
    std::string paper; // of the stocks that count; empty: any
    bool json = false, csv = false;
    // What prints.
    std::string stock, pdf, columns, picture, copies = "1", records, filter;
    double size = 0;
    int start = 1;
    bool bOutlines = false, bApart = false;
};

constexpr const char* aboutLabels =
    "Lengths are millimetres. The words are looked for in maker, number, kind and paper; a size finds the\n"
    "labels of that size, within half a millimetre: fwk labels 99.1 x 38.1, or fwk labels 1 x 2 5/8 in.\n"
    "With --stock, TEXT is a database, whose records are printed on such labels. The database stays as it "
    "is.";

constexpr std::array texts = {"maker", "number", "kind", "paper", "shape"};
constexpr std::array numbers = {"columns", "rows", "width",       "height",
                                "left",    "top",  "columnPitch", "rowPitch"};

std::array<std::string_view, texts.size()> textsOf(const LabelStock& stock) {
    return {stock.maker, stock.number, stock.kind, stock.paper, labels::shapeName(stock.shape)};
}

// To a thousandth of a millimetre, as the table has them.
std::array<double, numbers.size()> numbersOf(const LabelStock& stock) {
    const auto millimetres = [](double twips) {
        constexpr double digits = 1000;
        return std::round(labels::millimetresOf(twips) * digits) / digits;
    };
    return {static_cast<double>(stock.columns), static_cast<double>(stock.rows), millimetres(stock.width),
            millimetres(stock.height),          millimetres(stock.left),         millimetres(stock.top),
            millimetres(stock.columnPitch),     millimetres(stock.rowPitch)};
}

std::string asJson(const Stocks& stocks) {
    auto list = nlohmann::ordered_json::array();
    for (const LabelStock* stock : stocks) {
        auto& entry = list.emplace_back(nlohmann::ordered_json::object());
        const auto words = textsOf(*stock);
        for (std::size_t i = 0; i < texts.size(); ++i) entry[texts.at(i)] = words.at(i);
        const auto values = numbersOf(*stock);
        for (std::size_t i = 0; i < numbers.size(); ++i) entry[numbers.at(i)] = values.at(i);
        entry["columns"] = stock->columns;
        entry["rows"] = stock->rows;
    }
    constexpr int indentation = 2;
    return list.dump(indentation, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

std::string asCsv(const Stocks& stocks) {
    std::string out;
    exchange::CsvWriter table(out, ",\"\r\n");
    for (const char* name : texts) table.cell(name);
    for (const char* name : numbers) table.cell(name);
    table.endLine();
    for (const LabelStock* stock : stocks) {
        for (const std::string_view text : textsOf(*stock)) table.cell(text);
        for (const double number : numbersOf(*stock)) table.cell(core::numberText(number));
        table.endLine();
    }
    return out;
}

// No table for no stocks.
std::string asTable(const Stocks& stocks) {
    std::string out;
    if (stocks.empty()) return out;
    TextTable table({{"Maker"},
                     {"Number"},
                     {"Kind"},
                     {"Paper"},
                     {"Shape"},
                     {"Columns", true},
                     {"Rows", true},
                     {"Width", true},
                     {"Height", true},
                     {"Left", true},
                     {"Top", true},
                     {"Column pitch", true},
                     {"Row pitch", true}});
    for (const LabelStock* stock : stocks) {
        std::array<std::string, numbers.size()> values;
        const auto words = textsOf(*stock);
        std::vector<std::string_view> cells(words.begin(), words.end());
        const auto lengths = numbersOf(*stock);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            values.at(i) = core::numberText(lengths.at(i));
            cells.push_back(values.at(i));
        }
        table.row(cells);
    }
    table.appendTo(out);
    return out;
}

std::vector<LabelStock> knownStocks() {
    std::vector<LabelStock> all;
    try {
        all = shell::installedLabelStocks();
    } catch (const core::RunTimeError& error) {
        throw Failure(std::string("the table of label stocks cannot be read: ") + error.what());
    }
    if (all.empty()) throw Failure("the table of label stocks is missing or empty");
    return all;
}

void keepOnPaper(Stocks& stocks, const std::string& paper) {
    if (paper.empty()) return;
    std::erase_if(stocks, [&](const LabelStock* stock) { return !core::equalsNoCase(stock->paper, paper); });
}

// The one stock that is called so.
LabelStock stockNamed(const std::string& name, const std::string& paper) {
    std::string told = "--stock ";
    told.append(name);
    const std::vector<LabelStock> all = knownStocks();
    Stocks found = labels::findLabelStocks(all, name);
    if (found.empty()) throw Failure(told, "no such stock; fwk labels TEXT lists them");
    Stocks exact;
    for (const LabelStock* stock : found)
        if (labels::isCalled(*stock, name)) exact.push_back(stock);
    if (!exact.empty()) found = exact;
    const std::string& itsPaper = found.front()->paper;
    keepOnPaper(found, paper);
    if (found.size() == 1) return *found.front();
    std::string several = std::to_string(found.size());
    if (found.empty())
        throw Failure(told,
                      several.assign("it is not on ").append(paper).append(", but on ").append(itsPaper));
    throw Failure(told, several.append(" stocks are called so; give maker and number"));
}

// "A,B" is a line for each column; with braces a text is a line as it stands.
labels::LabelText textOf(Session& session, const LabelsOptions& options) {
    const core::Document& document = session.app.document;
    labels::LabelText text = labels::proposedLabel(document);
    if (!options.columns.empty()) {
        text.lines.clear();
        const bool hasBraces = options.columns.find('{') != std::string::npos;
        for (const std::string_view part : core::split(options.columns, hasBraces ? '\n' : ',')) {
            std::string line(part);
            if (!hasBraces) line.insert(0, "{").append("}");
            text.lines.push_back(std::move(line));
        }
    }
    text.pictureColumn = options.picture;
    text.FontSize = static_cast<float>(options.size);
    const std::string fault = labels::faultOf(document, text);
    if (!fault.empty()) throw Failure(options.words.front(), fault);
    return text;
}

labels::LabelChoice choiceOf(Session& session, const LabelsOptions& options) {
    labels::LabelChoice choice;
    choice.stock = stockNamed(options.stock, options.paper);
    if (options.start < 1 || options.start > choice.stock.perSheet()) {
        std::string told = "--start: the sheet has labels 1 to ";
        throw Failure(told.append(std::to_string(choice.stock.perSheet())));
    }
    choice.start = options.start;
    choice.bOutlines = options.bOutlines;
    choice.bClosedUp = !options.bApart;
    const auto number = core::toDouble(options.copies);
    if (!number) {
        choice.copiesColumn = session.column(options.copies).Key;
    } else if (*number >= 1 && *number <= labels::LabelChoice::mostCopies) {
        choice.copies = static_cast<int>(*number);
    } else {
        std::string told = "--copies: from 1 to ";
        throw Failure(told.append(std::to_string(labels::LabelChoice::mostCopies)));
    }
    return choice;
}

void chooseRecords(Session& session, const LabelsOptions& options) {
    app::App& app = session.app;
    keepPassing(session, options.filter);
    app.mainFrm.selectedRows.clear();
    for (const std::string_view key : core::split(options.records, ',')) {
        if (key.empty()) continue;
        const core::Item& record = session.record(std::string(key));
        app.mainFrm.selectedRows.push_back(app.document.LV.indexOf(record));
    }
    print::previewPage(app).bLayoutSelectedOnly = !app.mainFrm.selectedRows.empty();
    print::previewPage(app).iLayoutIndex = 0;
    app.mainFrm.theListView->MultiSelect = false;
}

int printOnStock(const LabelsOptions& options) {
    const std::string& file = options.words.front();
    Session session(file);
    printInto(session, options.pdf, [&](app::App& app, drawing::DrawTarget& target) {
        if (app.document.bInvoiceStyle) throw Failure(file, "invoices print one to a page only");
        const labels::LabelChoice choice = choiceOf(session, options);
        labels::LabelDesign design = labels::designLabel(app.document, choice.stock, textOf(session, options),
                                                         app.platform.textMetrics());
        labels::placeDesign(app, design);
        app.document.layoutOptions = labels::labelPage(choice.stock);
        chooseRecords(session, options);
        const labels::LabelCopies copies =
            labels::countLabels(app, choice, print::previewPage(app).bLayoutSelectedOnly);
        if (copies.without > 0 || copies.cut > 0)
            std::cerr << "fwk: " << file << ": " << labels::aboutLabels(choice, copies) << '\n';
        labels::useLabelChoice(app, choice);
        if (!labels::printLabels(app, target, choice)) throw Failure(file, "no labels were printed");
    });
    return done;
}

int list(const LabelsOptions& options) {
    const std::vector<LabelStock> all = knownStocks();
    std::string text;
    for (const std::string& word : options.words) text.append(text.empty() ? 0 : 1, ' ').append(word);
    Stocks found = labels::findLabelStocks(all, text);
    keepOnPaper(found, options.paper);
    writeOut(options.json ? asJson(found) : options.csv ? asCsv(found) : asTable(found));
    return done;
}

} // namespace

Run setUpLabels(CLI::App& command) {
    const auto options = std::make_shared<LabelsOptions>();
    command.add_option("TEXT", options->words, "Words, or a size; all stocks when not told; or a database");
    CLI::Option* json = command.add_flag("--json", options->json, "As JSON");
    CLI::Option* csv = command.add_flag("--csv", options->csv, "As CSV")->excludes(json);
    addPaperOption(command, options->paper, "Only stocks on this paper: A4, Letter ...");
    CLI::Option* stock = command.add_option("--stock", options->stock, "Print on these labels")
                             ->type_name("\"MAKER NUMBER\"")
                             ->excludes(json)
                             ->excludes(csv);
    CLI::Option* pdf =
        command.add_option("--pdf", options->pdf, "The PDF file, which is overwritten")->type_name("OUT.pdf");
    stock->needs(pdf);
    pdf->needs(stock);
    command.add_option("--columns", options->columns, "Lines of the label: A,B,C or '{Zip} {City}'")
        ->type_name("A,B")
        ->needs(stock);
    command.add_option("--picture", options->picture, "A picture column beside the lines")
        ->type_name("COLUMN")
        ->needs(stock);
    constexpr double smallest = 4, largest = 200;
    command.add_option("--size", options->size, "Of the letters; as large as fits when not told")
        ->type_name("POINTS")
        ->check(CLI::Range(smallest, largest))
        ->needs(stock);
    command.add_option("--start", options->start, "The first free label of a used sheet")
        ->type_name("N")
        ->needs(stock);
    command.add_option("--copies", options->copies, "Of each record: a number, or the column that has it")
        ->type_name("N|COLUMN")
        ->needs(stock);
    command.add_flag("--outlines", options->bOutlines, "With the outlines of the labels")->needs(stock);
    command.add_flag("--apart", options->bApart, "Keep empty lines, and each text at its place")
        ->needs(stock);
    command.add_option("--records", options->records, "Only the records with these keys")
        ->type_name("KEY,KEY")
        ->needs(stock);
    addFilterOption(command, options->filter)->needs(stock);
    command.footer(aboutLabels);
    return [options] {
        if (options->stock.empty()) return list(*options);
        if (options->words.size() != 1) throw Failure("--stock takes one database");
        return printOnStock(*options);
    };
}

} // namespace cli
