#include "cli/command.h"
#include "cli/infoJson.h"
#include "cli/output.h"
#include "cli/session.h"
#include "core/text.h"
#include "exchange/columnTypes.h"
#include "exchange/csvWriter.h"
#include "file/atomicFile.h"

#include <CLI/CLI.hpp>
#include <filesystem>

namespace cli {

namespace {

using core::Column;
using core::Item;
using core::RecordsList;
using Columns = std::vector<const Column*>;

constexpr const char* aboutExport =
    "OUT.csv is UTF-8 with a header line in which every column has its type (\"Price:Currency\"); import\n"
    "reads it back with all cells to the letter. OUT.json is\n"
    "  {\"style\": \"standard\", \"columns\": [{\"name\": \"Price\", \"type\": \"Currency\"}],\n"
    "   \"records\": [[\"$1.50\"]]}\n"
    "The Totals row, expressions, the layout and images stay behind; save-as copies all of it.";

struct ExportOptions {
    std::string file, output;
};

bool hasSuffix(const std::string& file, std::string_view suffix) {
    return core::equalsNoCase(std::filesystem::path(file).extension().string(), suffix);
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
        file::AtomicFile target(file, database);
        if (const int error = file::writeAt(target.fd(), text.data(), text.size(), 0))
            file::raiseSystemError(error, file);
        target.commit();
    } catch (const core::RunTimeError& error) {
        throw Failure(file, std::string("could not be written: ") + error.what());
    }
}

int run(const ExportOptions& options) {
    const bool asJson = hasSuffix(options.output, ".json");
    if (!asJson && !hasSuffix(options.output, ".csv"))
        throw Failure(options.output, "a table is a .csv or a .json file");
    Session session(options.file);
    session.open();
    session.refuseAsOutput(options.output);
    const core::Document& document = session.app.document;
    const Columns columns = session.columns({});
    write(options.output, asJson ? tableAsJson(document, columns) : tableAsCsv(document.LV, columns),
          options.file);
    return done;
}

} // namespace

Run setUpExport(CLI::App& command) {
    const auto options = std::make_shared<ExportOptions>();
    addFileArgument(command, options->file);
    command.add_option("-o,--output", options->output, "The table, which is overwritten")
        ->required()
        ->type_name("OUT.csv|OUT.json");
    command.footer(aboutExport);
    return [options] { return run(*options); };
}

} // namespace cli
