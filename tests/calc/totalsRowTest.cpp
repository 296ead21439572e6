#include "core/totalsRow.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

using core::TotalsMode;

namespace {

struct Columns {
    std::vector<RecordsProgram::Column> table;
    std::vector<const char*> cells;
    const char* totals;
};

// Money is carried on from one totaled column to the next, in the order of the table.
TEST(TotalsRow, moneyIsCarriedOnToNumberColumns) {
    const Columns cases[] = {
        {{{"N", "4"}, {"C", "2"}}, {"1.255", "2"}, "1.255|$2.00|"},
        {{{"C", "2"}, {"N", "4"}, {"M", "4"}}, {"2", "1.255", "1,234"}, "$2.00|$1.26|$1,234.00|"},
        // Columns without a sum in between change nothing.
        {{{"C", "2"}, {"T", "3"}, {"D", "1"}, {"N", "4"}},
         {"2", "x", "1/1/2001", "3"},
         "$2.00|------|------|$3.00|"},
        // A Calculation column takes it from the point in its own cell.
        {{{"K", "5"}, {"N", "4"}}, {"$1.50", "3"}, "$1.50|$3.00|"},
        {{{"C", "2"}, {"K", "5"}, {"N", "4"}}, {"2", "7", "3"}, "$2.00|7|3|"},
        // A cell of several values is passed over before the type is looked at.
        {{{"C", "2"}, {"K", "5"}, {"N", "4"}}, {"2", "1@2@", "3"}, "$2.00|-----|$3.00|"},
        {{{"C", "2"}, {"N", "4"}}, {"1@2@", "3"}, "-----|3|"},
        {{{"C", "2"}, {"N", "4"}}, {"", ""}, "$.00|$.00|"},
        {{{"N", "4"}, {"K", "5"}}, {"", "Undefined"}, "0|0|"},
        {{{"N", "4"}, {"C", "2"}, {"K", "5"}}, {"(5)", "(5)", "-5"}, "0|-$5.00|-5|"},
        {{{"N", "4"}, {"C", "2"}}, {"1e3", "1e3"}, "1000|$1,000.00|"}};
    for (const Columns& c : cases) {
        core::Document document;
        for (const auto& column : c.table) {
            document.LV.columns.add(column.name, column.name).setTypeFromFile(column.tag);
            document.totaledCols.add(column.name, column.name);
        }
        core::Item& item = document.LV.add(document.nextKey());
        for (std::size_t i = 0; i < c.cells.size(); ++i) item.cells[i] = c.cells[i];
        core::addTotalsRow(document.LV);
        core::UpdateTotalsRow(document, TotalsMode::Add, document.LV, 1);
        std::string totals;
        for (const core::CellText& cell : document.LV.totals()->cells) totals += cell.str() + "|";
        EXPECT_EQ(totals, c.totals);
    }
}

TEST(TotalsRow, onlyTotaledNumericColumnsByTheirExactName) {
    RecordsProgram program({{"Price", "2"}, {"Name", "3"}, {"Qty", "4"}});
    program.total({"price", "Name", "Qty", "Index"});
    core::Item& item = program.record({"$1.00", "7", "2"});
    core::TotalsRowUpdater(program.document, program.LV).update(TotalsMode::Add, item);
    EXPECT_EQ(program.totals(), "------|------|2|");
    program.document.totaledCols.removeItem("price");
    program.total({"Price"});
    program.LV.columns.setPosition(4, 2); // Qty is shown ahead of Price, and sums go on in the table's order
    core::TotalsRowUpdater(program.document, program.LV).update(TotalsMode::Add, item);
    EXPECT_EQ(program.totals(), "$1.00|------|$4.00|");
}

TEST(TotalsRow, takingTheLastRecordOutLeavesZero) {
    RecordsProgram program({{"Qty", "4"}, {"Price", "2"}, {"Sum", "5"}});
    program.total({"Qty", "Price", "Sum"});
    program.record({"3", "$4.10", "$12.30"});
    core::UpdateTotalsRow(program.document, TotalsMode::Add, program.LV, 1);
    core::UpdateTotalsRow(program.document, TotalsMode::Subtract, program.LV, 1);
    EXPECT_EQ(program.totals(), "0|$.00|$.00|");
    // A sum over a cell of several values starts over at the next plain one.
    program.LV.totals()->cells[0] = "-----";
    core::UpdateTotalsRow(program.document, TotalsMode::Add, program.LV, 1);
    EXPECT_EQ(program.totals(), "3|$4.10|$12.30|");
}

TEST(TotalsRow, theSumsStayRightToTheCent) {
    RecordsProgram program({{"Price", "2"}});
    program.total({"Price"});
    core::Item& row = program.record({"$.10"});
    const core::TotalsRowUpdater updater(program.document, program.LV);
    for (int i = 0; i < 30000; ++i) updater.update(TotalsMode::Add, row);
    EXPECT_EQ(program.totals(), "$3,000.00|");
    row.cells[0] = "$99,999,999.99";
    for (int i = 0; i < 1000; ++i) updater.update(TotalsMode::Add, row);
    EXPECT_EQ(program.totals(), "$100,000,002,990.00|");
    for (int i = 0; i < 1000; ++i) updater.update(TotalsMode::Subtract, row);
    EXPECT_EQ(program.totals(), "$3,000.00|");
}

TEST(TotalsRow, moveTotalsWithoutRecordsSelectsNothing) {
    RecordsProgram program({{"Qty", "4"}, {"Name", "3"}});
    program.LV.totals()->cells[0] = "5";
    program.LV.Sorted = true;
    core::moveTotals(program.LV);
    EXPECT_EQ(program.totals(), "5|------|");
    EXPECT_EQ(program.LV.selectedItem(), nullptr);
    EXPECT_FALSE(program.LV.Sorted);
    EXPECT_EQ(program.LV.find("Totals"), program.LV.totals());
}

TEST(TotalsRow, moveTotalsTakesTheSelectionFromAllOthers) {
    RecordsProgram program({{"Qty", "4"}});
    for (const char* qty : {"1", "2", "3"}) program.record({qty});
    program.LV.forEach([](core::Item& item) { item.Selected = true; });
    program.LV.SortOrder = 0;
    program.LV.SortKey = 1;
    program.LV.sort(); // the Totals row comes first: "-" ahead of digits
    ASSERT_TRUE(program.LV.at(1).isTotals());
    core::moveTotals(program.LV);
    EXPECT_EQ(program.cells(program.LV), "1|;2|;3|;------|;");
    std::string selected;
    program.LV.forEach([&](const core::Item& item) { selected += item.Selected ? "x" : "."; });
    EXPECT_EQ(selected, "..x.");
}

} // namespace
