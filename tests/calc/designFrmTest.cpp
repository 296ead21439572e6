#include "calc/designFrm.h"

#include "recordsProgram.h"

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
constexpr const char* usedInFormulas =
    "A column you intend to delete is either a member of a calculation column expression, or is a "
    "calculation column itself.  You will need to redefine expressions for all affected calculation columns "
    "that referenced this one. Are you sure you want to do this?";

std::string lossOf(const std::string& name) {
    return "Are you absolutely certain you want to do this?  ALL data in the column " + name +
           " will be lost!";
}

struct Shop : RecordsProgram {
    Shop() : RecordsProgram({{"Name", "3"}, {"Price", "2"}, {"Qty", "4"}, {"Day", "1"}, {"Sum", "5"}}) {
        record({"Bolt", "$1.50", "2", "01/02/2003", "$3.00"});
        record({"Nut", "$.25", "4", "", "$1.00"});
        formula("Sum", "Price * Qty");
    }

    void type(designFrm& form, const std::string& name) {
        form.fieldTxt_Change(name);
        form.addBtn_Click();
    }
    void rename(const char* from, const char* to) {
        designFrm form(app);
        select(form, from);
        form.fieldTxt_Change(to);
        form.changeBtn_Click();
    }
    void remove(const char* name, std::initializer_list<Answer> answers = {Answer::Yes, Answer::Yes}) {
        platform.answers = answers;
        designFrm form(app);
        select(form, name);
        form.deleteBtn_Click();
    }
    static void select(designFrm& form, std::string_view name) {
        const auto row = std::ranges::find(form.List1, name, &designFrm::Row::Name);
        form.selectedRow = static_cast<int>(row - form.List1.begin());
    }
    static std::string rows(const designFrm& form) {
        std::string all;
        for (const designFrm::Row& row : form.List1)
            all += row.Name + " " + row.Type + " " + row.AutoDate + " " + row.AutoSerial + ";";
        return all;
    }
    std::string serials() {
        std::string all;
        document.SerialsLV.forEach([&](const core::Item& serial) {
            all += serial.Text.str() + "=" + serial.subItem(1).str() + ";";
        });
        return all;
    }
    void expectMessage(const std::string& text, Icon icon) {
        ASSERT_FALSE(platform.messages.empty());
        EXPECT_EQ(platform.messages.back().text, text);
        EXPECT_EQ(platform.messages.back().icon, icon);
        EXPECT_EQ(platform.messages.back().caption, "Ferrowick");
        platform.messages.clear();
    }
    std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const auto& message : platform.messages) texts.push_back(message.text);
        return texts;
    }
};

TEST(DesignFrmTest, showsTheColumnsWithTheirOptions) {
    Shop shop;
    for (const char* name : {"Qty", "Name", "Gone"}) shop.document.optionedCols.add(name, name);
    const designFrm form(shop.app);
    EXPECT_EQ(Shop::rows(form), "Name Text NA NA;Price Currency NA NA;Qty Number NA ON;Day Date OFF NA;"
                                "Sum Calculation NA NA;");
    EXPECT_TRUE(form.pictureVisible);
    EXPECT_TRUE(form.fieldTxtHasFocus);
    EXPECT_FALSE(shop.document.bModified);
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
        form.typeOpt_Click(c.option);
        EXPECT_TRUE(form.fieldTxtHasFocus);
        form.fieldTxt_Change("New One");
        EXPECT_EQ(form.fieldTxt, "New_One");
        form.fieldTxt_Enter();
        EXPECT_EQ(Shop::rows(form), c.row);
        EXPECT_EQ(form.fieldTxt, "");
        const core::Column& column = program.LV.columns["New_One"];
        EXPECT_EQ(column.Tag, c.tag);
        EXPECT_EQ(column.Width, 1440);
        EXPECT_EQ(column.align, c.align) << c.row;
        EXPECT_EQ(column.Icon, c.option == 5 ? "Picture" : "");
        EXPECT_EQ(program.cells(program.LV), "|;|;") << "empty in the Totals row too";
    }
}

TEST(DesignFrmTest, theFirstTypeIsDateAndAnUnknownOptionChangesNothing) {
    RecordsProgram program({});
    designFrm form(program.app);
    form.typeOpt_Click(6);
    form.typeOpt_Click(-1);
    form.fieldTxt_Change("Day");
    form.addBtn_Click();
    EXPECT_EQ(program.LV.columns["Day"].Tag, "1");
}

