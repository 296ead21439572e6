#include "entry/invoiceRecords.h"

#include "entry/fieldEvents.h"
#include "entry/navBar.h"
#include "entry/retrieveData.h"
#include "invoiceFixture.h"
#include "shell/mainWindow.h"
#include "table.h"

namespace {

struct InvoiceRecords : InvoiceTest {
    core::RecordsList& LV = app.document.LV;

    // Types texts into the fields of a column, one below the other.
    void type(std::string_view name, const std::vector<std::string>& texts) {
        auto text = texts.begin();
        app.document.layout.layoutField.forEach([&](core::LayoutField& field) {
            if (field.Tag == name && text != texts.end()) field.Text = *text++;
        });
    }
    static std::string keys(const core::RecordsList& list) {
        std::string all;
        list.forEach([&](const core::Item& item) {
            all += (&item == list.selectedItem() ? ">" : "") +
                   (item.Key.empty() ? item.Text : item.Key).str() + " ";
        });
        return all;
    }
};

// New, what is typed, and Update.
TEST_F(InvoiceRecords, CellsAsTheyAreWritten) {
    layoutWith(3);
    shell::SSTab1_Click(app, app::layoutTab);
    for (const auto& c : table("Price -> 1234 -> 12 -> 12.5 -> $12.34@$12.00@$12.50@; Price -> "
                               "12345678901234 ->  -> 7 -> $123,456,789,012.34@@$7.00@; Price -> 1,234 -> "
                               "abc -> -5 -> $12.34@a.bc@-$5.00@; Qty -> 1 ->  -> 3 -> 1@@3@; Item ->  ->  "
                               "->  -> @@@; No ->  ->  ->  -> 0; Customer ->  Ann  ->  ->  ->  Ann ")) {
        entry::layoutNavBar_ButtonClick(app, "New");
        type(c[0], {c[1], c[2], c[3]});
        entry::layoutNavBar_ButtonClick(app, "Update");
        EXPECT_EQ(cell(*LV.selectedItem(), c[0].c_str()), c[4]);
        EXPECT_EQ(app.document.layout.layoutField.find(1)->Text, "0"); // as it is stored
    }
}

TEST_F(InvoiceRecords, TheSumsFollowOnArrivalInASingleOrACalculatedField) {
    layoutWith(2);
    formula("Line", "Qty * Price");
    formula("Subtotal", "Line");
    app.document.totaledCols.add("Subtotal", "Subtotal");
    core::Item& item = record({});
    app.mainFrm.SSTab1 = app::layoutTab;
    entry::showRecord(app);
    type("Qty", {"2", "3"});
    type("Price", {"150", "200"});
    std::string subtotals; // behind each field, in the order of the sheet
    app.document.layout.layoutField.forEach([&](const core::LayoutField& field) {
        if (field.Tag == "Tax" || field.Tag == "No" || field.Tag == "Customer") return;
        cell(item, "Subtotal") = "";
        entry::layoutField_GotFocus(app, field.Index);
        subtotals += field.Tag + cell(item, "Subtotal").str() + " ";
    });
    EXPECT_EQ(subtotals, "Subtotal$9.00 Item Qty Price Line$9.00 Item Qty Price Line$9.00 ");
    EXPECT_EQ(cell(item, "Line"), "$3.00@$6.00@");
}

// The next that stays becomes the current one, or at the end the last.
TEST_F(InvoiceRecords, DeletingThroughTheInvoiceList) {
    layoutWith(2);
    app.mainFrm.bConfirmDelete = true;
    for (const char* number : {"1", "2", "3", "4"}) record({{"No", number}, {"Qty", "1@1@"}});
    invoice::BuildInvoicesView(app.document);
    app.document.iLV.clearSelection();
    for (const int row : {2, 4}) app.document.iLV.setSelectedItem(&app.document.iLV.at(row));
    app.document.iLV.totals()->Selected = true;
    EXPECT_FALSE(entry::deleteInvoices(app));
    for (const char* left : {"i1 >i3 Totals ", ">i1 Totals "}) {
        program.platform.answers = {platform::Answer::Yes};
        EXPECT_TRUE(entry::deleteInvoices(app));
        EXPECT_EQ(keys(LV) + keys(app.document.iLV), left + std::string(left));
        EXPECT_TRUE(program.told().ends_with("! Confirm Deletion: Are you sure?"));
    }
    EXPECT_EQ(app.mainFrm.panels[app::recordsPanel], "2 records.");
}

// What the results show follows a write, row by row.
TEST_F(InvoiceRecords, AWriteReachesTheResults) {
    layoutWith(2);
    core::Item& item = record({{"Customer", "Ann"}, {"Item", "a@b@"}, {"Qty", "1@2@"}});
    record({{"Customer", "Bo"}, {"Item", "c@d@"}, {"Qty", "3@4@"}});
    core::RecordsList& results = app.document.searchLV;
    results.Visible = true;
    for (const bool items : {true, false}) {
        app.document.bInvoiceView = items;
        invoice::rebuildView(app.document);
        results.clear();
        results.columns = app.document.iLV.columns;
        app.document.iLV.forEach(
            [&](const core::Item& row) { results.add(row.Key, row.Text).cells = row.cells; });
        results.setSelectedItem(&results.at(1));
        app.mainFrm.theListView = &results;
        type("Customer", {items ? "Cy" : "Dee"});
        type("Item", {"x", "y"});
        type("Qty", {"7", "8"});
        entry::editInvoiceRecord(app, true);
        EXPECT_EQ(cell(item, "Item"), "x@y@");
        EXPECT_EQ(Program::cells(results), Program::cells(app.document.iLV));
        EXPECT_TRUE(Program::cells(results).starts_with(items ? "Cy|x|7|" : "No|Dee|"));
    }
}

} // namespace
