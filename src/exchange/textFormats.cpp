#include "core/text.h"
#include "exchange/columnTypes.h"
#include "exchange/csvWriter.h"
#include "exchange/formats/formats.h"
#include "exchange/jsonText.h"
#include "exchange/outCells.h"
#include "exchange/textRows.h"

namespace exchange {

namespace {

constexpr std::size_t rowsBetweenLooks = 500;

bool isNumericColumn(const OutColumn& column) {
    using core::ColumnType;
    return column.type == ColumnType::Number || column.type == ColumnType::Currency ||
           column.type == ColumnType::Calculation;
}

void appendHtmlRow(std::string& out, const OutTable& table, std::size_t row) {
    out.append("<tr>");
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        out.append(isNumericColumn(table.columns[i]) ? "<td class=\"n\">" : "<td>");
        appendHtmlText(out, cellIn(table, row, i));
        out.append("</td>");
    }
    out.append("</tr>\n");
}

} // namespace

void appendJsonText(std::string& out, std::string_view text) {
    constexpr const char* hex = "0123456789abcdef";
    const auto isPlain = [](char c) {
        return static_cast<unsigned char>(c) >= 0x20 && c != 0x7f && c != '"' && c != '\\';
    };
    out.push_back('"');
    std::size_t plain = 0; // where the run that needs no escape begins
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (isPlain(c)) continue;
        out.append(text.substr(plain, i - plain));
        plain = i + 1;
        if (c == '"' || c == '\\') {
            out.append({'\\', c});
        } else {
            out.append("\\u00");
            out.append({hex[static_cast<unsigned char>(c) >> 4U], hex[static_cast<unsigned char>(c) & 15U]});
        }
    }
    out.append(text.substr(plain)).push_back('"');
}

std::string csvText(const OutTable& table, char separator, const Progress& progress) {
    std::string out;
    CsvWriter writer(out, ",;\t\"\r\n", separator);
    for (const OutColumn& column : table.columns) {
        core::Column typed;
        typed.Text = column.name;
        typed.setTypeFromFile(std::to_string(static_cast<int>(column.type)));
        writer.cell(typedHeader(typed));
    }
    writer.endLine();
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        for (std::size_t i = 0; i < table.columns.size(); ++i) writer.cell(cellIn(table, row, i));
        writer.endLine();
        if (row % rowsBetweenLooks == 0) tellProgress(progress, row, table.rows.size());
    }
    return out;
}

std::string htmlText(const OutTable& table, const Progress& progress) {
    std::string title;
    appendHtmlText(title, table.title);
    std::string out = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>";
    out.append(title).append("</title>\n<style>\n");
    out.append("table { border-collapse: collapse }\n");
    out.append(
        "th, td { border: 1px solid #999; padding: 2px 6px; text-align: left; vertical-align: top }\n");
    out.append(".n { text-align: right }\ntfoot { font-weight: bold }\n</style>\n</head>\n<body>\n<table>\n");
    if (!title.empty()) out.append("<caption>").append(title).append("</caption>\n");
    out.append("<thead>\n<tr>");
    for (const OutColumn& column : table.columns) {
        out.append(isNumericColumn(column) ? "<th class=\"n\">" : "<th>");
        appendHtmlText(out, column.name);
        out.append("</th>");
    }
    out.append("</tr>\n</thead>\n<tbody>\n");
    const std::size_t totals = table.bLastIsTotals && !table.rows.empty() ? 1 : 0;
    for (std::size_t row = 0; row + totals < table.rows.size(); ++row) {
        appendHtmlRow(out, table, row);
        if (row % rowsBetweenLooks == 0) tellProgress(progress, row, table.rows.size());
    }
    out.append("</tbody>\n");
    if (totals > 0) {
        out.append("<tfoot>\n");
        appendHtmlRow(out, table, table.rows.size() - 1);
        out.append("</tfoot>\n");
    }
    return out.append("</table>\n</body>\n</html>\n");
}

} // namespace exchange
