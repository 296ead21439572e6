#include "fwkProgram.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace {

class SearchCommand : public FwkTest {
protected:
    SearchCommand() {
        DataFile data;
        data.more = "[Totaled Cols  ]Qty|\r\n";
        data.rows = "Bolt|12|$1.50|\r\nNut, small|-7|$.25|\r\nBolt|7|$12.34|\r\n------|12|------|\r\n";
        make("parts.fwk", data.text());
    }
};

TEST_F(SearchCommand, FindsByGroups) {
    const std::pair<const char*, const char*> cases[] = {
        {"--where Name is bolt", "i1 i3 "},
        {"--where name within 't, s'", "i2 "},
        {"--where Qty is -7", "i2 "},
        {"--where Qty range -10 -1", "i2 "},
        {"--where Qty ge 7 --where Price le 2", "i1 "},
        {"--where Name within t --where Qty range 0 9 --where Price ge 1", "i3 "},
        {"--where Price is 1234", ""}, // an amount is what it says, without the window's help with the cents
        {"--where Name is ''", ""},
        {"--where Name is bolt --where Name is '' --where Qty is 7", "i1 i3 "},
        {"--where Name is [a,b]", ""}};
    const auto before = state();
    for (const auto& [groups, expected] : cases) {
        std::istringstream found(rowsOf(std::string("search parts.fwk ") + groups));
        std::string keys;
        for (std::string line; std::getline(found, line);)
            if (line[0] == 'i') keys += line.substr(0, line.find('|')) + " ";
        EXPECT_EQ(keys, expected) << groups;
    }
    EXPECT_EQ(state(), before);
}

TEST_F(SearchCommand, PrintsTheFormsOfRecords) {
    EXPECT_EQ(rowsOf("search parts.fwk --where Name is bolt"),
              "i1|Bolt|12|$1.50|\ni3|Bolt|7|$12.34|\nTotals|------|19|------|\n");
    EXPECT_EQ(outputOf("search parts.fwk --where Qty le 0 --csv"),
              "Name,Qty,Price\n\"Nut, small\",-7,$.25\n");
    EXPECT_EQ(outputOf("search parts.fwk --where Qty is 12"),
              "Key     Name    Qty   Price\n------  ------  ---  ------\ni1      Bolt     12   $1.50\n"
              "------  ------  ---  ------\nTotals  ------   12  ------\n");
    copyOf("invoices.fwk");
    EXPECT_THAT(rowsOf("search invoices.fwk --where Customer within m"),
                HasSubstr("i1|1|\xC3\x86r\xC3\xB8 Maskiner|01/15/2004|$9.50|$.76|$10.26|\n"));
}

TEST_F(SearchCommand, SavesTheResults) {
    EXPECT_EQ(outputOf("search parts.fwk --where Name is bolt -o found.fwk"), "");
    EXPECT_EQ(outputOf("records found.fwk --csv"), "Name,Qty,Price\nBolt,12,$1.50\nBolt,7,$12.34\n");
    EXPECT_EQ(outputOf("search parts.fwk --where Name is nut -o found.fwk --yes --csv"), "Name,Qty,Price\n");
    EXPECT_EQ(outputOf("records found.fwk --csv"), "Name,Qty,Price\n");
}

TEST_F(SearchCommand, RefusesAndLeavesTheFilesAlone) {
    DataFile data({{"Bought", 1}, {"Note", 3}});
    data.rows = "01/05/2004|1/5/2004|\r\n------|------|\r\n";
    make("dates.fwk", data.text());
    std::filesystem::create_symlink("parts.fwk", path("link.fwk"));
    expectRefused(
        {{"search parts.fwk", 2, "--where is required"},
         {"search parts.fwk --where Name is", 2, "--where"},
         {"search parts.fwk --where Name like x", 2, "HOW is ge, le, is, within or range"},
         {"search parts.fwk --where Name is x y", 2, "HOW is missing"},
         {"search parts.fwk --where Qty range 1", 2, "TO is missing"},
         {"search parts.fwk --where A is 1 --where A is 1 --where A is 1 --where A is 1", 2, "three at most"},
         {"search parts.fwk --where Name is x --yes", 2, "--yes"},
         {"search parts.fwk --where Nme is x", 1, "fwk: parts.fwk: no column \"Nme\"\n"},
         {"search dates.fwk --where Bought ge soon", 1,
          "fwk: dates.fwk: \"soon\" is no date for the column \"Bought\"\n"},
         {"search dates.fwk --where Note ge soon", 1, "fwk: dates.fwk: Type mismatch"},
         {"search parts.fwk --where Name is bolt -o dates.fwk", 1,
          "fwk: dates.fwk: it exists already, --yes overwrites it\n"},
         {"search parts.fwk --where Name is bolt -o no/new.fwk", 1,
          "fwk: no/new.fwk: could not be saved: its folder does not exist\n"},
         {"search parts.fwk --where Name is bolt -o ./parts.fwk --yes", 1,
          "fwk: ./parts.fwk: is the database that was searched\n"},
         {"search parts.fwk --where Name is bolt -o link.fwk --yes", 1,
          "is the database that was searched\n"},
         {"replace parts.fwk bolt", 2, "REPLACEMENT"},
         {"replace parts.fwk bolt x --column Nme", 1, "fwk: parts.fwk: no column \"Nme\"\n"}});
}

TEST_F(SearchCommand, ReplacesWordsAndCountsCells) {
    EXPECT_EQ(outputOf("replace parts.fwk BOLT Screw"), "2\n");
    EXPECT_EQ(outputOf("replace parts.fwk nut Dot --column Qty Price"), "0\n");
    EXPECT_EQ(outputOf("replace parts.fwk nut Dot --column Qty --column Name"), "1\n");
    EXPECT_EQ(outputOf("records parts.fwk --csv --columns Name"), "Name\nScrew\n\"Dot, small\"\nScrew\n");
    EXPECT_EQ(outputOf("replace parts.fwk small ''"), "1\n");
    EXPECT_EQ(outputOf("replace parts.fwk -- -7 -8"), "1\n");
    EXPECT_EQ(outputOf("records parts.fwk --csv"),
              "Name,Qty,Price\nScrew,12,$1.50\n\"Dot, \",-8,$.25\nScrew,7,$12.34\n");

    copyOf("invoices.fwk");
    expectRefused({{"replace invoices.fwk a b", 1, "only available for normal non-invoice style databases"}});
}

} // namespace
