#include "fwkProgram.h"

#include <ctime>

namespace {

std::string today() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> text{};
    std::strftime(text.data(), text.size(), "%m/%d/%Y", std::localtime(&now));
    return text.data();
}

using WholeRoad = FwkTest;

TEST_F(WholeRoad, FromNothingToSumsThatAreRightToTheCent) {
    const std::string firstDay = today();
    runAll({"new shop.fwk Name:Text Price:currency Qty:NUMBER Line:Calculation",
            "column add shop.fwk No:Number --auto", "column add shop.fwk 'Bought on:Date' --auto",
            "column add shop.fwk Tax:Calculation", "expression shop.fwk Line 'Price * Qty'",
            "expression shop.fwk tax 'Line * 0.08 '", "total shop.fwk Tax Line Qty No",
            "serial shop.fwk No ' 40 '"});
    EXPECT_EQ(outputOf("expression shop.fwk TAX"), "Line * 0.08\n");
    EXPECT_EQ(outputOf("check shop.fwk"), "");
    EXPECT_EQ(rows("shop.fwk"), "Totals|------|------|------|------|------|------|------|\n");

    const std::pair<const char*, const char*> added[] = {
        {"Name=Bolt Price=1234 Qty=3", "i1\n"},
        {"name=Nut PRICE=.255 Qty=7", "i2\n"},
        {"Name=Saw Price=(10.50) Qty=2 No=100 Bought_on=1/2/99", "i3\n"},
        {"", "i4\n"},
        {"'Name= Rope = \xC3\xBE@ ' Price=$1,000.5 Qty=1e1 No= Bought_on=", "i5\n"}};
    for (const auto& [cells, key] : added) EXPECT_EQ(outputOf(std::string("add shop.fwk ") + cells), key);
    const std::string added5 = rows("shop.fwk");
    const std::string day = added5.find(firstDay) != std::string::npos ? firstDay : today();
    // An empty box draws no serial number, and one of the user's own moves the counter by one. A number
    // column behind one with money is summed as money, the first one is not.
    EXPECT_EQ(added5, "i1|Bolt|$1,234.00|3|$3,702.00|41|" + day + "|$296.16|\ni2|Nut|$.26|7|$1.82|42|" + day +
                          "|$.15|\ni3|Saw|-$10.50|2|-$21.00|100|1/2/99|-$1.68|\ni4||$.00|0|$.00|44|" + day +
                          "|$.00|\ni5| Rope = \xC3\xBE@ |$1,000.50|1e1|$10,005.00|0||$800.40|\n"
                          "Totals|------|------|22|$13,687.82|$227.00|------|$1,095.03|\n");
    EXPECT_EQ(info("shop.fwk", "/serials/No"), "\"44\"");

    runAll({"update shop.fwk i1 Qty=4 Name=", "update shop.fwk I2 Price=0.3", "delete shop.fwk i5 i3 i5",
            "duplicate shop.fwk i2 1.6"});
    const std::string nut = "|Nut|$.30|7|$2.10|42|" + day + "|$.17|\n";
    EXPECT_EQ(rows("shop.fwk"), "i1||$1,234.00|4|$4,936.00|41|" + day + "|$394.88|\ni2" + nut +
                                    "i3||$.00|0|$.00|44|" + day + "|$.00|\ni4" + nut + "i5" + nut +
                                    "Totals|------|------|25|$4,942.30|$211.00|------|$395.39|\n");
    EXPECT_EQ(info("shop.fwk", "/serials/No"), "\"44\"") << "neither changes nor copies draw a number";

    const std::string data = dataFileOf("shop.fwk");
    outputOf("recalculate shop.fwk");
    EXPECT_EQ(dataFileOf("shop.fwk"), data) << "the sums that were kept in step are the sums of all records";
    outputOf("delete shop.fwk i1 i2 i3 i4 i5");
    EXPECT_EQ(rows("shop.fwk"), "Totals|------|------|0|$.00|$.00|------|$.00|\n");
    EXPECT_EQ(outputOf("check shop.fwk"), "");
}

