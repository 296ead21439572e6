#include "entry/invoiceRecords.h"
#include "entry/fieldEvents.h"
#include "entry/retrieveData.h"
#include "invoiceFixture.h"

namespace {

class InvoiceRecords : public InvoiceTest {
protected:
    // Types texts into the fields of a column, one below the other.
    void type(const char* name, std::initializer_list<const char*> texts) {
        auto text = texts.begin();
        app.document.layout.layoutField.forEach([&](core::LayoutField& field) {
            if (field.Tag == name && text != texts.end()) field.Text = *text++;
        });
    }
    std::string keys(const core::RecordsList& list) {
        std::string text;
        list.forEach(
            [&](const core::Item& item) { text += (item.Key.empty() ? item.Text : item.Key).str() + " "; });
        return text;
    }
};

TEST_F(InvoiceRecords, CellsAsTheyAreWritten) {
    const struct {
        const char* column;
        std::initializer_list<const char*> typed;
        const char* cell;
    } cases[] = {{"Price", {"1234", "12", "12.5"}, "$12.34@$12.00@$12.50@"},
                 {"Price", {"12345678901234", "", "7"}, "$123,456,789,012.34@@$7.00@"},
                 {"Price", {"1,234", "abc", "-5"}, "$12.34@a.bc@-$5.00@"},
                 {"Qty", {"1", "", "3"}, "1@@3@"},
                 {"Item", {"", "", ""}, "@@@"},
                 {"No", {""}, "0"},
                 {"Customer", {" Ann "}, " Ann "}};
    for (const auto& c : cases) {
        layoutWith(3);
        core::Item& item = invoice::addInvoiceRecord(app);
        type(c.column, c.typed);
        entry::editInvoiceRecord(app, true);
        EXPECT_EQ(cell(item, c.column), c.cell) << c.column;
    }
    // A Currency column of one field.
    app.document.layout.unloadAll();
    invoice::repeatItemRows(app, 1, {"Price"});
    core::Item& item = invoice::addInvoiceRecord(app);
    type("Price", {""});
    entry::editInvoiceRecord(app, true);
    EXPECT_EQ(cell(item, "Price"), "$.00");
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

TEST_F(InvoiceRecords, DeletingThroughTheInvoiceList) {
    layoutWith(2);
    app.mainFrm.bConfirmDelete = true;
    for (const char* number : {"1", "2", "3", "4"}) record({{"No", number}, {"Qty", "1@1@"}});
    invoice::BuildInvoicesView(app);
    app.document.iLV.clearSelection();
    for (const int row : {2, 4}) app.document.iLV.setSelectedItem(&app.document.iLV.at(row));
    app.document.iLV.totals()->Selected = true;
    EXPECT_FALSE(entry::deleteInvoices(app));
    EXPECT_EQ(program.platform.messages.back().caption, "Confirm Deletion");
    EXPECT_EQ(app.document.LV.count(), 5);
    program.platform.answers = {platform::Answer::Yes};
    EXPECT_TRUE(entry::deleteInvoices(app));
    EXPECT_EQ(keys(app.document.LV), "i1 i3 Totals ");
    EXPECT_EQ(keys(app.document.iLV), "i1 i3 Totals ");
    EXPECT_EQ(app.mainFrm.panels[app::recordsPanel], "2 records.");
    program.platform.answers = {platform::Answer::Yes};
    EXPECT_TRUE(entry::deleteInvoices(app));
    EXPECT_EQ(keys(app.document.iLV), "i1 Totals ") << "the last that stayed was the selected one";
}

// What the results show follows a write, row by row.
TEST_F(InvoiceRecords, AWriteReachesTheResults) {
    layoutWith(2);
    core::Item& item = record({{"Customer", "Ann"}, {"Item", "a@b@"}, {"Qty", "1@2@"}});
    record({{"Customer", "Bo"}, {"Item", "c@d@"}, {"Qty", "3@4@"}});
    for (const bool items : {true, false}) {
        app.document.bInvoiceView = items;
        invoice::rebuildView(app);
        core::RecordsList& results = app.document.searchLV;
        results.clear();
        results.columns.clear();
        results.columns.add("Index", "Index", 0);
        for (const char* name : {"Customer", "Item", "Qty"})
            if (app.document.iLV.columns.find(name) != nullptr) results.columns.add(name, name, 1440);
        app.document.iLV.forEach([&](const core::Item& row) {
            core::Item& result =
                results.add(row.isTotals() || row.Text == "Totals" ? "Totals" : "", row.Text);
            result.Tag = row.Text.str();
        });
        results.Visible = true;
        results.setSelectedItem(&results.at(1));
        app.mainFrm.theListView = &results;
        type("Customer", {items ? "Cy" : "Dee"});
        type("Item", {"x", "y"});
        type("Qty", {"7", "8"});
        entry::editInvoiceRecord(app, true);
        EXPECT_EQ(cell(item, "Item"), "x@y@");
        EXPECT_EQ(core::RecordsList::cell(results.at(1), results.columns["Customer"]), items ? "Cy" : "Dee");
        if (!items) continue;
        EXPECT_EQ(core::RecordsList::cell(results.at(2), results.columns["Qty"]), "8");
        EXPECT_EQ(core::RecordsList::cell(results.at(3), results.columns["Customer"]), "");
    }
}

} // namespace
