#include "core/text.h"
#include "databases.h"
#include "file/dataReader.h"
#include "file/dataWriter.h"
#include "file/values.h"
#include "raised.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

using core::Document;

std::string read(Document& document, const std::string& text) {
    document.clear();
    const int error = raisedBy([&] { file::readDataFile(text, document); });
    return error == 0 ? "" : "error " + std::to_string(error);
}
// The text as it is written again.
std::string again(const std::string& text) {
    Document document;
    const std::string error = read(document, text);
    return error.empty() ? file::encodeDataFile(file::writeDataFile(document, false)) : error;
}

// Every section, in the order in which they are written.
DataFile designOnly() {
    DataFile data("Name Qty:4 Photo:7");
    data.rows.clear();
    data.widths = "1234.5|1440|1440|";
    data.spots = "1|3|4|2|";
    data.objects("L|Hello|0|0|1695|195|False|False|False|MS Sans Serif|8.25|0|http://a.org|2|;"
                 "C|a.gif|10|20|2175|1815|");
    data.sections(
        "InvoiceCols=;ItemLevelCols=9|9|;Printed Cols=Name|;PrnInvoiceCols=Qty|;PrnItemCols=Photo|");
    data.sections("Report Data=1.5|2.5|3.5|4.5|5|2|A title|True|;Formulas=Qty,2 * ( 3 )|");
    data.sections("Totaled Cols=Qty|Name|;Optioned Cols=Qty|;Increments=Qty,42|;Locks=tLabel,2|pBox,1|");
    return data.sections("DatabaseStyle=False;InvoiceView=False;Lock=\x01 x|");
}
const std::string design =
    core::replaceAll(designOnly().text(), "]4|6|1|1|1|1|1|1|", "]4|6|0.1|0.2|0.3|0.4|256|1|");

// What a save does not refresh comes back byte for byte, of every database.
TEST(DataFile, ComesBackByteForByte) {
    const std::string rows = " a |1|p.jpg|\r\n|||\r\n\x01\t\x81\xC6\xFF|y||\r\n------|3|------|\r\n";
    EXPECT_EQ(again(design + rows), design + rows);
    for (const char* name : {"books.fwk", "books-clone.fwk", "packages-500.fwk", "packages-32000.fwk"}) {
        const std::string bytes = Program::dataFileOf(std::string(TEST_DATA_DIR) + "/" + name);
        EXPECT_TRUE(again(bytes) == bytes) << name;
    }
    const std::string older = again(Program::dataFileOf(TEST_DATA_DIR "/books-older.fwk"));
    EXPECT_EQ(older.find("Future") & older.find("X|unknown"), std::string::npos);
    EXPECT_EQ(again(older), older) << "brought up to date once";

    Document document;
    read(document, design + rows);
    document.LV.at(1).cells[1] = " 1 "; // only texts keep their blanks
    EXPECT_EQ(file::writeDataFile(document, false), file::decodeDataFile(design + rows));
    EXPECT_EQ(file::writeDataFile(document, true), core::replaceAll(design, "Qty,42", "Qty,0")) << "a clone";
    EXPECT_EQ(document.SerialsLV.at(1).subItem(1), "42") << "the open document keeps counting";
    const core::LayoutOptions& layout = document.layoutOptions;
    EXPECT_EQ(layout.layoutTopMargin + layout.layoutBottomMargin * 10, 3.2F);
    EXPECT_EQ(document.reportData.reportTopMargin, 3.5F);
}

