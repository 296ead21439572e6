#include "fwkProgram.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using nlohmann::json;
using ::testing::AnyOf;
using ::testing::HasSubstr;

namespace {

std::string today() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> text{};
    std::strftime(text.data(), text.size(), "%m/%d/%Y", std::localtime(&now));
    return text.data();
}

class WholeRoad : public FwkTest {
protected:
    // Each is a command with its arguments; all of them work.
    void runAll(const std::vector<std::vector<std::string>>& commands) const {
        for (const auto& command : commands) {
            const Outcome outcome = run(command);
            EXPECT_EQ(outcome.code, 0) << ::testing::PrintToString(command) << outcome.err;
        }
    }
    json records(const std::string& name) const {
        return json::parse(outputOf("records " + name + " --json"));
    }
    json info(const std::string& name) const { return json::parse(outputOf("info " + name + " --json")); }
};

TEST_F(WholeRoad, FromNothingToSumsThatAreRightToTheCent) {
    const std::string firstDay = today();
    runAll({{"new", "shop.fwk", "Name:Text", "Price:currency", "Qty:NUMBER", "Line:Calculation"},
            {"column", "add", "shop.fwk", "No:Number", "--auto"},
            {"column", "add", "shop.fwk", "Bought on:Date", "--auto"},
            {"column", "add", "shop.fwk", "Tax:Calculation"},
            {"expression", "shop.fwk", "Line", "Price * Qty"},
            {"expression", "shop.fwk", "tax", "Line * 0.08 "},
            {"total", "shop.fwk", "Tax", "Line", "Qty", "No"},
            {"serial", "shop.fwk", "No", " 40 "}});
    EXPECT_EQ(outputOf("expression shop.fwk TAX"), "Line * 0.08\n");
    EXPECT_EQ(outputOf("check shop.fwk"), "");
    EXPECT_EQ(records("shop.fwk")["totals"],
              json::parse(R"(["------", "------", "------", "------", "------", "------", "------"])"));

    const std::pair<std::vector<std::string>, const char*> added[] = {
        {{"Name=Bolt", "Price=1234", "Qty=3"}, "i1\n"},
        {{"name=Nut", "PRICE=.255", "Qty=7"}, "i2\n"},
        {{"Name=Saw", "Price=(10.50)", "Qty=2", "No=100", "Bought_on=1/2/99"}, "i3\n"},
        {{}, "i4\n"},
        {{"Name= Rope = \xC3\xBE@ ", "Price=$1,000.5", "Qty=1e1", "No=", "Bought_on="}, "i5\n"}};
    for (const auto& [cells, key] : added) {
        std::vector<std::string> command{"add", "shop.fwk"};
        command.insert(command.end(), cells.begin(), cells.end());
        const Outcome outcome = run(command);
        EXPECT_EQ(outcome.out, key) << outcome.err;
    }
    json all = records("shop.fwk");
    const std::string day = all["records"][0]["cells"][5];
    EXPECT_THAT(day, AnyOf(firstDay, today()));
    // An empty box draws no serial number, and one of the user's own moves the counter by one.
    const json expected = {{"Bolt", "$1,234.00", "3", "$3,702.00", "41", day, "$296.16"},
                           {"Nut", "$.26", "7", "$1.82", "42", day, "$.15"},
                           {"Saw", "-$10.50", "2", "-$21.00", "100", "1/2/99", "-$1.68"},
                           {"", "$.00", "0", "$.00", "44", day, "$.00"},
                           {" Rope = \xC3\xBE@ ", "$1,000.50", "1e1", "$10,005.00", "0", "", "$800.40"}};
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(all["records"][i]["cells"], expected[i]) << i;
    // A number column behind one with money is summed as money, the first one is not.
    EXPECT_EQ(all["totals"],
              (json{"------", "------", "22", "$13,687.82", "$227.00", "------", "$1,095.03"}));
    EXPECT_EQ(info("shop.fwk")["serials"]["No"], "44");

    runAll({{"update", "shop.fwk", "i1", "Qty=4", "Name="},
            {"update", "shop.fwk", "I2", "Price=0.3"},
            {"delete", "shop.fwk", "i5", "i3", "i5"},
            {"duplicate", "shop.fwk", "i2", "1.6"}});
    all = records("shop.fwk");
    EXPECT_EQ(all["records"].size(), 5U);
    EXPECT_EQ(all["records"][0]["cells"], (json{"", "$1,234.00", "4", "$4,936.00", "41", day, "$394.88"}));
    for (const int i : {1, 3, 4})
        EXPECT_EQ(all["records"][i]["cells"], (json{"Nut", "$.30", "7", "$2.10", "42", day, "$.17"})) << i;
    EXPECT_EQ(all["records"][4]["key"], "i5");
    EXPECT_EQ(all["totals"], (json{"------", "------", "25", "$4,942.30", "$211.00", "------", "$395.39"}));
    EXPECT_EQ(info("shop.fwk")["serials"]["No"], "44") << "neither changes nor copies draw a number";

    const std::string data = dataFileOf("shop.fwk");
    outputOf("recalculate shop.fwk");
    EXPECT_EQ(dataFileOf("shop.fwk"), data) << "the sums that were kept in step are the sums of all records";
    runAll({{"delete", "shop.fwk", "i1", "i2", "i3", "i4", "i5"}});
    EXPECT_EQ(records("shop.fwk")["totals"],
              (json{"------", "------", "0", "$.00", "$.00", "------", "$.00"}));
    EXPECT_EQ(outputOf("check shop.fwk"), "");
}

