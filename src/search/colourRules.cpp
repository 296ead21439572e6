#include "search/colourRules.h"

#include "app/fileSettings.h"
#include "core/text.h"
#include "core/translate.h"
#include "search/filter/filter.h"
#include "search/filter/folding.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace search {

using core::ColumnType;
using std::chrono::year_month_day;

namespace {

constexpr char fieldEnd = '\t', ruleEnd = '\n';
constexpr std::array<std::string_view, colourTests> keptNames = {"empty",   "equal",  "above", "below",
                                                                 "between", "passed", "near"};
constexpr std::array<const char*, colourCount> colourNames = {core::marked("Red"),    core::marked("Orange"),
                                                              core::marked("Yellow"), core::marked("Green"),
                                                              core::marked("Blue"),   core::marked("Violet")};
constexpr int furthest = 3650; // days

std::optional<int> daysIn(std::string_view text) {
    text = core::trim(text);
    int days = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), days);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    if (!isWhole || days < 0 || days > furthest) return {};
    return days;
}

// A value that can be compared: a number, or the days that a text stands for.
struct Measure {
    std::int64_t first = 0, last = 0;
};
std::optional<Measure> measured(std::string_view text, ColumnType type, year_month_day today) {
    if (type == ColumnType::Date) {
        const auto days = filterDays(text, today);
        if (!days) return {};
        return Measure{days->first, days->last};
    }
    const auto number = filterNumber(core::trim(text));
    if (!number) return {};
    return Measure{*number, *number};
}

// As the settings have it.
std::string_view keptColour(int colour) {
    return colourNames.at(static_cast<std::size_t>(std::clamp(colour, 0, colourCount - 1)));
}

bool isOfTexts(ColumnType type) {
    return type == ColumnType::Text || type == ColumnType::Picture || type == ColumnType::None;
}

bool holdsFor(ColourTest test, const auto& cell, const auto& first, const auto& last, const auto& upTo) {
    switch (test) {
    case ColourTest::Equal:
        return !(cell < first) && !(last < cell);
    case ColourTest::Above:
        return last < cell;
    case ColourTest::Below:
        return cell < first;
    default: // Between
        return !(cell < first) && !(upTo < cell);
    }
}

} // namespace

std::string colourName(int colour) {
    return core::tr(keptColour(colour));
}

std::vector<ColourTest> colourTestsOf(ColumnType type) {
    std::vector<ColourTest> tests = {ColourTest::Empty, ColourTest::Equal, ColourTest::Above,
                                     ColourTest::Below, ColourTest::Between};
    if (type == ColumnType::Date) {
        tests.push_back(ColourTest::DatePassed);
        tests.push_back(ColourTest::DateNear);
    }
    return tests;
}

std::string testName(ColourTest test, ColumnType type) {
    constexpr std::array<const char*, colourTests> names = {
        core::marked("is empty"),      core::marked("is equal to"), core::marked("is above"),
        core::marked("is below"),      core::marked("is between"),  core::marked("has passed"),
        core::marked("is within days")};
    if (type == ColumnType::Date && test == ColourTest::Above) return core::tr("is after");
    if (type == ColumnType::Date && test == ColourTest::Below) return core::tr("is before");
    return core::tr(names.at(static_cast<std::size_t>(test)));
}

int valuesOf(ColourTest test) {
    if (test == ColourTest::Empty || test == ColourTest::DatePassed) return 0;
    return test == ColourTest::Between ? 2 : 1;
}

std::string ruleText(const ColourRule& rule, ColumnType type) {
    constexpr std::array<const char*, colourTests> patterns = {core::marked("empty"),
                                                               core::marked("equal to %1"),
                                                               core::marked("above %1"),
                                                               core::marked("below %1"),
                                                               core::marked("between %1 and %2"),
                                                               core::marked("has passed"),
                                                               ""};
    std::string pattern = core::tr(patterns.at(static_cast<std::size_t>(rule.test)));
    if (rule.test == ColourTest::DateNear) // the number stands there as it was typed
        pattern = core::tr("within %1 day", "within %1 days", daysIn(rule.value).value_or(0));
    if (type == ColumnType::Date && rule.test == ColourTest::Above) pattern = core::tr("after %1");
    if (type == ColumnType::Date && rule.test == ColourTest::Below) pattern = core::tr("before %1");
    return core::fill(pattern, {rule.value, rule.upTo});
}

std::string ruleError(const ColourRule& rule, ColumnType type, year_month_day today) {
    const auto isWrong = [&](std::string_view value) {
        if (rule.test == ColourTest::DateNear) return !daysIn(value);
        return isOfTexts(type) ? core::trim(value).empty() : !measured(value, type, today);
    };
    const std::array<std::string_view, 2> values = {rule.value, rule.upTo};
    for (int i = 0; i < valuesOf(rule.test); ++i) {
        const std::string_view value = values.at(static_cast<std::size_t>(i));
        if (!isWrong(value)) continue;
        if (core::trim(value).empty()) return core::tr("A value is missing.");
        if (rule.test == ColourTest::DateNear)
            return core::fill(core::tr("%1 is no number of days, from 0 to 3650."), {value});
        return core::fill(
            type == ColumnType::Date ? core::tr("%1 is no date.") : core::tr("%1 is no number."), {value});
    }
    return {};
}

