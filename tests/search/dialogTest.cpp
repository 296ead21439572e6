#include "searchProgram.h"

#include "shell/commands.h"
#include "shell/listEvents.h"
#include "shell/mainWindow.h"

#include <sstream>

using namespace search;

namespace {

const DataFile shelf = [] {
    DataFile data({{"Name", 3}, {"Qty", 4}, {"Price", 2}, {"Bought", 1}, {"Cover", 7}});
    data.widths = "1440|900|800|1000|1200|";
    data.spots = "1|3|2|4|5|6|";
    data.rows =
        "Bolt|12|$1.50|01/05/2004||\r\nNut|7|$.25|02/05/2004||\r\n------|------|------|------|------|\r\n";
    return data;
}();

TEST(Dialog, OffersTheColumnsAndTakesThemOver) {
    SearchProgram program(shelf);
    program.app.document.LV.columns.setPosition(2, 4); // as the user dragged them
    program.inDialog([&](searchFrm& form) {
        for (int group = 0; group < 3; ++group) {
            EXPECT_EQ(form.list(group).items,
                      (std::vector<std::string>{"Name", "Qty", "Price", "Bought", "Cover"}));
            EXPECT_EQ(form.list(group).Text(), "Name");
            EXPECT_EQ(form.options(group).Value, greaterOrEqual);
        }
    });
    const auto told = [](const core::ColumnHeaders& columns) {
        std::ostringstream text;
        for (const core::Column& c : columns)
            text << c.Text << c.Tag << c.Width << "," << c.Position << static_cast<int>(c.align) << c.Icon
                 << ";";
        return text.str();
    };
    EXPECT_EQ(told(program.app.document.searchLV.columns), told(program.app.document.LV.columns));
}

TEST(Dialog, ChecksWhatIsTyped) {
    const char* const noNumber = "You entered a non numeric value.";
    const char* const noDate = "You entered an invalid date.";
    struct {
        const char* column;
        const char* typed;
        const char* left;
        const char* message;
    } const cases[] = {{"Price", "1234", "12.34", ""},
                       {"Price", "5", "5.00", ""},
                       {"Price", "x", "x", noNumber},
                       {"Price", "", "", ""},
                       {"Qty", "x", "x", ""},
                       {"Name", "1234", "1234", ""},
                       {"Bought", "13/13/2004", "", noDate},
                       {"Bought", "12//", "", noDate},
                       {"Bought", "1/5/2004", "1/5/2004", ""},
                       {"Bought", "Jan 5", "Jan 5", ""},
                       {"Bought", "  ", "  ", ""}};
    for (const auto& c : cases)
        for (const int index : {0, 3, 5}) {
            SearchProgram program(shelf);
            program.inDialog([&](searchFrm& form) {
                SearchProgram::type(form, index / 2, c.column, exact, "");
                form.SearchText.at(static_cast<std::size_t>(index)).Text = c.typed;
                form.SearchText_LostFocus(index);
                EXPECT_EQ(form.SearchText.at(static_cast<std::size_t>(index)).Text, c.left)
                    << c.column << c.typed;
            });
            EXPECT_EQ(program.platform.lastMessage(), c.message) << c.column << c.typed;
        }
}

TEST(Dialog, SlashesComeByThemselvesInDateColumnsAlone) {
    SearchProgram program(shelf);
    program.inDialog([&](searchFrm& form) {
        const auto change = [&](int index, const char* text) {
            auto& box = form.SearchText.at(static_cast<std::size_t>(index));
            box.Text = text;
            form.SearchText_Change(index);
            return box.Text;
        };
        EXPECT_EQ(change(2, "12"), "12");
        SearchProgram::type(form, 1, "Bought", exact, "");
        for (const int index : {2, 3}) {
            EXPECT_EQ(change(index, "12"), "12/");
            EXPECT_EQ(change(index, "12/31"), "12/31/");
            EXPECT_EQ(change(index, "12/3"), "12/3");
        }
        EXPECT_EQ(change(0, "12"), "12"); // another group's
        EXPECT_EQ(form.SearchText[3].SelStart, 6);
    });
}

TEST(Dialog, ChoosingAColumnSetsRangeAndClearsBoxes) {
    SearchProgram program(shelf);
    program.inDialog([&](searchFrm& form) {
        EXPECT_FALSE(form.Opt1.rangeEnabled);
        SearchProgram::type(form, 0, "Qty", range, "5", "1/1/2004");
        SearchProgram::type(form, 1, "Qty", range, "5", "6");
        EXPECT_TRUE(form.Opt1.rangeEnabled);
        form.List_Click(0, 3); // Bought
        EXPECT_TRUE(form.Opt1.rangeEnabled);
        EXPECT_EQ(form.SearchText[0].Text, "");
        EXPECT_EQ(form.SearchText[1].Text, "1/1/2004");
        EXPECT_EQ(form.SearchText[2].Text, "5");
        form.List_Click(0, 4); // Cover
        EXPECT_FALSE(form.Opt1.rangeEnabled);
        EXPECT_EQ(form.Opt1.Value, range); // greyed, and still what the search goes by
        form.List_Click(0, 0);
        form.SearchText[0].Text = "A";
        form.SearchText[1].Text = "C";
        form.SearchText[2].Text = "";
        form.searchBtn_Click();
    });
    EXPECT_EQ(program.found(), "i1");
    EXPECT_TRUE(program.platform.messages.empty());
}

TEST(Dialog, EnterChecksTheBoxAndSearches) {
    SearchProgram program(shelf);
    program.inDialog([&](searchFrm& form) {
        SearchProgram::type(form, 0, "Price", exact, "150");
        form.SearchText_KeyDown(0, 'A');
        EXPECT_FALSE(program.app.document.searchLV.Visible);
        form.SearchText_KeyDown(0, searchFrm::enterKey);
        EXPECT_EQ(form.SearchText[0].Text, "1.50");
        EXPECT_EQ(program.found(), "i1");
    });
}

TEST(Mode, StatesOfTheWindow) {
    SearchProgram program(shelf);
    core::Document& document = program.app.document;
    app::MainFrm& mainFrm = program.app.mainFrm;
    const auto expectOff = [&](const char* when) {
        EXPECT_FALSE(document.searchLV.Visible) << when;
        EXPECT_EQ(mainFrm.theListView, &document.LV) << when;
        EXPECT_TRUE(program.isEnabled("Formulas")) << when;
        EXPECT_TRUE(program.isEnabled("Delete")) << when;
        EXPECT_FALSE(program.isDown()) << when;
        EXPECT_EQ(program.recordsPanel(), "2 records.") << when;
    };
    const auto expectResults = [&](const char* when) {
        EXPECT_TRUE(document.searchLV.Visible) << when;
        EXPECT_EQ(mainFrm.theListView, &document.searchLV) << when;
        EXPECT_FALSE(program.isEnabled("Formulas")) << when;
        EXPECT_FALSE(program.isEnabled("Delete")) << when;
        EXPECT_TRUE(program.isDown()) << when;
    };
    expectOff("at start");
    program.inDialog([&](searchFrm&) {
        EXPECT_TRUE(program.isDown());
        EXPECT_FALSE(program.isEnabled("Delete"));
        EXPECT_TRUE(program.isEnabled("Formulas"));
    });
    expectOff("closed at once");
    program.inDialog([&](searchFrm& form) {
        SearchProgram::type(form, 0, "Name", exact, "nut");
        form.searchBtn_Click();
        expectResults("dialog open");
        EXPECT_EQ(program.recordsPanel(), "1 records.");
        form.allBtn_Click();
        EXPECT_TRUE(program.isDown());
    });
    expectOff("after All");
    EXPECT_EQ(program.find({{"Name", exact, "nut", ""}}), "i2");
    expectResults("dialog closed");
    shell::runCommand(program.app, "Search"); // released
    expectOff("button released");
    EXPECT_EQ(program.find({}), "-");
    // An empty value shows an empty list all the same, and keeps the panel.
    expectResults("nothing typed");
    EXPECT_EQ(document.searchLV.count(), 1);
    EXPECT_EQ(program.recordsPanel(), "2 records.");
    program.open(document.currentFile);
    expectOff("another database opened");
}

TEST(Mode, DeleteStaysOffWhenTheDialogClosesOverAnotherTab) {
    SearchProgram program(shelf);
    shell::SSTab1_Click(program.app, app::layoutTab);
    program.inDialog([](searchFrm&) {});
    EXPECT_FALSE(program.isEnabled("Delete"));
}

TEST(Mode, WithoutColumnsNothingHappens) {
    SearchProgram program(DataFile({}));
    for (const char* key : {"Search", "mnuSearch"}) shell::runCommand(program.app, key);
    EXPECT_TRUE(program.platform.forms.empty());
    EXPECT_FALSE(program.isDown());
}

TEST(Mode, TheInvoiceListsGiveWayAndLVIsCounted) {
    SearchProgram program("invoices.fwk");
    core::Document& document = program.app.document;
    shell::viewOpt_Click(program.app, 0);
    const int invoices = document.LV.count() - 1;
    ASSERT_NE(invoices, document.iLV.count() - 1);
    program.inDialog([&](searchFrm& form) {
        ASSERT_EQ(form.List1.items.size(), static_cast<std::size_t>(document.iLV.columns.count() - 1));
        form.SearchText[0].Text = " ";
        form.searchBtn_Click();
        EXPECT_EQ(&shell::visibleList(program.app), &document.searchLV);
        form.allBtn_Click();
        EXPECT_EQ(&shell::visibleList(program.app), &document.iLV);
    });
    EXPECT_EQ(program.app.mainFrm.theListView, &document.LV);
    EXPECT_EQ(program.recordsPanel(), std::to_string(invoices) + " records.");
}

TEST(Mode, ResultsSortSelectAndLeadToTheRecord) {
    SearchProgram program(shelf);
    core::Document& document = program.app.document;
    EXPECT_EQ(program.find({{"Qty", greaterOrEqual, "1", ""}}), "i1 i2");
    shell::list_ColumnClick(program.app, document.searchLV, document.searchLV.columns["Qty"].Index);
    EXPECT_EQ(program.found(), "i1 i2"); // the first sort is descending
    shell::list_ColumnClick(program.app, document.searchLV, document.searchLV.columns["Price"].Index);
    EXPECT_EQ(program.found(), "i2 i1");
    EXPECT_TRUE(document.searchLV.at(3).isTotals());

    document.searchLV.setSelectedItem(&document.searchLV.at(3));
    const std::string sums = Program::cells(document.LV3);
    shell::list_Click(program.app, document.searchLV);
    EXPECT_EQ(Program::cells(document.LV3), sums); // the Totals row is no record

    shell::list_DblClick(program.app, document.searchLV);
    EXPECT_EQ(program.app.mainFrm.SSTab1, app::layoutTab);
    shell::SSTab1_Click(program.app, app::reportTab);
    EXPECT_EQ(program.find({{"Name", exact, "none", ""}}), "-");
    shell::list_DblClick(program.app, document.searchLV);
    EXPECT_EQ(program.app.mainFrm.SSTab1, app::reportTab);
}

} // namespace
