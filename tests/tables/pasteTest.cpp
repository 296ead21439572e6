#include "core/number.h"
#include "invoiceFixture.h"
#include "raised.h"
#include "table.h"
#include "tables/cellCheck.h"
#include "tables/pasteFrm.h"

namespace {

using tables::pasteFrm;

// What the form shows: the columns with what they go into, the refused cells, and what it says.
std::string shown(const pasteFrm& form) {
    std::string all = form.Label1 + (form.Check1 ? " x " : " ");
    for (const auto& column : form.Columns)
        all += column.Heading + ">" + form.columnCbo.at(static_cast<std::size_t>(column.ListIndex)) + " ";
    for (const auto& cell : form.List1)
        all += cell.Row + "/" + cell.Column + "/" + cell.Value + "/" + cell.Reason + " ";
    return core::replaceAll(all + form.Label2 + (form.okEnabled ? " OK" : ""), "\n", " ");
}

template <typename Fixture>
void paste(Fixture& program, const char* text, const std::function<void(pasteFrm&)>& act) {
    if (text != nullptr) program.platform.onClipboard = {text, {}, {}};
    program.platform.onForm = [&](std::string_view) {
        pasteFrm form(program.app);
        if (!form.unloaded) act(form);
    };
    program.run("mnuPaste");
}
const auto okay = [](pasteFrm& form) { form.OKButton_Click(); };

struct Pasting : testing::Test, Program {
    Pasting()
        : Program(DataFile("No:4 Name Price:2 Day:1 Sum:5 Photo:7", "1|a|$1.00|01/02/2003|$2.00|x.jpg")
                      .sections("Formulas=Sum,Price * 2|;Totaled Cols=Price|;Optioned Cols=No|Day|;"
                                "Increments=No,1|")) {}
};

TEST(CellCheck, OfEachType) {
    const char* const cases =
        "3 ->  00 \"x\"\n  ->  00 \"x\"\n ; 3 -> a|b -> !has a \"|\", which divides the cells of a database; "
        "4 ->  12  -> 12; 4 -> 007 -> 007; 4 -> -1,234.5 -> -1234.5; 4 -> $2 -> 2; 4 -> (3) -> -3; 4 ->   -> "
        "; "
        "4 -> 1E+3 -> 1000; 4 -> 1,5 € -> !is no number; 4 -> ------ -> !is no number; "
        "4 -> 1E+999 -> !is too large a number; 2 -> 12345 -> $12,345.00; 2 -> $1.5 -> $1.50; 2 -> - -> !is "
        "no number; 3 -> a\x01z -> !has a character that cannot be shown; "
        "1 -> 2024-03-05 -> 03/05/2024; 1 -> 3/5/2024 00:00:00 -> 03/05/2024; 1 -> 25/12/2024 -> 12/25/2024; "
        "1 -> 2/30/2024 -> !is no date; 1 -> 45000 -> !is no date; "
        "1 -> 3/5/2024 14:00 -> !has a time, which a date has no room for; 1 -> 0:00 -> 12/30/1899";
    for (const auto& c : table(cases, 3)) {
        const auto cell =
            tables::checkedCell(core::ColumnType(std::stoi(c[0])), c[1], std::chrono::year(2026) / 3 / 14);
        EXPECT_EQ(cell.reason.empty() ? cell.text : "!" + cell.reason, c[2]) << c[1];
    }
}

TEST_F(Pasting, ACopyComesBackFromEitherForm) {
    for (const char* name : {"two\nlines\t\"q\"", "00123", "<b>&amp;", "=1+1", "\""})
        record({"7", name, "-$1,234.50", "12/31/1999", "-$2,469.00"});
    app.document.LV.columns.setPosition(app.document.LV.columns["Price"].Index, 2);
    select({1, 7});
    run("mnuCopyHeadings");
    EXPECT_EQ(platform.onClipboard.text,
              "Price\tNo\tName\tDay\tSum\tPhoto\n$1.00\t1\ta\t01/02/2003\t$2.00\tx.jpg\n------\t"
              "------\t------\t------\t------\t------\n");
    select({2, 3, 4, 5, 6});
    for (const char* command : {"mnuCopy", "mnuCopyHeadings"}) {
        run(command);
        for (const bool asText : {true, false}) {
            if (!asText) platform.onClipboard.text.clear();
            const std::string before = cells();
            const int rows = app.document.LV.count();
            paste(*this, nullptr, okay);
            ASSERT_EQ(app.document.LV.count(), rows + 5);
            for (int i = 0; i < 5; ++i) {
                const std::string original = core::replaceAll(cells(app.document.LV.at(2 + i)), "\t", " ");
                EXPECT_EQ(core::replaceAll(cells(app.document.LV.at(rows + i)), "\t", " "), original);
                EXPECT_TRUE(app.document.LV.at(rows + i).Selected && !app.document.LV.at(2 + i).Selected);
            }
            select({2, 3, 4, 5, 6});
        }
    }
    const auto kept = platform.onClipboard.html;
    select({});
    run("mnuCopy");
    EXPECT_EQ(platform.onClipboard.html, kept);
}

TEST_F(Pasting, ShowsFirstWhatGoesWhereAndWhatIsRefused) {
    paste(*this, "price\tSum\tName:Text\tColour\n5\t9\tb\tred\n\nx\t9\tc|d\t\n", [&](pasteFrm& form) {
        EXPECT_EQ(shown(form),
                  "2 new records. x price>Price Sum>(leave out) Name:Text>Name Colour>(leave out) "
                  "4/Price/x/is no number 4/Name/c|d/has a \"|\", which divides the cells of a "
                  "database Left out: no column \"Colour\". 2 cells are refused.");
        EXPECT_EQ(form.Grid1.at(1).Number, 4);
        form.OKButton_Click();
        form.columnCbo_Click(3, 2); // "Colour" into "Name", which has had another one
        form.Check2_Click(true);
        EXPECT_EQ(shown(form),
                  "2 new records. x price>Price Sum>(leave out) Name:Text>(leave out) Colour>Name "
                  "4/Price/x/is no number 1 cell is refused. OK");
        EXPECT_EQ(app.document.LV.count(), 2);
        form.OKButton_Click();
        EXPECT_TRUE(form.unloaded);
    });
    EXPECT_EQ(cells(), "1|a|$1.00|01/02/2003|$2.00|x.jpg|;2|red|$5.00|03/14/2026|$10.00||;"
                       "3||$.00|03/14/2026|$.00||;------|------|$5.00|------|------|------|;");
    EXPECT_TRUE(app.document.bModified && app.document.LV.selectedItem() == &app.document.LV.at(3));
    paste(*this, "9\tb\t5\t1/2/2003\t1\ty.jpg\tmore\n", [&](pasteFrm& form) {
        EXPECT_EQ(shown(form),
                  "1 new record. >No >Name >Price >Day >(leave out) >(leave out) >(leave out) Left "
                  "out: there is no column 7. OK");
        form.Check1_Click(true);
        EXPECT_FALSE(form.okEnabled);
    });
}

TEST_F(Pasting, LeavesNothingHalfDone) {
    std::string rows;
    for (int i = 0; i < 300; ++i) rows += "name" + std::to_string(i) + "\t5\n";
    const std::string before = cells();
    platform.givesUpAt = 150;
    const auto chosen = [](pasteFrm& form) {
        form.columnCbo_Click(0, 2);
        form.columnCbo_Click(1, 3);
        form.OKButton_Click();
        EXPECT_FALSE(form.unloaded);
    };
    paste(*this, rows.c_str(), chosen);
    EXPECT_EQ(cells() + std::to_string(app.document.iLastKey), before + "1");
    EXPECT_EQ(app.document.SerialsLV.at(1).subItem(1), "1");
    EXPECT_FALSE(app.document.bModified);
    app.document.iLastKey = 32700;
    paste(*this, rows.c_str(), [&](pasteFrm& form) {
        EXPECT_TRUE(shown(form).ends_with("The database has room for 67 more records.")) << shown(form);
        form.OKButton_Click();
    });
    EXPECT_EQ(cells(), before);
    app.mainFrm.SSTab1 = app::layoutTab; // the list comes to the front
    paste(*this, " \n\t", okay);
    EXPECT_EQ(told(), "i There is no text and no table on the clipboard.");
    EXPECT_EQ(app.mainFrm.SSTab1, app::reportTab);
    app.document.searchLV.Visible = true;
    paste(*this, "1", okay);
    EXPECT_EQ(told(), "i Records cannot be pasted into search results. Please go back to all records.");
}

TEST_F(InvoiceTest, RowsBecomeInvoices) {
    layoutWith(2);
    formula("Line", "Qty * Price");
    app.document.iLV.Visible = true;
    invoice::rebuildView(app.document);
    paste(*this, "customer\tQty\tPrice\tItem\tTax\nAnn\t2@3@\t1234@1.5\tBolt@Nut@\t9\nBo\t1@2@3\tx@\t\t\n",
          [&](pasteFrm& form) {
              EXPECT_EQ(shown(form),
                        "2 new invoices. x customer>Customer Qty>Qty Price>Price Item>Item "
                        "Tax>(leave out) 3/Qty/1@2@3/has more values than the 2 rows of the layout "
                        "3/Price/x@/is no number 2 cells are refused.");
              form.Check2_Click(true);
              form.OKButton_Click();
          });
    EXPECT_EQ(cells(app.document.LV.at(1)), "0|Ann|Bolt@Nut@|2@3@|$1,234.00@$1.50@|$2,468.00@$4.50@|||");
    EXPECT_EQ(cells(app.document.LV.at(2)).substr(0, 10), "0|Bo|@@|@@");
    EXPECT_TRUE(app.document.iLV.at(2).Selected);
    app.document.bInvoiceView = true;
    paste(*this, "x", okay);
    EXPECT_TRUE(told().starts_with("i Each row that is pasted becomes an invoice."));
}

} // namespace
