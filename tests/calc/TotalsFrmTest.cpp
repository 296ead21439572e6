#include "calc/totalsFrm.h"

#include "core/totalsRow.h"
#include "recordsProgram.h"

#include <gtest/gtest.h>

using calc::TotalsFrm;
namespace errors = core::errors;

namespace {

struct Shop : RecordsProgram {
    Shop()
        : RecordsProgram(
              {{"Name", "3"}, {"Price", "2"}, {"Qty", "4"}, {"Day", "1"}, {"Sum", "5"}, {"Img", "7"}}) {
        record({"Bolt", "$1.50", "2", "", "old", ""});
        record({"Nut", "$.25", "4", "", "old", ""});
        formula("Sum", "Price * Qty");
    }
};

std::string rows(const TotalsFrm& form) {
    std::string all;
    for (const TotalsFrm::Row& row : form.LV) all += row.Text + (row.Checked ? "+" : "-");
    return all;
}

TEST(TotalsFrmTest, offersTheColumnsThatCanHaveASum) {
    Shop shop;
    shop.total({"Sum", "price"}); // names are looked up in any case
    EXPECT_EQ(rows(TotalsFrm(shop.app)), "Price+Qty-Sum+");
    RecordsProgram empty({});
    EXPECT_EQ(rows(TotalsFrm(empty.app)), "");
}

TEST(TotalsFrmTest, aTotaledColumnThatIsNotThereIsAnError) {
    for (const char* stale : {"Gone", "Name", "Index"}) {
        Shop shop;
        shop.total({"Qty", stale});
        EXPECT_EQ(raisedBy([&] { TotalsFrm form(shop.app); }), errors::elementNotFound) << stale;
    }
}

TEST(TotalsFrmTest, okTakesTheChoiceInTheOrderOfTheListAndRecalculates) {
    Shop shop;
    shop.total({"Qty"});
    core::TotalsRowUpdater(shop.document, shop.LV).update(core::TotalsMode::Add, shop.LV.at(1));
    TotalsFrm form(shop.app);
    form.LV[1].Checked = false;
    form.LV[2].Checked = form.LV[0].Checked = true;
    form.OKButton_Click();
    EXPECT_EQ(RecordsProgram::text(shop.document.totaledCols), "Price|Sum|");
    EXPECT_EQ(shop.totals(), "------|$1.75|------|------|$4.00|------|");
    EXPECT_EQ(shop.cell(2, "Sum"), "$1.00");
    EXPECT_TRUE(form.unloaded);
    // The choice is lost unless something else is changed too. It is wanted so.
    EXPECT_FALSE(shop.document.bModified);
}

} // namespace
