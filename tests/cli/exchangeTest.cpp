#include "fwkProgram.h"

namespace {

using Exchange = FwkTest;

TEST_F(Exchange, RoundTripLosesNothing) {
    const std::string odd =
        make("odd.fwk", "[LayoutStart]\r\n[LayoutEnd]\r\n"
                        "[Column Names  ]A:b|Qty|Sum|Pay,ed|\r\n[Column Types  ]3|4|5|2|\r\n"
                        "[Column Widths ]9|9|9|9|\r\n[Begin Data    ]\r\n"
                        "  two\nlines \"q\" |0012|Undefined|abc|\r\n||||\r\n; \xC6|1e5|x|5|\r\n"
                        "------|------|------|------|\r\n");
    for (const std::string& file :
         {copyOf("books.fwk"), copyOf("invoices.fwk"), copyOf("packages-500.fwk"), odd}) {
        SCOPED_TRACE(file);
        const bool isInvoice = file == "invoices.fwk";
        const std::string before = read(path(file));
        runAll({("export " + file + " -o t.csv").c_str(), ("export " + file + " -o t.JSON").c_str()});
        EXPECT_EQ(read(path(file)), before);
        std::filesystem::remove(path("new.fwk"));
        outputOf("import new.fwk t.csv" + std::string(isInvoice ? " --invoice" : ""));
        const auto recordsOf = [&](const std::string& name) {
            const std::string all = rows(name);
            return all.substr(0, all.find("Totals|"));
        };
        EXPECT_EQ(recordsOf("new.fwk"), recordsOf(file));

        const std::string table = read(path("t.JSON"));
        const std::string was = outputOf("info " + file + " --json"), is = outputOf("info new.fwk --json");
        for (const std::string& made : {is, table}) {
            EXPECT_EQ(jsonAt(made, "/style"), jsonAt(was, "/style"));
            std::string place = "/columns/0/";
            for (; jsonAt(was, place + "name") != "(none)"; ++place[9])
                for (const char* part : {"name", "type"})
                    EXPECT_EQ(jsonAt(made, place + part), jsonAt(was, place + part));
            EXPECT_GT(place[9], '3');
        }
        const std::string printed = outputOf("records " + file + " --json");
        EXPECT_EQ(jsonAt(table, "/records/1"), jsonAt(printed, "/records/1/cells"));
        EXPECT_EQ(jsonAt(table, "/records/2"), jsonAt(printed, "/records/2/cells"));
        outputOf("export new.fwk -o again.csv");
        EXPECT_EQ(read(path("again.csv")), read(path("t.csv")));
    }
}

// Appending comes to the very file that adding record by record comes to.
TEST_F(Exchange, AppendsAsAddDoes) {
    write("t.csv", "title,Price,Bought\n\"Emma, again\",1234,3/4/2024\nIt,,x\n");
    copyOf("books.fwk", "a.fwk");
    copyOf("books.fwk", "b.fwk");
    EXPECT_EQ(outputOf("import a.fwk t.csv"), "2\n");
    runAll(
        {"add b.fwk 'Title=Emma, again' Price=1234 Bought=03/04/2024", "add b.fwk Title=It Price= Bought=x"});
    EXPECT_EQ(dataFileOf("a.fwk"), dataFileOf("b.fwk"));
    EXPECT_NE(dataFileOf("a.fwk").find("43|Emma, again|"), std::string::npos) << "the next serial number";

    write("i.csv", "Customer,Item,Qty,Price,Total\nAnn,Bolt@Nut@,2@3@,150@2.5@,7\nBob,,,,\n");
    copyOf("invoices.fwk", "c.fwk");
    copyOf("invoices.fwk", "d.fwk");
    EXPECT_EQ(outputOf("import c.fwk i.csv"), "2\n");
    runAll({"add d.fwk Customer=Ann Item=Bolt@Nut@ Qty=2@3@ Price=150@2.5@", "add d.fwk Customer=Bob"});
    EXPECT_EQ(dataFileOf("c.fwk"), dataFileOf("d.fwk"));
}

TEST_F(Exchange, WhatIsRefusedChangesNothing) {
    copyOf("books.fwk", "a.fwk");
    copyOf("invoices.fwk", "i.fwk");
    std::string many = "Title\n";
    for (int i = 0; i < 32726; ++i) many += "x\n";
    std::string wide = "C0";
    for (int i = 1; i < 51; ++i) wide += ",C" + std::to_string(i);
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"import a.fwk t.csv", "Title,Prise\nx,1\n", "fwk: a.fwk: no column \"Prise\"\n"},
        {"import a.fwk t.csv", "Index\nx\n", "fwk: a.fwk: no column \"Index\"\n"},
        {"import a.fwk t.csv", "Title,TITLE\nx,1\n", "the column \"Title\" stands in its header twice"},
        {"import a.fwk t.csv", many, "it would have 32768 records, 32767 is the most"},
        {"import a.fwk t.csv", "Title\na|b\n", "line 2: the cell of \"Title\" holds a \"|\""},
        {"import a.fwk t.csv", "Cover\nno.jpg\n", "names an image \"no.jpg\" that the database has not"},
        {"import a.fwk t.csv --invoice", "Title\nx\n", "a.fwk: it is no invoice database"},
        {"import i.fwk t.csv", "Customer,Qty\nAnn,1@1@1@1@1@1@1@1@\n", "the column \"Qty\" has 6 rows"},
        {"import n.fwk t.csv", wide, "it has 51 columns, a database has at most 50"},
        {"import n.fwk t.csv", "a b,A_B\n", "the column \"A_B\" stands in its header twice"},
        {"import n.fwk t.csv", "a,index\n", "no column can have the name \"index\""},
        {"import n.fwk t.csv", "a|b\n", "the column name \"a|b\" holds a \"|\""},
        {"import n.fwk t.csv", "a\n\"b\n", "t.csv: line 2: a quote is opened and never closed"},
        {"import n.fwk t.csv --invoice", "a:Picture\n", "an invoice database has no Picture columns"},
        {"import no/n.fwk t.csv", "a\n", "its folder does not exist"},
        {"import n.fwk none.csv", "", "none.csv: No such file or directory"},
        {"import n.fwk .", "", ".: Is a directory"},
        {"import t.csv t.csv", "a\n", "t.csv: "},
        {"export a.fwk -o t.txt", "", "t.txt: a table is a .csv or a .json file"},
        {"export a.fwk -o no/t.csv", "", "no/t.csv: could not be written"}};
    for (const auto& [command, table, reason] : cases) {
        write("t.csv", table);
        expectRefused({{command, 1, reason}});
    }
    write("t.csv", "Title,Cover\na|b,no.jpg\n");
    EXPECT_EQ(outputOf("import a.fwk t.csv --yes"), "1\n");
}

} // namespace
