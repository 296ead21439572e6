#include "calc/recalculation.h"
#include "calc/selectedTotals.h"
#include "calc/totalsFrm.h"
#include "calcProgram.h"
#include "core/format.h"
#include "shell/mainWindow.h"

using core::TotalsMode;

namespace {

const std::string allRowsMessage = "! During a recalculate all rows event your columns were not able";

struct Totals : CalcTest {
    // Columns "A:2 B:4 ", all totaled.
    void openTotaled(const std::string& columns, std::string_view records, const std::string& formulas = "") {
        std::string names;
        for (std::size_t at = 0; at < columns.size(); at += 4) names += columns.substr(at, 1) + "|";
        open(DataFile(columns, records).section("Totaled Cols", names).section("Formulas", formulas));
    }
    // The sums of the selected rows, and these.
    std::string sums() {
        std::string all;
        document.LV3.forEach([&](auto& sum) { all += sum.Text.str() + "=" + sum.subItem(1).str() + " "; });
        for (const int row : app.mainFrm.selectedRows) all += std::to_string(row);
        return all;
    }
};

// Money is carried on from one totaled column to the next, in the order of the table. A Calculation column
// takes it from the point in its own cell; a cell of several values is passed over before the type is looked
// at.
TEST_F(Totals, MoneyIsCarriedOnToNumberColumns) {
    for (const auto& c :
         table("A:2 B:4 C:4  -> 2|1.255|1,234 -> $2.00|$1.26|$1,234.00| -> $.00|$.00|$.00|; A:5 B:4  -> "
               "$1.50|3 -> $1.50|$3.00| -> $.00|$.00|; A:2 B:4  -> 1@2@|3 -> -----|3| -> -----|0|; A:2 B:5 "
               "C:4  -> 2|1@2@|3 -> $2.00|-----|$3.00| -> $.00|-----|$.00|",
               4)) {
        openTotaled(c[0], c[1]);
        core::UpdateTotalsRow(document, TotalsMode::Add, LV, 1);
        EXPECT_EQ(totals(), c[2]) << c[0];
        core::UpdateTotalsRow(document, TotalsMode::Subtract, LV, 1);
        EXPECT_EQ(totals(), c[3]) << c[0];
    }
    open(DataFile("A:2 Name B:4", "$1.00|7|2").section("Totaled Cols", "a|Name|B|Index|"));
    core::UpdateTotalsRow(document, TotalsMode::Add, LV, 1);
    EXPECT_EQ(totals(), "------|------|2|") << "names are exact";
}

// A plain click on row 2, "^2" with Ctrl, "-2" one that takes the selection away; 0 is no row. A cell without
// a point rounds a sum to a whole number, the cents of the others too. The Totals row is no record.
TEST_F(Totals, OfSelectedRows) {
    open(DataFile("Qty:4 Name Price:2 Day:1 Sum:5", "12|Bolt|$1.50||18;1,000|Nut|$.25||$250.00;7|Nail|2||"));
    LV.clearSelection();
    for (const auto& c : table(
             "2 -> Qty=1,000 Price=$.25 Sum=$250.00 2; 3 -> Qty=7 Price=2 Sum= 23; -3 -> Qty=7 Price=2 Sum= "
             "2; 1 -> Qty=12 Price=$1.50 Sum=18 12; ^2 -> Qty=1,012 Price=$1.75 Sum=$268.00 12; ^3 -> "
             "Qty=1,019 Price=4 Sum=268 12; ^-2 -> Qty=19 Price=$3.75 Sum=$18.00 12; ^4 -> Qty=19 "
             "Price=$3.75 Sum=$18.00 12; 0 -> Qty=19 Price=$3.75 Sum=$18.00 12; ^-3 -> Qty=12 Price=2 Sum=18 "
             "12; ^-1 -> Qty= Price=$.50 Sum= 12; -4 -> Qty= Price=$.50 Sum= 12; -2 -> Qty= Price= Sum= ")) {
        const int row = std::stoi(c[0].substr(c[0].find_first_not_of("^-")));
        app.mainFrm.bCtrlDown = c[0].starts_with('^');
        LV.setSelectedItem(row == 0 ? nullptr : &LV.at(row));
        if (row > 0) LV.at(row).Selected = c[0].find('-') == std::string::npos;
        calc::list_Click(app, LV);
        EXPECT_EQ(sums(), c[1]) << c[0];
    }
    LV.columns.setPosition(6, 2); // Sum ahead of all, as it is shown
    calc::RefreshSelectedTotals(app.document);
    EXPECT_EQ(sums(), "Sum= Qty= Price= ");
    openCopyOf("invoices.fwk"); // the row of the list on view that the open has selected
    EXPECT_EQ(sums(), "Invoice_No=4 Subtotal=$9.00 Tax=$.72 Total=$9.72 4");
}

TEST_F(Totals, ARecalculationTellsItsProgress) {
    std::string painted, records;
    platform.onPaint = [&] { painted += panel(app::calculationPanel).substr(16); };
    openTotaled("A:4 ", "1;1;1;1;1;1;1");
    calc::RecalculateAll(app, LV); // of the count with the Totals row, halves to the even one
    EXPECT_EQ(painted,
              " 12 percent. 25 percent. 38 percent. 50 percent. 62 percent. 75 percent. 88 percent.");
    for (int i = 1; i <= 32000; ++i) records += "|" + std::to_string(i) + ";";
    openTotaled("P:2 Q:4 S:5 ", records, "S,Q * 2|");
    platform.paints = 0;
    calc::RecalculateAll(app, LV);
    EXPECT_EQ(panel(app::calculationPanel), "Done.");
    EXPECT_EQ(platform.paints, 26) << "every fourth percent";
    EXPECT_EQ(totals(), "$.00|$512,016,000.00|1024032000|");
}

TEST_F(Totals, ARecalculationStopsAtTheFirstRowThatFails) {
    openTotaled("P:2 Q:4 S:5 ", "$1.00|2|old;$1.00|4|old;$1.00|0|old;$1.00|8|old", "S,8 / Q|");
    LV.totals()->cells[1] = "77";
    calc::RecalculateAll(app, LV);
    EXPECT_EQ(cells(), "$1.00|2|4|;$1.00|4|2|;$1.00|0|old|;$1.00|8|old|;$2.00|$6.00|6|;");
    EXPECT_TRUE(told().find("\n" + allRowsMessage) != std::string::npos);
    EXPECT_EQ(panel(app::calculationPanel), "Recalculating... 60 percent.");
    // For who can tell of each row it goes on.
    for (const auto& [key, reason] : calc::recalculateEveryRow(app))
        EXPECT_EQ(key + ": " + reason, "i3: Division by zero");
    EXPECT_EQ(cells(), "$1.00|2|4|;$1.00|4|2|;$1.00|0|old|;$1.00|8|1|;$4.00|$14.00|7|;");
    // A single row leaves the flag, and the next recalculation of all rows takes it for its own. It is wanted
    // so.
    calc::CalculateRow(app, 3, LV);
    LV.at(3).cells[1] = "16";
    EXPECT_EQ(told().find(syntaxMessage), 0U);
    for (const char* sums : {"------|------|------|", "$4.00|$30.00|7.5|"}) {
        calc::RecalculateAll(app, LV);
        EXPECT_EQ(told().starts_with(allRowsMessage), sums[0] == '-');
        EXPECT_EQ(totals(), sums);
    }
}

// The choice of the columns to total is followed by a recalculation, and all that shows its results by that.
TEST_F(Totals, FollowTheirDialog) {
    const auto choose = [&](std::string_view wanted) {
        calc::TotalsFrm form(app);
        std::string before;
        for (calc::TotalsFrm::Row& row : form.LV) {
            before += row.Text + (row.Checked ? "+" : "-");
            row.Checked = wanted.find(row.Text) != wanted.npos;
        }
        form.OKButton_Click();
        EXPECT_TRUE(form.unloaded && app.mainFrm.hourglasses == 0);
        return before + " " + text(document.totaledCols);
    };
    open(DataFile("Qty:4 Name Price:2 Day:1 Sum:5 Img:7", "2|Bolt|$1.50||old|;4|Nut|$.25||old|")
             .objects("F|Sum|0|0|900|300")
             .sections("Totaled Cols=Sum|price|;Formulas=Sum,Price * Qty|"));
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_EQ(choose("Sum Qty"), "Qty-Price+Sum+ Qty|Sum|");
    EXPECT_EQ(cells(), "2|Bolt|$1.50||$3.00||;4|Nut|$.25||$1.00||;6|------|------|------|$4.00|------|;");
    EXPECT_EQ(document.layout.layoutField.find(1)->Text, "$3.00");
    EXPECT_FALSE(document.bModified) << "the choice is lost unless something else changes: wanted so";
    for (const char* stale : {"Gone", "Name", "Index", "Day", "Img"}) {
        total({stale});
        EXPECT_THROW(choose(""), core::RunTimeError) << stale;
        document.totaledCols.removeItem(stale);
    }
    openCopyOf("invoices.fwk");
    const std::string invoices = cells();
    for (const int column : {7, 8, 10}) LV.at(2).subItem(column) = "old";
    EXPECT_EQ(choose("Tax Total"), "Invoice_No-Qty-Price-Line-Subtotal-Tax-Total+ Tax|Total|");
    EXPECT_EQ(cells(*document.iLV.totals()), "------|------|------|------|$3.78|$51.03|");
    choose("Total");
    EXPECT_EQ(cells(), invoices);
    LV.at(2).subItem(9) = "old";
    EXPECT_TRUE(calc::recalculateEveryRow(app).empty());
    EXPECT_EQ(document.iLV.at(2).subItem(5), "$2.06");
}

} // namespace
