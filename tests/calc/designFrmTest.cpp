#include "designShop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using calc::designFrm;
using platform::Answer;
using platform::Icon;
using testing::ElementsAre;
namespace errors = core::errors;

namespace {

constexpr const char* renameLabels =
    "Would you like to rename all exact matching labels in your layout to the new name as well?";

TEST(DesignFrmTest, showsTheColumnsWithTheirOptions) {
    DesignShop shop;
    for (const char* name : {"Qty", "Name", "Gone"}) shop.document.optionedCols.add(name, name);
    designFrm form(shop.app);
    EXPECT_EQ(DesignShop::rows(form), "Name Text NA NA;Price Currency NA NA;Qty Number NA ON;Day Date OFF NA;"
                                      "Sum Calculation NA NA;");
    EXPECT_TRUE(form.pictureVisible);
    EXPECT_TRUE(form.fieldTxtHasFocus);
    EXPECT_FALSE(shop.document.bModified);
    form.Form_QueryUnload();
    EXPECT_TRUE(shop.document.bModified);
    shop.document.bInvoiceStyle = true;
    EXPECT_FALSE(designFrm(shop.app).pictureVisible);
}

TEST(DesignFrmTest, addsAColumnOfEachType) {
    struct Case {
        int option;
        const char *tag, *row;
        core::Alignment align;
    };
    using core::Alignment;
    // Dates stand left and pictures right until the database is opened again. It is wanted so.
    const Case cases[] = {{0, "1", "New_One Date OFF NA;", Alignment::Left},
                          {1, "2", "New_One Currency NA NA;", Alignment::Right},
                          {2, "5", "New_One Calculation NA NA;", Alignment::Right},
                          {3, "4", "New_One Number NA OFF;", Alignment::Right},
                          {4, "3", "New_One Text NA NA;", Alignment::Left},
                          {5, "7", "New_One Picture NA NA;", Alignment::Right}};
    for (const Case& c : cases) {
        RecordsProgram program({});
        program.record({});
        designFrm form(program.app);
        form.fieldTxtHasFocus = false;
        for (const int option : {c.option, 6, -1}) form.typeOpt_Click(option); // of six
        EXPECT_TRUE(form.fieldTxtHasFocus);
        form.fieldTxt_Change("New One");
        EXPECT_EQ(form.fieldTxt, "New_One");
        form.fieldTxt_Enter();
        EXPECT_EQ(DesignShop::rows(form), c.row);
        EXPECT_EQ(form.fieldTxt, "");
        const core::Column& column = program.LV.columns["New_One"];
        EXPECT_EQ(column.Tag, c.tag);
        EXPECT_EQ(column.Width, 1440);
        EXPECT_EQ(column.align, c.align) << c.row;
        EXPECT_EQ(column.Icon, c.option == 5 ? "Picture" : "");
        EXPECT_EQ(program.cells(program.LV), "|;|;") << "empty in the Totals row too";
    }
}

TEST(DesignFrmTest, namesThatAddTakesAndRefuses) {
    DesignShop shop;
    designFrm form(shop.app);
    form.typeOpt_Click(3);
    for (const char* blank : {"", "   "}) {
        form.fieldTxt = blank;
        form.addBtn_Click();
        shop.expectMessage("You must enter a column name.", Icon::Information);
    }
    shop.type(form, "Price");
    shop.expectMessage("Column with that name already exists!", Icon::Exclamation);
    EXPECT_EQ(form.fieldTxt, "Price");
    form.fieldTxt = " Pri ce "; // blanks that came into the box in another way
    form.addBtn_Click();
    shop.expectMessage("Column with that name already exists!", Icon::Exclamation);
    EXPECT_EQ(shop.LV.columns.count(), 6);
    for (const char* odd : {"123", "a,b", "Größe", "___"}) shop.type(form, odd);
    EXPECT_TRUE(shop.platform.messages.empty());
    EXPECT_EQ(shop.LV.columns.count(), 10);
    // No message exists for a name that differs in case alone, or for that of the hidden column.
    for (const char* taken : {"price", "GRÖßE", "Index", "INDEX"})
        EXPECT_EQ(raisedBy([&] { shop.type(form, taken); }), errors::keyNotUnique) << taken;
    EXPECT_EQ(shop.LV.columns.count(), 10);
    EXPECT_EQ(form.List1.size(), 9U);
    EXPECT_EQ(shop.LV.at(1).cells.size(), 9U);
}

TEST(DesignFrmTest, fiftyColumnsAreTheMost) {
    RecordsProgram program({});
    program.record({});
    designFrm form(program.app);
    for (int i = 1; i <= 51; ++i) {
        form.fieldTxt_Change("C" + std::to_string(i));
        form.addBtn_Click();
        ASSERT_EQ(program.platform.messages.size(), i == 51 ? 1U : 0U) << i;
    }
    EXPECT_EQ(program.platform.lastMessage(),
              "You have added the maximum number of columns to the database.");
    EXPECT_EQ(program.platform.messages[0].icon, Icon::Information);
    EXPECT_EQ(form.fieldTxt, "C51");
    EXPECT_EQ(program.LV.columns.count(), 51);
    EXPECT_EQ(program.LV.at(1).cells.size(), 50U);
    // The number is looked at ahead of the name.
    form.fieldTxt.clear();
    form.addBtn_Click();
    ASSERT_EQ(program.platform.messages.size(), 2U);
    EXPECT_EQ(program.platform.messages[1].text, program.platform.messages[0].text);
}

TEST(DesignFrmTest, renamesEverywhereThatNamesTheColumn) {
    DesignShop shop;
    core::LayoutObjects& layout = shop.document.layout;
    layout.layoutField.load(1).Tag = "Price";
    layout.layoutField.load(2).Tag = "price";
    layout.imgHolder.load(1).Tag = "Price";
    for (const char* text : {" PRICE  ", "Price:", "Größe"})
        layout.tLabel.load(layout.tLabel.lowestFreeIndex()).Text = text;
    for (const char* name : {"Qty", "Price", "Gone"}) {
        shop.document.printedCols.add(name, name);
        shop.document.totaledCols.add(name, name);
        shop.document.prnItemCols.add(name, name);
        shop.document.optionedCols.add(name, name);
    }
    shop.platform.answers = {Answer::Yes};
    designFrm form(shop.app);
    DesignShop::select(form, "Price");
    form.fieldTxt = " Net Price ";
    form.changeBtn_Click();
    EXPECT_EQ(form.fieldTxt, "NetPrice") << "blanks go, and the name stays in the box";
    EXPECT_THAT(shop.platform.texts(), ElementsAre(renameLabels));
    EXPECT_EQ(layout.layoutField.find(1)->Tag, "NetPrice");
    EXPECT_EQ(layout.layoutField.find(2)->Tag, "price");
    EXPECT_EQ(layout.imgHolder.find(1)->Tag, "NetPrice");
    EXPECT_EQ(layout.tLabel.find(1)->Text, "NetPrice");
    EXPECT_EQ(layout.tLabel.find(2)->Text, "Price:");
    EXPECT_EQ(form.List1[1].Name, "NetPrice");
    EXPECT_EQ(shop.LV.columns.find("Price"), nullptr);
    EXPECT_EQ(shop.LV.columns["netprice"].Index, 3);
    EXPECT_EQ(shop.cell(1, "NetPrice"), "$1.50");
    EXPECT_EQ(DesignShop::text(shop.document.printedCols), "Qty|NetPrice|Gone|");
    EXPECT_EQ(DesignShop::text(shop.document.totaledCols), "Qty|NetPrice|Gone|");
    EXPECT_EQ(DesignShop::text(shop.document.prnItemCols), "Qty|NetPrice|Gone|");
    EXPECT_EQ(DesignShop::text(shop.document.optionedCols), "Qty|Price|Gone|");
    EXPECT_EQ(DesignShop::text(shop.document.formulas), "Sum,NetPrice * Qty|");
}

// Formulas are changed by plain substrings with a blank beside them, and as a whole under their own name.
TEST(DesignFrmTest, howARenameChangesFormulas) {
    struct Case {
        const char *from, *to, *before, *after;
    };
    const Case cases[] = {
        {"Tax", "Duty", "Sum,Price + Tax", "Sum,Price + Duty"},
        {"Tax", "Duty", "Sum,Tax + Price", "Sum,Duty + Price"},
        {"Tax", "Duty", "Sum,Tax", "Sum,Tax"},
        {"Tax", "Duty", "Sum,SalesTax + 1", "Sum,SalesDuty + 1"},
        {"Tax", "Duty", "Sum,1 + TaxRate", "Sum,1 + DutyRate"},
        {"Tax", "Duty", "Sum,SalesTax", "Sum,SalesTax"},
        {"Tax", "Duty", "Sum,tax + 1", "Sum,tax + 1"},
        {"Tax", "Duty", "Tax,Tax + SalesTax", "Duty,Duty + SalesDuty"},
        {"Tax", "Duty", "Tax,Undefined", "Duty,Undefined"},
        {"A", "AB", "A,C + A", "AB,C + ABB"}, // changed twice. It is wanted so
    };
    for (const Case& c : cases) {
        RecordsProgram program({{c.from, "5"}});
        const std::string entry = c.before;
        program.document.formulas.add(entry, entry.substr(0, entry.find(',')));
        designFrm form(program.app);
        form.selectedRow = 0;
        form.fieldTxt_Change(c.to);
        form.changeBtn_Click();
        const std::string after = c.after;
        EXPECT_EQ(RecordsProgram::text(program.document.formulas), after + "|") << c.before;
        EXPECT_NE(program.document.formulas.find(after.substr(0, after.find(','))), nullptr) << c.before;
    }
}

TEST(DesignFrmTest, namesThatChangeNameTakesAndRefuses) {
    DesignShop shop;
    const std::string before = shop.cells(shop.LV);
    const auto names = [&] {
        std::string all;
        for (const core::Column& column : shop.LV.columns) all += column.Key + "|";
        return all;
    };
    shop.rename("Price", "");
    designFrm(shop.app).changeBtn_Click(); // no row is selected
    EXPECT_TRUE(shop.platform.messages.empty());
    for (const char* number : {"123", "-1.5", "$5", "1,234", "(7)", "1e3"}) {
        shop.rename("Price", number);
        shop.expectMessage("Column name must not be a number.", Icon::Information);
    }
    for (const char* taken : {"Qty", "Price"}) {
        shop.rename("Price", taken);
        shop.expectMessage("Column with that name already exists!", Icon::Exclamation);
    }
    EXPECT_EQ(raisedBy([&] { shop.rename("Price", "qty"); }), errors::keyNotUnique);
    EXPECT_EQ(names(), "Index|Name|Price|Qty|Day|Sum|");
    EXPECT_EQ(DesignShop::text(shop.document.formulas), "Sum,Price * Qty|");
    shop.document.layout.tLabel.load(1).Text = "Price";
    shop.rename("Price", "price,net");
    EXPECT_EQ(shop.document.layout.tLabel.find(1)->Text, "Price") << "the answer was No";
    EXPECT_EQ(names(), "Index|Name|price,net|Qty|Day|Sum|");
    EXPECT_EQ(shop.cells(shop.LV), before);
}

// The printed columns keep the name of a column that is gone; a file with the name twice would not open.
TEST(DesignFrmTest, aColumnMayTakeTheNameOfOneThatIsGone) {
    DesignShop shop;
    for (const char* name : {"Price", "Qty"}) shop.document.printedCols.add(name, name);
    shop.remove("Price");
    EXPECT_EQ(DesignShop::text(shop.document.printedCols), "Price|Qty|");
    shop.rename("Qty", "Price");
    EXPECT_EQ(DesignShop::text(shop.document.printedCols), "Price|");
    EXPECT_EQ(shop.LV.columns["Price"].Tag, "4");
}

TEST(DesignFrmTest, entryOptionsAreAskedForDatesAndNumbers) {
    DesignShop shop;
    shop.platform.answers = {Answer::Yes, Answer::Yes};
    designFrm form(shop.app);
    for (const int row : {0, 1, 4, -1, 5}) form.List1_DblClick(row);
    EXPECT_TRUE(shop.platform.messages.empty());
    form.List1_DblClick(3);
    form.List1_DblClick(2);
    EXPECT_THAT(shop.platform.texts(), ElementsAre("Auto enter today's date when entering data?",
                                                   "Auto increment value when entering data?"));
    EXPECT_EQ(shop.platform.messages[0].caption, "Entry Options");
    EXPECT_EQ(form.List1[3].AutoDate, "ON");
    EXPECT_EQ(form.List1[2].AutoSerial, "ON");
    form.List1_DblClick(3); // no answer left: No
    EXPECT_EQ(form.List1[3].AutoDate, "OFF");
    EXPECT_TRUE(shop.document.optionedCols.empty()) << "Done alone takes them over";
}

TEST(DesignFrmTest, doneKeepsCountersInStepWithTheOptions) {
    DesignShop shop;
    const auto choose = [&](std::initializer_list<int> rows, Answer answer) {
        designFrm form(shop.app);
        for (const int row : rows) {
            shop.platform.answers = {answer};
            form.List1_DblClick(row);
        }
        form.doneBtn_Click();
        EXPECT_TRUE(form.unloaded && shop.document.bModified);
    };
    choose({2, 3}, Answer::Yes);
    EXPECT_EQ(DesignShop::text(shop.document.optionedCols), "Qty|Day|");
    EXPECT_EQ(shop.serials(), "Qty=0;");
    shop.document.SerialsLV.at(1).subItem(1) = "41";
    choose({}, Answer::Yes);
    EXPECT_EQ(shop.serials(), "Qty=41;") << "a counter goes on";
    choose({2}, Answer::No);
    EXPECT_EQ(DesignShop::text(shop.document.optionedCols), "Day|");
    EXPECT_EQ(shop.serials(), "");
    choose({2}, Answer::Yes);
    EXPECT_EQ(shop.serials(), "Qty=0;");
}

// Another name is another counter, and so is another case: without one, the column would propose a date.
TEST(DesignFrmTest, aRenamedSerialColumnCountsAfresh) {
    for (const char* name : {"No", "qty"}) {
        DesignShop shop;
        shop.document.optionedCols.add("Qty", "Qty");
        shop.document.SerialsLV.add("Qty", "Qty").subItem(1) = "41";
        designFrm form(shop.app);
        DesignShop::select(form, "Qty");
        form.fieldTxt_Change(name);
        form.changeBtn_Click();
        form.doneBtn_Click();
        EXPECT_EQ(DesignShop::text(shop.document.optionedCols), name + std::string("|"));
        EXPECT_EQ(shop.serials(), name + std::string("=0;"));
    }
}

} // namespace