// Lines of the file, and those that are written in their place.
TEST(DataFile, SectionsInOtherForms) {
    for (const auto& c :
         table("[Report Data   ]1|1|1|1|1|1|Title|-1| -> [Report Data   ]1|1|1|1|1|1|Title|True|; "
               // A title with a separator is cut, and the flag keeps its value; so it does in a file from
               // before the flag.
               "[Report Data   ]1|1|1|1|1|1|A|B|True| -> [Report Data   ]1|1|1|1|1|1|A|False|; "
               "[Report Data   ].25|1|1|1|1|1| -> [Report Data   ]0.25|1|1|1|1|1||False|; "
               "[Report Data   ]1|1|1|1|1 -> error 9; [Layout Options]1|1|1|1|1|1|1|1| -> error 13; "
               // What stands behind the last separator is no element.
               "[Totaled Cols  ]Qty|Price -> [Totaled Cols  ]Qty|; "
               "[Formulas      ]Bare|Sum,Qty * ( 2 , 2 )|; "
               "[InvoiceCols   ]1|3|3| -> [InvoiceCols   ]; " // a standard database has none
               "[Increments    ]No,42|Long name, with comma,7|Empty,| -> "
               "[Increments    ]No,42|Long name, with comma|Empty,|; "
               "[DatabaseStyle ]-1 -> [DatabaseStyle ]True; [InvoiceView   ] true  -> [InvoiceView   ]True; "
               // A scrambled password can hold line ends.
               "[Lock          ]a\rb; [Lock          ]a\r\nb\n\x01\r; [Lock          ]  a|b,c ; "
               "[Column Types  ]1|2| -> error 9; [Column Widths ]1|2| -> error 9; "
               "[Column Names  ]Name|index|Price| -> error 35602; [Column Names  ]~| -> error 6; "
               "[Column Names  ]~ -> error 35602; " // a thousand are read, one more is too many
               "[Column Spots  ]1|3| -> [Column Spots  ]1|3|2|4|; [Column Spots  ]1|2|3|4|5| -> error 35600; "
               "[Column Widths ]1,440|9x|12 34| -> [Column Widths ]1|9|1234|; "
               "[Column Widths ]1E9|-1E9|wide| -> [Column Widths ]1000000|-1000000|0|; "
               "[DatabaseStyle ]Invoice -> error 13; [Formulas      ]Sum,Qty|SUM,Price| -> error 457; "
               "[Printed Cols  ]Qty|qty| -> error 457; [Increments    ]Qty,1|QTY,2| -> error 35602; "
               "[Increments    ]Qty| -> error 9")) {
        DataFile data;
        data.more = core::replaceAll(c[0], "~", std::string(1000, '|')) + "\r\n";
        const std::string text = "\r\n" + again(data.text()) + "\r\n";
        EXPECT_NE(text.find("\r\n" + c[c[1].empty() ? 0 : 1] + "\r\n"), std::string::npos) << c[0] << text;
    }
}

