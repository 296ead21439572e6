#include "exchange/delimited.h"
#include "invoiceFixture.h"
#include "table.h"
#include "tables/exportFrm.h"
#include "tables/importFrm.h"
#include "tables/placeIn.h"

namespace {

using exchange::SheetCell;
using tables::exportFrm;
using tables::importFrm;

// A column of texts, "a, b" with a mark ahead of those that have a kind of their own in the file.
std::vector<SheetCell> column(std::string_view text) {
    std::vector<SheetCell> cells;
    for (const std::string_view piece : core::split(text, '~')) {
        const bool isNumber = piece.starts_with("#"), isDate = piece.starts_with("&");
        const auto kind =
            isNumber ? SheetCell::Kind::Number : (isDate ? SheetCell::Kind::DateTime : SheetCell::Kind::Text);
        cells.push_back({kind, std::string(piece.substr(isNumber || isDate ? 1 : 0))});
    }
    return cells;
}

// The type, what is open, and every cell as it would be stored.
std::string recognized(std::string_view text, const tables::Hints& hints, bool isTyped) {
    const std::vector<SheetCell> cells = column(text);
    std::vector<const SheetCell*> looked;
    for (const SheetCell& cell : cells) looked.push_back(&cell);
    const tables::Recognized how = tables::recognize(looked, isTyped, hints, true);
    std::string all(core::typeName(how.as.type));
    if (how.bDatesOpen || how.bDecimalOpen) all += " open at " + how.example;
    if (!how.sign.empty()) all += " of " + how.sign;
    for (const SheetCell& cell : cells) {
        const auto read = tables::readCell(cell, how.as, std::chrono::year(2026) / 3 / 14);
        all += "~" + (read.reason.empty() ? read.text : "!");
    }
    return all;
}

TEST(Recognition, LooksAtTheWholeColumn) {
    const char* const cases =
        "31.12.2024~1.2.24~ -> Date~12/31/2024~02/01/2024~; 03.04.2024 -> Date~04/03/2024; "
        "03/04/2024~05/06/2024 -> Date open at 03/04/2024~03/04/2024~05/06/2024; "
        "03/04/2024~13/04/2024 -> Date~04/03/2024~04/13/2024; 03/04/2024~04/13/24 -> "
        "Date~03/04/2024~04/13/2024; "
        "03/03/2024 -> Date~03/03/2024; 2024-12-31~2024-1-2T00:00:00 -> Date~12/31/2024~01/02/2024; "
        "2024-02-30 -> Text~2024-02-30; 31 Dec 2024~January 5, 2025~5 AUG 2025 -> "
        "Date~12/31/2024~01/05/2025~08/05/2025; "
        "2024-12-31 14:00 -> Text~2024-12-31 14:00; 1.2.3.4 -> Text~1.2.3.4; May -> Text~May; "
        "1.234,50~-7,00 -> Currency~$1,234.50~-$7.00; 1 234,50 €~(5,00 €) -> Currency of "
        "€~$1,234.50~-$5.00; $1,234.50~$.05 -> Currency~$1,234.50~$.05; €1.2345 -> Number of €~1.2345; "
        "$5~€5 -> Text~$5~€5; 1'234.50 CHF -> Currency of CHF~$1,234.50; 1,5~2,25 -> Number~1.5~2.25; "
        "1,234 -> Number open at 1,234~1234; 1.234~12.345.678 -> Number~1234~12345678; "
        "1.234~1,5 -> Number~1234~1.5; 12~-3~4- -> Number~12~-3~-4; 00123~45 -> Text~00123~45; "
        "1234567890123456 -> Text~1234567890123456; 1,23,4 -> Text~1,23,4; +49 -> Text~+49; 5%~6% -> "
        "Text~5%~6%; "
        "2@3@~ -> Number~2@3@~; 1~2~3~4~5~6~7~8~9~n/a -> Number~1~2~3~4~5~6~7~8~9~!; 1~2~n/a -> "
        "Text~1~2~n/a; "
        "~ -> Text~~";
    for (const auto& c : table(cases)) EXPECT_EQ(recognized(c[0], {}, false), c[1]);
    const tables::Hints european{tables::DateOrder::DayMonthYear, ',', false, false};
    const tables::Hints told{tables::DateOrder::DayMonthYear, '.', true, true};
    EXPECT_EQ(recognized("03/04/2024", european, false), "Date open at 03/04/2024~04/03/2024");
    EXPECT_EQ(recognized("1.234", european, false), "Number open at 1.234~1234");
    EXPECT_EQ(recognized("03/04/2024~04/05/2024", told, false), "Date~04/03/2024~05/04/2024");
    EXPECT_EQ(recognized("1,5", told, false), "Text~1,5");
    EXPECT_EQ(recognized("#1.5~#100", european, true), "Number~1.5~100");
    EXPECT_EQ(recognized("&2024-12-31 00:00:00~2025-01-02", {}, true), "Date~12/31/2024~01/02/2025");
    EXPECT_EQ(recognized("12~34", {}, true), "Text~12~34");
}

TEST(TextFile, IsRecognised) {
    const auto read = [](std::string_view bytes) {
        const auto encoding = exchange::recognizedEncoding(bytes);
        const std::string text = exchange::decodedText(bytes, encoding);
        const auto delimiters = exchange::recognizedDelimiters(text);
        std::string all =
            std::to_string(static_cast<int>(encoding)) + delimiters.separator + delimiters.quote;
        for (const auto& row : exchange::readDelimited(text, delimiters)) {
            all += "/";
            for (const SheetCell& cell : row) all += "[" + cell.text.str() + "]";
        }
        return all;
    };
    const std::string le("\xFF\xFE\xE4\0;\0b\0\n\0", 10), be("\0a\0,\0b\0\n\x20\xAC\0,", 12);
    EXPECT_EQ(read("\xEF\xBB\xBFä;\"b;\"\"c\"\r\n1,5;2,5\r\n\r\n"), "0;\"/[ä][b;\"c]/[1,5][2,5]/");
    EXPECT_EQ(read("\xE4\x80\t'x'\n1\t2"), "3\t'/[ä€][x]/[1][2]");
    EXPECT_EQ(read(le), "1;\"/[ä][b]");
    EXPECT_EQ(read(be), "2,\"/[a][b]/[€][]");
    EXPECT_EQ(read({"\xFF\xFE\x3D\xD8\0\xDE,\0\0\xDE\x3D\xD8", 12}), "1,\"/[😀][\uFFFD\uFFFD]");
    EXPECT_EQ(read("'a|b','c'\n'1','it''s'"), "0,'/[a|b][c]/[1][it's]");
    EXPECT_EQ(read("a|b\n1,2|\"x\ny\"z"), "0|\"/[a][b]/[1,2][x\nyz]");
    EXPECT_THROW(exchange::readDelimited("a,\"b\nc", {}), exchange::TableError);
    EXPECT_THROW(exchange::decodedText({"a\0b", 3}, exchange::Encoding::Utf8), exchange::TableError);
}

std::string shown(const importFrm& form) {
    std::string all = form.Label1 + (form.Opt1 == 0 ? " new" : " open");
    for (const auto& column : form.List2)
        all += std::string(column.Checked ? " +" : " -") + column.Name + ":" + column.Type;
    for (const auto& cell : form.List1)
        all += " " + cell.Row + "/" + cell.Column + "/" + cell.Value + "/" + cell.Reason;
    return core::replaceAll(all + " " + form.Label2 + (form.okEnabled ? " OK" : ""), "\n", " ");
}

struct Importing : testing::Test, Program {
    Importing() : Program(DataFile("Name Price:2 Day:1", "a|$1.00|01/02/2003")) {}

