#include "core/text.h"
#include "raised.h"
#include "searchProgram.h"

#include <array>
#include <random>

namespace {

// Searches of one column of a type, and what each finds; "error" where it ends in a run-time error.
void check(const char* type, const std::string& cells, const char* cases) {
    SearchProgram program(DataFile(std::string("C:") + type, cells));
    for (const auto& each : table(cases)) {
        std::string found;
        const int error = raisedBy([&] { found = program.find("C " + each[0]); });
        EXPECT_EQ(error == core::errors::typeMismatch ? "error" : found, each[1]) << type << each[0];
        EXPECT_TRUE(program.app.document.searchLV.Visible) << each[0];
    }
}

TEST(Engine, NumbersInNumericColumns) {
    // Cells and values with a point are rounded to two places, a half away from zero. A comma ends a cell
    // without one, and a dollar sign makes it 0, as any text is. No upper bound is 0 too. What is within is
    // sought as a number, in the cell as it stands.
    for (const char* type : {"2", "4", "5"})
        check(type, "5;5.00;5.001;5.01;1,234;$1,234.50;-3;;12.5;$5",
              "= 5 -> i1 i2 i3; = 5.004 -> i1 i2 i3; = 5.005 -> i4; = 1 -> i5; = $1,234.5 -> i6; = 0 -> i8 "
              "i10; =   12.5  -> i9; >= abc -> i1 i2 i3 i4 i5 i6 i8 i9 i10; >= 12.5 -> i6 i9; <= 0 -> i7 i8 "
              "i10; .. 5 to 12.5 -> i1 i2 i3 i4 i9; .. 1 -> -; .. -3 to   -> i7 i8 i10; ~ 12.50 -> i9; ~ 5.0 "
              "-> i1 i2 i3 i4 i6 i9 i10; ~ 1,234 -> -");
}

TEST(Engine, TextsInAllOtherColumns) {
    // The bounds of a range are in upper case, the cells not.
    for (const char* type : {"1", "3", "7"})
        check(type, "abc; ABC ;Janet;BANANA;;été;Abd;lap dog",
              "=  aBc  -> i1 i2; ~ an -> i3 i4; ~ P D -> i8; = ÉTÉ -> i6; >= abd -> i3 i4 i6 i7 i8; <= abc "
              "-> i1 i2 i5; .. banana to BANANA -> i4; .. a -> -");
    check("3", "abc; ABC ;Abd;b", ".. a to b -> i3");
}

TEST(Engine, DatesWhereverACellReadsLikeOne) {
    const std::string cells = "01/05/2004;Jan 5 2004;2004-01-06;12/31/2003;;5 Jan 04;1/5/2004 10:30";
    for (const char* type : {"1", "3", "7"}) {
        // Within is in upper case, and the cell is not.
        check(type, cells,
              "= 1/5/2004 -> i1 i2 i6 i7; = jan 5, 2004 -> i1 i2 i6 i7; >= 01/06/2004 -> i3; <= 1/1/2004 -> "
              "i4 i5; .. 1/1/2004 to 1/5/2004 -> i1 i2 i6 i7; ~ JAN -> -; ~ /2004 -> i1 i7");
        // A bound that is no date ends the search at the first cell that is one.
        check(type, "abc;1/5/2004;xyz",
              ">= abc -> error; <= abc -> error; = 12 -> error; ~ abc -> i1; .. 1/1/2004 -> error; .. "
              "1/1/2030 to abc -> error; .. 1/1/2004 to 1/1/2005 -> i2");
        check(type, "abc;xyz", ">= x -> i2");
    }
    check("4", cells, "= 1/5/2004 -> i1 i7"); // a numeric column never compares days
}

// Records of plain words and whole numbers, for which a loop can tell what is found; blank groups end the
// chain.
TEST(Engine, FindsWhatALoopFinds) {
    std::mt19937 random(5);
    const auto word = [&] { return std::string(1 + random() % 3, static_cast<char>('a' + random() % 4)); };
    const auto number = [&] { return static_cast<int>(random() % 40) - 9; };
    std::vector<std::pair<std::string, int>> rows;
    std::string records;
    for (int i = 0; i < 200; ++i) {
        rows.emplace_back(word(), number());
        records += rows.back().first + "|" + std::to_string(rows.back().second) + ";";
    }
    SearchProgram program(DataFile("Name Qty:4", records));
    for (int round = 0; round < 60; ++round) {
        std::vector<bool> wanted(rows.size(), true);
        std::string groups, keys;
        const std::size_t count = 1 + random() % 3, blank = random() % 5;
        for (std::size_t group = 0; group < count; ++group) {
            const std::string name = word(), option = std::array{">=", "<=", "="}[random() % 3];
            const int qty = number();
            const bool byName = random() % 2 == 0;
            groups += (group > 0 ? " & " : "") + std::string(byName ? "Name " : "Qty ") + option + " ";
            groups += group == blank ? " " : byName ? core::upper(name) : std::to_string(qty);
            for (std::size_t i = 0; i < rows.size() && group < blank; ++i) {
                const auto order = byName ? rows[i].first <=> name : rows[i].second <=> qty;
                if (option == ">=" ? order < 0 : option == "<=" ? order > 0 : order != 0) wanted[i] = false;
            }
        }
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (wanted[i] && blank > 0) keys += (keys.empty() ? "i" : " i") + std::to_string(i + 1);
        EXPECT_EQ(program.find(groups), keys.empty() ? "-" : keys) << groups;
    }
}

TEST(Engine, ResultsAreCopiesWithATotalsRowOfTheirOwn) {
    SearchProgram program(DataFile("Name Qty:4 Price:2", "Bolt|12|$1.50;Nut|7|$.25;Bolt|7|$2.00")
                              .section("Totaled Cols", "Qty|Price|"));
    core::Document& document = program.app.document;
    const std::string before = program.cells();
    // Each search begins with all records. The end of the dialog empties the sums of the selected.
    for (const auto& c : table("Name = bolt -> i1 i3 -> Bolt|12|$1.50|;Bolt|7|$2.00|;------|19|$3.50| -> 2 "
                               "records. |;|; Name = nut -> i2 -> Nut|7|$.25|;------|7|$.25| -> 1 records. "
                               "|;|; Name = screw -> - -> ------|------|------| -> 1 records. |;|",
                               4)) {
        EXPECT_EQ(program.find(c[0]), c[1]);
        EXPECT_EQ(Program::cells(document.searchLV), c[2] + ";");
        EXPECT_EQ(program.panel(app::recordsPanel) + " " + Program::cells(document.LV3), c[3] + ";");
        EXPECT_EQ(program.app.mainFrm.theListView, &document.searchLV);
        EXPECT_TRUE(document.searchLV.at(document.searchLV.count()).isTotals());
        EXPECT_TRUE(program.cells() == before && !document.bModified);
    }
    program.openCopyOf("invoices.fwk"); // invoices are found by the rows on show
    const core::Column& column = document.iLV.columns.at(2);
    ASSERT_NE(program.find(column.Text + " ~ " + core::RecordsList::cell(document.iLV.at(2), column).str()),
              "-");
    const core::Item& result = document.searchLV.at(1);
    EXPECT_TRUE(result.Key.empty() && result.Text == result.Tag && document.LV.find(result.Tag) != nullptr);
    EXPECT_EQ(document.searchLV.columns.count(), document.iLV.columns.count());
}

} // namespace
