#include "invoiceFixture.h"

namespace {

TEST_F(InvoiceTest, BothViews) {
    layoutWith(3);
    app.document.totaledCols.add("Qty", "Qty");
    app.document.totaledCols.add("Subtotal", "Subtotal");
    record({{"No", "1"}, {"Customer", "Ann"}, {"Item", "a@@c@"}, {"Qty", "1@9@3@"}, {"Subtotal", "$4.00"}});
    record({{"No", "2"}, {"Customer", "Bo"}, {"Item", "x@@@"}, {"Qty", "2@@@"}, {"Subtotal", "$.50"}});
    invoice::BuildInvoicesView(app);
    EXPECT_EQ(view(), "No|Customer|Subtotal|Tax|; i1: 1|Ann|$4.00||; i2: 2|Bo|$.50||; Totals: "
                      "------|------|$4.50|------|");
    // The first cell of several values decides which item rows there are: the second one has no item.
    invoice::BuildItemsView(app);
    EXPECT_EQ(view(), "Customer|Item|Qty|Price|Line|; i1: Ann|a|1|||; i1: Ann|c|3|||; i2: Bo|x|2|||; Totals: "
                      "------|------|6|------|------|");
    // A new invoice has no cell of several values, so nothing decides, and all rows appear.
    invoice::addInvoiceRecord(app);
    app.document.bInvoiceView = true;
    app::rebuildInvoiceView(app);
    EXPECT_EQ(app.document.iLV.count(), 7);
}

TEST_F(InvoiceTest, ViewsOfFewRecords) {
    layoutWith(2);
    for (const bool items : {false, true}) {
        app.document.bInvoiceView = items;
        app::rebuildInvoiceView(app);
        EXPECT_EQ(app.document.iLV.count(), 1);
        EXPECT_EQ(app.document.iLV.at(1).Text, "Totals");
    }
    // With one field left, a column is of the invoice, and its values show as they are stored.
    record({{"Qty", "1@2@"}});
    layoutWith(1);
    invoice::BuildInvoicesView(app);
    EXPECT_EQ(view(), "No|Customer|Item|Qty|Price|Line|Subtotal|Tax|; i1: |||1@2@|||||; Totals: "
                      "------|------|------|------|------|------|------|------|");
}

TEST_F(InvoiceTest, TheColumnsOfAViewKeepTheirPlaces) {
    layoutWith(2);
    const struct {
        const char* what;
        std::initializer_list<const char*> positions;
        const char* columns;
    } cases[] = {{"none", {}, "No|Customer|Subtotal|Tax|"},
                 {"moved", {"1", "5", "2", "3", "4"}, "Customer|Subtotal|Tax|No|"},
                 {"each moved past others", {"1", "4", "5", "3", "2"}, "Tax|Subtotal|No|Customer|"},
                 {"beyond the table", {"1", "99"}, "Customer|Subtotal|Tax|No|"},
                 {"more than columns", {"1", "2", "3", "4", "5", "6", "7"}, "No|Customer|Subtotal|Tax|"}};
    for (const auto& c : cases) {
        app.document.invoiceCols.clear();
        for (const char* position : c.positions) app.document.invoiceCols.add(position);
        invoice::BuildInvoicesView(app);
        EXPECT_EQ(view().substr(0, view().find(';')), c.columns) << c.what;
    }
}

TEST_F(InvoiceTest, RetrieveShowsAValueInEachRow) {
    layoutWith(3);
    const auto fields = [this](const char* name) {
        std::string text;
        app.document.layout.layoutField.forEach([&](const core::LayoutField& field) {
            if (field.Tag == name) text += field.Text + "|";
        });
        return text;
    };
    const struct {
        const char* cell;
        const char* shown;
    } cases[] = {{"a@b@c@", "a|b|c|"}, {"a@@c@", "a||c|"}, {"a@", "a|||"},
                 {"single", "|||"},    {"", "|||"},        {"a@b@c@d@", "a|b|c|"}};
    for (const auto& c : cases) {
        core::Item& item = record({{"Item", c.cell}, {"No", " 7 "}, {"Customer", " Ann "}});
        app.document.LV.setSelectedItem(&item);
        invoice::retrieveInvoiceRecord(app);
        EXPECT_EQ(fields("Item"), c.shown) << c.cell;
        EXPECT_EQ(fields("No"), "7|");
        EXPECT_EQ(fields("Customer"), " Ann |");
    }
}

TEST_F(InvoiceTest, ItemRowsArePlacedInAGrid) {
    app.document.LV.columns.add("Photo", "Photo", 1440).setTypeFromFile("7");
    invoice::repeatItemRows(app, 2, {"Qty", "Photo", "Customer"});
    std::string places;
    app.document.layout.layoutField.forEach([&](const core::LayoutField& field) {
        places += std::to_string(field.Index) + field.Tag + " " +
                  std::to_string(static_cast<int>(field.Left)) + "," +
                  std::to_string(static_cast<int>(field.Top)) + (field.Enabled ? "" : " off") +
                  (field.align == core::Alignment::Right ? " right" : "") + "; ";
    });
    EXPECT_EQ(places,
              "1Qty 250,350 right; 2Customer 1525,350; 3Qty 250,635 off right; 4Customer 1525,635 off; ");
    // Made anew they take the place of the old ones.
    app.mainFrm.layoutPage.selectedObject = {core::Family::layoutField, 1};
    invoice::repeatItemRows(app, 1, {"Qty"});
    EXPECT_FALSE(app.mainFrm.layoutPage.selectedObject.isObject()) << "not the one that has its number now";
    EXPECT_EQ(app.document.layout.layoutField.count(), 3);
    EXPECT_FALSE(invoice::isItemColumn(app.document, "Qty"));
    EXPECT_TRUE(invoice::isItemColumn(app.document, "Customer"));
    // A column chosen twice has two fields in a row.
    invoice::repeatItemRows(app, 1, {"Qty", "Qty"});
    EXPECT_TRUE(invoice::isItemColumn(app.document, "Qty"));
}

TEST_F(InvoiceTest, TheItemRowDialog) {
    invoice::repeatFrm form(app);
    EXPECT_EQ(form.List1.size(), 8U);
    for (const char* text : {"", "rows", "0"}) {
        form.Text1 = text;
        form.OKButton_Click();
        EXPECT_FALSE(form.unloaded) << text;
        EXPECT_EQ(program.platform.lastMessage(), "You did not enter the number of rows to create.");
    }
    form.List1_Click(0);
    form.Command1_Click();
    form.List1_Click(3);
    form.List1_Click(3);
    EXPECT_EQ(form.List2, (std::vector<std::string>{"Qty", "Qty"}));
    for (const char* text : {"16384", "99999", "-99999"}) { // twice as many fields; beyond 16 bits
        form.Text1 = text;
        form.OKButton_Click();
        EXPECT_FALSE(form.unloaded) << text;
        EXPECT_EQ(program.platform.lastMessage(), "The layout has no room for so many rows.");
    }
    EXPECT_FALSE(app.document.bModified);
    form.Text1 = "3 rows";
    form.OKButton_Click();
    EXPECT_TRUE(form.unloaded);
    EXPECT_EQ(app.document.layout.layoutField.count(), 6);
    EXPECT_TRUE(app.document.bModified);
}

} // namespace
