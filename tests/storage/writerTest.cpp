#include "databases.h"
#include "file/dataReader.h"
#include "file/dataWriter.h"
#include "file/values.h"

#include <gtest/gtest.h>

namespace {

using core::Document;

constexpr const char* design = "[LayoutStart]\r\n"
                               "L|Hello|0|0|1695|195|False|False|False|MS Sans Serif|8.25|0|"
                               "http://example.org|2|\r\n"
                               "C|a.gif|10|20|2175|1815|\r\n"
                               "[LayoutEnd]\r\n"
                               "[Layout Options]4|6|0.1|0.2|0.3|0.4|256|1|0.15|\r\n"
                               "[Column Names  ]Name|Qty|Photo|\r\n"
                               "[Column Types  ]3|4|7|\r\n"
                               "[Column Widths ]1234.5|1440|1440|\r\n"
                               "[Column Spots  ]1|3|4|2|\r\n"
                               "[InvoiceCols   ]\r\n"
                               "[ItemLevelCols ]9|\r\n"
                               "[Printed Cols  ]Name|\r\n"
                               "[PrnInvoiceCols]Qty|\r\n"
                               "[PrnItemCols   ]Photo|\r\n"
                               "[Report Data   ]1.5|2.5|3.5|4.5|5|2|A | title|True|\r\n"
                               "[Formulas      ]Qty,2 * ( 3 )|\r\n"
                               "[Totaled Cols  ]Qty|\r\n"
                               "[Optioned Cols ]Qty|\r\n"
                               "[Increments    ]Qty,%|\r\n"
                               "[Locks         ]tLabel,2|pBox,1|\r\n"
                               "[DatabaseStyle ]False\r\n"
                               "[InvoiceView   ]False\r\n"
                               "[Lock          ]\x01 x|\r\n"
                               "[Begin Data    ]\r\n";

std::string designWith(const char* counter) {
    std::string text = design;
    return text.replace(text.find('%'), 1, counter);
}

// A document in which every section has something to say.
void fill(Document& document) {
    file::readDataFile(designWith("42") + " a |1|p.jpg|\r\n|\r\nx|2|\r\n-|3|-|\r\n", document);
    document.invoiceCols.add("7");                 // a standard database has none
    document.reportData.reportTitle = "A | title"; // is cut when it is read
    document.reportData.bReportBoldHeaders = true;
    document.LV.at(1).cells[1] = " 1 ";
    document.LV.at(3).cells[0] = "x|y";
    document.LV.totals()->cells[0] = document.LV.totals()->cells[2] = "------";
}

TEST(Writer, everySectionInItsOrder) {
    Document document;
    fill(document);
    EXPECT_EQ(file::writeDataFile(document, false),
              designWith("42") + " a |1|p.jpg|\r\n|||\r\nx|y|2||\r\n------|3|------|\r\n");
    EXPECT_EQ(file::writeDataFile(document, true), designWith("0")) << "a clone";
    EXPECT_EQ(document.SerialsLV.at(1).subItem(1), "42") << "the open document keeps counting";
}

TEST(Writer, anEmptyDocument) {
    Document document;
    core::addTotalsRow(document.LV);
    const std::string text = file::writeDataFile(document, false);
    EXPECT_NE(text.find("[Column Names  ]\r\n[Column Types  ]\r\n[Column Widths ]\r\n[Column Spots  ]1|\r\n"),
              std::string::npos);
    EXPECT_TRUE(text.ends_with("[Begin Data    ]\r\n\r\n"));
    Document again;
    file::readDataFile(text, again);
    EXPECT_TRUE(again.LV.empty());
    EXPECT_EQ(file::writeDataFile(again, false), text.substr(0, text.size() - 2));
}

TEST(Writer, theListOfTheInvoiceViewGivesItsWidthsAndPositions) {
    for (const auto& [isInvoice, items] : {std::pair(false, false), {true, false}, {true, true}}) {
        Document document;
        fill(document);
        document.bInvoiceStyle = isInvoice;
        document.bInvoiceView = items;
        core::ColumnHeaders& shown = document.iLV.columns;
        shown.add("Index", "Index", 77);
        shown.add("Qty", "Qty", 500);
        shown.add("NAME", "NAME", 600.25F);
        shown.setPosition(3, 2);
        const std::string text = file::writeDataFile(document, false);
        const auto has = [&](const char* line) { return text.find(line) != std::string::npos; };
        EXPECT_EQ(has("[Column Widths ]600.25|500|1440|\r\n"), isInvoice);
        EXPECT_EQ(has("[Column Widths ]1234.5|1440|1440|\r\n"), !isInvoice);
        if (!isInvoice) continue;
        EXPECT_TRUE(has("[Column Spots  ]1|3|4|2|\r\n")) << "positions are not taken over";
        EXPECT_EQ(document.LV.columns.at(1).Width, 0) << "the hidden column stays hidden";
        EXPECT_EQ(has("[InvoiceCols   ]1|3|2|\r\n[ItemLevelCols ]9|\r\n"), !items);
        EXPECT_EQ(has("[InvoiceCols   ]7|\r\n[ItemLevelCols ]1|3|2|\r\n"), items);
        EXPECT_TRUE(has(items ? "[InvoiceView   ]True\r\n" : "[InvoiceView   ]False\r\n"));
        EXPECT_TRUE(has("[DatabaseStyle ]True\r\n"));
    }
}

// What a save does not refresh comes back byte for byte: reading and writing are each other's inverse.
TEST(Writer, databasesComeBackByteForByte) {
    for (const char* name : {"books.fwk", "books-clone.fwk", "packages-500.fwk", "packages-32000.fwk"}) {
        const std::string bytes = Program::dataFileOf(std::string(TEST_DATA_DIR) + "/" + name);
        Document document;
        file::readDataFile(bytes, document);
        EXPECT_TRUE(file::encodeDataFile(file::writeDataFile(document, false)) == bytes) << name;
    }
}

// An older file is written in today's form, and from then on it stays the same.
TEST(Writer, anOlderFileIsBroughtUpToDate) {
    Document document, again;
    file::readDataFile(Program::dataFileOf(TEST_DATA_DIR "/books-older.fwk"), document);
    const std::string text = file::writeDataFile(document, false);
    EXPECT_EQ(text.find("X|unknown") & text.find("Future"), std::string::npos);
    EXPECT_NE(text.find("L|No:|1440|1590|1695|195|True|False|False|MS Sans Serif|8.25|0||0|\r\n"),
              std::string::npos);
    file::readDataFile(file::encodeDataFile(text), again);
    EXPECT_EQ(file::writeDataFile(again, false), text);
    EXPECT_EQ(Program::cells(again.LV), Program::cells(document.LV));
}

TEST(Encoding, everyByteOfTheCodePageComesBack) {
    std::string cell;
    for (int byte = 1; byte < 256; ++byte)
        if (std::string_view("\r\n|").find(static_cast<char>(byte)) == std::string_view::npos)
            cell.push_back(static_cast<char>(byte));
    cell.push_back('\0');
    cell.append("end");
    DataFile data;
    data.rows = cell + "|1|2|\r\n------|1|2|\r\n";
    data.more = "[Lock          ]" + cell + "\r\n";
    Document document;
    file::readDataFile(data.text(), document);
    const std::string bytes = file::encodeDataFile(file::writeDataFile(document, false));
    EXPECT_NE(bytes.find("\r\n" + data.rows), std::string::npos);
    EXPECT_NE(bytes.find(data.more), std::string::npos);
    EXPECT_TRUE(bytes.starts_with("[LayoutStart]"));
}

TEST(Encoding, theMarkComesOnlyWithACharacterThatNeedsIt) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"\xC3\x86\xC3\xB8", "\xC6\xF8"},
        {"\xE2\x82\xAC \xE2\x80\x9Cq\xE2\x80\x9D \xC5\xBD", "\x80 \x93q\x94 \x8E"},
        {"\xD0\x96", mark + "\xD0\x96"},
        {"\xC3\x86\xD0\x96", mark + "\xC3\x86\xD0\x96"}, // one of them is enough
        {"\xF0\x9F\x93\x9A", mark + "\xF0\x9F\x93\x9A"},
        {"e\xCC\x81", mark + "e\xCC\x81"}, // no single character of the code page
    };
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(file::encodeDataFile(text), bytes) << text;
        EXPECT_EQ(file::decodeDataFile(bytes), text) << text;
    }
    // With a mark, text that would fit comes back without; damaged text is mended.
    EXPECT_EQ(file::encodeDataFile(file::decodeDataFile(mark + "\xC3\xA9")), "\xE9");
    EXPECT_EQ(file::decodeDataFile(mark + "a\xFF"), "a\xEF\xBF\xBD");
    EXPECT_EQ(file::decodeDataFile(mark), "");
}

} // namespace