    void import(const char* name, std::string_view bytes, const std::function<void(importFrm&)>& act) {
        platform.write(platform.folder / name, bytes);
        platform.files.push_front(platform.folder / name);
        platform.onForm = [&](std::string_view) {
            importFrm form(app);
            if (!form.unloaded) act(form);
        };
        run("mnuImportTable");
    }
};

// What the form shows after some choices: the columns, what is wrong, the notes and the cells.
TEST_F(Importing, ShowsTheTableAsItIsChosen) {
    const std::array choices = {&importFrm::sheetCbo_Click,     &importFrm::encodingCbo_Click,
                                &importFrm::separatorCbo_Click, &importFrm::Opt1_Click,
                                &importFrm::readAsCbo_Click,    &importFrm::styleCbo_Click};
    // The first number of a choice is its place there; 6 checks columns or leaves them out, 7 is for
    // headings.
    const auto after = [&](std::string_view bytes, const std::string& acts, const char* name = "t.csv") {
        std::string all;
        const auto act = [&](importFrm& form) {
            std::istringstream words(acts);
            std::size_t choice = 0;
            for (int entry = 0; words >> choice >> entry;)
                choice == 6   ? form.List2_ItemCheck(entry, entry > 0)
                : choice == 7 ? form.Check1_Click(entry > 0)
                              : (form.*choices.at(choice))(entry);
            all = shown(form);
            for (const auto& column : form.List2) all += column.Note.empty() ? "" : " {" + column.Note + "}";
            for (const auto& row : form.Grid1)
                for (const std::string& cell : row.Cells) all += "|" + cell;
        };
        import(name, bytes, act);
        return all.substr(all.find(". ") + 2);
    };
    for (
        const auto& each : table(
            "a;b,c\n1;2,3\n -> 2 0 -> new +a;b:Text +c:Number  OK|1;2|3; price,day\n7,1/2/24\n -> 3 0 -> new "
            "+price:Number +day:Date  OK {Please check: \"1/2/24\" can be read in two ways.}|7|01/02/2024; "
            "price,day\n7,x\n -> 6 0 6 1 -> open -price: +Name:Text  OK {In the table: \"day\".}||x; "
            "name,price,day,x\n1,2,,4\n -> 3 1 6 3 -> open +Name:Text +Price:Currency +Day:Date -x:  "
            "OK|1|$2.00||; A\n03/04/2024\n -> 4 0 -> new +A:Date  OK|04/03/2024; A\n03/04/2024\n -> 4 1 -> "
            "new +A:Date  OK|03/04/2024; A,B\n3/4/24,13/4/24\n ->  -> new +A:Date +B:Date  OK {Please check: "
            "\"3/4/24\" can be read in two ways.}|04/03/2024|04/13/2024; P:Picture\nx\n -> 5 1 -> new "
            "+P:Picture An invoice database has no Picture columns.|x; price\n7\n -> 6 0 -> open -price: No "
            "column is chosen.|; name\n ->  -> open +Name:Text The table has no records.; a|b;c\n1;2\n ->  "
            "-> "
            "new +a|b:Number +c:Number The column name \"a|b\" holds a \"|\".|1|2; "
            "Index\n1\n ->  -> new +Index:Number The column name \"Index\" cannot be used.|1",
            3))
        EXPECT_EQ(after(each[0], each[1]), each[2]) << each[0];
    const std::string_view unmarked("\x18\x04\x3C\x04\x4F\x04\n\0\x18\x04", 10); // UTF-16
    EXPECT_EQ(after(unmarked, ""), "new ");
    EXPECT_EQ(after(unmarked, "1 1"), "new +Имя:Text  OK|И");
    const std::string ods = readBytes(fs::path(TEST_DATA_DIR) / "tables/lo-orders.ods");
    EXPECT_EQ(after(ods, "0 1 7 0", "t.ods"),
              "new +Column_1:Text +Column_2:Text +Column_3:Text  OK|Start|Open|Code|13:05:00|1|00123");
    app.document.iLastKey = 32766;
    EXPECT_EQ(after("name\na\nb\n", ""), "open +Name:Text The database has room for 1 more record.|a|b");
}

const char* const european = "Name;Day;Price;Extra\nB|x;31.12.2024;1.234,50;00123\nC;30.12.2024;oops;1\n";

TEST_F(Importing, ANewDatabaseIsMadeWholeOrNotAtAll) {
    const std::string before = cells();
    const auto target = platform.folder / "new.fwk";
    import("t.csv", european, [&](importFrm& form) {
        EXPECT_EQ(shown(form),
                  "t.csv: 2 records. new +Name:Text +Day:Date +Price:Text +Extra:Text 2/Name/B|x/has a \"|\", "
                  "which divides the cells of a database 1 cell cannot be stored:");
    form.List2_Click(2);
    form.typeCbo_Click(2); // Currency
    EXPECT_EQ(form.Grid1[0].Cells[2], "$1,234.50");
    EXPECT_EQ(form.List1.back().Reason, "is no number in this form");
    form.Text1_Change("name");
    EXPECT_NE(form.Label2.find("\"name\" is there twice"), std::string::npos);
    form.Text1_Change("Cost");
    form.List2_ItemCheck(3, false);
    EXPECT_FALSE(form.okEnabled);
    form.Check2_Click(true);
    platform.givesUpAt = 1;
    platform.files = {target, target};
    form.OKButton_Click();
    EXPECT_TRUE(form.unloaded || !fs::exists(target));
    platform.givesUpAt = std::numeric_limits<int>::max();
    if (!form.unloaded) form.OKButton_Click();
});
EXPECT_EQ(app.document.currentFile, target);
EXPECT_EQ(cells(app.document.LV.at(1)), "|12/31/2024|$1,234.50|");
EXPECT_EQ(cells(app.document.LV.at(2)), "C|12/30/2024||");
EXPECT_FALSE(app.document.bModified);
    import("t.csv", european, [&](importFrm& form) {
        form.List2_Click(3);
    form.typeCbo_Click(3); // Date
    form.Command1_Click();
    EXPECT_EQ(form.List2[3].Type, "Text");
    form.CancelButton_Click();
    } // namespace
);
    import("open.csv", "a,b\n\"1,2 Ft\n", [&](importFrm& form) {
        EXPECT_EQ(shown(form),
                  "open.csv cannot be read like this: line 2: a quote is opened and never closed. new ");
    form.quoteCbo_Click(2); // None
    form.List2_Click(1);
    form.typeCbo_Click(2); // Currency
    EXPECT_EQ(form.List1.size(), 1);
    form.signCbo_Click(tables::placeIn(form.signCbo.entries, "Ft"));
    EXPECT_EQ(form.Grid1[0].Cells[1], "$2.00");
    platform.givesUpAt = 0;
    form.Check1_Click(false);
    form.quoteCbo_Click(1);
    EXPECT_EQ(shown(form), "open.csv: 1 record. new +a:Text +b:Currency  OK");
    form.signCbo_Click(1); // given up, too
    platform.givesUpAt = std::numeric_limits<int>::max();
    form.signCbo_Click(1); // None
    EXPECT_FALSE(form.okEnabled);
    form.Check2_Click(true);
    form.typeCbo_Click(1); // Number: the mark was said of other cells
    EXPECT_FALSE(form.okEnabled);
    form.Check2_Click(true);
    form.styleCbo_Click(1);
    platform.files = {platform.folder / "invoices.fwk"};
    form.OKButton_Click();
    });
    EXPECT_TRUE(app.document.bInvoiceStyle);
    import("no.bin", "x", [](importFrm&) { ADD_FAILURE();
    });
    EXPECT_EQ(platform.messages.back(),
              "! The table cannot be imported: the program knows no table of this kind");
    }

