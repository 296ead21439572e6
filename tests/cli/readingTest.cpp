#include "fwkProgram.h"

#include <gmock/gmock.h>

using ::testing::HasSubstr;

namespace {

TEST_F(FwkTest, ExitCodesAndMessages) {
    copyOf("books.fwk");
    copyOf("invoices.fwk", "inventory.fwk");
    std::filesystem::create_directory(path("folder"));
    const auto before = state();
    for (const auto& [line, part] : {std::pair("--help", "save-as"),
                                     {"records --help", "--columns"},
                                     {"--version", "fwk " FERROWICK_VERSION "\n"},
                                     {"info books.fwk", "Records:  42\n"},
                                     {"info inventory.fwk", "View:     invoices\n"}}) {
        const Outcome outcome = run(line);
        EXPECT_THAT(outcome.out, HasSubstr(part));
        EXPECT_EQ(outcome.err, "") << line;
        EXPECT_EQ(outcome.code, 0) << line;
    }
    EXPECT_EQ(state(), before);
    expectRefused(
        {{"", 2, "Usage: fwk"},
         {"nonsense books.fwk", 2, "Usage: fwk"},
         {"info", 2, "Usage: fwk info"},
         {"info books.fwk --csv", 2, "Usage: fwk info"},
         {"records books.fwk --json --csv", 2, "Usage: fwk records"},
         {"sort books.fwk", 2, "Usage: fwk sort"},
         {"sort inventory.fwk Prise", 1, "fwk: inventory.fwk: no column \"Prise\"\n"},
         {"records books.fwk --columns Price,Prise", 1, "fwk: books.fwk: no column \"Prise\"\n"},
         {"records absent.fwk", 1, "fwk: absent.fwk: File not found\n"},
         {"check folder", 1, "fwk: folder: Path/file access error: is not a file\n"},
         {"clone books.fwk inventory.fwk", 1, "fwk: inventory.fwk: it exists already, --yes overwrites it\n"},
         {"save-as books.fwk no/new.fwk", 1,
          "fwk: no/new.fwk: could not be saved: its folder does not exist\n"},
         {"clone books.fwk folder", 1, "fwk: folder: could not be saved: it is a folder\n"}});
}

TEST_F(FwkTest, InfoTellsWhatTheFileHolds) {
    copyOf("books.fwk");
    const std::string info = outputOf("info books.fwk --json");
    const std::string expected = jsonAt(R"({"style": "standard", "view": "invoices", "locked": false,
        "records": 42, "totaledCols": ["Copies", "Value"], "optionedCols": ["No", "Bought"],
        "serials": {"No": "42"}, "formulas": ["Value,Price * Copies"], "prnInvoiceCols": [],
        "prnItemCols": [], "invoiceCols": [], "itemLevelCols": [], "locks": ["pBox,1"],
        "printedCols": ["No", "Title", "Author", "Price", "Value"],
        "layoutOptions": {"customPaperLength": 4, "customPaperHeight": 6, "layoutLeftMargin": 1,
            "layoutTopMargin": 1, "layoutBottomMargin": 1, "layoutRightMargin": 1, "layoutPaperSize": 1,
            "layoutOrientation": 1, "layoutSpacing": 0.15},
        "reportData": {"reportLeftMargin": 1, "reportRightMargin": 1, "reportTopMargin": 1,
            "reportBottomMargin": 1, "reportPaperSize": 1, "reportOrientation": 1,
            "reportTitle": "Books on the shelves", "bReportBoldHeaders": true}})");
    EXPECT_EQ(jsonWithout(info, {"columns", "entries", "layout"}), expected);
    const std::pair<const char*, const char*> parts[] = {
        {"/columns/3", R"({"name": "Bought", "type": "Date", "width": 1300, "position": 6})"},
        {"/entries/0", R"({"name": "data.dat", "comment": "Main Data File", "size": 5854})"},
        {"/entries/5", R"({"name": "logo.gif", "comment": "Clip Art", "size": 3270})"},
        {"/layout/6", R"({"family": "layoutField", "index": 7, "Tag": "Value", "Left": 2880, "Top": 3720,
            "Width": 1815, "Height": 285, "FontBold": false, "FontItalic": false, "FontUnderline": false,
            "FontName": "MS Sans Serif", "FontSize": 8.25, "ForeColor": 255, "Alignment": 1})"},
        {"/layout/17", R"({"family": "tLabel", "index": 10, "Tag": "mailto:library@example.org", "Left": 8000,
            "Top": 5200, "Width": 2000, "Height": 225, "Text": "Ask the librarian", "FontBold": true,
            "FontItalic": false, "FontUnderline": false, "FontName": "MS Sans Serif", "FontSize": 8.25,
            "ForeColor": 0, "Alignment": 2})"},
        {"/layout/19", R"({"family": "vLine", "index": 1, "Tag": "", "Left": 7400, "Top": 1560, "Width": 75,
            "Height": 3300, "BackColor": 16777215})"},
        {"/layout/20", R"({"family": "pBox", "index": 1, "Tag": "", "Left": 1320, "Top": 960, "Width": 9000,
            "Height": 4500, "ForeColor": 128, "DrawWidth": 3})"},
        {"/layout/22", R"({"family": "clipPic", "index": 1, "Tag": "logo.gif", "Left": 9000, "Top": 990,
            "Width": 1080, "Height": 420})"}};
    for (const auto& [place, part] : parts) EXPECT_EQ(jsonAt(info, place), jsonAt(part)) << place;
    EXPECT_EQ(jsonAt(info, "/columns/9") + jsonAt(info, "/layout/23"), "(none)(none)");
}

