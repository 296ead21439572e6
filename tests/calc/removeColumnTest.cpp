#include "designShop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using calc::designFrm;
using platform::Answer;
using platform::Icon;
using testing::ElementsAre;

namespace {

constexpr const char* usedInFormulas =
    "A column you intend to delete is either a member of a calculation column expression, or is a "
    "calculation column itself.  You will need to redefine expressions for all affected calculation columns "
    "that referenced this one. Are you sure you want to do this?";

std::string lossOf(const std::string& name) {
    return "Are you absolutely certain you want to do this?  ALL data in the column " + name +
           " will be lost!";
}

TEST(RemoveColumnTest, removeAsksTwiceAboutAColumnOfAFormula) {
    struct Case {
        const char* name;
        std::vector<std::string> questions;
    };
    const Case cases[] = {{"Price", {usedInFormulas, lossOf("Price")}},
                          {"Sum", {usedInFormulas, lossOf("Sum")}},
                          {"Name", {lossOf("Name")}},
                          {"Day", {lossOf("Day")}}};
    for (const Case& c : cases) {
        DesignShop shop;
        shop.remove(c.name, {Answer::Yes, Answer::No});
        // An answer is left where one question was asked: it was Yes.
        EXPECT_EQ(shop.LV.columns.find(c.name) == nullptr, c.questions.size() == 1) << c.name;
        EXPECT_EQ(shop.platform.texts(), c.questions);
        EXPECT_EQ(shop.platform.messages.back().icon, Icon::Critical);
        EXPECT_EQ(shop.platform.messages.front().icon,
                  c.questions.size() == 2 ? Icon::Exclamation : Icon::Critical);
    }
    DesignShop shop;
    const std::string before = shop.cells(shop.LV);
    shop.remove("Price", {Answer::No, Answer::Yes});
    EXPECT_THAT(shop.platform.texts(), ElementsAre(usedInFormulas));
    shop.platform.messages.clear();
    designFrm(shop.app).deleteBtn_Click(); // no row is selected
    EXPECT_TRUE(shop.platform.messages.empty());
    EXPECT_EQ(shop.cells(shop.LV), before);
    EXPECT_EQ(DesignShop::text(shop.document.formulas), "Sum,Price * Qty|");
}

// The question is asked for any substring, in any case.
TEST(RemoveColumnTest, theQuestionAboutFormulasIsAskedTooOftenRatherThanNotAtAll) {
    RecordsProgram program({{"ax", "3"}});
    program.document.formulas.add("Sum,SalesTAX + 1", "Sum");
    designFrm form(program.app);
    form.selectedRow = 0;
    form.deleteBtn_Click();
    EXPECT_EQ(program.platform.lastMessage(), usedInFormulas);
}

TEST(RemoveColumnTest, removesTheColumnWithAllThatBelongsToIt) {
    DesignShop shop;
    core::LayoutObjects& layout = shop.document.layout;
    layout.layoutField.load(1).Tag = "Qty";
    layout.layoutField.load(2).Tag = "Name";
    layout.layoutField.load(3).Tag = "Qty";
    layout.imgHolder.load(1).Tag = "Qty";
    layout.imgHolder.load(2).Tag = "Name";
    shop.total({"Qty", "Price"});
    for (const char* name : {"Qty", "Price"}) {
        shop.document.printedCols.add(name, name);
        shop.document.optionedCols.add(name, name);
    }
    shop.document.SerialsLV.add("Qty", "Qty").subItem(1) = "7";
    shop.LV.columns.setPosition(4, 2);
    shop.platform.answers = {Answer::Yes, Answer::Yes};
    app::LayoutPage& page = shop.app.mainFrm.layoutPage;
    page.selectedObject = {core::Family::layoutField, 1};
    page.Handle.Visible = true;
    designFrm form(shop.app);
    form.fieldTxt = "half typed";
    DesignShop::select(form, "Qty");
    form.deleteBtn_Click();
    EXPECT_EQ(form.fieldTxt, "");
    EXPECT_EQ(DesignShop::rows(form),
              "Name Text NA NA;Price Currency NA NA;Day Date OFF NA;Sum Calculation NA NA;");
    EXPECT_EQ(shop.cells(shop.LV), "Bolt|$1.50|01/02/2003|Undefined|;Nut|$.25||Undefined|;"
                                   "------|------|------|Undefined|;");
    EXPECT_EQ(shop.LV.columns.displayOrder(), (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_TRUE(shop.document.formulas.empty());
    EXPECT_EQ(layout.layoutField.count(), 1);
    EXPECT_NE(layout.layoutField.find(2), nullptr);
    EXPECT_FALSE(page.selectedObject.isObject() || page.Handle.Visible);
    EXPECT_EQ(layout.imgHolder.count(), 1);
    EXPECT_NE(layout.imgHolder.find(2), nullptr);
    EXPECT_EQ(DesignShop::text(shop.document.totaledCols), "Price|");
    EXPECT_EQ(DesignShop::text(shop.document.printedCols), "Qty|Price|");
    // Put right by Done alone.
    EXPECT_EQ(DesignShop::text(shop.document.optionedCols), "Qty|Price|");
    EXPECT_EQ(shop.serials(), "Qty=7;");
    form.doneBtn_Click();
    EXPECT_EQ(DesignShop::text(shop.document.optionedCols), "");
    EXPECT_EQ(shop.serials(), "");
}

TEST(RemoveColumnTest, removingAllColumnsLeavesTheRecords) {
    DesignShop shop;
    for (const char* name : {"Sum", "Name", "Day", "Qty", "Price"}) shop.remove(name);
    EXPECT_EQ(shop.cells(shop.LV), ";;;");
    EXPECT_EQ(shop.LV.columns.count(), 1);
    EXPECT_TRUE(shop.document.formulas.empty());
}

TEST(RemoveColumnTest, undefinedSpreadsOverAllThatDependsOnTheColumn) {
    struct Case {
        const char* removed;
        std::vector<std::string> formulas;
        const char *left, *cells; // of the columns A, B, C but the removed one
    };
    const Case cases[] = {{"X", {"A,X + 1", "B,A * 2", "C,7"}, "C,7|", "Undefined|Undefined|c|"},
                          {"X",
                           {"C,B", "B,A * 2", "A,1 + X"},
                           "C,B|",
                           "Undefined|Undefined|c|"}, // alone it has no blank beside it
                          {"X", {"A,X", "B,1"}, "A,X|B,1|", "a|b|c|"},
                          {"X", {"A,1 + Xyz", "B,1"}, "B,1|", "Undefined|b|c|"},
                          {"X", {"A,x + 1", "B,1"}, "A,x + 1|B,1|", "a|b|c|"},
                          {"A", {"A,1", "B,A + 1", "C,B + A"}, "", "Undefined|Undefined|"},
                          {"A", {"A,A + 1", "B,Undefined"}, "B,Undefined|", "b|c|"},
                          {"A", {"A,B + 1", "B,A + 1"}, "", "Undefined|c|"},
                          {"A", {"B,2", "C,B + 1", "A,C + 1"}, "B,2|C,B + 1|", "b|c|"}};
    for (const Case& c : cases) {
        RecordsProgram program({{"X", "4"}, {"A", "5"}, {"B", "5"}, {"C", "5"}});
        program.record({"1", "a", "b", "c"});
        for (const std::string& entry : c.formulas)
            program.document.formulas.add(entry, entry.substr(0, entry.find(',')));
        program.platform.answers = {Answer::Yes, Answer::Yes};
        designFrm form(program.app);
        DesignShop::select(form, c.removed);
        form.deleteBtn_Click();
        SCOPED_TRACE(std::string(c.removed) + " of " + testing::PrintToString(c.formulas));
        EXPECT_EQ(RecordsProgram::text(program.document.formulas), c.left);
        std::string cells;
        for (const char* name : {"A", "B", "C"})
            if (program.LV.columns.find(name) != nullptr) cells += program.cell(1, name) + "|";
        EXPECT_EQ(cells, c.cells);
    }
}

} // namespace