    TEST_F(Importing, RowsGoIntoTheOpenDatabaseByName) {
    import("t.txt", "price\tDAY\n7\t13/4/2024\n1,5\t3/4/2024\n", [&](importFrm& form) {
        EXPECT_EQ(shown(form), "t.txt: 2 records. open +Price:Currency +Day:Date  OK");
    form.readAsCbo_Click(0); // "1,234.50"
    EXPECT_EQ(form.List1.at(0).Value, "1,5");
    form.readAsCbo_Click(1);
    form.List2_ItemCheck(1, false);
    form.List2_Click(1);
    form.targetCbo_Click(1);
    EXPECT_EQ(form.List2[1].Note, "In the table: \"DAY\".");
    form.targetCbo_Click(3);
    platform.givesUpAt = 0;
    form.Opt1_Click(0);
    EXPECT_EQ(shown(form), "t.txt: 2 records. open +Price:Currency +Day:Date  OK");
    platform.givesUpAt = std::numeric_limits<int>::max();
    form.OKButton_Click();
    });
    EXPECT_EQ(cells(app.document.LV.at(2)), "|$7.00|04/13/2024|");
    EXPECT_EQ(cells(app.document.LV.at(3)), "|$1.50|04/03/2024|");
    }

    TEST_F(Importing, WhatIsChosenGoesOut) {
        record({"b", "$2.00", "01/03/2003"});
        app.document.LV.columns.setPosition(app.document.LV.columns["Price"].Index, 2);
        const auto target = platform.folder / "out.csv";
        platform.onForm = [&](std::string_view) {
            exportFrm form(app);
            form.formatCbo_Click(2);
            form.Command2_Click();
            EXPECT_FALSE(form.OKButtonEnabled);
            form.List1_ItemCheck(0, true);
            form.List1_ItemCheck(1, true);
            form.Check1_Click(true);
            platform.files = {platform.folder / "out"};
            form.OKButton_Click();
            EXPECT_TRUE(form.unloaded);
        };
        run("mnuExportTable");
        const std::string bytes = platform.read(target);
        EXPECT_NE(bytes.find("$1.00,a\n$2.00,b\n"), std::string::npos) << bytes;
        EXPECT_EQ(std::ranges::count(bytes, '\n'), 4) << bytes;
    }

