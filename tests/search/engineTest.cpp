#include "searchProgram.h"

#include "core/runTimeError.h"

using namespace search;

namespace {

constexpr const char* dateType = "1";
constexpr const char* currencyType = "2";
constexpr const char* textType = "3";
constexpr const char* numberType = "4";
constexpr const char* calculationType = "5";
constexpr const char* pictureType = "7";

// Each row of a table searches one column; the cells and what is found are named by their keys.
struct Case {
    const char* why;
    const char* type;
    int option;
    const char* value;
    const char* to;
    const char* found;
};

void check(const std::vector<std::string>& cells, const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        SearchProgram program(oneColumn(c.type, cells));
        EXPECT_EQ(program.find({{"C", c.option, c.value, c.to}}), c.found) << c.why;
    }
}

TEST(Engine, NumbersInNumericColumns) {
    check(
        {"5", "5.00", "5.001", "5.01", "1,234", "$1,234.50", "-3", "", "12.5", "$5"},
        {
            {"rounded to two places", currencyType, exact, "5", "", "i1 i2 i3"},
            {"the value is rounded too", currencyType, exact, "5.004", "", "i1 i2 i3"},
            {"a half away from zero", numberType, exact, "5.005", "", "i4"},
            {"a comma ends a cell without a point", numberType, exact, "1", "", "i5"},
            {"with a point the comma does not", calculationType, exact, "$1,234.5", "", "i6"},
            {"a dollar sign without a point", numberType, exact, "0", "", "i8 i10"},
            {"what is no number is 0", numberType, greaterOrEqual, "abc", "", "i1 i2 i3 i4 i5 i6 i8 i9 i10"},
            {"below", numberType, lessOrEqual, "0", "", "i7 i8 i10"},
            {"both ends belong to it", numberType, range, "5", "12.5", "i1 i2 i3 i4 i9"},
            {"no upper bound is 0", numberType, range, "1", "", "-"},
            {"and reaches up to 0", currencyType, range, "-3", " ", "i7 i8 i10"},
            {"the number is sought within", numberType, within, "12.50", "", "i9"},
            {"in the cell as it stands", currencyType, within, "5.0", "", "i1 i2 i3 i4 i6 i9 i10"},
            {"with its commas", numberType, within, "1,234", "", "-"},
            {"blanks around are nothing", numberType, exact, "  12.5 ", "", "i9"},
        });
}

TEST(Engine, TextsInAllOtherColumns) {
    check({"abc", " ABC ", "Janet", "BANANA", "", "\xC3\xA9t\xC3\xA9", "Abd", "lap dog"},
          {
              {"trimmed and in any case", textType, exact, " aBc ", "", "i1 i2"},
              {"in a Picture column too", pictureType, exact, "ABC", "", "i1 i2"},
              {"within", textType, within, "an", "", "i3 i4"},
              {"within, blanks inside the value count", textType, within, "P D", "", "i8"},
              {"accents fold", textType, exact, "\xC3\x89T\xC3\x89", "", "i6"},
              {"above, by code", textType, greaterOrEqual, "abd", "", "i3 i4 i6 i7 i8"},
              {"below: the empty cell too", textType, lessOrEqual, "abc", "", "i1 i2 i5"},
              {"range: bounds in upper case, cells not", textType, range, "a", "b", "i7"},
              {"range without an upper bound", textType, range, "a", "", "-"},
              {"a Date column's texts are texts", dateType, within, "AN", "", "i3 i4"},
          });
}

TEST(Engine, DatesWhereverACellReadsLikeOne) {
    const std::vector<std::string> cells = {"01/05/2004", "Jan 5 2004", "2004-01-06",    "12/31/2003",
                                            "",           "5 Jan 04",   "1/5/2004 10:30"};
    for (const char* type : {dateType, textType, pictureType})
        check(cells, {
                         {"the day, in whatever form", type, exact, "1/5/2004", "", "i1 i2 i6 i7"},
                         {"other form of the value", type, exact, "jan 5, 2004", "", "i1 i2 i6 i7"},
                         {"from", type, greaterOrEqual, "01/06/2004", "", "i3"},
                         {"up to, and blank cells as texts", type, lessOrEqual, "1/1/2004", "", "i4 i5"},
                         {"range", type, range, "1/1/2004", "1/5/2004", "i1 i2 i6 i7"},
                         {"within is upper case in the raw cell", type, within, "JAN", "", "-"},
                         {"within digits", type, within, "/2004", "", "i1 i7"},
                     });
    // A numeric column never compares days.
    check(cells, {{"numbers", numberType, exact, "1/5/2004", "", "i1 i7"}});
}

