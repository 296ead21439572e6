#include "core/document.h"
#include "core/runTimeError.h"
#include "core/sorting.h"
#include "core/totalsRow.h"

#include <gtest/gtest.h>

#include <random>

using namespace core;

namespace {

struct Fixture : testing::Test {
    Document document;
    RecordsList& list = document.LV;

    void addColumn(const char* name, const char* tag) { list.columns.add(name, name).setTypeFromFile(tag); }
    Item& addRecord(std::initializer_list<const char*> cells) {
        Item& item = list.add(document.nextKey());
        std::size_t i = 0;
        for (const char* cell : cells) item.cells.at(i++) = cell;
        return item;
    }
    std::string column(int subItem) {
        std::string all;
        list.forEach([&](const Item& item) { all += item.subItem(subItem).str() + ";"; });
        return all;
    }
    std::string totalsText() {
        std::string all;
        for (const CellText& cell : list.totals()->cells) all += cell.str() + ";";
        return all;
    }
};

using RecordsListTest = Fixture;
using SortingTest = Fixture;
using TotalsRowTest = Fixture;

} // namespace

TEST(CellText, keepsTextsOfEveryLengthThroughCopiesAndMoves) {
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string text(size, 'x'), other = "other text, longer than fits";
        CellText cell(text);
        CellText copy(cell);
        CellText moved(std::move(cell));
        EXPECT_EQ(copy, text) << size;
        EXPECT_EQ(moved, text) << size;
        copy = other;
        moved = copy;
        EXPECT_EQ(moved, other);
        copy = text;
        EXPECT_EQ(copy, text);
        EXPECT_EQ(copy.empty(), size == 0);
    }
    CellText self("a text that needs a block of its own");
    self = self.view().substr(2, 20);
    EXPECT_EQ(self, "text that needs a bl");
}

TEST(ColumnHeaders, findsByNameInAnyCaseAndRefusesASecond) {
    ColumnHeaders columns;
    columns.add("Index", "Index", 0);
    columns.add("Größe", "Größe");
    EXPECT_EQ(columns.find("GRÖSSE"), nullptr);
    ASSERT_NE(columns.find("GRÖßE"), nullptr);
    EXPECT_THROW(columns.add("größe", "größe"), RunTimeError);
    EXPECT_THROW(columns["Weight"], RunTimeError);
    EXPECT_THROW(columns.at(3), RunTimeError);
    columns.rename(2, "Size");
    EXPECT_EQ(columns.find("Größe"), nullptr);
    EXPECT_EQ(columns["size"].Index, 2);
}

TEST(ColumnHeaders, positions) {
    const std::pair<std::vector<int>, std::vector<int>> cases[] = {
        // asked, and table indexes as shown
        {{1, 2, 3, 4}, {1, 2, 3, 4}}, {{4, 3, 2, 1}, {4, 3, 2, 1}},  {{2, 3, 1, 4}, {3, 1, 2, 4}},
        {{1, 4}, {1, 3, 4, 2}},       {{9, 1, 1, -5}, {4, 3, 2, 1}}, {{}, {1, 2, 3, 4}}};
    for (const auto& [asked, order] : cases) {
        ColumnHeaders columns;
        for (const char* name : {"Index", "A", "B", "C"}) columns.add(name, name);
        columns.setPositions(asked);
        EXPECT_EQ(columns.displayOrder(), order) << testing::PrintToString(asked);
    }
    ColumnHeaders columns;
    columns.add("Index", "Index");
    EXPECT_THROW(columns.setPositions({1, 2}), RunTimeError);
    columns.add("A", "A");
    columns.add("B", "B");
    columns.remove(2);
    EXPECT_EQ(columns.displayOrder(), (std::vector<int>{1, 2}));
}

TEST_F(RecordsListTest, keysAndIndexesFollowTheItems) {
    addColumn("A", "3");
    for (const char* cell : {"x", "y", "z"}) addRecord({cell});
    addTotalsRow(list);
    EXPECT_EQ(list.find("I2"), &list.at(2));
    list.remove(list.at(1));
    EXPECT_EQ(list.indexOf(list.byKey("i2")), 1);
    EXPECT_EQ(list.find("i1"), nullptr);
    EXPECT_EQ(list.add("i9").cells.size(), 1U);
    EXPECT_EQ(list.indexOf(list.byKey("i9")), 4);
    EXPECT_THROW(list.byKey("i77"), RunTimeError);
    EXPECT_EQ(list.removeIf([](const Item& item) { return !item.isTotals(); }), 3);
    EXPECT_EQ(list.find("i9"), nullptr);
    EXPECT_EQ(list.totals(), &list.at(1));
}

