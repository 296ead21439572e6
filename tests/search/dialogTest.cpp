#include "searchProgram.h"

#include "shell/listEvents.h"
#include "shell/mainWindow.h"

using namespace search;

namespace {

struct Dialog : testing::Test, SearchProgram {
    Dialog()
        : SearchProgram(DataFile("Name Qty:4 Price:2 Bought:1 Cover:7",
                                 "Bolt|12|$1.50|01/05/2004|;Nut|7|$.25|02/05/2004|")) {}
    core::Document& document = app.document;
    // "results on show, Formulas, Delete, Search pressed, records", 1 for yes.
    std::string state() {
        EXPECT_EQ(app.mainFrm.theListView == &document.searchLV, document.searchLV.Visible);
        std::string text(1, document.searchLV.Visible ? '1' : '0');
        for (const char* key : {"Formulas", "Delete"}) text += app.mainFrm.control(key).Enabled ? '1' : '0';
        return text + (app.mainFrm.control("Search").Value ? "1 " : "0 ") + panel(app::recordsPanel);
    }
};

// A box is left, or Enter is pressed in it.
TEST_F(Dialog, ChecksWhatIsTyped) {
    const auto cases = table("Price -> 1234 -> 12.34; Price; Name -> 1234 -> 1234; Price -> x -> x -> ! "
                             "Verify Data: You entered a non numeric value.; Bought -> Jan 5 -> Jan 5; "
                             "Bought ->    ->   ; Bought -> 13/13/2004 ->  -> i You entered an invalid date.",
                             4);
    inDialog([&](searchFrm& form) {
        for (const auto& c : cases)
            for (const int index : {0, 3, 5}) {
                type(form, index / 2, c[0] + " = ");
                auto& box = form.SearchText.at(static_cast<std::size_t>(index));
                box.Text = c[1];
                form.SearchText_KeyDown(index, 'A');
                EXPECT_EQ(box.Text, c[1]);
                form.SearchText_LostFocus(index);
                EXPECT_EQ(box.Text + told(), c[2] + c[3]) << c[0] << c[1];
            }
        type(form, 0, "Price = 150");
        form.SearchText_KeyDown(0, searchFrm::enterKey);
        EXPECT_EQ(form.SearchText[0].Text, "1.50");
        EXPECT_EQ(found(), "i1");
    });
}

TEST_F(Dialog, TheColumnDecidesAboutSlashesRangesAndWhatStays) {
    inDialog([&](searchFrm& form) {
        const auto change = [&](std::size_t index, const char* text) {
            form.SearchText.at(index).Text = text;
            form.SearchText_Change(static_cast<int>(index));
            return form.SearchText.at(index).Text;
        };
        EXPECT_EQ(change(2, "12"), "12");
        type(form, 1, "Bought = ");
        for (const std::size_t index : {2U, 3U})
            for (const auto& [typed, text] : {std::pair("12", "12/"), {"12/3", "12/3"}, {"12/31", "12/31/"}})
                EXPECT_EQ(change(index, typed), text);
        EXPECT_EQ(form.SearchText[3].SelStart, 6);
        EXPECT_EQ(change(0, "12"), "12"); // another group's

        EXPECT_FALSE(form.Opt1.rangeEnabled);
        type(form, 0, "Qty .. 5 to 1/1/2004");
        type(form, 1, "Qty .. 5 to 6");
        for (const auto& [column, enabled] : {std::pair(1, true), {3, true}, {4, false}}) {
            form.List_Click(0, column);
            EXPECT_EQ(form.Opt1.rangeEnabled, enabled);
        }
        EXPECT_EQ(form.SearchText[0].Text + "," + form.SearchText[1].Text, ",1/1/2004");
        EXPECT_EQ(form.SearchText[2].Text + "," + form.SearchText[3].Text, "5,6");
        // A range is greyed, and still what the search goes by
        form.List_Click(0, 0);
        for (const auto& [box, text] : {std::pair(0U, "A"), {1U, "C"}, {2U, ""}})
            form.SearchText.at(box).Text = text;
        form.searchBtn_Click();
    });
    EXPECT_EQ(found(), "i1");
    EXPECT_EQ(told(), "");
}

TEST_F(Dialog, StatesOfTheWindow) {
    const std::string off = "0110 2 records.";
    EXPECT_EQ(state(), off);
    document.LV.columns.setPosition(2, 4); // as the user dragged them
    inDialog([&](searchFrm& form) {
        for (int group = 0; group < 3; ++group)
            EXPECT_TRUE(form.list(group).items.size() == 5 && form.list(group).Text() == "Name" &&
                        form.options(group).Value == greaterOrEqual);
        EXPECT_EQ(document.searchLV.columns.displayOrder(), document.LV.columns.displayOrder());
        const core::Column &column = document.LV.columns.at(6), &copy = document.searchLV.columns.at(6);
        EXPECT_TRUE(copy.Text + copy.Tag + copy.Icon == "Cover7Picture" && copy.Width == column.Width &&
                    copy.align == column.align);
        EXPECT_EQ(state(), "0101 2 records.");
        type(form, 0, "Name = nut");
        form.searchBtn_Click();
        EXPECT_EQ(state(), "1001 1 records.");
        form.allBtn_Click();
        EXPECT_EQ(state(), "0101 2 records.");
    });
    EXPECT_EQ(state(), off);
    EXPECT_EQ(find("Name = nut"), "i2");
    EXPECT_EQ(state(), "1001 1 records.");
    run("Search"); // released
    EXPECT_EQ(state(), off);
    platform.forms.clear();
    run("Search"); // and pressed
    EXPECT_EQ(platform.forms.size(), 1U);
    EXPECT_EQ(find(""), "-");
    EXPECT_EQ(state(), "1001 2 records.") << "an empty value shows an empty list, and keeps the panel";
    open(document.currentFile);
    EXPECT_EQ(state(), off);
    shell::SSTab1_Click(app, app::layoutTab);
    inDialog([](searchFrm&) {});
    EXPECT_FALSE(app.mainFrm.control("Delete").Enabled) << "the dialog closed over another tab";
    open(DataFile("", ""));
    platform.forms.clear();
    for (const char* key : {"Search", "mnuSearch"}) run(key);
    EXPECT_TRUE(platform.forms.empty() && !app.mainFrm.control("Search").Value) << "without columns";
    // The invoice lists give way, and LV is counted.
    openCopyOf("invoices.fwk");
    shell::viewOpt_Click(app, 0);
    inDialog([&](searchFrm& form) {
        EXPECT_EQ(form.List1.items.size(), static_cast<std::size_t>(document.iLV.columns.count() - 1));
        form.searchBtn_Click();
        EXPECT_EQ(&shell::visibleList(app.document), &document.searchLV);
        form.allBtn_Click();
        EXPECT_EQ(&shell::visibleList(app.document), &document.iLV);
    });
    EXPECT_TRUE(app.mainFrm.theListView == &document.LV && document.LV.count() != document.iLV.count());
    EXPECT_EQ(panel(app::recordsPanel), std::to_string(document.LV.count() - 1) + " records.");
}

} // namespace
