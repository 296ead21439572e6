#include "shell/listEvents.h"
#include "databases.h"

#include <gtest/gtest.h>

namespace {

using core::RecordsList;

class ListEventsTest : public testing::Test {
protected:
    Program program;
    app::App& app = program.app;
    app::MainFrm& mainFrm = app.mainFrm;
    core::Document& document = app.document;
    ScriptedPlatform& platform = program.platform;

    void openRows(const std::string& rows, const std::string& more = "") {
        DataFile data;
        data.rows = rows;
        data.more = more;
        program.open(program.make("rows.fwk", data.text()));
    }
    // What a double click brings up: a form, a message, or a tab.
    std::string doubleClick(RecordsList& list) {
        platform.forms.clear();
        platform.messages.clear();
        mainFrm.SSTab1 = app::reportTab;
        shell::list_DblClick(app, list);
        if (!platform.forms.empty()) return platform.forms[0];
        if (!platform.messages.empty()) return platform.messages[0].text;
        return mainFrm.SSTab1 == app::layoutTab ? "layout" : "";
    }
};

TEST_F(ListEventsTest, aHeaderClickSortsAndTogglesAcrossColumns) {
    openRows("b|2|$1.00|\r\na|10|$2.00|\r\nc|1|$.50|\r\n-|13|-|\r\n");
    const struct {
        int column;
        const char* cells;
    } clicks[] = {
        {2, "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;-|13|-|;"}, // the first sort goes downwards
        {3, "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;-|13|-|;"}, // and the next upwards, whatever its column
        {3, "a|10|$2.00|;b|2|$1.00|;c|1|$.50|;-|13|-|;"},
        {4, "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;-|13|-|;"},
    };
    for (const auto& click : clicks) {
        shell::list_ColumnClick(app, document.LV, click.column);
        EXPECT_EQ(Program::cells(document.LV), click.cells) << click.column;
        EXPECT_TRUE(document.LV.at(4).isTotals());
    }
    EXPECT_FALSE(document.bModified) << "an order is no change";
    EXPECT_TRUE(document.LV.MultiSelect);
    storage::OpenFile(app, true);
    EXPECT_EQ(document.LV.SortOrder, 0);
    shell::list_ColumnClick(app, document.LV, 2);
    EXPECT_EQ(document.LV.at(1).cells[0], "c") << "another database goes on toggling";
}

TEST_F(ListEventsTest, withOneItemNothingIsSorted) {
    openRows("------|------|------|\r\n");
    const std::uint64_t before = document.LV.arrangement();
    shell::list_ColumnClick(app, document.LV, 2);
    EXPECT_FALSE(document.LV.Sorted);
    EXPECT_EQ(document.LV.SortOrder, 0);
    EXPECT_EQ(document.LV.arrangement(), before);
    RecordsList& bare = document.searchLV; // no Totals row either
    shell::list_ColumnClick(app, bare, 1);
    EXPECT_EQ(bare.SortOrder, 0);
}

// The first column of the invoice list names the records shown, so a sort must leave it alone.
TEST_F(ListEventsTest, aSortOfInvoicesKeepsTheKeysInTheFirstColumn) {
    program.openCopyOf("invoices.fwk");
    RecordsList& shown = document.iLV;
    const int columns = shown.columns.count();
    const int day = shown.columns["Day"].Index;
    for (int click = 0; click < 2; ++click) {
        shell::list_ColumnClick(app, shown, day);
        EXPECT_EQ(shown.columns.count(), columns);
        ASSERT_TRUE(shown.at(shown.count()).isTotals());
        shown.forEach([&](const core::Item& item) {
            if (item.isTotals()) return;
            const core::Item& record = document.LV.byKey(item.Text);
            EXPECT_EQ(RecordsList::cell(item, shown.columns.at(day)), record.subItem(3));
        });
    }
    EXPECT_EQ(shown.at(1).Text, "i1") << "dates upwards";
}

TEST_F(ListEventsTest, doubleClickOnARecord) {
    const struct {
        const char* what;
        const char* names;
        const char* types;
        bool toLayout, invoice;
        const char* expected;
    } cases[] = {
        {"date", "A|", "1|", false, false, "entryFrm"},
        {"currency", "A|", "2|", false, false, "entryFrm"},
        {"text among others", "A|B|C|", "5|3|7|", false, false, "entryFrm"},
        {"number", "A|", "4|", false, false, "entryFrm"},
        {"nothing to type in", "A|B|", "5|7|", false, false, ""},
        {"no column", "", "", false, false,
         "Your database has no columns, please add some in the database properties dialog."},
        {"no column, but the option", "", "", true, false, "layout"},
        {"the option", "A|", "3|", true, false, "layout"},
        {"an invoice", "A|", "3|", false, true, "layout"},
    };
    for (const auto& c : cases) {
        DataFile data;
        data.names = c.names;
        data.types = c.types;
        data.widths = "1|1|1|";
        data.spots = "";
        data.rows = "a|\r\n-|\r\n";
        data.more = c.invoice ? "[DatabaseStyle ]True\r\n" : "";
        mainFrm.bLayoutDblClick = c.toLayout;
        program.open(program.make("rows.fwk", data.text()));
        EXPECT_EQ(doubleClick(document.LV), c.expected) << c.what;
        if (!platform.messages.empty()) {
            EXPECT_EQ(platform.messages[0].icon, platform::Icon::Information);
            EXPECT_EQ(platform.messages[0].caption, "Ferrowick");
        }
    }
}

TEST_F(ListEventsTest, doubleClickOnAnInvoiceOrItsItems) {
    program.openCopyOf("invoices.fwk");
    RecordsList& shown = document.iLV;
    shown.setSelectedItem(&shown.at(2));
    EXPECT_EQ(doubleClick(shown), "layout");
    EXPECT_EQ(document.LV.selectedItem(), &document.LV.byKey(shown.at(2).Text));
    EXPECT_EQ(mainFrm.iPrintMode, app::printLayout);
    shown.clearSelection();
    shown.setSelectedItem(nullptr);
    EXPECT_EQ(doubleClick(shown), "") << "on no row";
}

TEST_F(ListEventsTest, doubleClickOnAResult) {
    openRows("a|1|2|\r\nb|1|2|\r\n-|-|-|\r\n");
    RecordsList& results = document.searchLV;
    results.columns.add("Index", "Index", 0);
    core::addTotalsRow(results);
    mainFrm.theListView = &results;
    results.Visible = true;
    EXPECT_EQ(&shell::visibleList(app), &results);
    EXPECT_EQ(doubleClick(results), "") << "the sums alone";
    results.setSelectedItem(&results.add("r1", "i2"));
    core::moveTotals(results);
    // It is asked whether the option can be chosen, not whether it is.
    mainFrm.bLayoutDblClick = false;
    EXPECT_EQ(doubleClick(results), "layout");
    mainFrm.bLayoutDblClick = true;
    mainFrm.control("mnuLayoutDoubleClick").Enabled = false;
    EXPECT_EQ(doubleClick(results), "entryFrm");
}

TEST_F(ListEventsTest, ctrlAddsAndTakesAway) {
    openRows("a|1|$2.00|\r\nb|10|$.50|\r\nc|100|$4.00|\r\n-|-|-|\r\n");
    RecordsList& list = document.LV;
    const auto click = [&](int row, bool select) {
        list.setSelectedItem(&list.at(row));
        list.at(row).Selected = select;
        shell::list_Click(app, list);
        return Program::cells(document.LV3);
    };
    list.clearSelection();
    EXPECT_EQ(click(1, true), "1|;$2.00|;");
    shell::list_KeyDown(app, 16); // Shift
    EXPECT_FALSE(mainFrm.bCtrlDown);
    shell::list_KeyDown(app, shell::ctrlKey);
    EXPECT_EQ(click(2, true), "11|;$2.50|;");
    EXPECT_EQ(click(3, true), "111|;$6.50|;");
    EXPECT_EQ(click(1, false), "110|;$4.50|;");
    EXPECT_EQ(click(4, true), "110|;$4.50|;") << "the sums are no record";
    EXPECT_EQ(mainFrm.selectedRows, std::vector<int>{1}) << "filled by a plain click alone";
    shell::list_KeyUp(app);
    EXPECT_FALSE(mainFrm.bCtrlDown);
    list.at(4).Selected = false;
    EXPECT_EQ(click(2, true), "10|;$.50|;");
    EXPECT_EQ(mainFrm.selectedRows, (std::vector<int>{2, 3}));
}

TEST_F(ListEventsTest, theListOnView) {
    program.openCopyOf("books.fwk");
    EXPECT_EQ(&shell::visibleList(app), &document.LV);
    program.openCopyOf("invoices.fwk");
    EXPECT_EQ(&shell::visibleList(app), &document.iLV);
}

} // namespace