bool holds(const ColourRule& rule, std::string_view cell, ColumnType type, year_month_day today) {
    const bool isEmpty = core::trim(cell).empty();
    if (isEmpty || rule.test == ColourTest::Empty) return isEmpty && rule.test == ColourTest::Empty;
    const std::optional<Measure> value = measured(cell, type, today);
    if (rule.test == ColourTest::DatePassed || rule.test == ColourTest::DateNear) {
        const auto now = filterDays("today", today);
        if (type != ColumnType::Date || !value || !now) return false;
        if (rule.test == ColourTest::DatePassed) return value->last < now->first;
        const std::optional<int> days = daysIn(rule.value);
        return days && value->first >= now->first && value->first <= now->first + *days;
    }
    const bool isBetween = rule.test == ColourTest::Between;
    const auto from = measured(rule.value, type, today);
    const auto to = isBetween ? measured(rule.upTo, type, today) : from;
    if (value && from && to) return holdsFor(rule.test, value->first, from->first, from->last, to->last);
    if (!isOfTexts(type) || core::trim(rule.value).empty() || (isBetween && core::trim(rule.upTo).empty()))
        return false;
    const std::string first = folded(core::trim(rule.value));
    return holdsFor(rule.test, folded(core::trim(cell)), first, first, folded(core::trim(rule.upTo)));
}

std::string colourText(const ColumnColours& rules) {
    std::string text;
    for (const ColourRule& rule : rules) {
        text.append(keptNames.at(static_cast<std::size_t>(rule.test))).append(1, fieldEnd);
        text.append(rule.value).append(1, fieldEnd).append(rule.upTo).append(1, fieldEnd);
        text.append(keptColour(rule.colour)).append(1, ruleEnd);
    }
    return text;
}

ColumnColours coloursFrom(std::string_view text) {
    ColumnColours rules;
    for (const std::string_view line : core::split(text, ruleEnd)) {
        const auto fields = core::split(line, fieldEnd);
        if (fields.size() != 4 || rules.size() == mostColourRules) continue;
        const auto name = std::ranges::find(keptNames, fields[0]);
        if (name == keptNames.end()) continue;
        ColourRule rule;
        rule.test = static_cast<ColourTest>(name - keptNames.begin());
        rule.value = fields[1];
        rule.upTo = fields[2];
        for (int colour = 0; colour < colourCount; ++colour)
            if (keptColour(colour) == fields[3]) rule.colour = colour;
        rules.push_back(std::move(rule));
    }
    return rules;
}

const ColumnColours& coloursOf(const app::App& app, std::string_view column) {
    static const ColumnColours none;
    const ColourBook& book = app.rooms.of<ColourBook>();
    const auto found = book.columns.find(column);
    return found == book.columns.end() ? none : found->second;
}

const ColourRule* markOf(const app::App& app, const core::Column& column, std::string_view cell) {
    const ColumnColours& rules = coloursOf(app, column.Key);
    if (rules.empty()) return nullptr;
    // The columns of other lists know their names alone.
    const core::Column* own = app.document.LV.columns.find(column.Key);
    const ColumnType type = own == nullptr ? column.type() : own->type();
    const year_month_day today = app.platform.today();
    for (const ColourRule& rule : rules)
        if (holds(rule, cell, type, today)) return &rule;
    return nullptr;
}

bool setColours(app::App& app, const std::string& column, const ColumnColours& rules) {
    auto& columns = app.rooms.of<ColourBook>().columns;
    if (rules.empty())
        columns.erase(column);
    else
        columns[column] = rules;
    return app::setFileSetting(app, std::string(coloursSetting) + column, colourText(rules)) ||
           app.document.currentFile.empty();
}

void readColours(app::App& app) {
    ColourBook& book = app.rooms.of<ColourBook>();
    book.columns.clear();
    book.file = app.document.currentFile;
    for (const std::string& column : app::fileSettingNames(app, coloursSetting))
        if (ColumnColours rules = coloursFrom(app::fileSetting(app, std::string(coloursSetting) + column));
            !rules.empty())
            book.columns[column] = std::move(rules);
}

void followStoredColours(app::App& app) {
    ColourBook& book = app.rooms.of<ColourBook>();
    if (book.file == app.document.currentFile) return;
    book.file = app.document.currentFile;
    for (const auto& [column, rules] : book.columns)
        app::setFileSetting(app, std::string(coloursSetting) + column, colourText(rules));
}

} // namespace search
