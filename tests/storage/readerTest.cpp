#include "databases.h"
#include "file/dataReader.h"
#include "raised.h"

#include <gtest/gtest.h>

namespace {

namespace errors = core::errors;
using core::Document;
using Texts = std::vector<std::string>;

class ReaderTest : public testing::Test {
protected:
    Document document;
    DataFile data;

    void read() { file::readDataFile(data.text(), document); }
    // The data of the fixture with those section lines.
    void readMore(const std::string& lines) {
        data.more = lines;
        document.clear();
        read();
    }
    std::string keys() const {
        std::string all;
        document.LV.forEach([&](const core::Item& item) { all += item.Key.str() + ";"; });
        return all;
    }
    static Texts keysOf(const core::NamedCollection& items) {
        Texts keys;
        for (const auto& entry : items) keys.push_back(entry.key);
        return keys;
    }
};

TEST_F(ReaderTest, pageValuesStandInTwoOrders) {
    data.more = "[Report Data   ]1.5|2.5|.25|4|5|2|A title, with comma|True|\r\n";
    std::string text = data.text();
    const std::string usual = "4|6|1|1|1|1|1|1|0.15|";
    text.replace(text.find(usual), usual.size(), "3.5|7|0.1|0.2|0.3|0.4|256|2|1E-2|");
    file::readDataFile(text, document);
    const core::LayoutOptions& layout = document.layoutOptions;
    const core::ReportData& report = document.reportData;
    const std::vector<float> values = {
        layout.customPaperLength, layout.customPaperHeight,  layout.layoutLeftMargin,
        layout.layoutTopMargin,   layout.layoutBottomMargin, layout.layoutRightMargin,
        layout.layoutSpacing,     report.reportLeftMargin,   report.reportRightMargin,
        report.reportTopMargin,   report.reportBottomMargin};
    EXPECT_EQ(values, (std::vector<float>{3.5F, 7, 0.1F, 0.2F, 0.3F, 0.4F, 0.01F, 1.5F, 2.5F, 0.25F, 4}));
    EXPECT_EQ(layout.layoutPaperSize, core::customPaper);
    EXPECT_EQ(layout.layoutOrientation, core::landscape);
    EXPECT_EQ(report.reportPaperSize, core::legalPaper);
    EXPECT_EQ(report.reportOrientation, core::landscape);
    EXPECT_EQ(report.reportTitle, "A title, with comma");
    EXPECT_TRUE(report.bReportBoldHeaders);
}

TEST_F(ReaderTest, theBoldFlagIsReadFromExactlyNineElements) {
    const struct {
        const char* value;
        bool before, after;
        const char* title;
    } cases[] = {{"1|1|1|1|1|1|Title|True|", false, true, "Title"},
                 {"1|1|1|1|1|1|Title|False|", true, false, "Title"},
                 {"1|1|1|1|1|1|Title|-1|", false, true, "Title"},
                 {"1|1|1|1|1|1|A|B|True|", false, false, "A"}, // a title with a separator is cut
                 {"1|1|1|1|1|1|A|B|False|", true, true, "A"},
                 {"1|1|1|1|1|1|Title|False", true, true, "Title"}, // no separator at the end
                 {"1|1|1|1|1|1|Title|", true, true, "Title"},      // a file from before the flag
                 {"1|1|1|1|1|1||True|", false, true, ""}};
    for (const auto& c : cases) {
        document.reportData.bReportBoldHeaders = c.before;
        readMore(std::string("[Report Data   ]") + c.value + "\r\n");
        EXPECT_EQ(document.reportData.bReportBoldHeaders, c.after) << c.value;
        EXPECT_EQ(document.reportData.reportTitle, c.title) << c.value;
    }
}

TEST_F(ReaderTest, listsTakeItemAndKeyAsEachOfThemIsLookedUp) {
    const struct {
        const char *marker, *value;
        core::NamedCollection Document::*list;
        Texts items, keys;
    } cases[] = {
        {"[Formulas      ]",
         "Sum,Qty * ( 2 , 2 )|Half,Sum|",
         &Document::formulas,
         {"Sum,Qty * ( 2 , 2 )", "Half,Sum"},
         {"Sum", "Half"}},
        {"[Formulas      ]", "Bare|", &Document::formulas, {"Bare"}, {"Bare"}},
        {"[InvoiceCols   ]", "1|3|3|", &Document::invoiceCols, {"1", "3", "3"}, {"", "", ""}},
        {"[ItemLevelCols ]", "2|2|", &Document::itemLevelCols, {"2", "2"}, {"", ""}},
        {"[Printed Cols  ]", "A b|C|", &Document::printedCols, {"A b", "C"}, {"A b", "C"}},
        {"[PrnInvoiceCols]", "A|", &Document::prnInvoiceCols, {"A"}, {"A"}},
        {"[PrnItemCols   ]", "A|", &Document::prnItemCols, {"A"}, {"A"}},
        {"[Totaled Cols  ]", "Qty|Price|", &Document::totaledCols, {"Qty", "Price"}, {"Qty", "Price"}},
        {"[Optioned Cols ]", "Qty|", &Document::optionedCols, {"Qty"}, {"Qty"}},
        {"[Locks         ]",
         "pBox,1|pBox,12|",
         &Document::locks,
         {"pBox,1", "pBox,12"},
         {"pBox,1", "pBox,12"}},
        {"[Locks         ]", "", &Document::locks, {}, {}},
        // What stands behind the last separator is no element.
        {"[Totaled Cols  ]", "Qty|Price", &Document::totaledCols, {"Qty"}, {"Qty"}},
        {"[Totaled Cols  ]", "Qty", &Document::totaledCols, {}, {}}};
    for (const auto& c : cases) {
        readMore(std::string(c.marker) + c.value + "\r\n");
        EXPECT_EQ((document.*c.list).items(), c.items) << c.marker << c.value;
        EXPECT_EQ(keysOf(document.*c.list), c.keys) << c.marker << c.value;
    }
}

TEST_F(ReaderTest, aKeyThatComesTwiceEndsTheReading) {
    for (const char* lines :
         {"[Formulas      ]Sum,Qty|SUM,Price|", "[Printed Cols  ]Qty|qty|", "[PrnInvoiceCols]Qty|Qty|",
          "[PrnItemCols   ]Qty|Qty|", "[Totaled Cols  ]Qty|Qty|", "[Optioned Cols ]Qty|QTY|",
          "[Locks         ]pBox,1|pbox,1|", "[Totaled Cols  ]Qty|\r\n[Totaled Cols  ]Qty|"})
        EXPECT_EQ(raisedBy([&] { readMore(lines + std::string("\r\n")); }), errors::keyInUse) << lines;
    EXPECT_EQ(raisedBy([&] { readMore("[Increments    ]Qty,1|QTY,2|\r\n"); }), errors::keyNotUnique);
    EXPECT_EQ(raisedBy([&] { readMore("[Increments    ]Qty|\r\n"); }), errors::subscriptOutOfRange);
    readMore("[Increments    ]No,42|Long name, with comma,7|Empty,|\r\n");
    EXPECT_EQ(Program::cells(document.SerialsLV), "42|; with comma|;|;");
    EXPECT_EQ(document.SerialsLV.byKey("no").Text, "No");
    // The hidden column has taken its name already.
    data.names = "Name|index|Price|";
    EXPECT_EQ(raisedBy([&] { readMore(""); }), errors::keyNotUnique);
}

TEST_F(ReaderTest, styleViewAndLock) {
    const struct {
        const char* lines;
        bool invoice, items;
        std::string lock;
    } cases[] = {
        {"", false, false, ""},
        {"[DatabaseStyle ]True\r\n[InvoiceView   ]True\r\n[Lock          ]\r\n", true, true, ""},
        {"[DatabaseStyle ]-1\r\n[InvoiceView   ]0\r\n", true, false, ""},
        {"[Lock          ]  a|b,c \r\n[DatabaseStyle ]True\r\n", true, false, "  a|b,c "},
        // A scrambled password can hold line ends.
        {"[Lock          ]a\rb\r\n", false, false, "a\rb"},
        {"[Lock          ]a\r\nb\n\x01\r\r\n[InvoiceView   ]True\r\n", false, true, "a\r\nb\n\x01\r"}};
    for (const auto& c : cases) {
        document.bInvoiceStyle = document.bInvoiceView = false;
        readMore(c.lines);
        EXPECT_EQ(document.bInvoiceStyle, c.invoice) << c.lines;
        EXPECT_EQ(document.bInvoiceView, c.items) << c.lines;
        EXPECT_EQ(document.lockPassword, c.lock) << c.lines;
    }
    EXPECT_EQ(raisedBy([&] { readMore("[DatabaseStyle ]Invoice\r\n"); }), errors::typeMismatch);
    // Lines with another carriage return at their ends make no lock of it.
    data.more = "[Lock          ]\r\n[InvoiceView   ]True\r\n";
    std::string doubled = data.text();
    for (std::size_t end = 0; (end = doubled.find("\r\n", end)) != std::string::npos; end += 3)
        doubled.insert(end, 1, '\r');
    document.clear();
    file::readDataFile(doubled, document);
    EXPECT_EQ(document.lockPassword + keys(), "i1;i2;Totals;");
    EXPECT_TRUE(document.bInvoiceView);
}

TEST_F(ReaderTest, sectionsComeInAnyOrderAmongUnknownOnes) {
    data.layout = "X|new kind|\r\n[Locks         ]pBox,9|\r\nC|a.gif|1|2|3|4|\r\n";
    std::vector<std::pair<int, std::string>> findings;
    const file::ReadObserver observer{
        [&](int line, std::string_view what) { findings.emplace_back(line, what); }};
    const std::string text = "anything\r\n" + data.layout +
                             "[LayoutEnd]\r\n[Column Spots  ]1|3|2|\r\n\r\n[future thing  ]Qty|\r\n"
                             "[Totaled Cols ]Name|\r\n[Column Widths ]100|wide|\r\n[Column Types  ]4|3|\r\n"
                             "[Column Names  ]Qty|Name|\r\n[Begin Data    ] behind it\r\n1|a|\r\n2|b|\r\n";
    file::readDataFile(text, document, &observer);
    EXPECT_EQ(Program::cells(document.LV), "1|a|;2|b|;");
    EXPECT_EQ(document.LV.columns["Name"].Position, 2);
    EXPECT_EQ(document.LV.columns["Qty"].Width, 100);
    EXPECT_EQ(document.LV.columns["Name"].Width, 0);
    EXPECT_TRUE(document.locks.empty()) << "a section inside the layout block is none";
    EXPECT_TRUE(document.totaledCols.empty()) << "a marker has sixteen characters";
    EXPECT_EQ(document.layout.clipPic.count(), 1);
    const std::vector<std::pair<int, std::string>> expected = {{2, "unknown layout line"},
                                                               {3, "unknown layout line"},
                                                               {7, "unknown section"},
                                                               {8, "unknown section"},
                                                               {9, "unknown section"}};
    EXPECT_EQ(findings, expected);
}

TEST_F(ReaderTest, columnsTakeAlignmentAndIconFromTheirType) {
    data.names = "D|C|T|N|K|P|Six|None|";
    data.types = "1|2|3|4|5|7|6||";
    data.widths = "700|1,440|.5|0|-1|12 34|9x|1440|";
    data.spots = "1|9|8|7|6|5|4|3|2|";
    data.rows = "";
    read();
    std::ostringstream all;
    for (const core::Column& column : document.LV.columns)
        all << column.Text << (column.align == core::Alignment::Right ? " right " : " left ") << column.Icon
            << column.Width << " at " << column.Position << "\n";
    EXPECT_EQ(all.str(),
              "Index left 0 at 1\nD right 700 at 9\nC right 1 at 8\nT left 0.5 at 7\nN right 0 at 6\n"
              "K right -1 at 5\nP left Picture1234 at 4\nSix left 9 at 3\nNone left 1440 at 2\n");
}

TEST_F(ReaderTest, positionsThatAreMissingOrTooMany) {
    const std::pair<const char*, std::vector<int>> cases[] = {{"1|3|", {1, 3, 2, 4}}, {"", {1, 2, 3, 4}}};
    for (const auto& [spots, order] : cases) {
        data.spots = spots;
        readMore("");
        EXPECT_EQ(document.LV.columns.displayOrder(), order);
    }
    data.spots = "1|2|3|4|5|";
    EXPECT_EQ(raisedBy([&] { readMore(""); }), errors::indexOutOfBounds);
    EXPECT_EQ(document.LV.count(), 3) << "what was read so far stays";
}

TEST_F(ReaderTest, rows) {
    const std::pair<const char*, const char*> cases[] = {
        {"a|1|2|\r\nb|3|4|\r\n", "a|1|2|;b|3|4|;"}, // the last line is the Totals row, whatever it holds
        {"a|1|2|\r\n", "a|1|2|;"},
        {"", ""},
        {"a|1|2|\r\nb|3|4|", "a|1|2|;b|3|4|;"},
        {"\r\na|1|2|\r\n\r\n\r\nb|3|4|\r\n\r\n\r\n", "a|1|2|;b|3|4|;"},
        {"a|1|2|\r\nb|3|4|\r\r\n\n", "a|1|2|;b|3|4|;"},
        {"   \r\na|1|2|\r\n", "|||;a|1|2|;"},                             // a line of blanks is a row
        {" a |  1 | $2.00 |\r\n-|-|-|\r\n", " a |1|$2.00|;-|-|-|;"},      // only Text keeps its blanks
        {"a|\t1\t|2|\r\n-|-|-|\r\n", "a|\t1\t|2|;-|-|-|;"},               // other white space stays
        {"a|\r\nb|1|\r\n|\r\n-|\r\n", "a|||;b|1||;|||;-|||;"},            // cells too few
        {"a|1|2|3|4|\r\n-|-|-|-|\r\n", "a|1|2|;-|-|-|;"},                 // and too many
        {"a|1|2|x\r\nb|1\r\nc\r\n-|-|-|\r\n", "a|1|2|;b|||;|||;-|-|-|;"}, // text behind the last separator
        {"a|b|1|2|\r\n-|-|-|\r\n", "a|b|1|;-|-|-|;"},                     // a separator shifts what follows
        {"a\nb|1|2|\r\n-|-|-|\r\n", "a\nb|1|2|;-|-|-|;"}};
    for (const auto& [rows, cells] : cases) {
        data.rows = rows;
        document.iLastKey = 99;
        readMore("");
        EXPECT_EQ(Program::cells(document.LV), cells) << rows;
        std::string expected;
        for (int i = 1; i < document.LV.count(); ++i) expected += "i" + std::to_string(i) + ";";
        EXPECT_EQ(keys(), expected + (*rows == '\0' ? "" : "Totals;")) << rows;
    }
}

TEST_F(ReaderTest, linesOfOtherSystemsAndBlankOnes) {
    const std::string text = data.text();
    for (const std::string lineEnd : {"\n", "\r"}) {
        std::string other = text;
        for (std::size_t at = other.find("\r\n"); at != std::string::npos; at = other.find("\r\n", at))
            other.replace(at, 2, lineEnd);
        document.clear();
        file::readDataFile(other, document);
        EXPECT_EQ(Program::cells(document.LV), "Bolt|12|$1.50|;Nut|7|$.25|;------|------|------|;");
        EXPECT_EQ(document.LV.columns.count(), 4);
    }
    data.names = data.types = data.widths = "";
    data.spots = "1|";
    data.rows = "\r\n\r\n"; // without columns rows are blank lines
    readMore("");
    EXPECT_EQ(document.LV.columns.count(), 1);
    EXPECT_TRUE(document.LV.empty());
}

TEST_F(ReaderTest, theCounterStartsAnewAndEndsTheReadingWhenItIsUsedUp) {
    const auto rowsOf = [](int count) {
        std::string rows;
        for (int i = 0; i < count; ++i) rows += "a|1|2|\r\n";
        return rows;
    };
    document.iLastKey = 77;
    data.rows = rowsOf(32'767) + "-|-|-|\r\n";
    read();
    EXPECT_EQ(document.iLastKey, 32'767);
    EXPECT_EQ(document.LV.count(), 32'768);
    data.rows = rowsOf(32'768) + "-|-|-|\r\n";
    EXPECT_EQ(raisedBy([&] { readMore(""); }), errors::overflow);
    EXPECT_EQ(document.LV.count(), 32'767);
}

} // namespace
