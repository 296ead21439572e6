#include "cli/recordsOutput.h"

#include "cli/output.h"
#include "exchange/csvWriter.h"

namespace cli {

namespace {

using core::Column;
using core::Item;
using core::RecordsList;
using Columns = std::vector<const Column*>;

std::string_view keyOf(const Item& item) {
    return item.Key.empty() ? item.Text : item.Key;
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
        appendJsonText(out, keyOf(item));
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
    exchange::CsvWriter table(out, ",\"\r\n");
    for (const Column* column : columns) table.cell(column->Text);
    table.endLine();
    list.forEach([&](const Item& item) {
        if (item.isTotals()) return;
        for (const Column* column : columns) table.cell(RecordsList::cell(item, *column).view());
        table.endLine();
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
        cells.assign(1, keyOf(item));
        for (const Column* column : columns) cells.push_back(RecordsList::cell(item, *column));
        table.row(cells);
    });
    std::string out;
    table.appendTo(out);
    return out;
}

} // namespace

void printRecords(RecordsList& list, const Columns& columns, RecordsForm form) {
    switch (form) {
    case RecordsForm::Json:
        writeOut(recordsAsJson(list, columns));
        break;
    case RecordsForm::Csv:
        writeOut(recordsAsCsv(list, columns));
        break;
    case RecordsForm::Table:
        writeOut(recordsAsTable(list, columns));
        break;
    }
}

} // namespace cli