TEST_F(WholeRoad, NewColumnsAndRenamedOnes) {
    copyOf("books.fwk");
    runAll({{"column", "rename", "books.fwk", "Price", "Cost of it", "--labels"},
            {"column", "rename", "books.fwk", "title", "Name"},
            {"column", "rename", "books.fwk", "No", "Num"},
            {"column", "add", "books.fwk", "a:b=c:text"},
            {"column", "add", "books.fwk", "123:Number"},
            {"update", "books.fwk", "i1", "a:b=c=d=e", "123=4"}});
    const json after = info("books.fwk");
    EXPECT_EQ(after["formulas"], (json{"Value,Cost_of_it * Copies"}));
    EXPECT_EQ(after["printedCols"], (json{"Num", "Name", "Author", "Cost_of_it", "Value"}));
    EXPECT_EQ(after["optionedCols"], (json{"Num", "Bought"}));
    EXPECT_EQ(after["serials"], (json{{"Num", "0"}})) << "a renamed column starts to count anew";
    std::vector<std::string> fields;
    for (const json& object : after["layout"])
        if (object["family"] == "layoutField") fields.push_back(object["Tag"]);
    EXPECT_THAT(fields, ::testing::IsSupersetOf({"Cost_of_it", "Name", "Num"}));
    const json record = json::parse(outputOf("records books.fwk --json --columns a:b=c,123"))["records"][0];
    EXPECT_EQ(record["cells"], (json{"d=e", "4"}));
}

TEST_F(WholeRoad, LabelsAreRenamedOnRequest) {
    const std::string rest = "|0|0|9|9|False|False|False|A|8|0||0|\r\n";
    DataFile data;
    data.layout = "L| PRICE " + rest + "L|Price:" + rest + "L|Qty" + rest;
    make("a.fwk", data.text());
    runAll({{"column", "rename", "a.fwk", "price", "Cost", "--labels"},
            {"column", "rename", "a.fwk", "Qty", "Pieces"}});
    std::vector<std::string> labels;
    const json after = info("a.fwk");
    for (const json& label : after["layout"]) labels.push_back(label["Text"]);
    EXPECT_THAT(labels, ::testing::ElementsAre("Cost", "Price:", "Qty"));
}

TEST_F(WholeRoad, WhatHangsOnAColumnGoesWithIt) {
    runAll({{"new", "a.fwk", "A:Number", "B:Calculation", "C:Calculation", "D:Calculation", "E:Number"},
            {"expression", "a.fwk", "B", "A * 2"},
            {"expression", "a.fwk", "C", "B + 1"},
            {"expression", "a.fwk", "D", "E / 4"},
            {"total", "a.fwk", "A", "D"},
            {"add", "a.fwk", "A=5", "E=6"}});
    EXPECT_EQ(records("a.fwk")["records"][0]["cells"], (json{"5", "10", "11", "$1.50", "6"}));
    copyOf("books.fwk");
    std::filesystem::copy_file(path("a.fwk"), path("b.fwk"));

    outputOf("column remove a.fwk A --yes");
    EXPECT_EQ(records("a.fwk")["records"][0]["cells"], (json{"Undefined", "Undefined", "$1.50", "6"}));
    EXPECT_EQ(info("a.fwk")["formulas"], (json{"D,E / 4"}));
    EXPECT_EQ(info("a.fwk")["totaledCols"], (json{"D"}));

    // Clearing leaves the word in place of the expression; all are worked out anew.
    runAll({{"expression", "b.fwk", "B", ""}, {"update", "b.fwk", "i1", "E=8"}});
    EXPECT_EQ(records("b.fwk")["records"][0]["cells"], (json{"5", "Undefined", "Undefined", "2", "8"}));
    EXPECT_EQ(outputOf("expression b.fwk C"), "Undefined\n");
}