TEST_F(FwkTest, RecordsComeAsTheyAreStored) {
    DataFile data;
    data.types = "3|4|2|";
    data.rows = "a \"b\", c|1||\r\n  x\ny\t\\|-2|$1.50|\r\n\xC6r\xF8|3|(4)|\r\n------|2|$1.50|\r\n";
    make("odd.fwk", data.text());
    const std::string expected = R"json({"columns": ["Name", "Qty", "Price"],
        "records": [{"key": "i1", "cells": ["a \"b\", c", "1", ""]},
                    {"key": "i2", "cells": ["  x\ny\t\\", "-2", "$1.50"]},
                    {"key": "i3", "cells": ["\u00C6r\u00F8", "3", "(4)"]}],
        "totals": ["------", "2", "$1.50"]})json";
    EXPECT_EQ(jsonAt(outputOf("records odd.fwk --json")), jsonAt(expected));
    EXPECT_EQ(outputOf("records odd.fwk --csv"),
              "Name,Qty,Price\n\"a \"\"b\"\", c\",1,\n\"  x\ny\t\\\",-2,$1.50\n\xC3\x86r\xC3\xB8,3,(4)\n");
    EXPECT_EQ(outputOf("records odd.fwk --csv --columns PRICE,Name"),
              "Price,Name\n,\"a \"\"b\"\", c\"\n$1.50,\"  x\ny\t\\\"\n(4),\xC3\x86r\xC3\xB8\n");
    EXPECT_EQ(outputOf("records odd.fwk --csv --columns Price"), "Price\n\"\"\n$1.50\n(4)\n");
    EXPECT_EQ(outputOf("records odd.fwk"), "Key     Name      Qty  Price\n"
                                           "------  --------  ---  -----\n"
                                           "i1      a \"b\", c    1\n"
                                           "i2        x y \\    -2  $1.50\n"
                                           "i3      \xC3\x86r\xC3\xB8         3    (4)\n"
                                           "------  --------  ---  -----\n"
                                           "Totals  ------      2  $1.50\n");
}

TEST_F(FwkTest, AnEmptyDatabaseHasATotalsRow) {
    copyOf("books-clone.fwk");
    EXPECT_EQ(jsonAt(outputOf("records books-clone.fwk --json --columns No,Title")),
              R"({"columns":["No","Title"],"records":[],"totals":["------","------"]})");
    DataFile none;
    none.names = none.types = none.widths = none.rows = "";
    none.spots = "1|";
    make("none.fwk", none.text());
    EXPECT_EQ(jsonAt(outputOf("records none.fwk --json")), R"({"columns":[],"records":[],"totals":[]})");
}

// A command that has changed the file is done all the same: who runs it again would do its work twice.
TEST_F(FwkTest, AFullOutputIsAFailureOfReadingAlone) {
    copyOf("books.fwk");
    for (const auto& [words, code] : {std::pair(" records books.fwk --csv", 1),
                                      {" duplicate books.fwk i1 1", 0},
                                      {" replace books.fwk a b", 0},
                                      {" clean books.fwk", 0}}) {
        const std::string command =
            std::string("cd ") + files.string() + " && " + FWK_PROGRAM + words + " > /dev/full 2>/dev/null";
        EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), code) << words;
    }
}

} // namespace