    TEST_F(Importing, PicturesGoAlongAndNothingStaysOfWhatFails) {
        open(make("p.fwk", DataFile("Name Photo:7", "a|in.jpg;b|no.jpg").text(), {"in.jpg"}));
        fs::create_symlink("p.fwk", path("p.csv"));
        fs::create_directory(path("taken.csv"));
        fs::permissions(path("p.fwk"), fs::perms::owner_read | fs::perms::owner_write);
        const std::string before = platform.read(path("p.fwk"));
        const auto exported = [&](const char* name, int kind) {
            exportFrm form(app);
            form.formatCbo_Click(kind);
            form.Check3_Click(true);
            platform.files = {path(name)};
            form.OKButton_Click();
            return (form.unloaded ? "done " : "open ") + core::replaceAll(told(), path(""), "");
        };
        EXPECT_EQ(exported("p.csv", 2).substr(0, 7), "open ! ");
        EXPECT_EQ(platform.read(path("p.fwk")), before);
        EXPECT_NE(exported("taken.csv", 2).find("could not be written"), std::string::npos);
        platform.givesUpAt = 50;
        exported("t.csv", 2);
        platform.givesUpAt = 1000;
        EXPECT_FALSE(fs::exists(path("taken_pictures")) || fs::exists(path("t_pictures")) ||
                     fs::exists(path("t.csv")));
        EXPECT_NE(exported("t.csv", 2).find("names:\nno.jpg."), std::string::npos);
        EXPECT_EQ(platform.read(path("t_pictures/in.jpg")), "bytes of in.jpg");
        EXPECT_EQ(fs::status(path("t.csv")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
        EXPECT_EQ(exported("t.tsv", 3).substr(0, 30), "open ? The folder \"t_pictures\"");
        exported("t.xlsx", 0);
        EXPECT_FALSE(fs::exists(platform.workFolder() / "exported-pictures"));
    }

    } // namespace