TEST_F(WholeRoad, NewColumnsAndRenamedOnes) {
    copyOf("books.fwk");
    runAll({"column rename books.fwk Price 'Cost of it' --labels", "column rename books.fwk title Name",
            "column rename books.fwk No Num", "column add books.fwk a:b=c:text",
            "column add books.fwk 123:Number", "update books.fwk i1 a:b=c=d=e 123=4"});
    const std::string after = outputOf("info books.fwk --json");
    EXPECT_EQ(jsonAt(after, "/formulas"), "[\"Value,Cost_of_it * Copies\"]");
    EXPECT_EQ(jsonAt(after, "/printedCols"), "[\"Num\",\"Name\",\"Author\",\"Cost_of_it\",\"Value\"]");
    EXPECT_EQ(jsonAt(after, "/optionedCols"), "[\"Num\",\"Bought\"]");
    EXPECT_EQ(jsonAt(after, "/serials"), "{\"Num\":\"0\"}") << "a renamed column starts to count anew";
    const std::string layout = jsonAt(after, "/layout");
    for (const char* tag : {"Cost_of_it", "Name", "Num"})
        EXPECT_NE(layout.find("\"Tag\":\"" + std::string(tag) + "\""), std::string::npos) << tag;
    EXPECT_EQ(rowsOf("records books.fwk --columns a:b=c,123").find("i1|d=e|4|\n"), 0U);

    const std::string rest = "|0|0|9|9|False|False|False|A|8|0||0|\r\n";
    DataFile data;
    data.layout = "L| PRICE " + rest + "L|Price:" + rest + "L|Qty" + rest;
    make("a.fwk", data.text());
    runAll({"column rename a.fwk price Cost --labels", "column rename a.fwk Qty Pieces"});
    const std::string renamed = outputOf("info a.fwk --json");
    for (const auto& [label, text] : {std::pair(0, "\"Cost\""), {1, "\"Price:\""}, {2, "\"Qty\""}})
        EXPECT_EQ(jsonAt(renamed, "/layout/" + std::to_string(label) + "/Text"), text);
}

TEST_F(WholeRoad, WhatHangsOnAColumnGoesWithIt) {
    runAll({"new a.fwk A:Number B:Calculation C:Calculation D:Calculation E:Number",
            "expression a.fwk B 'A * 2'", "expression a.fwk C 'B + 1'", "expression a.fwk D 'E / 4'",
            "total a.fwk A D", "add a.fwk A=5 E=6"});
    EXPECT_EQ(rows("a.fwk"), "i1|5|10|11|$1.50|6|\nTotals|5|------|------|$1.50|------|\n");
    std::filesystem::copy_file(path("a.fwk"), path("b.fwk"));
    outputOf("column remove a.fwk A --yes");
    EXPECT_EQ(rows("a.fwk").find("i1|Undefined|Undefined|$1.50|6|\n"), 0U);
    EXPECT_EQ(info("a.fwk", "/formulas") + info("a.fwk", "/totaledCols"), "[\"D,E / 4\"][\"D\"]");

    // Clearing leaves the word in place of the expression; all are worked out anew.
    runAll({"expression b.fwk B ''", "update b.fwk i1 E=8"});
    EXPECT_EQ(rows("b.fwk").find("i1|5|Undefined|Undefined|2|8|\n"), 0U);
    EXPECT_EQ(outputOf("expression b.fwk C"), "Undefined\n");
}

TEST_F(WholeRoad, OneRecordThatCannotBeCalculated) {
    runAll({"new a.fwk A:Number B:Number Q:Calculation", "expression a.fwk Q 'A / B'", "add a.fwk A=7 B=2",
            "add a.fwk A=6 B=3"});
    // The record is stored, as it is in the window; its cell stays empty and the message tells.
    const Outcome added = run("add a.fwk A=1 B=0");
    EXPECT_EQ(added.code, 0);
    EXPECT_EQ(added.out, "i3\n");
    EXPECT_EQ(added.err,
              "Ferrowick: An error has occured during one of your calculations.  It appears that an "
              "expression is incorrectly defined.  Please check your syntax.\n");
    EXPECT_NE(rows("a.fwk").find("\ni3|1|0||\n"), std::string::npos);
    // It holds up nothing that is done to all of them, nor a table of which it is a row.
    const std::string messages =
        added.err + "Ferrowick: During a recalculate all rows event your columns were not able to be "
                    "recalculated due to a syntax error with one of your defined expressions.\nfwk: a.fwk: ";
    const std::string reason = " cannot be calculated (Division by zero)\n";
    write("t.csv", "A,B\n6,0\n8,4\n");
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"total a.fwk A", messages + "i3" + reason,
         "i1|7|2|$3.50|\ni2|6|3|2|\ni3|1|0||\nTotals|14|------|------|\n"},
        {"import a.fwk t.csv", "fwk: a.fwk: i4 is stored, but" + reason,
         "i1|7|2|$3.50|\ni2|6|3|2|\ni3|1|0||\ni4|6|0||\ni5|8|4|2|\nTotals|28|------|------|\n"},
        {"expression a.fwk Q 'B / ( A - 7 )'", messages + "i1" + reason,
         "i1|7|2|$3.50|\ni2|6|3|-3|\ni3|1|0|0|\ni4|6|0|0|\ni5|8|4|4|\nTotals|28|------|------|\n"}};
    for (const auto& [line, err, all] : cases) {
        const Outcome outcome = run(line);
        EXPECT_EQ(outcome.code, 0) << line;
        EXPECT_EQ(outcome.err, err);
        EXPECT_EQ(rows("a.fwk"), all) << line;
    }
    const std::string before = dataFileOf("a.fwk");
    const Outcome slip = run("expression a.fwk Q 'A / / B'");
    EXPECT_EQ(slip.code, 1);
    EXPECT_TRUE(slip.err.ends_with("fwk: a.fwk: the calculation failed, so that nothing is saved\n"))
        << slip.err;
    EXPECT_EQ(dataFileOf("a.fwk"), before);
}

