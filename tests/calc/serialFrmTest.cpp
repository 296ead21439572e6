#include "calc/serialFrm.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

using calc::serialFrm;

namespace {

struct Serials : RecordsProgram {
    Serials() : RecordsProgram({{"No", "4"}, {"Ticket", "4"}}) {
        document.SerialsLV.add("No", "No").subItem(1) = "0";
        document.SerialsLV.add("Ticket", "Ticket").subItem(1) = "41";
    }
    std::string counter(int row) { return document.SerialsLV.at(row).subItem(1).str(); }
};

TEST(SerialFrmTest, setsTheCounterOfTheChosenColumn) {
    Serials serials;
    serialFrm form(serials.app);
    EXPECT_EQ(form.List1, (std::vector<std::string>{"No", "Ticket"}));
    EXPECT_EQ(form.Text1, "");
    form.List1_Click(1);
    EXPECT_EQ(form.Text1, "41");
    form.Text1 = "  100 ";
    form.setBtn_Click();
    EXPECT_EQ(form.Text1, "100");
    EXPECT_EQ(serials.counter(2), "100");
    EXPECT_EQ(serials.counter(1), "0");
    ASSERT_EQ(serials.platform.messages.size(), 1U);
    EXPECT_EQ(serials.platform.told(), "0|Ferrowick|Ticket's value has been set to 100");
    EXPECT_TRUE(form.text1HasFocus);
    form.CancelButton_Click(); // does not undo it
    EXPECT_TRUE(form.unloaded);
    EXPECT_EQ(serials.counter(2), "100");
}

TEST(SerialFrmTest, whatSetTakesAndRefuses) {
    struct Case {
        const char *typed, *counter;
        bool isTaken;
    };
    const Case cases[] = {{"-5", "-5", true},      {"1.5", "1.5", true},       {"$7", "7", true},
                          {"1,000", "1000", true}, {"", "41", false},          {"   ", "41", false},
                          {"abc", "41", false},    {"5 apples", "41", false},  {"--5", "41", false},
                          {"1/2", "41", false},    {"01/02/2003", "41", false}};
    for (const Case& c : cases) {
        Serials serials;
        serialFrm form(serials.app);
        form.List1_Click(1);
        form.Text1 = c.typed;
        form.setBtn_Click();
        EXPECT_EQ(serials.counter(2), c.counter) << c.typed;
        EXPECT_EQ(serials.document.bModified, c.isTaken) << c.typed;
        ASSERT_EQ(serials.platform.messages.size(), 1U) << c.typed;
        if (c.isTaken) continue;
        EXPECT_EQ(serials.platform.told(), "1|Ferrowick|You entered a non numeric value.");
        EXPECT_FALSE(form.text1HasFocus);
    }
}

TEST(SerialFrmTest, withoutAChosenColumnNothingIsSet) {
    Serials serials;
    serialFrm form(serials.app);
    for (const char* typed : {"7", "x"}) // the number is looked at first
        for (const int entry : {-1, 2, 99}) {
            form.Text1 = typed;
            form.List1_Click(entry);
            form.setBtn_Click();
        }
    EXPECT_EQ(serials.platform.messages.size(), 3U);
    EXPECT_EQ(serials.counter(1) + serials.counter(2), "041");
}

} // namespace
