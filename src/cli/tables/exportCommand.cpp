#include "calc/formulas.h"
#include "cli/columnArgument.h"
#include "cli/command.h"
#include "cli/filterOption.h"
#include "cli/infoJson.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/tables/formatOption.h"
#include "exchange/columnTypes.h"
#include "exchange/csvWriter.h"
#include "exchange/pictures.h"
#include "file/atomicFile.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

namespace cli {

namespace {

using core::Column;
using core::Item;
using core::RecordsList;
using exchange::Format;
using Columns = std::vector<const Column*>;

constexpr const char* aboutExport =
    "OUT.csv is UTF-8 with a header line in which every column has its type (\"Price:Currency\"); import\n"
    "reads it back with all cells to the letter. OUT.json is\n"
    "  {\"style\": \"standard\", \"columns\": [{\"name\": \"Price\", \"type\": \"Currency\"}],\n"
    "   \"records\": [[\"$1.50\"]]}\n"
    "The Totals row, expressions, the layout and, without --pictures, images stay behind; save-as copies all "
    "of it.\n"
    "OUT.tsv is the same with tabs. In OUT.xlsx and OUT.ods dates, numbers and money are typed cells under "
    "a\n"
    "heading row that stays in sight, and calculated columns are formulas where a spreadsheet counts alike\n"
    "(--values: always their values). OUT.sqlite has one table. OUT.vcf has a card a record, of the columns\n"
    "that it has a place for (Name, Last_Name, First_Name, Company, Phone, Mobile, Email, Street, City ...).";

struct ExportOptions {
    std::string file, output, format, columns, filter;
    bool totals = false, values = false, pictures = false;
};

constexpr const char* standardOutput = "-";

Format formatOf(const ExportOptions& options) {
    if (!options.format.empty()) return *formatNamed(options.format);
    if (const auto format = exchange::formatOf(options.output)) return *format;
    throw Failure(options.output,
                  "a table is a .csv or a .json file, or a .tsv, .xlsx, .ods, .sqlite, .html or .vcf one");
}

std::string tableAsCsv(const RecordsList& list, const Columns& columns) {
    std::string out;
    exchange::CsvWriter writer(out);
    for (const Column* column : columns) writer.cell(exchange::typedHeader(*column));
    writer.endLine();
    list.forEach([&](const Item& item) {
        if (item.isTotals()) return;
        for (const Column* column : columns) writer.cell(RecordsList::cell(item, *column));
        writer.endLine();
    });
    return out;
}

// Written straight into the text, as the other lists of records are.
std::string tableAsJson(const core::Document& document, const Columns& columns) {
    std::string out = "{\"style\": \"" + std::string(styleName(document)) + "\",\n \"columns\": [";
    for (const Column* column : columns) {
        out.append(out.back() == '[' ? "\n  {\"name\": " : ",\n  {\"name\": ");
        appendJsonText(out, column->Text);
        out.append(", \"type\": ");
        appendJsonText(out, core::typeName(column->type()));
        out.push_back('}');
    }
    out.append("],\n \"records\": [");
    document.LV.forEach([&](const Item& item) {
        if (item.isTotals()) return;
        out.append(out.back() == '[' ? "\n  [" : ",\n  [");
        for (const Column* column : columns) {
            if (column != columns.front()) out.append(", ");
            appendJsonText(out, RecordsList::cell(item, *column));
        }
        out.push_back(']');
    });
    out.append("]}\n");
    return out;
}

void write(const std::string& file, std::string_view text, const std::string& database) {
    try {
        file::replaceFile(file, text, database);
    } catch (const core::RunTimeError& error) {
        throw Failure(file, std::string("could not be written: ") + error.what());
    }
}

std::string expressionOf(const core::Document& document, const Column& column) {
    for (const auto& entry : document.formulas)
        if (const calc::Formula formula(entry.item); formula.name == column.Text && !formula.isUndefined())
            return std::string(formula.expression);
    return {};
}

exchange::OutTable tableOf(const ExportOptions& options, core::Document& document, const Columns& columns) {
    exchange::OutTable table;
    table.title = std::filesystem::path(options.file).stem().string();
    for (const Column* column : columns)
        table.columns.push_back({column->Text, column->type(), column->Width,
                                 options.values ? std::string() : expressionOf(document, *column)});
    const auto add = [&](const Item& item) {
        exchange::OutRow& row = table.rows.emplace_back();
        row.reserve(columns.size());
        for (const Column* column : columns) row.emplace_back(RecordsList::cell(item, *column).view());
    };
    document.LV.forEach([&](const Item& item) {
        if (!item.isTotals()) add(item);
    });
    table.bLastIsTotals = options.totals && document.LV.totals() != nullptr;
    if (table.bLastIsTotals) add(*document.LV.totals());
    return table;
}

// In the workbook, or in a folder beside any other kind of table.
void takePictures(Session& session, const ExportOptions& options, Format format, exchange::OutTable& table) {
    const bool bInside = format == Format::Xlsx;
    const std::filesystem::path folder =
        bInside ? session.platform.workFolder() / "pictures" : exchange::picturesBeside(options.output);
    try {
        for (const std::string& name : exchange::unpackPictures(options.file, table, folder))
            std::cerr << "fwk: " << printable(options.file) << ": it has no picture \"" << printable(name)
                      << "\"\n";
    } catch (const core::RunTimeError& error) {
        throw Failure(folder.string(), std::string("could not be written: ") + error.what());
    }
    session.refuseIfChanged();
    if (bInside) table.pictures = folder;
}

int run(const ExportOptions& options) {
    const Format format = formatOf(options);
    const bool toStandardOutput = options.output == standardOutput;
    if (toStandardOutput && !exchange::isTextFormat(format))
        throw Failure(options.output, "this kind of table is no text; it needs a file");
    if (toStandardOutput && options.pictures)
        throw Failure(options.output, "pictures need a file beside them");
    Session session(options.file);
    session.open();
    if (!toStandardOutput) session.refuseAsOutput(options.output);
    keepPassing(session, options.filter);
    core::Document& document = session.app.document;
    const Columns columns = session.columns(namesIn(options.columns));
    std::string text;
    exchange::OutTable table;
    const bool isPlain = !options.totals && (format == Format::Json || format == Format::Csv);
    if (!isPlain || options.pictures) table = tableOf(options, document, columns);
    if (options.pictures) takePictures(session, options, format, table);
    if (format == Format::Json && !options.totals) {
        text = tableAsJson(document, columns);
    } else if (format == Format::Csv && !options.totals) {
        text = tableAsCsv(document.LV, columns);
    } else {
        try {
            if (exchange::isTextFormat(format))
                text = exchange::sheetText(format, table);
            else
                exchange::writeSheet(options.output, format, table, {}, options.file);
        } catch (const core::RunTimeError& error) {
            throw Failure(options.output, std::string("could not be written: ") + error.what());
        }
    }
    if (toStandardOutput)
        writeOut(text);
    else if (exchange::isTextFormat(format))
        write(options.output, text, options.file);
    return done;
}

} // namespace

Run setUpExport(CLI::App& command) {
    const auto options = std::make_shared<ExportOptions>();
    addFileArgument(command, options->file);
    command
        .add_option("-o,--output", options->output,
                    "The table, which is overwritten; its ending tells its kind; - for standard output")
        ->required()
        ->type_name("OUT.csv|OUT.json|...");
    addFormatOption(command, options->format);
    command.add_option("--columns", options->columns, "These columns alone, in this order")->type_name("A,B");
    addFilterOption(command, options->filter);
    command.add_flag("--totals", options->totals, "With the Totals row");
    command.add_flag("--values", options->values, "Calculated columns as values, not as formulas");
    command.add_flag("--pictures", options->pictures,
                     "With the pictures: in OUT.xlsx, or in a folder OUT_pictures beside it");
    command.footer(aboutExport);
    return [options] { return run(*options); };
}

} // namespace cli
