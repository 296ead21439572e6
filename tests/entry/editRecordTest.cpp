#include "entry/editRecord.h"

#include "core/format.h"
#include "core/number.h"
#include "core/text.h"
#include "databases.h"
#include "raised.h"
#include "table.h"

#include <gtest/gtest.h>

#include <random>

using entry::EditRecord;

namespace {

struct EditRecords : testing::Test, Program {
    EditRecords() { openShop("Price * 2"); }
    core::RecordsList& LV = app.document.LV;

    void openShop(const std::string& formula, std::string_view records = {}) {
        open(DataFile("No:4 Name Price:2 Day:1 Sum:5 Img:7", records)
                 .section("Formulas", "Sum," + formula + "|")
                 .section("Totaled Cols", "Price|Sum|")
                 .section("Optioned Cols", "No|")
                 .section("Increments", "No,10|"));
        app.mainFrm.bConfirmDelete = false;
        app::setDocumentModified(app, false);
    }
    // Boxes as "No=1, Name=a"; the changes of a record, or a new one.
    core::Item* edit(bool bUpdate, std::string_view boxes) {
        std::vector<entry::BoxText> texts;
        for (const auto& box : table(core::replaceAll(core::replaceAll(boxes, "=", " -> "), ", ", "; ")))
            texts.push_back({box[0], box[1]});
        return EditRecord(app, bUpdate, texts);
    }
    void add(std::string_view boxes) { edit(false, boxes); }
    // Clicks on rows with Ctrl; the last one has the focus, selected or not.
    void select(std::initializer_list<int> rows) {
        LV.MultiSelect = true;
        LV.clearSelection();
        for (const int row : rows) {
            const bool wasSelected = LV.at(row).Selected;
            LV.setSelectedItem(&LV.at(row));
            LV.at(row).Selected = !wasSelected;
        }
    }
    std::string duplicate(const char* copies) {
        platform.inputs = {copies};
        entry::mnuDuplicate_Click(app);
        return told();
    }
    // The rows, ">" before the current one and "*" behind the key of a selected one, the counter, and what
    // the window says; "multi" when several rows can be selected.
    std::string state() {
        std::string all;
        LV.forEach([&](const core::Item& item) {
            all += (&item == LV.selectedItem() ? ">" : "") + item.Key.str() + (item.Selected ? "*: " : ": ") +
                   cells(item) + "; ";
        });
        return all + app.document.SerialsLV.at(1).subItem(1).str() + " " + panel(app::recordsPanel) + " " +
               std::to_string(app.mainFrm.Slider1.Max) + (app.document.bModified ? " modified" : "") +
               (LV.MultiSelect ? " multi" : "");
    }
};

TEST_F(EditRecords, FormsOfTheCells) {
    for (const auto& c : table("2 ->  -> $.00; 2 -> 1234 -> $1,234.00; 2 -> (1,000.005) -> -$1,000.01; 2 ->  "
                               "7  -> $7.00; 2 -> abc -> abc; 4 ->  -> 0; 4 -> 007 -> 007; 3 ->   x  ->   x "
                               "; 3 ->  -> ; 1 -> 99/99/9999 -> 99/99/9999",
                               3))
        EXPECT_EQ(entry::cellText(core::ColumnType(std::stoi(c[0])), c[1]), c[2]) << c[1];
}

// With one record the count and the slider keep what they showed. A counter goes on when a new record is
// stored with something in its box, whatever it is.
TEST_F(EditRecords, AddAndUpdate) {
    app.mainFrm.Slider1.Max = 77;
    app.mainFrm.panels[app::recordsPanel] = "before";
    add("Day=01/02/2003, Name= Bolt , Price=1234.5, No=");
    EXPECT_EQ(state(), ">i1*: 0| Bolt |$1,234.50|01/02/2003|$2,469.00||; Totals: "
                       "------|------|$1,234.50|------|$2,469.00|------|; 10 before 77 modified");
    add("No=500, Name=Nut, Price=.25");
    add("Name=c, Price=x");
    LV.MultiSelect = true;
    LV.setSelectedItem(&LV.at(2));
    app::setDocumentModified(app, false);
    EXPECT_EQ(edit(true, "No=600, Price=10"), &LV.at(2));
    const std::string before =
        "i1: 0| Bolt |$1,234.50|01/02/2003|$2,469.00||; >i2*: 600|Nut|$10.00||$20.00||; i3: |c|x||$.00||; "
        "Totals: ------|------|$1,244.50|------|$2,489.00|------|; 11 3 records. 3 modified";
    EXPECT_EQ(state(), before);
    for (const bool bUpdate : {false, true})
        EXPECT_EQ(raisedBy([&] { edit(bUpdate, "Price=5, Gone=x"); }), core::errors::elementNotFound);
    EXPECT_EQ(state(), before);
    for (core::Item* item : {LV.totals(), static_cast<core::Item*>(nullptr)}) {
        LV.setSelectedItem(item);
        EXPECT_EQ(edit(true, "Price=5"), nullptr);
    }
    EXPECT_EQ(cells().substr(0, 12), "0| Bolt |$1,");
    app.document.iLastKey = 32766;
    add("No=1");
    const std::string full = state();
    EXPECT_EQ(raisedBy([&] { add("No=2"); }), core::errors::overflow);
    EXPECT_EQ(state(), full);
    openShop("1 / Price"); // a formula that fails is told, and the record stands
    add("Price=0");
    EXPECT_TRUE(app.mainFrm.bCalcError && !told().empty());
    EXPECT_EQ(cells(), "||$.00||||;------|------|$.00|------|0|------|;");
}

TEST_F(EditRecords, DeleteAllSelectedButTheTotalsRow) {
    openShop("Price * 2", "1|a|$1.00|||;1|b|$1.00|||;1|c|$1.00|||;1|d|$1.00|||;1|e|$1.00|||");
    select({1, 4, 6, 3});
    EXPECT_TRUE(entry::deleteRecords(app));
    EXPECT_EQ(state(), "i2: 1|b|$1.00||||; >i5*: 1|e|$1.00||||; Totals*: "
                       "------|------|-$3.00|------|0|------|; 10 2 records. 2 modified multi");
    app.mainFrm.bConfirmDelete = true;
    // The last that stays becomes the current one; below two records the count shows what it showed.
    using platform::Answer;
    for (const auto& [answer, row] :
         {std::pair(Answer::Ok, "i2: "), {Answer::Yes, ">i2*: "}, {Answer::Yes, "Totals*"}}) {
        platform.answers = {answer};
        EXPECT_EQ(entry::deleteRecords(app), answer == Answer::Yes);
        EXPECT_EQ(told(), "! Confirm Deletion: Are you sure?");
        EXPECT_TRUE(state().starts_with(row)) << state();
    }
    EXPECT_TRUE(state().ends_with("10 2 records. 2 modified multi"));
    select({1});
    EXPECT_FALSE(entry::deleteRecords(app)) << "the Totals row";
    add("Name=f");
    EXPECT_TRUE(state().starts_with(">i6*: ")) << "no key comes back";
}

TEST_F(EditRecords, AreDuplicatedAsTheyAre) {
    add("No=11, Name=a, Price=10");
    LV.at(1).cells[4] = "$9.99"; // nothing is recalculated, and no counter goes on
    for (const char* none : {"", "x", "-2", "0", "$5"})
        EXPECT_EQ(duplicate(none), "- Duplicate Record: How many copies?");
    EXPECT_EQ(LV.count(), 2);
    duplicate("1.6 copies");
    EXPECT_EQ(platform.proposed.back(), "1");
    EXPECT_EQ(state(), ">i1*: 11|a|$10.00||$9.99||; i2: 11|a|$10.00||$9.99||; i3: 11|a|$10.00||$9.99||; "
                       "Totals: ------|------|$30.00|------|$39.98|------|; 11 3 records. 3 modified multi");
    const std::string before = state();
    app.document.iLastKey = 32765;
    for (const char* tooMany : {"3", "32767", "32768", "1e300"})
        EXPECT_TRUE(duplicate(tooMany).ends_with("\ni A database has no room for so many records."));
    select({4});
    EXPECT_EQ(duplicate("1"), "i You cannot duplicate the totals row.");
    select({1});
    EXPECT_EQ(state(), before);
    duplicate("2");
    EXPECT_EQ(app.document.iLastKey, 32767);
}

// Whatever is added, changed, copied and deleted: the totals are those that a plain sum gives, to the cent.
TEST_F(EditRecords, KeepTheTotals) {
    std::mt19937 random(1);
    const auto below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    for (int i = 0; i < 2000; ++i) {
        const std::string price = "Price=" + std::to_string(below(i % 9 == 0 ? 99'999'999 : 2000) - 500) +
                                  "." + std::to_string(10 + below(90));
        const int records = LV.count() - 1, act = records == 0 ? 0 : below(8);
        if (records > 0) select({1 + below(records), 1 + below(records)});
        if (act < 5) edit(act == 4, price);
        if (act == 5) duplicate("2");
        if (act > 5) entry::deleteRecords(app);
        double cents = 0;
        LV.forEach([&](const core::Item& item) {
            const std::string cell = core::format(item.cells[2], core::Mask::TwoDecimals);
            cents += item.isTotals() ? 0 : core::val(core::replaceAll(cell, ".", ""));
        });
        ASSERT_EQ(totals(), "------|------|" + core::format(cents / 100, core::Mask::Money) + "|------|" +
                                core::format(cents / 50, core::Mask::Money) + "|------|");
    }
}

} // namespace
