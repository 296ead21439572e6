#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/whereOption.h"
#include "core/runTimeError.h"
#include "exchange/csvWriter.h"
#include "search/manyRecords.h"
#include "summary/statistics.h"
#include "summary/summaryTable.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

using summary::Figure;
using summary::FigureKind;
using summary::GroupBy;
using summary::Summary;
using Records = std::vector<const core::Item*>;

struct SummaryOptions {
    std::string file;
    std::vector<std::string> by;
    std::array<std::vector<std::string>, 4> columns; // by FigureKind
    WhereOption where;
    bool json = false, csv = false;
};

constexpr int mostTop = 1'000'000;

constexpr std::array<const char*, 4> counted = {"sum", "mean", "least value", "greatest value"};

struct StatisticsOptions {
    std::string file, column;
    std::size_t top = summary::usualFrequent;
    WhereOption where;
    bool json = false;
};

// "Planted:year"; a column whose name ends like that is taken for itself.
GroupBy groupBy(Session& session, const std::string& argument) {
    const std::size_t colon = argument.rfind(':');
    if (colon == std::string::npos || session.app.document.LV.columns.find(argument) != nullptr)
        return {session.column(argument).Text, {}};
    const core::Column& column = session.column(argument.substr(0, colon));
    const std::string word = argument.substr(colon + 1);
    if (const auto step = summary::stepNamed(word, column.type())) return {column.Text, *step};
    std::string reason = "\"";
    reason.append(word).append("\" is no step of the column \"").append(column.Text).append("\"");
    if (column.isType(core::ColumnType::Date))
        reason.append(": year, quarter, month or day");
    else if (column.isNumeric())
        reason.append(": a number above 0");
    throw Failure(session.file, reason);
}

summary::Request request(Session& session, const SummaryOptions& options) {
    summary::Request request;
    for (const std::string& argument : options.by) request.by.push_back(groupBy(session, argument));
    for (const FigureKind kind : summary::figureKinds)
        for (const std::string& name : options.columns.at(static_cast<std::size_t>(kind))) {
            const core::Column& column = session.column(name);
            if (!summary::isCounted(kind, column.type())) {
                std::string reason = "the column \"";
                reason.append(column.Text)
                    .append("\" has no ")
                    .append(counted.at(static_cast<std::size_t>(kind)));
                throw Failure(session.file, reason);
            }
            request.figures.push_back({kind, column.Text});
        }
    return request;
}

// The records that are meant: nothing for all.
std::optional<Records> foundRecords(Session& session, const WhereOption& where) {
    if (where.words.empty()) return std::nullopt;
    find(session, where);
    Records records;
    for (const core::Item* record : search::recordsIn(session.app, search::foundRecords))
        records.push_back(record);
    return records;
}

void appendValue(std::string& out, const summary::Value& value) {
    if (value.number)
        out.append(value.number->text());
    else if (value.text.empty())
        out.append("null");
    else
        appendJsonText(out, value.text);
}

void appendCounted(std::string& out, const summary::Group& group) {
    out.append("\"records\": ").append(std::to_string(group.records)).append(", \"figures\": [");
    for (const summary::Value& figure : group.figures) {
        if (out.back() != '[') out.append(", ");
        appendValue(out, figure);
    }
    out.append("]}");
}

std::string asJson(const Summary& summary) {
    std::string out = "{\"by\": [";
    const auto append = [&](const std::string& heading) {
        if (out.back() != '[') out.append(", ");
        appendJsonText(out, heading);
    };
    for (const GroupBy& by : summary.request.by) append(summary::headingOf(by));
    out.append("], \"figures\": [");
    for (const Figure& figure : summary.request.figures) append(summary::headingOf(figure));
    out.append("],\n \"groups\": [");
    for (const summary::Group& group : summary.groups) {
        out.append(out.back() == '[' ? "\n  {\"group\": [" : ",\n  {\"group\": [");
        for (const summary::GroupKey& key : group.keys)
            append(key.rank == summary::GroupKey::Rank::Empty ? std::string() : key.label);
        out.append("], ");
        appendCounted(out, group);
    }
    out.append("],\n \"total\": {");
    appendCounted(out, summary.total);
    return out.append("}\n");
}

std::string asCsv(const Summary& summary) {
    std::string out;
    exchange::CsvWriter table(out, ",\"\r\n");
    const exchange::OutTable rows = summary::tableOf(summary, {});
    for (const exchange::OutColumn& column : rows.columns) table.cell(column.name);
    table.endLine();
    for (std::size_t row = 0; row + 1 < rows.rows.size(); ++row) { // all but the grand total
        for (const core::CellText& cell : rows.rows[row]) table.cell(cell);
        table.endLine();
    }
    return out;
}

