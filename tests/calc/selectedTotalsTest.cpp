#include "calc/selectedTotals.h"

#include "recordsProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using core::TotalsMode;
using testing::ElementsAre;

namespace {

struct Sale : RecordsProgram {
    Sale() : RecordsProgram({{"Name", "3"}, {"Qty", "4"}, {"Price", "2"}, {"Day", "1"}, {"Sum", "5"}}) {
        record({"Bolt", "12", "$1.50", "", "18"});
        record({"Nut", "1,000", "$.25", "", "$250.00"});
        record({"Nail", "7", "2", "", ""});
        LV.clearSelection();
    }

    // What the list looks like after a click: the clicked row has the focus, and maybe the selection.
    void click(int row, bool isSelected = true) {
        LV.setSelectedItem(&LV.at(row));
        LV.at(row).Selected = isSelected;
        calc::list_Click(app, LV);
    }
    std::string sums() {
        std::string all;
        document.LV3.forEach(
            [&](const core::Item& sum) { all += sum.Text.str() + "=" + sum.subItem(1).str() + " "; });
        return all;
    }
};

TEST(SelectedTotalsTest, hasTheNumericColumnsInTheOrderShown) {
    Sale sale;
    sale.LV.columns.setPosition(6, 2); // Sum ahead of all
    calc::RefreshSelectedTotals(sale.app);
    EXPECT_EQ(sale.sums(), "Sum= Qty= Price= ");
    calc::RefreshSelectedTotals(sale.app);
    EXPECT_EQ(sale.document.LV3.count(), 3) << "what was there goes";
}

TEST(SelectedTotalsTest, aPlainClickSumsTheClickedRowAlone) {
    Sale sale;
    sale.LV.forEach([](core::Item& item) { item.Selected = !item.isTotals(); });
    sale.click(2);
    EXPECT_EQ(sale.sums(), "Qty=1,000 Price=$.25 Sum=$250.00 ");
    EXPECT_THAT(sale.app.mainFrm.selectedRows, ElementsAre(1, 2, 3));
    sale.click(3);
    EXPECT_EQ(sale.sums(), "Qty=7 Price=2 Sum= ");
}

TEST(SelectedTotalsTest, ctrlClicksAddAndSubtract) {
    Sale sale;
    sale.click(1);
    sale.app.mainFrm.bCtrlDown = true;
    sale.click(2);
    EXPECT_EQ(sale.sums(), "Qty=1,012 Price=$1.75 Sum=$268.00 ");
    sale.click(3);
    // A cell without a point rounds the sum to a whole number, the cents of the others too.
    EXPECT_EQ(sale.sums(), "Qty=1,019 Price=4 Sum=268 ");
    sale.click(2, false);
    EXPECT_EQ(sale.sums(), "Qty=19 Price=$3.75 Sum=$18.00 ");
    sale.click(3, false);
    sale.click(1, false);
    EXPECT_EQ(sale.sums(), "Qty= Price=$.50 Sum= ") << "a whole zero shows nothing";
    EXPECT_THAT(sale.app.mainFrm.selectedRows, ElementsAre(1)) << "clicks with Ctrl leave it";
}

TEST(SelectedTotalsTest, clicksThatChangeNothing) {
    Sale sale;
    sale.click(1);
    const std::string before = sale.sums();
    for (const bool ctrl : {false, true}) {
        sale.app.mainFrm.bCtrlDown = ctrl;
        sale.click(4);
        EXPECT_EQ(sale.sums(), before) << "the Totals row";
        sale.LV.setSelectedItem(nullptr);
        calc::list_Click(sale.app, sale.LV);
        EXPECT_EQ(sale.sums(), before) << "no row at all";
    }
    calc::UpdateSelectedTotals(sale.app, TotalsMode::Add, sale.LV, 0);
    EXPECT_EQ(sale.sums(), before);
}

TEST(SelectedTotalsTest, aClickThatLeavesNothingSelectedEmptiesTheSums) {
    Sale sale;
    sale.click(1);
    sale.LV.clearSelection();
    sale.click(1, false);
    EXPECT_EQ(sale.sums(), "Qty= Price= Sum= ");
    EXPECT_TRUE(sale.app.mainFrm.selectedRows.empty());
}

TEST(SelectedTotalsTest, cellsThatAreNoPlainNumbers) {
    struct Case {
        const char *first, *second, *sum;
    };
    const Case cases[] = {
        {"abc", "5", "5"}, {"1@2@", "5", "6"},      {"(5)", "3", "-2"},      {"1e3", "1", "1,001"},
        {"", "", ""},      {"-1.5", "1.5", "$.00"}, {"2.5", "2.5", "$5.00"}, {"$1,234.5", "1", "1,236"},
        {"1.5", "2", "4"}, {"x.y", "", ""},         {"5", "-15e-1", "3"},    {"------", "2", "2"}};
    for (const Case& c : cases) {
        RecordsProgram program({{"Qty", "4"}});
        program.record({c.first});
        program.record({c.second});
        calc::RefreshSelectedTotals(program.app);
        for (const int row : {1, 2})
            calc::UpdateSelectedTotals(program.app, TotalsMode::Add, program.LV, row);
        EXPECT_EQ(program.document.LV3.at(1).subItem(1), c.sum) << c.first << " and " << c.second;
    }
}

TEST(SelectedTotalsTest, sumsTheListOfAnInvoiceDatabaseThatIsOnView) {
    RecordsProgram program({{"Qty", "4"}, {"Sum", "5"}});
    program.document.bInvoiceStyle = true;
    core::RecordsList& iLV = program.document.iLV;
    iLV.columns.add("Index", "Index", 0);
    iLV.columns.add("Sum", "Sum");
    iLV.add("", "i1").cells[0] = "$2.50";
    core::addTotalsRow(iLV);
    iLV.setSelectedItem(&iLV.at(1));
    calc::list_Click(program.app, iLV);
    ASSERT_EQ(program.document.LV3.count(), 1);
    EXPECT_EQ(program.document.LV3.at(1).subItem(1), "$2.50");
}

} // namespace
