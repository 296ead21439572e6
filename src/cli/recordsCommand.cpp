#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "core/text.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

using core::Column;
using core::Item;
using core::RecordsList;
using Columns = std::vector<const Column*>;

struct Options {
    std::string file;
    bool json = false, csv = false;
    std::string columns; // "A,B"; empty: all
};

std::vector<std::string> namesIn(const std::string& list) {
    std::vector<std::string> names;
    if (!list.empty())
        for (const std::string_view name : core::split(list, ',')) names.emplace_back(name);
    return names;
}

void appendJsonCells(std::string& out, const Item& item, const Columns& columns) {
    out.push_back('[');
    for (const Column* column : columns) {
        if (out.back() != '[') out.append(", ");
        appendJsonText(out, RecordsList::cell(item, *column));
    }
    out.push_back(']');
}

// Written straight into the text: a tree of a million values would take longer than all the rest.
std::string recordsAsJson(RecordsList& list, const Columns& columns) {
    std::string out = "{\"columns\": [";
    for (const Column* column : columns) {
        if (out.back() != '[') out.append(", ");
        appendJsonText(out, column->Text);
    }
    out.append("],\n \"records\": [");
    list.forEach([&](const Item& item) {
        if (item.isTotals()) return;
        out.append(out.back() == '[' ? "\n  {\"key\": " : ",\n  {\"key\": ");
        appendJsonText(out, item.Key);
        out.append(", \"cells\": ");
        appendJsonCells(out, item, columns);
        out.push_back('}');
    });
    out.append("],\n \"totals\": ");
    if (const Item* totals = list.totals())
        appendJsonCells(out, *totals, columns);
    else
        out.append("[]");
    out.append("}\n");
    return out;
}

std::string recordsAsCsv(const RecordsList& list, const Columns& columns) {
    std::string out;
    const auto line = [&](auto&& textOf) {
        const std::size_t start = out.size();
        bool first = true;
        for (const Column* column : columns) {
            if (!first) out.push_back(',');
            first = false;
            appendCsvField(out, textOf(*column));
        }
        // A line without a character would be taken for none by most readers.
        if (out.size() == start && !columns.empty()) out.append("\"\"");
        out.push_back('\n');
    };
    line([](const Column& column) { return std::string_view(column.Text); });
    list.forEach([&](const Item& item) {
        if (!item.isTotals())
            line([&](const Column& column) { return RecordsList::cell(item, column).view(); });
    });
    return out;
}

std::string recordsAsTable(const RecordsList& list, const Columns& columns) {
    std::vector<TextTable::Heading> headings{{"Key", false}};
    for (const Column* column : columns) headings.push_back({column->Text, column->isNumeric()});
    TextTable table(headings);
    std::vector<std::string_view> cells;
    list.forEach([&](const Item& item) {
        if (item.isTotals()) table.rule();
        cells.assign(1, item.Key);
        for (const Column* column : columns) cells.push_back(RecordsList::cell(item, *column));
        table.row(cells);
    });
    std::string out;
    table.appendTo(out);
    return out;
}

int printRecords(const Options& options) {
    Session session(options.file);
    session.open();
    RecordsList& list = session.app.document.LV;
    const Columns columns = session.columns(namesIn(options.columns));
    if (options.json)
        writeOut(recordsAsJson(list, columns));
    else if (options.csv)
        writeOut(recordsAsCsv(list, columns));
    else
        writeOut(recordsAsTable(list, columns));
    return done;
}

} // namespace

Run setUpRecords(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    addFileArgument(command, options->file);
    CLI::Option* json =
        command.add_flag("--json", options->json, "As JSON, with the keys and the Totals row");
    command.add_flag("--csv", options->csv, "As CSV, with a header line")->excludes(json);
    command.add_option("--columns", options->columns, "These columns alone, in this order")->type_name("A,B");
    return [options] { return printRecords(*options); };
}

} // namespace cli
