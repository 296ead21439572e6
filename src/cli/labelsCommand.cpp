#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"
#include "core/number.h"
#include "exchange/csvWriter.h"
#include "shell/labelTable.h"

#include <CLI/CLI.hpp>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

namespace cli {

namespace {

using print::LabelStock;
using Stocks = std::vector<const LabelStock*>;

struct LabelsOptions {
    std::vector<std::string> words;
    bool json = false, csv = false;
};

constexpr const char* aboutLabels =
    "Lengths are millimetres. The words are looked for in maker, number, kind and paper; a size finds the\n"
    "labels of that size, within half a millimetre: fwk labels 99.1 x 38.1, or fwk labels 1 x 2 5/8 in.";

constexpr std::array texts = {"maker", "number", "kind", "paper", "shape"};
constexpr std::array numbers = {"columns", "rows", "width",       "height",
                                "left",    "top",  "columnPitch", "rowPitch"};

std::array<std::string_view, texts.size()> textsOf(const LabelStock& stock) {
    return {stock.maker, stock.number, stock.kind, stock.paper, print::shapeName(stock.shape)};
}

// To a thousandth of a millimetre, as the table has them.
std::array<double, numbers.size()> numbersOf(const LabelStock& stock) {
    const auto millimetres = [](double twips) {
        constexpr double digits = 1000;
        return std::round(print::millimetresOf(twips) * digits) / digits;
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

int run(const LabelsOptions& options) {
    std::vector<LabelStock> all;
    try {
        all = shell::installedLabelStocks();
    } catch (const core::RunTimeError& error) {
        throw Failure(std::string("the table of label stocks cannot be read: ") + error.what());
    }
    if (all.empty()) throw Failure("the table of label stocks is missing or empty");
    std::string text;
    for (const std::string& word : options.words) text.append(text.empty() ? 0 : 1, ' ').append(word);
    const Stocks found = print::findLabelStocks(all, text);
    writeOut(options.json ? asJson(found) : options.csv ? asCsv(found) : asTable(found));
    return done;
}

} // namespace

Run setUpLabels(CLI::App& command) {
    const auto options = std::make_shared<LabelsOptions>();
    command.add_option("TEXT", options->words, "Words, or a size; all stocks when not told");
    CLI::Option* json = command.add_flag("--json", options->json, "As JSON");
    command.add_flag("--csv", options->csv, "As CSV")->excludes(json);
    command.footer(aboutLabels);
    return [options] { return run(*options); };
}

} // namespace cli