TEST(Engine, ADateThatCannotBeReadEndsTheSearch) {
    struct {
        int option;
        const char* value;
        const char* to;
        bool fails;
    } const cases[] = {{greaterOrEqual, "abc", "", true},
                       {lessOrEqual, "abc", "", true},
                       {exact, "12", "", true},
                       {within, "abc", "", false},
                       {range, "1/1/2004", "", true},
                       {range, "1/1/2030", "abc", true},
                       {range, "1/1/2004", "1/1/2005", false}};
    for (const auto& c : cases) {
        SearchProgram program(oneColumn(textType, {"abc", "1/5/2004", "xyz"}));
        try {
            program.find({{"C", c.option, c.value, c.to}});
            EXPECT_FALSE(c.fails) << c.option << c.value;
        } catch (const core::RunTimeError& error) {
            EXPECT_TRUE(c.fails) << c.option << c.value;
            EXPECT_EQ(error.number, core::errors::typeMismatch);
            EXPECT_TRUE(program.app.document.searchLV.Visible); // it stopped in the middle
        }
    }
    // Only a cell that is a date asks for one.
    SearchProgram program(oneColumn(dateType, {"abc", "xyz"}));
    EXPECT_EQ(program.find({{"C", greaterOrEqual, "x", ""}}), "i2");
}

TEST(Engine, GroupsAreChainedUpToTheFirstBlankOne) {
    const std::string books = "Bolt|12|$1.50|\r\nNut|7|$.25|\r\nBolt|7|$2.00|\r\n------|------|------|\r\n";
    DataFile data;
    data.rows = books;
    const Group bolt{"Name", exact, "bolt", ""};
    const Group seven{"Qty", exact, "7", ""};
    const Group cheap{"Price", lessOrEqual, "1.5", ""};
    const Group blank{"Qty", exact, "  ", "9"};
    struct {
        std::vector<Group> groups;
        const char* found;
    } const cases[] = {{{bolt}, "i1 i3"},
                       {{bolt, seven}, "i3"},
                       {{seven, bolt, cheap}, "-"},
                       {{seven, cheap}, "i2"},
                       {{bolt, blank, cheap}, "i1 i3"},
                       {{blank, bolt}, "-"},
                       {{bolt, seven, blank}, "i3"},
                       {{bolt, bolt, bolt}, "i1 i3"}};
    for (const auto& c : cases) {
        SearchProgram program(data);
        EXPECT_EQ(program.find(c.groups), c.found);
    }
}

TEST(Engine, ResultsAreCopiesWithATotalsRowOfTheirOwn) {
    DataFile data;
    data.more = "[Totaled Cols  ]Qty|Price|\r\n";
    data.rows = "Bolt|12|$1.50|\r\nNut|7|$.25|\r\nBolt|7|$2.00|\r\n------|26|$3.75|\r\n";
    SearchProgram program(data);
    core::Document& document = program.app.document;
    const std::string before = Program::cells(document.LV);
    EXPECT_EQ(program.find({{"Name", exact, "bolt", ""}}), "i1 i3");
    EXPECT_EQ(Program::cells(document.searchLV), "Bolt|12|$1.50|;Bolt|7|$2.00|;------|19|$3.50|;");
    EXPECT_EQ(document.searchLV.at(1).Key, "i1");
    EXPECT_TRUE(document.searchLV.at(3).isTotals());
    EXPECT_EQ(program.recordsPanel(), "2 records.");
    EXPECT_EQ(document.searchLV.selectedItem(), &document.searchLV.at(2));
    EXPECT_EQ(Program::cells(document.LV3), "|;|;") << "the end of the dialog has emptied the sums";
    EXPECT_EQ(Program::cells(document.LV), before);
    EXPECT_FALSE(document.bModified);

    // Again the same, not narrowed; and nothing found leaves the panel and the sums.
    EXPECT_EQ(program.find({{"Name", within, "t", ""}}), "i1 i2 i3");
    EXPECT_EQ(program.recordsPanel(), "3 records.");
    EXPECT_EQ(program.find({{"Name", exact, "screw", ""}}), "-");
    EXPECT_EQ(Program::cells(document.searchLV), "------|------|------|;");
    EXPECT_EQ(program.recordsPanel(), "3 records.");
    EXPECT_EQ(document.LV3.at(1).subItem(1), "");
    EXPECT_EQ(program.app.mainFrm.theListView, &document.searchLV);
}

TEST(Engine, InvoicesAreFoundByTheRowsOnShow) {
    SearchProgram program("invoices.fwk");
    core::Document& document = program.app.document;
    ASSERT_GT(document.iLV.count(), 3);
    const core::Item& row = document.iLV.at(2);
    const core::Column& column = document.iLV.columns.at(2);
    const std::string cell = core::RecordsList::cell(row, column).str();
    const std::string found = program.find({{column.Text, within, cell, ""}});
    ASSERT_NE(found, "-");
    const core::Item& result = document.searchLV.at(1);
    EXPECT_EQ(result.Key, "");
    EXPECT_EQ(result.Text, result.Tag);
    EXPECT_NE(document.LV.find(result.Tag), nullptr);
    EXPECT_EQ(document.searchLV.columns.count(), document.iLV.columns.count());
}

} // namespace