TEST_F(RecordsListTest, moveTotalsPutsTheRowLastAndSelectsTheOneBeforeIt) {
    addColumn("A", "3");
    addColumn("B", "3");
    addTotalsRow(list).cells[0] = "12";
    addRecord({"x", "y"});
    moveTotals(list);
    EXPECT_TRUE(list.at(2).isTotals());
    EXPECT_EQ(list.at(2).Text, "Totals");
    EXPECT_EQ(totalsText(), "12;------;");
    EXPECT_EQ(list.selectedItem(), &list.at(1));
    EXPECT_TRUE(list.MultiSelect && list.at(1).Selected);
    list.MultiSelect = false; // now one item takes the selection from the others
    list.setSelectedItem(&list.at(2));
    EXPECT_FALSE(list.at(1).Selected);
    EXPECT_TRUE(list.at(2).Selected);
    list.totals()->cells[0] = "1|2"; // travels as text, so what follows shifts
    moveTotals(list);
    EXPECT_EQ(totalsText(), "1;2;");
}

TEST_F(SortingTest, keysOfTheTypes) {
    const std::string pad(20, ' ');
    const struct {
        ColumnType type;
        std::string cell, key;
    } cases[] = {{ColumnType::Date, "05/04/2001", "20010504"},
                 {ColumnType::Date, "", ""},
                 {ColumnType::Date, "5/4/2001", "20015//2"},
                 {ColumnType::Number, "42", pad + "42"},
                 {ColumnType::Currency, "é", pad + " é"},
                 {ColumnType::Number, "1234567890123456789012345", "1234567890123456789012345"}};
    for (const auto& c : cases) EXPECT_EQ(sortKeyOf(c.cell, c.type), c.key) << c.cell;
}

// The first click sorts downwards, each turns round, whatever its column; equal ones keep their order.
TEST_F(SortingTest, agreesWithAPlainStableSortInBothDirections) {
    addColumn("Name", "3");
    addColumn("No", "4");
    std::mt19937 random(7);
    std::vector<std::pair<std::string, std::string>> rows;
    for (int i = 0; i < 500; ++i) {
        std::string text;
        for (unsigned size = random() % 12; size > 0; --size) text += static_cast<char>('A' + random() % 3);
        rows.emplace_back(text, std::to_string(i % 100));
        if (i % 2 == 0) std::ranges::transform(text, text.begin(), [](char c) { return c + 'a' - 'A'; });
        addRecord({text.c_str(), rows.back().second.c_str()});
    }
    const auto expectOrder = [&] {
        std::string expected;
        for (const auto& row : rows) expected += row.second + ";";
        EXPECT_EQ(column(2), expected);
    };
    const auto name = &std::pair<std::string, std::string>::first;
    sortByColumnKey(list, list.columns["Name"]);
    std::ranges::stable_sort(rows, std::greater<>(), name);
    expectOrder();
    sortByColumnKey(list, list.columns["Name"]);
    std::ranges::stable_sort(rows, {}, name);
    expectOrder();
    sortByHiddenColumn(list, list.columns["No"]);
    std::ranges::stable_sort(rows, std::greater<>(), [](const auto& row) { return std::stoi(row.second); });
    expectOrder();
    EXPECT_EQ(list.at(1).cells.size(), 2U);
}

TEST_F(TotalsRowTest, addsSubtractsAndSumsAll) {
    for (const auto& [name, type] : {std::pair("Qty", "4"), {"Price", "2"}, {"Value", "5"}}) {
        addColumn(name, type);
        document.totaledCols.add(name, name);
    }
    document.totaledCols.add("Gone", "Gone");
    addRecord({"1,234", "$1,234.50", "3"}); // without money a comma ends the number
    addRecord({"2", "$.50", "4.50"});
    addTotalsRow(list);
    for (const int row : {1, 2}) UpdateTotalsRow(document, TotalsMode::Add, list, row);
    EXPECT_EQ(totalsText(), "3;$1,235.00;$7.50;");
    UpdateTotalsRow(document, TotalsMode::Subtract, list, 1);
    EXPECT_EQ(totalsText(), "2;$.50;4.5;");
}