std::string asTable(const Summary& summary) {
    const exchange::OutTable rows = summary::tableOf(summary, {});
    std::vector<TextTable::Heading> headings;
    for (std::size_t i = 0; i < rows.columns.size(); ++i)
        headings.push_back({rows.columns[i].name, i >= summary.request.by.size()});
    TextTable table(headings);
    for (std::size_t row = 0; row < rows.rows.size(); ++row) {
        if (row + 1 == rows.rows.size()) table.rule();
        table.row({rows.rows[row].begin(), rows.rows[row].end()});
    }
    std::string out;
    table.appendTo(out);
    return out;
}

int runSummary(const SummaryOptions& options) {
    Session session(options.file);
    session.open();
    const summary::Request wanted = request(session, options);
    const std::optional<Records> records = foundRecords(session, options.where);
    const Summary summary = summary::summarise(session.app.document, wanted, session.platform.today(),
                                               records ? &*records : nullptr);
    writeOut(options.json ? asJson(summary) : options.csv ? asCsv(summary) : asTable(summary));
    return done;
}

std::string asJson(const std::string& column, const summary::Statistics& statistics) {
    std::string out = "{\"column\": ";
    appendJsonText(out, column);
    const auto count = [&](const char* name, std::size_t number) {
        out.append(", \"").append(name).append("\": ").append(std::to_string(number));
    };
    count("records", statistics.records);
    count("values", statistics.values);
    count("empty", statistics.empty);
    count("different", statistics.different);
    const auto figure = [&](const char* name, const summary::Value& value) {
        out.append(",\n \"").append(name).append("\": ");
        appendValue(out, value);
    };
    figure("least", statistics.least);
    figure("greatest", statistics.greatest);
    figure("mean", statistics.mean);
    figure("median", statistics.median);
    figure("sum", statistics.sum);
    out.append(",\n \"mostFrequent\": [");
    for (const summary::FrequentValue& value : statistics.mostFrequent) {
        out.append(out.back() == '[' ? "\n  {\"value\": " : ",\n  {\"value\": ");
        appendJsonText(out, value.value);
        out.append(", \"count\": ").append(std::to_string(value.count)).append("}");
    }
    return out.append("]}\n");
}

std::string asTable(const summary::Statistics& statistics) {
    std::string out;
    TextTable figures({{"Figure"}, {"Value", true}});
    for (const auto& [name, value] : summary::namedFigures(statistics)) figures.row({name, value});
    figures.appendTo(out);
    if (statistics.mostFrequent.empty()) return out;
    out.append("\n");
    TextTable values({{"Most frequent"}, {"Count", true}});
    for (const summary::FrequentValue& value : statistics.mostFrequent)
        values.row({value.value, std::to_string(value.count)});
    values.appendTo(out);
    return out;
}

int runStatistics(const StatisticsOptions& options) {
    Session session(options.file);
    session.open();
    const std::string column = session.column(options.column).Text;
    const std::optional<Records> records = foundRecords(session, options.where);
    const summary::Statistics statistics = summary::statisticsOf(
        session.app.document, column, session.platform.today(), options.top, records ? &*records : nullptr);
    writeOut(options.json ? asJson(column, statistics) : asTable(statistics));
    return done;
}

} // namespace

Run setUpSummary(CLI::App& command) {
    const auto options = std::make_shared<SummaryOptions>();
    addFileArgument(command, options->file);
    constexpr int mostColumns = 2;
    const auto addColumns = [&](const char* names, std::vector<std::string>& into, const char* what) {
        return command.add_option(names, into, what)->type_name("COLUMN")->allow_extra_args(false);
    };
    addColumns("--by", options->by,
               "Group by a column, or by two; dates by COLUMN:year, quarter, month or day, numbers by steps, "
               "as COLUMN:100")
        ->required()
        ->expected(1, mostColumns);
    addColumns("--sum", options->columns[0], "The sum of a column, for each group");
    addColumns("--mean", options->columns[1], "The mean of its values");
    addColumns("--min", options->columns[2], "The least of them; of dates too");
    addColumns("--max", options->columns[3], "The greatest of them; of dates too");
    addWhereOption(command, options->where);
    CLI::Option* json = command.add_flag("--json", options->json, "As JSON, with the grand total");
    command.add_flag("--csv", options->csv, "As CSV, with a header line")->excludes(json);
    command.parse_complete_callback([options] { options->where.read(); });
    return [options] { return runSummary(*options); };
}

Run setUpStatistics(CLI::App& command) {
    const auto options = std::make_shared<StatisticsOptions>();
    addFileArgument(command, options->file);
    command.add_option("COLUMN", options->column, "The column")->required();
    command.add_option("--top", options->top, "So many of the most frequent values, 10 when not told")
        ->type_name("N")
        ->check(CLI::Range(0, mostTop));
    addWhereOption(command, options->where);
    command.add_flag("--json", options->json, "As JSON");
    command.parse_complete_callback([options] { options->where.read(); });
    return [options] { return runStatistics(*options); };
}

} // namespace cli
