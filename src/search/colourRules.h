#pragma once

#include "app/app.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace search {

// Rules that mark the cells of a column in the lists. They are the user's own, kept beside the settings for
// the file, and the database knows nothing of them.

enum class ColourTest { Empty, Equal, Above, Below, Between, DatePassed, DateNear };
constexpr int colourTests = 7;
constexpr int colourCount = 6;             // see colourName
constexpr std::size_t mostColourRules = 4; // of a column

struct ColourRule {
    ColourTest test = ColourTest::Empty;
    std::string value; // of a column's kind; for DateNear a number of days
    std::string upTo;  // for Between
    int colour = 0;    // from 0
    bool operator==(const ColourRule&) const = default;
};
using ColumnColours = std::vector<ColourRule>; // the first one that holds decides

// "Red", "Orange" and so on, in the user's language.
std::string colourName(int colour);
// The tests that make sense for a column of that type, and what they are called there ("is after").
std::vector<ColourTest> colourTestsOf(core::ColumnType type);
std::string testName(ColourTest test, core::ColumnType type);
// How many values a test takes: 0 to 2.
int valuesOf(ColourTest test);
// What a cell is said to be that the rule marks: "above 10".
std::string ruleText(const ColourRule& rule, core::ColumnType type);

// Why the rule cannot be used for such a column; empty when it can.
std::string ruleError(const ColourRule& rule, core::ColumnType type, std::chrono::year_month_day today);

// Whether the rule holds for a cell. Numbers and amounts are compared exactly, with four decimals, dates as
// days, texts whatever their case and accents; in a column of texts two numbers are compared as numbers. An
// empty cell is empty and nothing else, and so is a rule without a usable value.
bool holds(const ColourRule& rule, std::string_view cell, core::ColumnType type,
           std::chrono::year_month_day today);

constexpr std::string_view coloursSetting = "colours."; // and the name of the column

// As they are kept. What cannot be read is left out.
std::string colourText(const ColumnColours& rules);
ColumnColours coloursFrom(std::string_view text);

// Those of the open database by the names of their columns.
struct ColourBook {
    std::map<std::string, ColumnColours, std::less<>> columns;
    std::string file; // that they are kept for
};
// The rule that marks a cell of a column of the records; nullptr for none.
const ColourRule* markOf(const app::App& app, const core::Column& column, std::string_view cell);
const ColumnColours& coloursOf(const app::App& app, std::string_view column);
// False when they hold for this run alone, since they are too long to be kept.
bool setColours(app::App& app, const std::string& column, const ColumnColours& rules);

// Another file is open: its own are read. The file is stored under another name: they are kept for that too.
void readColours(app::App& app);
void followStoredColours(app::App& app);

} // namespace search