TEST(DesignFrmTest, namesThatAddTakesAndRefuses) {
    Shop shop;
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
        EXPECT_EQ(errorOf([&] { shop.type(form, taken); }), errors::keyNotUnique) << taken;
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
        EXPECT_EQ(program.platform.messages.size(), i == 51 ? 1U : 0U) << i;
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
    EXPECT_EQ(program.platform.messages.size(), 2U);
    EXPECT_EQ(program.platform.messages[1].text, program.platform.messages[0].text);
}

TEST(DesignFrmTest, renamesEverywhereThatNamesTheColumn) {
    Shop shop;
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
    Shop::select(form, "Price");
    form.fieldTxt = " Net Price ";
    form.changeBtn_Click();
    EXPECT_EQ(form.fieldTxt, "NetPrice") << "blanks go, and the name stays in the box";
    EXPECT_THAT(shop.messages(), ElementsAre(renameLabels));
    EXPECT_EQ(layout.layoutField.find(1)->Tag, "NetPrice");
    EXPECT_EQ(layout.layoutField.find(2)->Tag, "price");
    EXPECT_EQ(layout.imgHolder.find(1)->Tag, "NetPrice");
    EXPECT_EQ(layout.tLabel.find(1)->Text, "NetPrice");
    EXPECT_EQ(layout.tLabel.find(2)->Text, "Price:");
    EXPECT_EQ(form.List1[1].Name, "NetPrice");
    EXPECT_EQ(shop.LV.columns.find("Price"), nullptr);
    EXPECT_EQ(shop.LV.columns["netprice"].Index, 3);
    EXPECT_EQ(shop.cell(1, "NetPrice"), "$1.50");
    EXPECT_EQ(Shop::text(shop.document.printedCols), "Qty|NetPrice|Gone|");
    EXPECT_EQ(Shop::text(shop.document.totaledCols), "Qty|NetPrice|Gone|");
    EXPECT_EQ(Shop::text(shop.document.prnItemCols), "Qty|Price|Gone|");
    EXPECT_EQ(Shop::text(shop.document.optionedCols), "Qty|Price|Gone|");
    EXPECT_EQ(Shop::text(shop.document.formulas), "Sum,NetPrice * Qty|");
}

TEST(DesignFrmTest, labelsStayWhenTheUserSaysNo) {
    Shop shop;
    shop.document.layout.tLabel.load(1).Text = "Price";
    shop.rename("Price", "Cost");
    EXPECT_EQ(shop.document.layout.tLabel.find(1)->Text, "Price");
    EXPECT_NE(shop.LV.columns.find("Cost"), nullptr);
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
    Shop shop;
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
    EXPECT_EQ(errorOf([&] { shop.rename("Price", "qty"); }), errors::keyNotUnique);
    EXPECT_EQ(names(), "Index|Name|Price|Qty|Day|Sum|");
    EXPECT_EQ(Shop::text(shop.document.formulas), "Sum,Price * Qty|");
    shop.rename("Price", "price,net");
    EXPECT_EQ(names(), "Index|Name|price,net|Qty|Day|Sum|");
    EXPECT_EQ(shop.cells(shop.LV), before);
}

// The printed columns keep the name of a column that is gone; a file with the name twice would not open.
TEST(DesignFrmTest, aColumnMayTakeTheNameOfOneThatIsGone) {
    Shop shop;
    for (const char* name : {"Price", "Qty"}) shop.document.printedCols.add(name, name);
    shop.remove("Price");
    EXPECT_EQ(Shop::text(shop.document.printedCols), "Price|Qty|");
    shop.rename("Qty", "Price");
    EXPECT_EQ(Shop::text(shop.document.printedCols), "Price|");
    EXPECT_EQ(shop.LV.columns["Price"].Tag, "4");
}

