#include "labels/labelChoice.h"

#include "app/fileSettings.h"
#include "core/number.h"
#include "labels/labelPage.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace labels {

using app::App;

namespace {

constexpr std::string_view stockName = "labels.stock", startName = "labels.start",
                           copiesName = "labels.copies", columnName = "labels.copiesColumn",
                           outlinesName = "labels.outlines", apartName = "labels.apart";

struct ChoiceOfThisRun {
    std::optional<LabelChoice> choice;
};

// A number of the settings, which anybody can edit.
int numberOf(const App& app, std::string_view name, int most) {
    const double number = core::val(app::fileSetting(app, name));
    return number >= 1 && number <= most ? static_cast<int>(number) : 1;
}

// A page setup that was changed since, or undone, has taken the design out of the labels' corner.
bool isPageOf(const core::LayoutOptions& options, const LabelStock& stock) {
    constexpr float rounding = 0.0005F; // inches: of what the file keeps
    const core::LayoutOptions page = labelPage(stock);
    const auto isSame = [&](float core::LayoutOptions::*length) {
        return std::abs(options.*length - page.*length) < rounding;
    };
    using core::LayoutOptions;
    return isSame(&LayoutOptions::layoutLeftMargin) && isSame(&LayoutOptions::layoutTopMargin) &&
           isSame(&LayoutOptions::layoutRightMargin) && isSame(&LayoutOptions::layoutBottomMargin) &&
           isSame(&LayoutOptions::layoutSpacing);
}

} // namespace

std::string labelStockLine(const LabelStock& stock) {
    std::string line;
    const auto add = [&](std::string_view cell) {
        if (!line.empty()) line.push_back('\t');
        for (const char each : cell) line.push_back(each == '\t' || each == '\n' ? ' ' : each);
    };
    for (const std::string* text : {&stock.maker, &stock.number, &stock.kind, &stock.paper}) add(*text);
    for (const int count : {stock.columns, stock.rows}) add(std::to_string(count));
    for (const double length :
         {stock.width, stock.height, stock.left, stock.top, stock.columnPitch, stock.rowPitch}) {
        constexpr double digits = 1000;
        add(core::numberText(std::round(millimetresOf(length) * digits) / digits));
    }
    add(shapeName(stock.shape));
    return line;
}

std::optional<LabelStock> labelStockOf(std::string_view line) {
    std::string table = "\n";
    table.append(line);
    std::vector<LabelStock> stocks = readLabelStocks(table);
    if (stocks.size() != 1 || stocks.front().perSheet() > LabelChoice::mostOnOneSheet) return std::nullopt;
    return std::move(stocks.front());
}

std::optional<LabelChoice> keptLabelChoice(const App& app) {
    if (const auto& now = app.rooms.of<ChoiceOfThisRun>().choice) return now;
    const std::string line = app::fileSetting(app, stockName);
    if (line.empty()) return std::nullopt;
    std::optional<LabelStock> stock = labelStockOf(line);
    if (!stock) return std::nullopt;
    LabelChoice choice;
    choice.stock = *std::move(stock);
    choice.start = numberOf(app, startName, choice.stock.perSheet());
    choice.copies = numberOf(app, copiesName, LabelChoice::mostCopies);
    choice.copiesColumn = app::fileSetting(app, columnName);
    choice.bOutlines = !app::fileSetting(app, outlinesName).empty();
    choice.bClosedUp = app::fileSetting(app, apartName).empty();
    return choice;
}

std::optional<LabelChoice> labelChoice(const App& app) {
    if (app.document.bInvoiceStyle) return std::nullopt;
    std::optional<LabelChoice> choice = keptLabelChoice(app);
    if (choice && !isPageOf(app.document.layoutOptions, choice->stock)) choice.reset();
    return choice;
}

bool keepLabelChoice(App& app, const std::optional<LabelChoice>& choice) {
    const auto set = [&](std::string_view name, std::string_view text) {
        return app::setFileSetting(app, name, choice ? text : std::string_view());
    };
    const LabelChoice kept = choice.value_or(LabelChoice());
    const auto number = [](int value) { return value == 1 ? std::string() : std::to_string(value); };
    return set(stockName, labelStockLine(kept.stock)) && set(startName, number(kept.start)) &&
           set(copiesName, number(kept.copies)) && set(columnName, kept.copiesColumn) &&
           set(outlinesName, kept.bOutlines ? "1" : "") && set(apartName, kept.bClosedUp ? "" : "1");
}

void useLabelChoice(App& app, const LabelChoice& choice) {
    app.rooms.of<ChoiceOfThisRun>().choice = choice;
}

} // namespace labels
