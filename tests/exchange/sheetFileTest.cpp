#include "sheetFile.h"
#include "core/format.h"
#include "core/number.h"
#include "exchange/imageSize.h"

#include <random>

namespace {

using core::ColumnType;
using exchange::Format;
using exchange::OutTable;
using exchange::Sheet;
using Kind = exchange::SheetCell::Kind;

// A row a line; what is no text has its kind in front.
std::string told(const Sheet& sheet) {
    std::string all = sheet.name + (sheet.name.empty() ? "" : ": ");
    for (const auto& row : sheet.rows) {
        for (const auto& cell : row)
            all.append(cell.kind == Kind::Text
                           ? ""
                           : std::string(1, cell.bMoney ? '$' : "-TNDhXB"[static_cast<int>(cell.kind)]) + ":")
                .append(cell.text)
                .append("|");
        all += "/";
    }
    return all;
}

// The cell of ours that a cell of a file stands for.
std::string ours(ColumnType type, const exchange::SheetCell& cell) {
    const std::string text = cell.text.str();
    if (cell.kind == Kind::Date) return text.substr(5, 2) + "/" + text.substr(8) + "/" + text.substr(0, 4);
    const bool bMoney = type == ColumnType::Currency ||
                        (type == ColumnType::Calculation && text.find('.') != std::string::npos);
    return cell.kind == Kind::Number && bMoney ? core::format(text, core::Mask::Money) : text;
}

OutTable randomTable(std::mt19937& random, bool bCards) {
    OutTable table{"T [1]: \"x\"", {}, {}, random() % 2 == 0};
    const std::vector<std::pair<const char*, ColumnType>> columns = {
        {"Name", ColumnType::Text},    {"Email", ColumnType::Text},     {"Birthday", ColumnType::Date},
        {"Note", ColumnType::Text},    {"Qty", ColumnType::Number},     {"Price", ColumnType::Currency},
        {"City", ColumnType::Picture}, {"Sum", ColumnType::Calculation}};
    for (const auto& [name, type] : columns)
        if (!bCards ||
            (type != ColumnType::Number && type != ColumnType::Currency && type != ColumnType::Calculation))
            table.columns.push_back(
                {name, type, 1440, type == ColumnType::Calculation ? "Qty * ( Price + 2.5 ) - -1" : ""});
    const std::vector<std::string> texts = {"a",
                                            "=1+1",
                                            "00123",
                                            "1e5",
                                            "12",
                                            "1.50",
                                            " two  blanks ",
                                            "<&\">]]>",
                                            "line\nend\n",
                                            "\xC3\xA6\xE2\x82\xAC\xF0\x9F\x98\x80",
                                            "_x0041_",
                                            "x;y,z\\n\"q\"",
                                            std::string(200, 'w') + "\xC3\xA9",
                                            "12345678901234567890",
                                            "",
                                            "\ttab"};
    const std::vector<std::string> dates = {"12/31/2024", "03/01/1900", "02/29/2024",
                                            "02/30/2024", "01/01/1850", ""};
    const auto number = [&] { return std::to_string(static_cast<int>(random() % 20'000) - 10'000); };
    const auto money = [&] {
        return core::format(number() + "." + std::to_string(random() % 100), core::Mask::Money);
    };
    for (std::size_t i = random() % 40 + 2; i > 0; --i) {
        auto& row = table.rows.emplace_back();
        for (const auto& column : table.columns) {
            const std::string any = texts[random() % texts.size()];
            const bool bAny = random() % 5 == 0;
            if (column.type == ColumnType::Date)
                row.push_back(dates[random() % dates.size()]);
            else if (column.type == ColumnType::Number)
                row.push_back(bAny ? any : (random() % 2 == 0 ? number() : number() + ".50"));
            else if (column.type == ColumnType::Currency || column.type == ColumnType::Calculation)
                row.push_back(bAny && !core::isNumeric(any) ? any : money());
            else
                row.push_back(any);
        }
        row[0] = bCards ? "N" + number() : "n"; // no row is blank, and no card without a name
    }
    return table;
}

TEST_F(SheetFile, WhatIsWrittenIsReadAgain) {
    std::mt19937 random(20240229);
    for (int round = 0; round < 60; ++round) {
        for (const char* name : {"t.xlsx", "t.ods", "t.json", "t.sqlite", "t.vcf", "t.tsv", "t.csv"}) {
            const Format format = *exchange::formatOf(name);
            const OutTable table = randomTable(random, format == Format::Vcard);
            exchange::writeSheet(path(name), format, table);
            const Sheet sheet = read(name);
            const bool bTotals =
                format != Format::Json && format != Format::Sqlite && format != Format::Vcard;
            const std::size_t rows = table.rows.size() - (table.bLastIsTotals && !bTotals ? 1 : 0);
            ASSERT_EQ(sheet.rows.size(), rows + 1) << name;
            std::vector<std::size_t> place(table.columns.size(), 99); // cards have an order of their own
            for (std::size_t i = 0; i < place.size(); ++i)
                for (std::size_t k = 0; k < sheet.rows[0].size(); ++k)
                    if (core::split(sheet.rows[0][k].text, ':').front() == table.columns[i].name)
                        place[i] = k;
            for (std::size_t row = 0; row < rows; ++row)
                for (std::size_t i = 0; i < place.size(); ++i) {
                    const auto& cells = sheet.rows[row + 1];
                    const std::string wanted = table.rows[row][i].str();
                    const std::string got =
                        place[i] < cells.size() ? ours(table.columns[i].type, cells[place[i]]) : "";
                    // A database has the value of a number and not how it is shown.
                    if (format == Format::Sqlite && core::isNumeric(wanted))
                        ASSERT_EQ(core::toDouble(got), core::toDouble(wanted)) << got << " " << wanted;
                    else
                        ASSERT_EQ(got, wanted) << name << " " << row << " " << table.columns[i].name;
                }
        }
    }
    const OutTable sums{"",
                        {{"A", ColumnType::Text, 9, ""},
                         {"Qty", ColumnType::Number, 9, ""},
                         {"S", ColumnType::Calculation, 9, "Qty * 2"},
                         {"Z", ColumnType::Calculation, 9, "Qty * None"}},
                        {{" x  y ", "2", "4", "$.50"}, {"x", "-", "0", "$1.00"}},
                        false};
    exchange::writeSheet(path("f.ods"), Format::Ods, sums);
    file::Zip zip;
    zip.OpenArchive(path("f.ods"));
    const std::string text = *zip.readEntry("content.xml", 1 << 20);
    EXPECT_EQ(text.find("of:="), text.rfind("of:=")) << "only where all operands are numbers";
    EXPECT_NE(text.find("\"of:=[.B2]*2\""), std::string::npos);
    EXPECT_NE(text.find("<text:p><text:s/>x <text:s/>y<text:s/></text:p>"), std::string::npos);
    // What another program shows of a cell is its style: a day, money, places, and no zero in front.
    const OutTable styled{"",
                          {{"D", ColumnType::Date, 9, ""},
                           {"M", ColumnType::Currency, 9, ""},
                           {"N", ColumnType::Number, 9, ""}},
                          {{"12/31/2024", "$1.50", "0.25"}, {"", "", ".125"}},
                          false};
    exchange::writeSheet(path("f.ods"), Format::Ods, styled);
    file::Zip again;
    again.OpenArchive(path("f.ods"));
    const std::string cells = *again.readEntry("content.xml", 1 << 20);
    for (const char* style : {"d", "m", "n2", "z3"}) {
        const std::string used = "table:style-name=\"" + std::string(style) + "\"",
                          made = "style:name=\"" + std::string(style) + "\"";
        EXPECT_NE(cells.find(used), std::string::npos) << style;
        EXPECT_NE(cells.find(made), std::string::npos) << style;
    }
    const auto never = [](int) { return false; };
    writeBytes(path("keep.ods"), "old");
    for (const char* name : {"keep.ods", "new.xlsx"})
        EXPECT_EQ(raisedBy([&] { exchange::writeSheet(path(name), *exchange::formatOf(name), sums, never); }),
                  core::errors::cancelled);
    EXPECT_EQ(readBytes(path("keep.ods")), "old");
    EXPECT_EQ(tree(), "f.ods keep.ods t.csv t.json t.ods t.sqlite t.tsv t.vcf t.xlsx ");
}

TEST_F(SheetFile, OfOtherPrograms) {
    const std::string cells =
        "<cols><col min='3' max='3' hidden='1'/></cols><x:sheetData><x:row r='2'><x:c r='A2' "
        "t='s'><x:v>0</x:v></x:c>"
        "<x:c r='C2'><x:v>9</x:v></x:c><x:c r='D2' "
        "t='inlineStr'><x:is><x:r><x:t>a_x0041__x20AC_</x:t></x:r><x:t> b"
        "</x:t></x:is></x:c></x:row><x:row r='3' hidden='1'><x:c><x:v>1</x:v></x:c></x:row><x:row><x:c "
        "s='1'><x:v>60.5"
        "</x:v></x:c><x:c s='2'><x:v>45657.545138888891</x:v></x:c><x:c/><x:c s='3'><x:v>1</x:v></x:c><x:c "
        "s='4'><x:v>-1.5"
        "</x:v></x:c><x:c s='5'><x:v>1.5</x:v></x:c><x:c t='b'><x:v>1</x:v></x:c><x:c "
        "t='d'><x:v>2024-02-29</x:v></x:c><x:c "
        "t='e'><x:v>#DIV/0!</x:v></x:c><x:c>"
        "<x:v>1E+20</x:v></x:c><x:c><x:f>1/3</x:f><x:v>0.1000000000000000055</x:v></x:c></x:row><x:row "
        "r='9999999'/>";
    xlsx("a.xlsx", cells, "", "<si><t xml:space='preserve'> s\r\n</t><rPh><t>no</t></rPh></si>");
    xlsx("b.xlsx",
         "<row><c s='1'><v>0</v></c><c s='6'><v>2</v></c><c s='7'><v>1.5</v></c><c s='8'>"
         "<v>1.5</v></c></row>",
         "<workbookPr date1904='1'/>");
    EXPECT_EQ(
        told(read("a.xlsx")),
        "A&B: / s\n|-:|aA\xE2\x82\xAC b|/D:1900-02-28|X:2024-12-31 13:05:00|D:1900-01-01|N:-1.50|h:36:00:00|"
        "B:true|D:2024-02-29|#DIV/0!|N:100000000000000000000|N:0.1|/");
    EXPECT_EQ(told(read("b.xlsx")), "A&B: D:1904-01-01|$:2.00|h:36:00:00|N:1.5|/");
    xlsx("m.xlsx",
         "<cols><col min='2' max='2' hidden='1'/></cols><sheetData><row><c><v>1</v></c><c><v>2</v></c><c>"
         "<v>3</v></c><c><v>4</v></c></row><row><c><v>5</v></c><c r='D2'><v>6</v></c></row><row><c r='C3'>"
         "<v>7</v></c><c><v>8</v></c></row></sheetData><mergeCells><mergeCell ref='C3:D3'/><mergeCell "
         "ref='A1:C2'/><mergeCell ref='D1'/></mergeCells>");
    EXPECT_EQ(told(read("m.xlsx")), "A&B: N:1|-:|N:4|/-:|-:|N:6|/-:|N:7|/");
    xlsx("down.xlsx",
         "<sheetData><row><c><v>1</v></c><c><v>2</v></c></row><row><c><v>3</v></c><c><v>4</v></c></row>"
         "<row><c><v>5</v></c></row></sheetData><mergeCells><mergeCell ref='A1:A2'/><mergeCell "
         "ref='B2:A1'/></mergeCells>");
    EXPECT_EQ(told(read("down.xlsx")), "A&B: N:1|N:2|/-:|N:4|/N:5|/");
    const std::string odd = "<table:table-row><table:table-cell office:value-type='float' office:value='";
    ods("a.ods",
        "<table:table table:name='One'/><table:table "
        "table:name='Two'><table:table-column/><table:table-column "
        "table:visibility='collapse'/><table:table-column table:number-columns-repeated='1022'/>" +
            odd +
            "1234.5'><text:p>1.234,50</text:p></table:table-cell><table:table-cell "
            "office:value-type='string'><text:p>no</text:p></table:table-cell><table:table-cell "
            "table:number-columns-repeated='2' "
            "office:value-type='date' office:date-value='2024-12-31T13:05:00.5'/><table:covered-table-cell "
            "office:value-type='string'><text:p>no</text:p></table:covered-table-cell><table:table-cell "
            "office:value-type='string'><office:annotation><text:p>no</text:p></"
            "office:annotation><text:p>a<text:s "
            "text:c='2'/>b <text:span>\n c</text:span></text:p><text:p/></table:table-cell><table:table-cell "
            "table:number-columns-repeated='16000'/></table:table-row><table:table-row "
            "table:visibility='filter'>"
            "<table:table-cell office:value-type='float' "
            "office:value='1'/></table:table-row><table:table-row "
            "table:number-rows-repeated='2'><table:table-cell office:value-type='time' "
            "office:time-value='PT26H05M00S'/>"
            "<table:table-cell/><table:table-cell office:value-type='boolean' "
            "office:boolean-value='true'/><table:table-cell "
            "office:value-type='boolean' office:boolean-value='false'/><table:table-cell "
            "office:value-type='percentage' "
            "office:value='0.5'><text:p>50.00%</text:p>"
            "</table:table-cell></table:table-row><table:table-row table:number-rows-repeated='1048000'>"
            "<table:table-cell/></table:table-row></table:table>");
    EXPECT_EQ(told(read("a.ods", 1)),
              "Two: N:1234.50|X:2024-12-31 13:05:00|X:2024-12-31 13:05:00|-:|a  b "
              "c\n|/h:26:05:00|B:true|B:false|N:0.5|/h:26:05:00|B:true|B:false|N:0.5|/");
    EXPECT_EQ(exchange::sheetNames(path("a.ods"), Format::Ods), (std::vector<std::string>{"One", "Two"}));
    EXPECT_EQ(exchange::sheetNames(path("a.xlsx"), Format::Xlsx), std::vector<std::string>{"A&B"});
    EXPECT_EQ(told(read("a.ods")), "One: ");
    sqlite("a.db", "CREATE TABLE t(\"a b\", d DATE, x BOOLEAN, y REAL, z); INSERT INTO t "
                   "VALUES('12','2024-12-31',1,0.1,x'00');"
                   "CREATE VIEW v AS SELECT d, 1+1 AS two FROM t;");
    EXPECT_EQ(told(read("a.db")), "t: a b|d|x|y|z|/12|D:2024-12-31|B:true|N:0.1|/");
    EXPECT_EQ(told(read("a.db", 1)), "v: d|two|/D:2024-12-31|N:2|/");
    EXPECT_EQ(exchange::sheetNames(path("a.db"), Format::Sqlite), (std::vector<std::string>{"t", "v"}));
    writeBytes(path("a.db-wal"), "x");
    EXPECT_EQ(raisedBy([&] { read("a.db"); }), core::errors::badFileFormat)
        << "changes that are not in it yet";

    const char* const json =
        "[{\"a\":1,\"b\":null},{\"b\":[1,{\"c\":\"\\\"\"}],\"d\":true}] -> "
        "a|b|d|/N:1|/-:|[1,{\"c\":\"\\\"\"}]|B:true|/; "
        "[[\"x\",-1.50],[]] -> x|N:-1.5|/; "
        "{\"columns\":[\"A\"],\"records\":[{\"key\":\"i1\",\"cells\":[\"v\"]}],\"totals\":[\"9\"]} "
        "-> A|/v|/; "
        "{\"style\":\"x\",\"columns\":[{\"name\":\"P\",\"type\":\"Currency\"}],\"records\":[[\"$1.00\"]]} -> "
        "P:Currency|/$1.00|/; 5 -> !; [1] -> !; {} -> !; [{\"a\":1} -> !; ";
    const char* const cards =
        "BEGIN:VCARD\r\nVERSION:4.0\r\nN:D;J;;;\r\nFN:J\\, "
        "D\r\nitem1.TEL;TYPE=\"work,cell\";VALUE=uri:tel:+1\r\nTEL:2\r\n"
        "BDAY:19850412\r\nADR;LABEL=\"a:b;c\":;;S\\n1;C;;Z;X\r\nADR:;;No;;;;\r\nNOTE:a\r\n "
        "b\r\nEND:VCARD\r\n -> "
        "Name|Last_Name|First_Name|Phone|Mobile|Street|City|Zip|Country|Birthday|Note|/"
        "J, D|D|J|2|+1|S\n1|C|Z|X|D:1985-04-12|ab|/; "
        "begin:vcard\nFN;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=86=\n=20x\nTEL;CELL:1\nTEL;FAX:2\nEND:"
        "VCARD -> "
        "Name|Mobile|Fax|/\xC3\x86 x|1|2|/; BEGIN:VCARD\nFN:x -> !; FN:x\n -> !; x -> !; ";
    for (const auto& file : {std::pair("a.json", json), std::pair("a.vcf", cards)})
        for (const auto& c : table(file.second)) {
            writeBytes(path(file.first), c[0]);
            std::string got;
            if (raisedBy([&] { got = told(read(file.first)); }) == core::errors::badFileFormat) got = "!";
            EXPECT_EQ(got, c[1]) << c[0];
        }
}

// "width x height", or "-" of a picture that is none, is cut or has no sound size.
TEST_F(SheetFile, PicturesTellTheirSizes) {
    using namespace std::string_literals;
    const std::string jpeg = "\xFF\xD8\xFF\xE0\0\4ab\xFF\xC4\0\3c\xFF\xC8\0\2\xFF\xCC\0\2"s, dots(26, '.');
    const std::string cases =
        "P__\1\2__\3\4\1\1 -> 258x772; P__\xFF\xFF___\1\1\1 -> 65535x1; P_\1_____\1\1\1 -> -; "
        "P___\1_\1__\1\1 -> -; P_______\1\1\1 -> -; P___\1____\1\1 -> -; P___\1___\1\1 -> -; "
        "BM................\2\1__\4\3__ -> 258x772; J\xFF\xC0_\x11\10\3\4\1\2= -> 258x772; "
        "J\xFF\xCF_\x11\10\3\4\1\2= -> 258x772; J\xFE\xC0_\x11\10\3\4\1\2= -> -; = -> -";
    const std::string png =
        core::replaceAll(core::replaceAll(cases, "_", "\0"s), "P", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s);
    for (const auto& each : table(core::replaceAll(core::replaceAll(png, "J", jpeg), "=", dots))) {
        writeBytes(path("picture"), each[0]);
        const auto found = exchange::imageSize(path("picture"));
        EXPECT_EQ(found ? std::to_string(found->width) + "x" + std::to_string(found->height) : "-", each[1]);
    }
}

} // namespace
