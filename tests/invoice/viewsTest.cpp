#include "calc/itemColumns.h"
#include "invoiceFixture.h"
#include "layout/layoutPage.h"
#include "table.h"

#include <sstream>

namespace {

TEST_F(InvoiceTest, BothViews) {
    layoutWith(3);
    program.total({"Qty", "Subtotal"});
    program.record({"1", "Ann", "a@@c@", "1@9@3@", "@@5@", "", "$4.00"});
    program.record({"2", "Bo", "x@@@q@", "2@@@", "", "", "$.50"});
    invoice::BuildInvoicesView(app.document);
    EXPECT_EQ(
        view(),
        "No|Customer|Subtotal|Tax|; i1: 1|Ann|$4.00||; i2: 2|Bo|$.50||; Totals: ------|------|$4.50|------|");
    // The first cell of several values decides which item rows there are: the second one has no item.
    invoice::BuildItemsView(app.document);
    EXPECT_EQ(view(), "Customer|Item|Qty|Price|Line|; i1: Ann|a|1|||; i1: Ann|c|3|5||; i2: Bo|x|2|||; "
                      "Totals: ------|------|6|------|------|");
    // A new invoice has no cell of several values, so nothing decides, and all rows appear.
    invoice::addInvoiceRecord(app);
    app.document.bInvoiceView = true;
    invoice::rebuildView(app.document);
    EXPECT_EQ(app.document.iLV.count(), 7);
    app.document.iLV.columns.setPosition(2, 4); // dragged, and kept
    invoice::refreshRows(app.document);
    EXPECT_EQ(app.document.iLV.columns.at(2).Position, 4);
    // A view made anew follows the columns, and leaves them the widths that it was given.
    app.document.iLV.columns["Qty"].Width = 77;
    app.document.LV.columns["Qty"].setTypeFromFile("3");
    invoice::refreshRows(app.document);
    EXPECT_EQ(app.document.iLV.columns["Qty"].Tag, "3");
    EXPECT_EQ(app.document.LV.columns["Qty"].Width, 77);
    app.document.LV.columns.remove(app.document.LV.columns["Line"].Index);
    invoice::refreshRows(app.document);
    EXPECT_EQ(app.document.iLV.columns.find("Line"), nullptr);
}

TEST_F(InvoiceTest, ViewsOfFewRecords) {
    layoutWith(2);
    std::string shown; // what the navigation tells behind each new record; the first shows no count
    for (int i = 0; i < 3; ++i) {
        invoice::addInvoiceRecord(app);
        shown += std::to_string(app.mainFrm.Slider1.Max) + " " + program.panel(app::recordsPanel) + " ";
    }
    EXPECT_EQ(shown, "1  2 2 records. 3 3 records. ");
    EXPECT_TRUE(app.document.bModified && app.document.LV.selectedItem() == &app.document.LV.at(3));
    app.document.LV.removeIf([](const core::Item& item) { return !item.isTotals(); });
    // With one field left, a column is of the invoice, and its values show as they are stored.
    record({{"Qty", "1@2@"}});
    layoutWith(1);
    invoice::BuildInvoicesView(app.document);
    EXPECT_EQ(view(), "No|Customer|Item|Qty|Price|Line|Subtotal|Tax|; i4: |||1@2@|||||; Totals: "
                      "------|------|------|------|------|------|------|------|");
    layoutWith(2); // without a cell of several values in the first record there is no item row
    cell(app.document.LV.at(1), "Qty") = "7";
    invoice::BuildItemsView(app.document);
    EXPECT_EQ(app.document.iLV.count(), 1);
}

TEST_F(InvoiceTest, TheColumnsOfAViewKeepTheirPlaces) {
    layoutWith(2);
    // Of the invoices: moved, beyond the table, more than there are columns; then of the items.
    for (const auto& c :
         table("1 4 5 3 2 -> Tax|Subtotal|No|Customer|; 1 99 -> Customer|Subtotal|Tax|No|; 1 2 3 4 5 6 7 -> "
               "No|Customer|Subtotal|Tax|; 1 6 2 3 4 5 -> Item|Qty|Price|Line|Customer|")) {
        app.document.bInvoiceView = c[0].size() == 11;
        for (auto* places : {&app.document.invoiceCols, &app.document.itemLevelCols}) {
            places->clear();
            std::istringstream positions(c[0]);
            for (std::string each; positions >> each;) places->add(each);
        }
        invoice::rebuildView(app.document);
        EXPECT_EQ(view().substr(0, view().find(';')), c[1]) << c[0];
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
    core::LayoutField& lost = app.document.layout.layoutField.load(99);
    lost.Tag = lost.Text = "Gone";
    for (const auto& c :
         table("a@b@c@ -> a|b|c|; a@@c@ -> a||c|; a@ -> a|||; single -> |||;  -> |||; a@b@c@d@ -> a|b|c|")) {
        core::Item& item = record({{"Item", c[0].c_str()}, {"No", " 7 "}, {"Customer", " Ann "}});
        app.document.LV.setSelectedItem(&item);
        invoice::retrieveInvoiceRecord(app.document);
        EXPECT_EQ(fields("Item") + fields("No") + fields("Customer") + fields("Gone"), c[1] + "7| Ann ||")
            << c[0];
    }
}

TEST_F(InvoiceTest, ItemRowsArePlacedInAGrid) {
    app.document.LV.columns.add("Photo", "Photo", 1440).setTypeFromFile("7");
    invoice::repeatItemRows(app, 2, {"Qty", "Photo", "Customer"});
    std::ostringstream places;
    app.document.layout.layoutField.forEach([&](const core::LayoutField& field) {
        places << field.Index << field.Tag << " " << field.Left << "," << field.Top
               << (field.Enabled ? "" : " off")
               << (field.align == core::Alignment::Right ? " right; " : "; ");
    });
    EXPECT_EQ(places.str(),
              "1Qty 250,350 right; 2Customer 1525,350; 3Qty 250,635 off right; 4Customer 1525,635 off; ");
    // Made anew they take the place of the old ones; the selected one is not the one that has its number now.
    layout::layoutPage(app).selectedObject = {core::Family::layoutField, 1};
    invoice::repeatItemRows(app, 1, {"Qty"});
    EXPECT_FALSE(layout::layoutPage(app).selectedObject.isObject());
    const calc::ItemColumns items(app.document);
    EXPECT_TRUE(app.document.layout.layoutField.count() == 3 && !items.contains("Qty") &&
                items.contains("Customer"));
    // A column chosen twice has two fields in a row.
    invoice::repeatItemRows(app, 1, {"Qty", "Qty"});
    EXPECT_TRUE(calc::ItemColumns(app.document).contains("Qty"));
}

TEST_F(InvoiceTest, TheItemRowDialog) {
    invoice::repeatFrm form(app);
    const auto enter = [&](const char* rows) {
        form.Text1 = rows;
        form.OKButton_Click();
        EXPECT_EQ(form.unloaded, program.platform.messages.empty());
        return program.told();
    };
    for (const char* none : {"", "rows", "0"})
        EXPECT_EQ(enter(none), "i You did not enter the number of rows to create.");
    form.List1_Click(0);
    EXPECT_EQ(form.List2, std::vector<std::string>{"No"});
    form.Command1_Click();
    for (const int entry : {3, -1, 8, 3}) form.List1_Click(entry);
    EXPECT_EQ(form.List2, (std::vector<std::string>{"Qty", "Qty"}));
    for (const char* many : {"16384", "99999", "-99999"}) // twice as many fields; beyond 16 bits
        EXPECT_EQ(enter(many), "i The layout has no room for so many rows.");
    EXPECT_FALSE(app.document.bModified);
    EXPECT_EQ(enter("3 rows"), "");
    EXPECT_EQ(app.document.layout.layoutField.count(), 6);
    EXPECT_TRUE(app.document.bModified);
}

} // namespace