TEST_F(WholeRoad, OneRecordThatCannotBeCalculated) {
    runAll(
        {{"new", "a.fwk", "A:Number", "B:Number", "Q:Calculation"}, {"expression", "a.fwk", "Q", "A / B"}});
    runAll({{"add", "a.fwk", "A=7", "B=2"}, {"add", "a.fwk", "A=6", "B=3"}});
    // The record is stored, as it is in the window; its cell stays empty and the message tells.
    const Outcome added = run("add a.fwk A=1 B=0");
    EXPECT_EQ(added.code, 0);
    EXPECT_EQ(added.out, "i3\n");
    EXPECT_EQ(added.err,
              "Ferrowick: An error has occured during one of your calculations.  It appears that an "
              "expression is incorrectly defined.  Please check your syntax.\n");
    EXPECT_EQ(records("a.fwk")["records"][2]["cells"], (json{"1", "0", ""}));

    const auto before = state();
    const std::vector<std::string> commands[] = {
        {"recalculate", "a.fwk"}, {"total", "a.fwk", "A"}, {"expression", "a.fwk", "Q", "B / ( A - 7 )"}};
    for (const auto& command : commands) {
        const Outcome outcome = run(command);
        EXPECT_EQ(outcome.code, 1) << command[0];
        EXPECT_EQ(outcome.err,
                  added.err +
                      "Ferrowick: During a recalculate all rows event your columns were not able to be "
                      "recalculated due to a syntax error with one of your defined expressions.\n"
                      "fwk: a.fwk: the calculation failed, so that nothing is saved\n");
        EXPECT_TRUE(state() == before) << command[0];
    }
}

TEST_F(WholeRoad, InvoiceDatabases) {
    runAll({{"new", "empty.fwk", "--invoice", "Customer:Text", "Sum:Calculation"}});
    EXPECT_EQ(info("empty.fwk")["style"], "invoice");
    EXPECT_EQ(outputOf("check empty.fwk"), "");

    copyOf("invoices.fwk", "a.fwk");
    const json before = records("a.fwk");
    outputOf("recalculate a.fwk");
    EXPECT_EQ(records("a.fwk")["records"], before["records"]) << "they had been calculated";
    DataFile data;
    data.layout =
        "F|Qty|0|0|9|9|False|False|False|A|8|0|1|\r\nF|Qty|0|0|9|9|False|False|False|A|8|0|1|\r\n"
        "F|Price|0|0|9|9|False|False|False|A|8|0|1|\r\nF|Price|0|0|9|9|False|False|False|A|8|0|1|\r\n"
        "F|Line|0|0|9|9|False|False|False|A|8|0|1|\r\nF|Line|0|0|9|9|False|False|False|A|8|0|1|\r\n";
    data.names = "Customer|Qty|Price|Line|Sum|Tax|";
    data.types = "3|4|2|5|5|5|";
    data.widths = "1|1|1|1|1|1|";
    data.spots = "1|2|3|4|5|6|7|";
    data.more = "[Formulas      ]Line,Qty * Price|Sum,Line|Tax,Sum * 0.08|\r\n[DatabaseStyle ]True\r\n";
    data.rows =
        "A|2@3@|$1.50@$2.00@|||0|\r\nB|1@@|$.05@@||||\r\n------|------|------|------|------|------|\r\n";
    make("b.fwk", data.text());
    runAll({{"total", "b.fwk", "Sum", "Line"}});
    EXPECT_EQ(records("b.fwk")["records"][0]["cells"],
              (json{"A", "2@3@", "$1.50@$2.00@", "$3.00@$6.00@", "$9.00", "$.72"}));
    EXPECT_EQ(records("b.fwk")["records"][1]["cells"],
              (json{"B", "1@@", "$.05@@", "$.05@$.00@", "$.05", "$.00"}));
    EXPECT_EQ(records("b.fwk")["totals"], (json{"------", "------", "------", "-----", "$9.05", "------"}));
    outputOf("duplicate b.fwk i1 1");
    EXPECT_EQ(records("b.fwk")["records"][2]["cells"], records("b.fwk")["records"][0]["cells"]);
}

} // namespace