TEST(DesignFrmTest, removeAsksTwiceAboutAColumnOfAFormula) {
    struct Case {
        const char* name;
        std::vector<std::string> questions;
    };
    const Case cases[] = {
        {"Price", {usedInFormulas, lossOf("Price")}},
        {"Sum", {usedInFormulas, lossOf("Sum")}},
        {"Name", {lossOf("Name")}},
        {"Day", {lossOf("Day")}},
    };
    for (const Case& c : cases) {
        Shop shop;
        shop.remove(c.name, {Answer::Yes, Answer::No});
        // An answer is left where one question was asked: it was Yes.
        EXPECT_EQ(shop.LV.columns.find(c.name) == nullptr, c.questions.size() == 1) << c.name;
        EXPECT_EQ(shop.messages(), c.questions);
        EXPECT_EQ(shop.platform.messages.back().icon, Icon::Critical);
        EXPECT_EQ(shop.platform.messages.front().icon,
                  c.questions.size() == 2 ? Icon::Exclamation : Icon::Critical);
    }
    Shop shop;
    const std::string before = shop.cells(shop.LV);
    shop.remove("Price", {Answer::No, Answer::Yes});
    EXPECT_THAT(shop.messages(), ElementsAre(usedInFormulas));
    shop.platform.messages.clear();
    designFrm(shop.app).deleteBtn_Click(); // no row is selected
    EXPECT_TRUE(shop.platform.messages.empty());
    EXPECT_EQ(shop.cells(shop.LV), before);
    EXPECT_EQ(Shop::text(shop.document.formulas), "Sum,Price * Qty|");
}

// The question is asked for any substring, in any case.
TEST(DesignFrmTest, theQuestionAboutFormulasIsAskedTooOftenRatherThanNotAtAll) {
    RecordsProgram program({{"ax", "3"}});
    program.document.formulas.add("Sum,SalesTAX + 1", "Sum");
    designFrm form(program.app);
    form.selectedRow = 0;
    form.deleteBtn_Click();
    EXPECT_EQ(program.platform.lastMessage(), usedInFormulas);
}

