#include "exchange/columnTypes.h"
#include "exchange/csvWriter.h"
#include "exchange/delimited.h"
#include "table.h"

#include <gtest/gtest.h>

namespace {

using exchange::CsvTable;

// Rows end in ";" and cells in "/"; a refusal is its message.
std::string read(const std::string& bytes) {
    try {
        const CsvTable table(bytes);
        std::string all;
        for (const std::string_view name : table.header()) all.append(name).append("/");
        for (std::size_t row = 0; row < table.rowCount(); ++row) {
            all.append(";");
            for (std::size_t i = 0; i < table.header().size(); ++i)
                all.append(table.cell(row, i)).append("/");
        }
        return all;
    } catch (const exchange::TableError& error) {
        return error.what();
    }
}

TEST(CsvTable, Reads) {
    const char* const cases =
        "a,b\n1,2\n -> a/b/;1/2/; \xEF\xBB\xBF\r\n a ,b\r\n1,2\r\n\r\n3, 4  -> a/b/;1/2/;3/ 4 /; "
        "a\rx\r\"\"\r\ry -> a/;x/;/;y/; \"a,b,c\";d\n1,5;2 -> a,b,c/d/;1,5/2/; "
        "a,b\n\"x, \"\"y\"\"\",\"1\r\n2\r3\"\n -> a/b/;x, \"y\"/1\n2\n3/; "
        "a,b\n5\" bolt,say \"hi\"\n \n\"q\" ,2 -> a/b/;5\" bolt/say \"hi\"/;q/2/; "
        "a\tb\n1;5\t2,5 -> a/b/;1;5/2,5/; a,b,,\n1,2,,\n3 -> a/b/;1/2/;3//; "
        "Caf\xC3\xA9\n\xE2\x82\xAC -> Café/;€/; Caf\xE9\n\x80 -> Café/;€/; "
        " -> it has no header line; \n,,\n1,2 -> it has no header line; a,,c\n -> its column 2 has no name; "
        "a\n1\n2,3\n -> line 3: more cells than the header has names; "
        "a,b\n1,\"2\n3,4\n -> line 2: a quote is opened and never closed; "
        "a\n\"x\ny\"z\n -> line 3: text behind the closing quote of a cell";
    for (const auto& c : table(cases)) EXPECT_EQ(read(c[0]), c[1]) << c[0];
    EXPECT_EQ(read(std::string("a\n1\0\n", 5)), "it is no text in UTF-8 or Windows-1252");
    for (const std::size_t names : {4096U, 4097U}) {
        std::string header;
        for (std::size_t i = 0; i < names; ++i) header += "a,";
        EXPECT_EQ(read(header + "a").starts_with("line 1: more than 4096 cells"), names > 4095) << names;
    }
    std::string rows = "a\n";
    for (int i = 0; i < 32767; ++i) rows += "1\n";
    EXPECT_TRUE(read(rows).starts_with("a/;1/"));
    EXPECT_EQ(read(rows + "1\n"), "it has more than 32767 rows");
}

// Without a mark the zeros tell: those of small letters stand in every other place.
TEST(Delimited, RecognizesItsEncoding) {
    using exchange::Encoding;
    using namespace std::string_literals;
    const auto wide = [](std::string_view text, bool isLittle) {
        std::string out;
        for (const char c : text) out += isLittle ? std::string{c, '\0'} : std::string{'\0', c};
        return out;
    };
    const std::pair<std::string, Encoding> cases[] = {
        {"a;b", Encoding::Utf8},
        {"\xef\xbb\xbf\xe4", Encoding::Utf8},
        {"\xc3\xa4", Encoding::Utf8},
        {"\xe4;b", Encoding::Windows1252},
        {"\xff\xfe" + wide("a", true), Encoding::Utf16Le},
        {"\xfe\xff" + wide("a", false), Encoding::Utf16Be},
        {wide("Name;Price", true), Encoding::Utf16Le},
        {wide("Name;Price", false), Encoding::Utf16Be},
        {wide("\x04\x30\x04\x31;12;13;14", true), Encoding::Utf16Le},
        {"a\0\0b\0\0"s, Encoding::Utf8},
        {"", Encoding::Utf8}};
    for (const auto& [bytes, encoding] : cases)
        EXPECT_EQ(exchange::recognizedEncoding(bytes), encoding) << bytes;
}

TEST(CsvWriter, IsReadBack) {
    const auto written = [](const std::vector<std::vector<const char*>>& rows) {
        std::string out;
        exchange::CsvWriter writer(out);
        for (const auto& row : rows) {
            for (const char* cell : row) writer.cell(cell);
            writer.endLine();
        }
        return out;
    };
    EXPECT_EQ(read(written({{"a;b", ";c", "d,\"e\""}, {"", " x ", "1\n2"}})), "a;b/;c/d,\"e\"/;/ x /1\n2/");
    EXPECT_EQ(read(written({{"a"}, {""}, {"b"}})), "a/;/;b/");
}

// A column of these cells, its type, and what it stores.
TEST(ColumnTypes, AreGuessedOrStandInTheHeader) {
    const auto told = [](const std::string& bytes, bool ofItems) {
        const CsvTable table(bytes);
        std::string all;
        for (std::size_t i = 0; const auto& column : exchange::columnsOf(table, ofItems)) {
            all.append(all.empty() ? "" : "; ").append(core::typeName(column.type)) += " ";
            for (std::size_t row = 0; row < table.rowCount(); ++row)
                all += exchange::storedCell(column, table.cell(row, i)) + "/";
            ++i;
        }
        return all;
    };
    auto cases = table("12\n-3.5\n \n.5\n0\n0.50 -> Number 12/-3.5//.5/0/0.50/; "
                       "123456789012345 -> Number 123456789012345/; 5\n,,, -> Number 5/; "
                       "$5\n\"-$1,234.5\"\n$.05\n$0.50 -> Currency $5.00/-$1,234.50/$.05/$.50/; "
                       " 3/4/2024\n12/31/1999 -> Date 03/04/2024/12/31/1999/; 1/2/2024\nb -> Text "
                       "1/2/2024/b/; a\nb -> Text a/b/; "
                       " \n\"\" -> Text  //; 1\n$2 -> Text 1/$2/; 00123\n5 -> Text 00123/5/; "
                       "\"1,234\" -> Text 1,234/; \"$1,23.00\" -> Text $1,23.00/");
    for (const std::string text : {"1e5", "1234567890123456", "+5", "5.", "-", "$1.125", "$", "02/30/2024",
                                   "25/12/2024", "1/2/24", "2024-01-31"})
        cases.push_back({text, "Text " + text + "/"});
    for (const auto& c : cases) EXPECT_EQ(told("a\n" + c[0], false), c[1]) << c[0];
    // Of item rows, each value counts.
    const std::string items = "Qty,Price,Day,Item\n2@3@,$1@@$1250.5@,1/2/2024@,a@1@\n@@,,,\n";
    EXPECT_EQ(told(items, true),
              "Number 2@3@/@@/; Currency $1.00@@$1,250.50@//; Date 01/02/2024@//; Text a@1@//");
    EXPECT_TRUE(told(items, false).starts_with("Text "));
    // In the header they are told.
    const auto typed = exchange::columnsOf(CsvTable("a:b:number,c:Text\n0012,x\n"));
    EXPECT_EQ(typed[0].name, "a:b");
    EXPECT_EQ(typed[0].type, core::ColumnType::Number);
    EXPECT_EQ(exchange::storedCell(typed[0], " 0012"), " 0012");
    for (const char* header : {"a:Number,b", "a:Number,b:Words", "a:Number,:Text"})
        EXPECT_FALSE(exchange::typedColumns(CsvTable(header))) << header;
    EXPECT_EQ(exchange::columnName(" Unit Price "), "Unit_Price");
}

} // namespace