TEST(DataFile, SectionsComeInAnyOrderAmongUnknownOnes) {
    std::string findings, columns;
    const file::ReadObserver observer{[&](int line, std::string_view what) {
        findings += std::to_string(line) + " " + std::string(what) + ";";
    }};
    Document document;
    file::readDataFile(
        "anything\r\nX|new kind|\r\n[Locks         ]pBox,9|\r\nC|a.gif|1|2|3|4|\r\n[LayoutEnd]\r\n"
        "[Column Spots  ]1|3|2|\r\n\r\n[future thing  ]Qty|\r\n[Totaled Cols ]Name|\r\n"
        "[Column Widths ]100|7|\r\n[Column Types  ]4|3|\r\n[Column Names  ]Qty|Name|\r\n"
        "[Begin Data    ] behind it\r\n1|a|\r\n2|b|\r\n",
        document, &observer);
    EXPECT_EQ(findings, "2 unknown layout line;3 unknown layout line;7 unknown section;8 unknown section;"
                        "9 unknown section;");
    const std::string text = file::writeDataFile(document, false);
    for (const char* line :
         {"[LayoutStart]\r\nC|a.gif|1|2|3|4|\r\n[LayoutEnd]\r\n", "[Locks         ]\r\n",
          "s  ]Qty|Name|\r\n[Column Types  ]4|3|\r\n[Column Widths ]100|7|\r\n[Column Spots  ]1|3|2|\r\n",
          "[Totaled Cols  ]\r\n", "[Begin Data    ]\r\n1|a|\r\n2|b|\r\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    read(document, DataFile("D:1 C:2 T:3 N:4 K:5 P:7").text());
    for (const core::Column& column : document.LV.columns)
        columns += column.Text + (column.align == core::Alignment::Right ? " right" : "") + column.Icon + ";";
    EXPECT_EQ(columns, "Index;D right;C right;T;N right;K right;PPicture;");
}

// Rows of a Text, a Number and a Currency column; the last line is the Totals row, whatever it holds.
TEST(DataFile, Rows) {
    for (const auto& c : table("a|1|2|\nb|3|4|\n -> a|1|2|;b|3|4|;; a|1|2| -> a|1|2|;; "
                               "\na|1|2|\n\n\nb|3|4|\n\n\n -> a|1|2|;b|3|4|;; "
                               "   \na|1|2|\n -> |||;a|1|2|;; " // a line of blanks is a row
                               // Only Text keeps its blanks; other white space stays.
                               " a |  1 | $2.00 |\n-|\t-\t|-|\n ->  a |1|$2.00|;-|\t-\t|-|;; "
                               // Cells too few and too many, and a text behind the last.
                               "a|\nb|1|\n|\n-|\n -> a|||;b|1||;|||;-|||;; "
                               "a|1|2|3|4|\nb|1|2|x\nc|1\nd\n-| -> a|1|2|;b|1|2|;c|||;|||;-|||;; "
                               "a|b|1|2|\n-|-|-|\n -> a|b|1|;-|-|-|;"))
        for (const std::string lineEnd : {"\r\n", "\n", "\r", "\r\r\n"}) {
            DataFile data;
            data.sections("Lock=;InvoiceView=True").rows = c[0];
            Document document;
            const std::string text = core::replaceAll(data.text(), "\r", "");
            EXPECT_EQ(read(document, core::replaceAll(text, "\n", lineEnd)), "");
            const core::RecordsList& LV = document.LV;
            EXPECT_EQ(Program::cells(LV), c[1]) << c[0];
            EXPECT_TRUE(document.bInvoiceView && document.lockPassword.empty());
            for (int i = 1; i <= LV.count(); ++i)
                EXPECT_EQ(LV.at(i).Key.str(), i == LV.count() ? "Totals" : "i" + std::to_string(i)) << c[0];
        }
    // Line feeds by themselves stay in a cell, or are lines of nothing. The counter starts anew.
    Document document;
    DataFile data;
    data.rows = "a\nb|1|2|\r\n-|-|-|\r\r\n\n";
    read(document, data.text());
    EXPECT_EQ(Program::cells(document.LV), "a\nb|1|2|;-|-|-|;");
    for (int i = 0; i < 32'766; ++i) data.rows += "a|1|2|\r\n";
    EXPECT_EQ(read(document, data.text()), "");
    EXPECT_EQ(document.iLastKey, 32'767);
    EXPECT_EQ(read(document, data.text() + "-|-|-|\r\n"), "error 6");
    EXPECT_EQ(document.LV.count(), 32'767) << "what was read so far stays";
}

TEST(DataFile, TheListOfTheInvoiceViewGivesItsWidthsAndPositions) {
    for (const auto& [isInvoice, items] : {std::pair(false, false), {true, false}, {true, true}}) {
        Document document;
        read(document, design);
        document.bInvoiceStyle = isInvoice;
        document.bInvoiceView = items;
        core::ColumnHeaders& shown = document.iLV.columns;
        shown.add("Index", "Index", 77);
        shown.add("Qty", "Qty", 500);
        shown.add("NAME", "NAME", 600.25F);
        shown.setPosition(3, 2);
        const std::string text = file::writeDataFile(document, false);
        const std::string wanted =
            std::string("[Column Widths ]") + (isInvoice ? "600.25|500|1440|" : "1234.5|1440|1440|") +
            "\r\n[Column Spots  ]1|3|4|2|\r\n[InvoiceCols   ]" + (items ? "" : "1|3|2|") +
            "\r\n[ItemLevelCols ]" + (items ? "1|3|2|" : "9|9|") + "\r\n";
        EXPECT_NE(text.find(wanted), std::string::npos) << text;
        EXPECT_EQ(document.LV.columns.at(1).Width, 0) << "the hidden column stays hidden";
    }
}

TEST(DataFile, Encoding) {
    // The mark comes only with a character that needs it, and one of them is enough. Damaged text is mended.
    const std::string mark = "\xEF\xBB\xBF", both = "\xC3\x86\xD0\x96";
    for (const auto& [utf8, bytes] : {std::pair<std::string, std::string>{"plain", "plain"},
                                      {"\xC3\x86\xE2\x82\xAC", "\xC6\x80"},
                                      {both, mark + both}}) {
        EXPECT_EQ(file::encodeDataFile(utf8), bytes);
        EXPECT_EQ(file::decodeDataFile(bytes), utf8);
    }
    EXPECT_EQ(file::decodeDataFile(mark + "a\xFF"), "a\xEF\xBF\xBD");
}

} // namespace
