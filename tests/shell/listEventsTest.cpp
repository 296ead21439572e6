#include "shell/listEvents.h"
#include "programTest.h"

namespace {

using core::RecordsList;

class ListEventsTest : public ProgramTest {
protected:
    RecordsList& results = document.searchLV;

    void openRows(const std::string& rows) {
        DataFile data;
        data.rows = rows;
        openData(data);
    }
    // What a double click brings up: a form, a message, or a tab.
    std::string doubleClick(RecordsList& list) {
        platform.forms.clear();
        mainFrm.SSTab1 = app::reportTab;
        shell::list_DblClick(app, list);
        const std::string message = told();
        if (!platform.forms.empty()) return platform.forms[0];
        return mainFrm.SSTab1 == app::layoutTab ? "layout" : message;
    }
};

TEST_F(ListEventsTest, aHeaderClickSortsAndTogglesAcrossColumns) {
    openRows("b|2|$1.00|\r\na|10|$2.00|\r\nc|1|$.50|\r\n-|13|-|\r\n");
    const std::pair<int, const char*> clicks[] = {
        {2, "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;-|13|-|;"}, // the first sort goes downwards
        {3, "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;-|13|-|;"}, // and the next upwards, whatever its column
        {3, "a|10|$2.00|;b|2|$1.00|;c|1|$.50|;-|13|-|;"},
        {4, "c|1|$.50|;b|2|$1.00|;a|10|$2.00|;-|13|-|;"}};
    for (const auto& [column, cells] : clicks) {
        shell::list_ColumnClick(app, document.LV, column);
        EXPECT_EQ(Program::cells(document.LV), cells) << column;
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
    shell::list_ColumnClick(app, results, 1); // no Totals row either
    EXPECT_EQ(results.SortOrder, 0);
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
    const char* noColumn =
        "i Your database has no columns, please add some in the database properties dialog.";
    const struct {
        std::vector<int> types;
        bool toLayout, invoice;
        const char* expected;
    } cases[] = {{{1}, false, false, "entryFrm"},
                 {{2}, false, false, "entryFrm"},
                 {{5, 3, 7}, false, false, "entryFrm"},
                 {{4}, false, false, "entryFrm"},
                 {{5, 7}, false, false, ""},
                 {{}, false, false, noColumn},
                 {{}, true, false, "layout"},
                 {{3}, true, false, "layout"},
                 {{3}, false, true, "layout"}};
    for (const auto& c : cases) {
        DataFile data{std::initializer_list<std::pair<const char*, int>>()};
        for (const int type : c.types) data.addColumn(std::to_string(type), type);
        data.rows = "a|\r\n-|\r\n";
        data.more = c.invoice ? "[DatabaseStyle ]True\r\n" : "";
        mainFrm.bLayoutDblClick = c.toLayout;
        openData(data);
        EXPECT_EQ(doubleClick(document.LV), c.expected) << data.types << c.toLayout << c.invoice;
    }
}

TEST_F(ListEventsTest, doubleClickOnAnInvoiceOrItsItems) {
    program.openCopyOf("invoices.fwk");
    RecordsList& shown = document.iLV;
    EXPECT_EQ(&shell::visibleList(app), &shown);
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
    EXPECT_EQ(&shell::visibleList(app), &document.LV);
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
    list.at(4).Selected = false;
    EXPECT_EQ(click(2, true), "10|;$.50|;");
    EXPECT_EQ(mainFrm.selectedRows, (std::vector<int>{2, 3}));
}

} // namespace