// An amount without a point has its cents as the last two digits; sums and totals follow.
TEST_F(WholeRoad, RecordsOfInvoices) {
    outputOf("new empty.fwk --invoice Customer:Text Sum:Calculation");
    EXPECT_EQ(info("empty.fwk", "/style") + outputOf("check empty.fwk"), "\"invoice\"");
    copyOf("invoices.fwk", "a.fwk");
    const std::string first = rows("a.fwk"), day = today();
    outputOf("recalculate a.fwk");
    EXPECT_EQ(rows("a.fwk"), first) << "they had been calculated";
    EXPECT_EQ(outputOf("add a.fwk Customer=Ann Item=Bolt@Nut@ Qty=2@3@ Price=150@2.5@"), "i5\n");
    const auto last = [&] { // the new invoice and the sums
        const std::string all = rows("a.fwk");
        return all.substr(std::min(all.find("\ni5|"), all.find("\nTotals|")) + 1);
    };
    const std::string head =
        "i5|5|Ann|" + (last().find(day) == std::string::npos ? today() : day) + "|Bolt@Nut@@@@@|";
    const std::string sums = "Totals|------|------|------|------|------|------|------|------|------|";
    EXPECT_EQ(last(), head +
                          "2@3@@@@@|$1.50@$2.50@@@@@|$3.00@$7.50@$.00@$.00@$.00@$.00@|$10.50|$.84|$11.34|\n" +
                          sums + "$62.37|\n");
    outputOf("update a.fwk i5 Qty=4@");
    EXPECT_EQ(last(), head + "4@@@@@@|$1.50@$2.50@@@@@|$6.00@$.00@$.00@$.00@$.00@$.00@|$6.00|$.48|$6.48|\n" +
                          sums + "$57.51|\n");
    outputOf("duplicate a.fwk i5 1");
    EXPECT_NE(last().find("\ni6|" + head.substr(3)), std::string::npos) << last();
    outputOf("delete a.fwk i5 i1 i6");
    EXPECT_EQ(last(), sums + "$40.77|\n");
    const std::string before = rows("a.fwk");
    outputOf("recalculate a.fwk");
    EXPECT_EQ(rows("a.fwk"), before);

    // Cells that the layout cannot hold are told, and stay while others are changed.
    DataFile odd{{"No", 4}, {"Paid", 2}, {"Item", 3}, {"Note", 3}};
    for (const char* field : {"No", "Paid", "Item", "Item", "Note"})
        odd.layout += "F|" + std::string(field) + "|1|1|1|1|False|False|False|A|8|0|\r\n";
    odd.more = "[DatabaseStyle ]True\r\n";
    odd.rows = "|100|a@b@c@||\r\n7|$1.00|Desk|x|\r\n";
    odd.addTotals();
    make("odd.fwk", odd.text());
    EXPECT_EQ(run("check odd.fwk").out,
              "i1 in \"No\": \"\" becomes \"0\" when the layout stores it\n"
              "i1 in \"Paid\": \"100\" becomes \"$1.00\" when the layout stores it\n"
              "i1 in \"Item\": \"a@b@c@\" becomes \"a@b@\" when the layout stores it\n"
              "i2 in \"Item\": \"Desk\" becomes \"\" when the layout stores it\n");
    runAll({"update odd.fwk i1 Note=y", "update odd.fwk i2 Note=z"});
    EXPECT_EQ(rows("odd.fwk"),
              "i1||100|a@b@c@|y|\ni2|7|$1.00|Desk|z|\nTotals|------|------|------|------|\n");
}

} // namespace