TEST(DesignFrmTest, removesTheColumnWithAllThatBelongsToIt) {
    Shop shop;
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
    designFrm form(shop.app);
    form.fieldTxt = "half typed";
    Shop::select(form, "Qty");
    form.deleteBtn_Click();
    EXPECT_EQ(form.fieldTxt, "");
    EXPECT_EQ(Shop::rows(form),
              "Name Text NA NA;Price Currency NA NA;Day Date OFF NA;Sum Calculation NA NA;");
    EXPECT_EQ(shop.cells(shop.LV), "Bolt|$1.50|01/02/2003|Undefined|;Nut|$.25||Undefined|;"
                                   "------|------|------|Undefined|;");
    EXPECT_EQ(shop.LV.columns.displayOrder(), (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_TRUE(shop.document.formulas.empty());
    EXPECT_EQ(layout.layoutField.count(), 1);
    EXPECT_NE(layout.layoutField.find(2), nullptr);
    EXPECT_EQ(layout.imgHolder.count(), 1);
    EXPECT_NE(layout.imgHolder.find(2), nullptr);
    EXPECT_EQ(Shop::text(shop.document.totaledCols), "Price|");
    EXPECT_EQ(Shop::text(shop.document.printedCols), "Qty|Price|");
    // Put right by Done alone.
    EXPECT_EQ(Shop::text(shop.document.optionedCols), "Qty|Price|");
    EXPECT_EQ(shop.serials(), "Qty=7;");
    form.doneBtn_Click();
    EXPECT_EQ(Shop::text(shop.document.optionedCols), "");
    EXPECT_EQ(shop.serials(), "");
}

TEST(DesignFrmTest, removingAllColumnsLeavesTheRecords) {
    Shop shop;
    for (const char* name : {"Sum", "Name", "Day", "Qty", "Price"}) shop.remove(name);
    EXPECT_EQ(shop.cells(shop.LV), ";;;");
    EXPECT_EQ(shop.LV.columns.count(), 1);
    EXPECT_TRUE(shop.document.formulas.empty());
}

TEST(DesignFrmTest, undefinedSpreadsOverAllThatDependsOnTheColumn) {
    struct Case {
        const char* removed;
        std::vector<std::string> formulas;
        const char *left, *cells; // of the columns A, B, C but the removed one
    };
    const Case cases[] = {
        {"X", {"A,X + 1", "B,A * 2", "C,7"}, "C,7|", "Undefined|Undefined|c|"},
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
        {"A", {"B,2", "C,B + 1", "A,C + 1"}, "B,2|C,B + 1|", "b|c|"},
    };
    for (const Case& c : cases) {
        RecordsProgram program({{"X", "4"}, {"A", "5"}, {"B", "5"}, {"C", "5"}});
        program.record({"1", "a", "b", "c"});
        for (const std::string& entry : c.formulas)
            program.document.formulas.add(entry, entry.substr(0, entry.find(',')));
        program.platform.answers = {Answer::Yes, Answer::Yes};
        designFrm form(program.app);
        Shop::select(form, c.removed);
        form.deleteBtn_Click();
        SCOPED_TRACE(std::string(c.removed) + " of " + testing::PrintToString(c.formulas));
        EXPECT_EQ(RecordsProgram::text(program.document.formulas), c.left);
        std::string cells;
        for (const char* name : {"A", "B", "C"})
            if (program.LV.columns.find(name) != nullptr) cells += program.cell(1, name) + "|";
        EXPECT_EQ(cells, c.cells);
    }
}

TEST(DesignFrmTest, entryOptionsAreAskedForDatesAndNumbers) {
    Shop shop;
    shop.platform.answers = {Answer::Yes, Answer::Yes};
    designFrm form(shop.app);
    for (const int row : {0, 1, 4, -1, 5}) form.List1_DblClick(row);
    EXPECT_TRUE(shop.platform.messages.empty());
    form.List1_DblClick(3);
    form.List1_DblClick(2);
    EXPECT_THAT(shop.messages(), ElementsAre("Auto enter today's date when entering data?",
                                             "Auto increment value when entering data?"));
    EXPECT_EQ(shop.platform.messages[0].caption, "Entry Options");
    EXPECT_EQ(form.List1[3].AutoDate, "ON");
    EXPECT_EQ(form.List1[2].AutoSerial, "ON");
    form.List1_DblClick(3); // no answer left: No
    EXPECT_EQ(form.List1[3].AutoDate, "OFF");
    EXPECT_TRUE(shop.document.optionedCols.empty()) << "Done alone takes them over";
}

TEST(DesignFrmTest, doneKeepsCountersInStepWithTheOptions) {
    Shop shop;
    const auto choose = [&](std::initializer_list<int> rows, Answer answer) {
        designFrm form(shop.app);
        for (const int row : rows) {
            shop.platform.answers = {answer};
            form.List1_DblClick(row);
        }
        form.doneBtn_Click();
        EXPECT_TRUE(form.unloaded);
    };
    choose({2, 3}, Answer::Yes);
    EXPECT_EQ(Shop::text(shop.document.optionedCols), "Qty|Day|");
    EXPECT_EQ(shop.serials(), "Qty=0;");
    shop.document.SerialsLV.at(1).subItem(1) = "41";
    choose({}, Answer::Yes);
    EXPECT_EQ(shop.serials(), "Qty=41;") << "a counter goes on";
    choose({2}, Answer::No);
    EXPECT_EQ(Shop::text(shop.document.optionedCols), "Day|");
    EXPECT_EQ(shop.serials(), "");
    choose({2}, Answer::Yes);
    EXPECT_EQ(shop.serials(), "Qty=0;");
}

// Another name is another counter, and so is another case: without one, the column would propose a date.
TEST(DesignFrmTest, aRenamedSerialColumnCountsAfresh) {
    for (const char* name : {"No", "qty"}) {
        Shop shop;
        shop.document.optionedCols.add("Qty", "Qty");
        shop.document.SerialsLV.add("Qty", "Qty").subItem(1) = "41";
        designFrm form(shop.app);
        Shop::select(form, "Qty");
        form.fieldTxt_Change(name);
        form.changeBtn_Click();
        form.doneBtn_Click();
        EXPECT_EQ(Shop::text(shop.document.optionedCols), name + std::string("|"));
        EXPECT_EQ(shop.serials(), name + std::string("=0;"));
    }
}

TEST(DesignFrmTest, closingMarksTheDocumentAsModified) {
    for (const bool done : {false, true}) {
        Shop shop;
        designFrm form(shop.app);
        if (done)
            form.doneBtn_Click();
        else
            form.Form_QueryUnload();
        EXPECT_TRUE(shop.document.bModified);
        EXPECT_EQ(shop.panel(app::documentPanel), "Document Modified");
    }
}

} // namespace
