#include "entry/editRecord.h"

#include "core/format.h"
#include "core/totalsRow.h"
#include "recordsProgram.h"
#include "results.h"

#include <gtest/gtest.h>

using entry::BoxText;
using entry::deleteRecords;
using entry::EditRecord;
using platform::Answer;
namespace errors = core::errors;

namespace {

struct Shop : RecordsProgram {
    Shop()
        : RecordsProgram(
              {{"No", "4"}, {"Name", "3"}, {"Price", "2"}, {"Day", "1"}, {"Sum", "5"}, {"Img", "7"}}) {
        formula("Sum", "Price * 2");
        total({"Price", "Sum"});
        document.SerialsLV.add("No", "No").subItem(1) = "10";
        app.mainFrm.bConfirmDelete = false;
    }
    // A record with its part in the totals.
    core::Item& add(const char* no, const char* name, const char* price) {
        core::Item* item = EditRecord(app, false, {{"No", no}, {"Name", name}, {"Price", price}});
        return *item;
    }
    std::string serial() { return document.SerialsLV.at(1).subItem(1).str(); }
    std::string names() {
        std::string all;
        LV.forEach([&](const core::Item& item) { all += item.isTotals() ? "T" : item.cells[1].str(); });
        return all;
    }
    std::string keys() {
        std::string all;
        LV.forEach([&](const core::Item& item) { all += item.Key.str() + " "; });
        return all;
    }
    std::string selected() {
        std::string all;
        LV.forEach([&](const core::Item& item) { all += item.Selected ? "x" : "."; });
        return all;
    }
    void select(std::initializer_list<int> rows, int focused) {
        LV.MultiSelect = true;
        LV.clearSelection();
        for (const int row : rows) LV.at(row).Selected = true;
        const bool wasSelected = LV.at(focused).Selected;
        LV.setSelectedItem(&LV.at(focused));
        LV.at(focused).Selected = wasSelected;
    }
};

TEST(EditRecordTest, formsOfTheCells) {
    using core::ColumnType;
    const std::pair<ColumnType, std::vector<std::pair<const char*, const char*>>> cases[] = {
        {ColumnType::Currency,
         {{"", "$.00"},
          {"12.34", "$12.34"},
          {"1234", "$1,234.00"},
          {"-.5", "-$.50"},
          {"(1,000.005)", "-$1,000.01"},
          {" 7 ", "$7.00"},
          {"abc", "abc"},
          {"  ", "  "}}},
        {ColumnType::Number, {{"", "0"}, {"007", "007"}, {" ", " "}, {"abc", "abc"}}},
        {ColumnType::Text, {{"", ""}, {"  x ", "  x "}}},
        {ColumnType::Date, {{"", ""}, {"99/99/9999", "99/99/9999"}}},
        {ColumnType::Calculation, {{"", ""}}},
        {ColumnType::Picture, {{"a.jpg", "a.jpg"}}}};
    for (const auto& [type, cells] : cases)
        for (const auto& [typed, cell] : cells) EXPECT_EQ(entry::cellText(type, typed), cell) << typed;
}

TEST(EditRecordTest, addsARecordAheadOfTheTotals) {
    Shop shop;
    shop.app.mainFrm.Slider1.Max = 77;
    shop.app.mainFrm.panels[app::recordsPanel] = "as before";
    const core::Item* item = EditRecord(
        shop.app, false, {{"Day", "01/02/2003"}, {"Name", " Bolt "}, {"Price", "1234.5"}, {"No", ""}},
        {{"Img", "cb1.jpg"}});
    EXPECT_EQ(shop.cells(shop.LV), "0| Bolt |$1,234.50|01/02/2003|$2,469.00|cb1.jpg|;"
                                   "------|------|$1,234.50|------|$2,469.00|------|;");
    EXPECT_EQ(item, &shop.LV.at(1));
    EXPECT_EQ(item->Key, "i1");
    EXPECT_EQ(shop.LV.selectedItem(), item);
    EXPECT_EQ(shop.selected(), "x.");
    EXPECT_FALSE(shop.LV.MultiSelect);
    EXPECT_EQ(shop.panel(app::documentPanel), "Document Modified");
    // With one record the count and the slider stay.
    EXPECT_EQ(shop.panel(app::recordsPanel), "as before");
    EXPECT_EQ(shop.app.mainFrm.Slider1.Max, 77);
    shop.add("", "Nut", ".25");
    EXPECT_EQ(shop.panel(app::recordsPanel), "2 records.");
    EXPECT_EQ(shop.app.mainFrm.Slider1.Max, 2);
    EXPECT_EQ(shop.selected(), ".x.");
    EXPECT_EQ(shop.totals(), "------|------|$1,234.75|------|$2,469.50|------|");
}

TEST(EditRecordTest, aCounterAdvancesWhenANewRecordIsStoredWithSomethingInTheBox) {
    Shop shop;
    shop.add("11", "a", "");
    EXPECT_EQ(shop.serial(), "11");
    shop.add("", "b", "");
    EXPECT_EQ(shop.serial(), "11") << "an empty box uses up none";
    shop.add("500", "c", "");
    EXPECT_EQ(shop.serial(), "12") << "whatever was typed over the number proposed";
    EditRecord(shop.app, true, {{"No", "600"}});
    EXPECT_EQ(shop.serial(), "12") << "a change uses up none";
    EditRecord(shop.app, false, {{"Name", "d"}});
    EXPECT_EQ(shop.serial(), "12") << "no box at all";
}

TEST(EditRecordTest, anUpdateTakesTheOldValuesOutOfTheTotals) {
    Shop shop;
    shop.add("1", "a", "10");
    shop.add("2", "b", "20");
    shop.LV.MultiSelect = true;
    shop.LV.setSelectedItem(&shop.LV.at(1));
    shop.document.bModified = false;
    const core::Item* item = EditRecord(shop.app, true, {{"Price", "0.50"}});
    EXPECT_EQ(item, &shop.LV.at(1));
    EXPECT_EQ(shop.cells(shop.LV), "1|a|$.50||$1.00||;2|b|$20.00||$40.00||;"
                                   "------|------|$20.50|------|$41.00|------|;");
    EXPECT_EQ(shop.selected(), "x..") << "without MultiSelect one item is selected";
    EXPECT_TRUE(shop.document.bModified);
    EXPECT_EQ(shop.document.iLastKey, 2);
}

TEST(EditRecordTest, theTotalsRowIsNeverWritten) {
    Shop shop;
    shop.add("1", "a", "10");
    shop.document.bModified = false;
    const std::string before = shop.cells(shop.LV);
    for (core::Item* item : {shop.LV.totals(), static_cast<core::Item*>(nullptr)}) {
        shop.LV.MultiSelect = true;
        shop.LV.setSelectedItem(item);
        EXPECT_EQ(EditRecord(shop.app, true, {{"Price", "5"}}), nullptr);
        EXPECT_FALSE(shop.LV.MultiSelect);
    }
    EXPECT_EQ(shop.cells(shop.LV), before);
    EXPECT_FALSE(shop.document.bModified);
}

TEST(EditRecordTest, aFormulaThatFailsIsToldAndTheRecordStands) {
    Shop shop;
    shop.document.formulas.clear();
    shop.formula("Sum", "1 / Price");
    shop.add("1", "a", "0");
    EXPECT_EQ(shop.platform.messages.size(), 1U);
    EXPECT_EQ(shop.cells(shop.LV), "1|a|$.00||||;------|------|$.00|------|0|------|;");
    EXPECT_TRUE(shop.app.mainFrm.bCalcError) << "left for the next recalculation of all rows";
    EXPECT_TRUE(shop.document.bModified);
}

TEST(EditRecordTest, nothingIsWrittenForABoxOfNoColumn) {
    Shop shop;
    shop.add("1", "a", "10");
    const std::string before = shop.cells(shop.LV);
    for (const bool bUpdate : {false, true})
        EXPECT_EQ(raisedBy([&] {
                      EditRecord(shop.app, bUpdate, {{"Price", "5"}, {"Gone", "x"}});
                  }),
                  errors::elementNotFound);
    EXPECT_EQ(shop.cells(shop.LV), before);
    EXPECT_EQ(shop.document.iLastKey, 1);
}

TEST(EditRecordTest, theLastKeyLeavesTheDocumentAsItWas) {
    Shop shop;
    shop.add("1", "a", "10");
    shop.document.iLastKey = 32766;
    shop.add("2", "b", "20");
    EXPECT_EQ(shop.keys(), "i1 i32767 Totals ");
    const std::string before = shop.cells(shop.LV);
    EXPECT_EQ(raisedBy([&] { shop.add("3", "c", "30"); }), errors::overflow);
    EXPECT_EQ(shop.cells(shop.LV), before);
    EXPECT_EQ(shop.serial(), "12");
}

// Results of a search: the same values reach the record and its row among the results.
struct Results : Shop {
    Results() {
        for (const char* name : {"a", "b", "c"}) add("1", name, "10");
        showResults(app, {"i1", "i3"});
    }
    core::RecordsList& results = document.searchLV;
};

TEST(EditRecordTest, anUpdateOfAResultReachesTheRecord) {
    Results shop;
    shop.LV.setSelectedItem(&shop.LV.at(2));
    shop.results.setSelectedItem(&shop.results.at(2));
    EXPECT_EQ(EditRecord(shop.app, true, {{"Name", "C"}, {"Price", "1"}}), &shop.LV.at(3));
    EXPECT_EQ(shop.names(), "abCT");
    EXPECT_EQ(shop.cells(shop.results),
              "1|a|$10.00||$20.00||;1|C|$1.00||$2.00||;------|------|------|------|------|------|;");
    EXPECT_EQ(shop.totals(), "------|------|$21.00|------|$42.00|------|");
    EXPECT_EQ(shop.LV.selectedItem(), &shop.LV.at(3));
    shop.results.setSelectedItem(shop.results.totals());
    EXPECT_EQ(EditRecord(shop.app, true, {{"Name", "X"}}), nullptr);
    EXPECT_EQ(shop.names(), "abCT");
}

TEST(DeleteRecordsTest, deletesAllSelectedButTheTotalsRow) {
    Shop shop;
    for (const char* name : {"a", "b", "c", "d", "e"}) shop.add("1", name, "10");
    shop.select({1, 3, 4, 6}, 3);
    shop.document.bModified = false;
    EXPECT_TRUE(deleteRecords(shop.app));
    EXPECT_EQ(shop.names(), "beT");
    EXPECT_EQ(shop.keys(), "i2 i5 Totals ");
    EXPECT_EQ(shop.LV.selectedItem(), &shop.LV.at(2)) << "the next one that stays";
    EXPECT_TRUE(shop.LV.at(2).Selected && !shop.LV.at(1).Selected);
    EXPECT_EQ(shop.totals(), "------|------|$20.00|------|$40.00|------|");
    EXPECT_EQ(shop.panel(app::recordsPanel), "2 records.");
    EXPECT_EQ(shop.app.mainFrm.Slider1.Max, 2);
    EXPECT_TRUE(shop.document.bModified);
    shop.add("1", "f", "1");
    EXPECT_EQ(shop.keys(), "i2 i5 i6 Totals ") << "no key comes back";
}

TEST(DeleteRecordsTest, theTotalsStayZeroAndTheCountStaysWhenAllGo) {
    Shop shop;
    for (const char* name : {"a", "b"}) shop.add("1", name, "10.10");
    shop.select({1, 2}, 1);
    EXPECT_TRUE(deleteRecords(shop.app));
    EXPECT_EQ(shop.names(), "T");
    EXPECT_EQ(shop.totals(), "------|------|$.00|------|$.00|------|");
    EXPECT_EQ(shop.panel(app::recordsPanel), "2 records.") << "below two records it shows what it showed";
    EXPECT_EQ(shop.app.mainFrm.Slider1.Max, 2);
    EXPECT_FALSE(deleteRecords(shop.app));
}

TEST(DeleteRecordsTest, whatStopsIt) {
    Shop shop;
    for (const char* name : {"a", "b"}) shop.add("1", name, "10");
    shop.app.mainFrm.bConfirmDelete = true;
    shop.document.bModified = false;
    shop.platform.answers = {Answer::Yes};
    shop.select({1, 2, 3}, 3);
    EXPECT_FALSE(deleteRecords(shop.app)) << "the Totals row has the focus";
    EXPECT_TRUE(shop.platform.messages.empty());
    shop.select({1}, 1);
    for (const Answer answer : {Answer::No, Answer::Cancel, Answer::Ok}) {
        shop.platform.answers = {answer};
        EXPECT_FALSE(deleteRecords(shop.app));
    }
    EXPECT_EQ(shop.names(), "abT");
    EXPECT_FALSE(shop.document.bModified);
    EXPECT_EQ(shop.platform.told(), "2|Confirm Deletion|Are you sure?");
    shop.platform.answers = {Answer::Yes};
    EXPECT_TRUE(deleteRecords(shop.app));
    EXPECT_EQ(shop.names(), "bT");
    shop.platform.answers = {Answer::Yes};
    EXPECT_TRUE(deleteRecords(shop.app)) << "again, with no click in between";
    EXPECT_EQ(shop.names(), "T");
}

TEST(DeleteRecordsTest, sumsOfManyRecordsStayRightToTheCent) {
    Shop shop;
    shop.document.formulas.clear();
    int left = 0; // in cents
    for (int i = 0; i < 3000; ++i) {
        shop.LV.add(shop.document.nextKey()).cells[2] =
            "$" + std::to_string(i % 100) + "." + std::to_string(i % 90 + 10);
        if (i % 3 != 0) left += i % 100 * 100 + i % 90 + 10;
    }
    core::moveTotals(shop.LV);
    const core::TotalsRowUpdater updater(shop.document, shop.LV);
    shop.LV.forEach([&](const core::Item& item) {
        if (!item.isTotals()) updater.update(core::TotalsMode::Add, item);
    });
    int index = 0;
    shop.LV.forEach([&](core::Item& item) { item.Selected = index++ % 3 == 0; });
    shop.LV.setSelectedItem(&shop.LV.at(1));
    EXPECT_TRUE(deleteRecords(shop.app));
    EXPECT_EQ(shop.LV.count(), 2001);
    EXPECT_EQ(shop.LV.totals()->cells[2], core::format(left / 100.0, core::Mask::Money));
}

TEST(DuplicateTest, howManyCopies) {
    struct Case {
        const char* answer;
        int copies;
    };
    const Case cases[] = {{"3", 3}, {"2.6", 3}, {"2.5", 2}, {"3.5", 4}, {" 2 ", 2},   {"1 copy", 1},
                          {"", 0},  {"x", 0},   {"-2", 0},  {"0", 0},   {"1,000", 1}, {"$5", 0}};
    for (const Case& c : cases) {
        Shop shop;
        shop.add("1", "a", "10");
        shop.document.bModified = false;
        shop.platform.inputs = {c.answer};
        entry::mnuDuplicate_Click(shop.app);
        EXPECT_EQ(shop.LV.count(), 2 + c.copies) << c.answer;
        EXPECT_TRUE(shop.document.bModified) << c.answer;
        EXPECT_EQ(shop.platform.told(), "0|Duplicate Record|How many copies?");
    }
}

TEST(DuplicateTest, copiesTheCellsAsTheyAre) {
    Shop shop;
    core::Item& source = shop.add("11", "a", "10");
    shop.add("12", "b", "1");
    source.cells[4] = "$9.99";
    source.cells[5] = "cb1.jpg";
    shop.select({1}, 1);
    shop.platform.inputs = {"2"};
    entry::mnuDuplicate_Click(shop.app);
    EXPECT_EQ(shop.names(), "abaaT");
    EXPECT_EQ(shop.keys(), "i1 i2 i3 i4 Totals ");
    EXPECT_EQ(shop.cell(4, "Sum"), "$9.99") << "nothing is recalculated";
    EXPECT_EQ(shop.cell(4, "Img"), "cb1.jpg");
    EXPECT_EQ(shop.serial(), "12") << "no counter moves on";
    EXPECT_EQ(shop.totals(), "------|------|$31.00|------|$41.98|------|");
    EXPECT_EQ(shop.panel(app::recordsPanel), "4 records.");
    EXPECT_EQ(shop.app.mainFrm.Slider1.Max, 4);
    EXPECT_EQ(shop.LV.selectedItem(), &source);
    EXPECT_EQ(shop.selected(), "x....");
}

TEST(DuplicateTest, refusesTheTotalsRowAndMoreKeysThanThereAre) {
    Shop shop;
    shop.add("1", "a", "10");
    shop.document.bModified = false;
    shop.select({2}, 2);
    entry::mnuDuplicate_Click(shop.app);
    EXPECT_EQ(shop.platform.told(), "1|Ferrowick|You cannot duplicate the totals row.");
    EXPECT_FALSE(shop.document.bModified);
    shop.select({1}, 1);
    shop.document.iLastKey = 32765;
    const std::string before = shop.cells(shop.LV);
    for (const char* tooMany : {"3", "32767", "32768", "1e300"}) {
        shop.platform.inputs = {tooMany};
        entry::mnuDuplicate_Click(shop.app);
        EXPECT_EQ(shop.platform.lastMessage(), "A database has no room for so many records.") << tooMany;
    }
    EXPECT_EQ(shop.cells(shop.LV), before);
    EXPECT_EQ(shop.document.iLastKey, 32765);
    shop.platform.inputs = {"2"};
    entry::mnuDuplicate_Click(shop.app);
    EXPECT_EQ(shop.keys(), "i1 i32766 i32767 Totals ");
}

} // namespace
