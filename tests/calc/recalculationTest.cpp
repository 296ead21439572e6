#include "calc/recalculation.h"

#include "calc/formulas.h"
#include "recordsProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using calc::RecalculateAll;
using namespace std::string_literals;
using testing::ElementsAre;

namespace {

constexpr const char* rowMessage =
    "An error has occured during one of your calculations.  It appears that an expression is incorrectly "
    "defined.  Please check your syntax.";
constexpr const char* allRowsMessage =
    "During a recalculate all rows event your columns were not able to be recalculated due to a syntax error "
    "with one of your defined expressions.";

struct Orders : RecordsProgram {
    Orders() : RecordsProgram({{"Price", "2"}, {"Qty", "4"}, {"Sum", "5"}}) {
        total({"Price", "Qty", "Sum"});
        platform.onPaint = [this] { painted.push_back(panel(app::calculationPanel)); };
    }
    std::vector<std::string> painted;
};

TEST(RecalculationTest, tellsTheProgressAsItGoes) {
    struct Case {
        int records;
        std::vector<int> percents; // of the count with the Totals row, halves to the even one
    };
    const Case cases[] = {{1, {50}}, {3, {25, 50, 75}}, {7, {12, 25, 38, 50, 62, 75, 88}}, {0, {}}};
    for (const Case& c : cases) {
        Orders orders;
        for (int i = 0; i < c.records; ++i) orders.record({"", "1", ""});
        RecalculateAll(orders.app, orders.LV);
        std::vector<std::string> texts;
        for (const int percent : c.percents)
            texts.push_back("Recalculating... " + std::to_string(percent) + " percent.");
        EXPECT_EQ(orders.painted, texts);
        EXPECT_EQ(orders.panel(app::calculationPanel), "Done.");
    }
}

TEST(RecalculationTest, paintsAFewDozenTimesAtTheLargestSize) {
    Orders orders;
    orders.formula("Sum", "Qty * 2");
    for (int i = 1; i <= 32000; ++i) {
        core::Item& item = orders.LV.add(orders.document.nextKey());
        item.cells[1] = std::to_string(i);
    }
    core::moveTotals(orders.LV);
    RecalculateAll(orders.app, orders.LV);
    EXPECT_GE(orders.platform.paints, 20);
    EXPECT_LE(orders.platform.paints, 48);
    EXPECT_EQ(orders.painted.front(), "Recalculating... 0 percent.");
    EXPECT_EQ(orders.cell(32000, "Sum"), "64000");
    EXPECT_EQ(orders.totals(), "$.00|$512,016,000.00|1024032000|");
}

TEST(RecalculationTest, theTotalsRowIsMadeAfresh) {
    Orders orders;
    orders.document.totaledCols.removeItem("Qty");
    orders.LV.totals()->cells[1] = "77";
    RecalculateAll(orders.app, orders.LV);
    EXPECT_EQ(orders.totals(), "------|------|------|") << "an empty database";
    EXPECT_EQ(orders.panel(app::calculationPanel), "Done.");
    orders.record({"$2.00", "1,000", "3"});
    orders.record({"$.50", "4", "$1.25"});
    for (int time = 0; time < 2; ++time) RecalculateAll(orders.app, orders.LV);
    EXPECT_EQ(orders.totals(), "$2.50|------|$4.25|") << "without a formula the cells stand";
}

TEST(RecalculationTest, stopsAtTheFirstRowThatFails) {
    Orders orders;
    for (const char* qty : {"2", "4", "0", "8"}) orders.record({"$1.00", qty, "old"});
    orders.formula("Sum", "8 / Qty");
    RecalculateAll(orders.app, orders.LV);
    EXPECT_EQ(orders.cells(orders.LV), "$1.00|2|4|;$1.00|4|2|;$1.00|0|old|;$1.00|8|old|;$2.00|$6.00|6|;");
    EXPECT_EQ(orders.platform.told(1), "2|Ferrowick|"s + rowMessage);
    EXPECT_EQ(orders.platform.told(), "2|Ferrowick|"s + allRowsMessage);
    EXPECT_EQ(orders.panel(app::calculationPanel), "Recalculating... 60 percent.");
    EXPECT_FALSE(orders.app.mainFrm.bCalcError);
    orders.LV.at(3).cells[1] = "1";
    RecalculateAll(orders.app, orders.LV);
    EXPECT_EQ(orders.platform.messages.size(), 2U);
    EXPECT_EQ(orders.cell(4, "Sum"), "1");
}

// A single row leaves the flag, and the next recalculation of all rows takes it for its own. It is wanted so.
TEST(RecalculationTest, theFailureOfASingleRowStopsTheNextRecalculation) {
    Orders orders;
    for (const char* qty : {"1", "2"}) orders.record({"", qty, "old"});
    orders.formula("Sum", "1 / 0");
    calc::CalculateRow(orders.app, 1, orders.LV);
    orders.document.formulas.clear();
    orders.formula("Sum", "Qty + 1");
    orders.platform.messages.clear();
    RecalculateAll(orders.app, orders.LV);
    EXPECT_THAT(orders.platform.texts(), ElementsAre(allRowsMessage));
    EXPECT_EQ(orders.cell(1, "Sum"), "2");
    EXPECT_EQ(orders.cell(2, "Sum"), "old");
    RecalculateAll(orders.app, orders.LV);
    EXPECT_EQ(orders.cell(2, "Sum"), "3");
}

} // namespace
