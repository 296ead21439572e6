#include "core/sorting.h"
#include "core/totalsRow.h"
#include "databases.h"
#include "raised.h"
#include "readings.h"

#include <random>

using namespace core;

TEST(CellText, KeepsTextsOfEveryLengthThroughCopiesAndMoves) {
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string text(size, 'x'), other = "other text, longer than fits";
        CellText cell(text), copy(cell), moved(std::move(cell)), self(text + other);
        EXPECT_TRUE(copy == text && moved == text && copy.empty() == (size == 0)) << size;
        copy = other;
        moved = copy;
        copy = text;
        EXPECT_TRUE(copy == text && moved == other && copy.size() == size) << size;
        self = self.view().substr(size);
        EXPECT_EQ(self, other);
    }
}

TEST(ColumnHeaders, FindByNameInAnyCaseAndRefuseASecond) {
    ColumnHeaders columns;
    for (const char* name : {"Index", "Größe", "Last"}) columns.add(name, name);
    EXPECT_EQ(columns.find("GRÖSSE"), nullptr);
    EXPECT_EQ(columns["GRÖßE"].Index, 2);
    EXPECT_EQ(raisedBy([&] { columns.add("größe", "größe"); }), errors::keyNotUnique);
    EXPECT_EQ(raisedBy([&] { columns.rename(3, "größe"); }), errors::keyNotUnique);
    EXPECT_EQ(raisedBy([&] { (void)columns["Weight"]; }), errors::elementNotFound);
    for (const int beyond : {0, 4})
        EXPECT_EQ(raisedBy([&] { columns.at(beyond); }), errors::indexOutOfBounds);
    columns.rename(2, "GRÖßE");
    columns.rename(2, "Size");
    EXPECT_EQ(columns.find("Größe"), nullptr);
    columns.remove(2);
    EXPECT_EQ(columns["LAST"].Index, 2);
}

// The columns as shown, and what was asked for; a whole arrangement is taken as it stands.
TEST(ColumnHeaders, TakePositions) {
    expectEach("4321 -> 4 3 2 1|9 1 1 -5; 3124 -> 2 3 1 4; 1342 -> 1 4; 1234 -> 1 2 3 5|; 1432 -> 2 2 2 2; "
               "Index out of bounds -> 5 4 3 2 1",
               [](const std::string& text) {
                   std::istringstream positions(text);
                   ColumnHeaders columns;
                   for (const char* name : {"Index", "A", "B", "C"}) columns.add(name, name);
                   columns.setPositions({std::istream_iterator<int>(positions), {}});
                   std::string order;
                   for (const int index : columns.displayOrder()) order += std::to_string(index);
                   columns.remove(2); // the rest closes up
                   EXPECT_EQ(columns.displayOrder().size(), 3U);
                   return order;
               });
}

struct Records : testing::Test, Program {
    RecordsList& list = app.document.LV;
};

TEST_F(Records, KeysAndIndexesFollowTheItems) {
    open(DataFile("A", "x;y;z"));
    EXPECT_EQ(list.find("I2"), &list.at(2));
    list.remove(list.at(1));
    EXPECT_EQ(list.indexOf(list.byKey("i2")), 1);
    EXPECT_EQ(list.find("i1"), nullptr);
    list.setSelectedItem(&list.add("i9"));
    EXPECT_EQ(list.indexOf(list.byKey("i9")), 4);
    EXPECT_EQ(raisedBy([&] { list.byKey("i77"); }), errors::elementNotFound);
    for (const int beyond : {0, 5}) EXPECT_EQ(raisedBy([&] { list.at(beyond); }), errors::indexOutOfBounds);
    EXPECT_EQ(list.removeIf([](const Item& item) { return !item.isTotals(); }), 3);
    EXPECT_EQ(list.find("i9"), nullptr);
    EXPECT_EQ(list.selectedItem(), nullptr);
    EXPECT_EQ(list.totals(), &list.at(1));
}

TEST_F(Records, TheTotalsRowGoesLastAndTheOneBeforeItIsSelected) {
    open(DataFile("A B", "x|y"));
    list.totals()->cells[0] = "12";
    list.add("i2").cells = {"v", "w"};
    moveTotals(list);
    EXPECT_EQ(cells(), "x|y|;v|w|;12|------|;");
    EXPECT_EQ(list.at(3).Text, "Totals");
    EXPECT_EQ(list.selectedItem(), &list.at(2));
    EXPECT_TRUE(list.MultiSelect && list.at(2).Selected);
    list.MultiSelect = false; // now one item takes the selection from the others
    list.setSelectedItem(&list.at(3));
    EXPECT_TRUE(!list.at(2).Selected && list.at(3).Selected);
    list.totals()->cells[0] = "1|2"; // travels as text, so what follows shifts
    moveTotals(list);
    EXPECT_EQ(totals(), "1|2|");
}

TEST(Sorting, KeysOfTheTypes) {
    for (const auto& c : table(
             "1 -> 05/04/2001 -> 20010504; 1; 1 -> 5/4/2001 -> 20015//2; 4 -> 42 ->                     42; "
             "2 -> é ->                      é; 4 -> 1234567890123456789012345 -> 1234567890123456789012345",
             3))
        EXPECT_EQ(sortKeyOf(c[1], static_cast<ColumnType>(std::stoi(c[0]))), c[2]) << c[1];
}

// The first click sorts downwards, each turns round, whatever its column; equal ones keep their order.
TEST_F(Records, SortLikeAPlainStableSort) {
    std::mt19937 random(7);
    std::vector<std::pair<std::string, int>> rows;
    std::string all;
    for (int i = 0; i < 500; ++i) {
        std::string text(random() % 12, ' ');
        for (char& c : text) c = static_cast<char>((i % 2 == 0 ? 'a' : 'A') + random() % 3);
        rows.emplace_back(text, i % 100);
        all += text + "|" + std::to_string(i % 100) + ";";
    }
    open(DataFile("Name No:4", all));
    list.remove(*list.totals());
    const auto expectSorted = [&](const auto& order, const auto& key) {
        std::ranges::stable_sort(rows, order, key);
        std::string wanted;
        for (const auto& [name, no] : rows) wanted += name + "|" + std::to_string(no) + "|;";
        EXPECT_EQ(cells(), wanted);
    };
    const auto name = [](const auto& row) { return upper(row.first); };
    const auto no = [](const auto& row) { return row.second; };
    sortByColumnKey(list, list.columns["Name"]);
    expectSorted(std::greater(), name);
    sortByColumnKey(list, list.columns["Name"]);
    expectSorted(std::less(), name);
    sortByHiddenColumn(list, list.columns["No"]);
    expectSorted(std::greater(), no);
    sortByColumnKey(list, list.columns["No"]);
    expectSorted(std::less(), no);
}
