#include "entry/masks.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

using entry::EntryBox;
namespace errors = core::errors;

namespace {

struct Shop : RecordsProgram {
    Shop() : RecordsProgram({{"Name", "3"}, {"Price", "2"}, {"Qty", "4"}, {"Day", "1"}, {"Sum", "5"}}) {}
};

TEST(MasksTest, completesAnAmount) {
    // Measured without the blanks around it, cut with them.
    const std::pair<const char*, const char*> cases[] = {
        {"12", "12.00"},   {"1", "1.00"},       {"123", "1.23"},     {"1234", "12.34"}, {"-5", "-5.00"},
        {"-12", "-.12"},   {"1,234", "1,2.34"}, {"$5", "$5.00"},     {"$50", "$.50"},   {"(5)", "(.5)"},
        {"12.5", "12.5"},  {"5.", "5."},        {".5", ".5"},        {"1e3", "1.e3"},   {"100000", "1000.00"},
        {" 5 ", " 5 .00"}, {"  12", "  12.00"}, {" 1234", " 12.34"}, {"123 ", "12.3 "}, {"", ""},
        {"   ", "   "}};
    for (const auto& [typed, completed] : cases) {
        Shop shop;
        EntryBox box{"Price", typed};
        entry::completeCurrencyText(shop.app, box);
        EXPECT_EQ(box.Text, completed) << '"' << typed << '"';
        EXPECT_TRUE(shop.platform.messages.empty()) << typed;
    }
}

TEST(MasksTest, tellsAnAmountThatIsNone) {
    for (const char* typed : {"abc", "5 apples", "-", "$", "1.2.3", "(5", "05/04/2001", "12é"}) {
        Shop shop;
        EntryBox box{"Price", typed};
        entry::completeCurrencyText(shop.app, box);
        EXPECT_EQ(box.Text, typed);
        EXPECT_EQ(shop.platform.messages.size(), 1U) << typed;
        EXPECT_EQ(shop.platform.told(), "2|Verify Data|You entered a non numeric value.");
    }
}

TEST(MasksTest, onlyNumberColumnsPassTheAmountMask) {
    Shop shop;
    for (const char* typed : {"abc", "1234"}) {
        EntryBox box{"qty", typed};
        entry::completeCurrencyText(shop.app, box);
        EXPECT_EQ(box.Text, typed);
    }
    EXPECT_TRUE(shop.platform.messages.empty());
    for (const char* column : {"Sum", "Name", "Day"}) {
        EntryBox box{column, "1234"};
        entry::completeCurrencyText(shop.app, box);
        EXPECT_EQ(box.Text, "12.34") << column;
    }
    EntryBox box{"Gone", "1234"};
    EXPECT_EQ(raisedBy([&] { entry::completeCurrencyText(shop.app, box); }), errors::elementNotFound);
}

TEST(MasksTest, datesGetTheirSlashesAtTheSecondAndTheFifthCharacter) {
    struct Case {
        const char *typed, *text;
        int caret; // 0: where it was
    };
    const Case cases[] = {{"", "", 0},
                          {"1", "1", 0},
                          {"12", "12/", 3},
                          {"12/", "12/", 0},
                          {"12/3", "12/3", 0},
                          {"12/31", "12/31/", 6},
                          {"AB", "AB/", 3},
                          {"äö", "äö/", 3},
                          {"äöüäö", "äöüäö/", 6},
                          {"12/31/", "12/31/", 0},
                          {"  ", "  /", 3}};
    for (const Case& c : cases) {
        EntryBox box{"Day", c.typed};
        entry::insertDateSlashes(box);
        EXPECT_EQ(box.Text, c.text) << c.typed;
        EXPECT_EQ(box.SelStart, c.caret) << c.typed;
    }
    EntryBox box{"Day", ""};
    for (const char key : std::string("01022003")) {
        box.Text += key;
        entry::insertDateSlashes(box);
    }
    EXPECT_EQ(box.Text, "01/02/2003") << "typed without a slash";
}

TEST(MasksTest, findsTheFirstRowThatContainsAText) {
    Shop shop;
    shop.record({"Bolt", "$1.50", "12", "01/02/2003", ""});
    shop.record({" Größe ", "$2.00", "7", "", ""});
    shop.record({"Nut", "$.25", "1200", "", ""});
    struct Case {
        const char* text;
        int from, row; // 0: none
    };
    const Case cases[] = {{"nut", 1, 3},   {"NUT", 3, 3},     {"nut", 4, 0}, {"12", 1, 1},  {"12", 2, 3},
                          {"größe", 1, 2}, {"  RÖß  ", 1, 2}, {"", 1, 1},    {"   ", 3, 3}, {"02/20", 1, 1},
                          {"x", 1, 0},     {"------", 1, 4},  {"$", -7, 1},  {"", 5, 0},    {"Bolt $1", 1, 0},
                          {"Index", 1, 0}, {"i1", 1, 0}};
    for (const Case& c : cases) {
        const core::Item* found = entry::findItemContaining(shop.app, c.text, c.from);
        EXPECT_EQ(found == nullptr ? 0 : shop.LV.indexOf(*found), c.row) << c.text << " from " << c.from;
    }
    shop.document.searchLV.columns.add("Index", "Index", 0);
    shop.document.searchLV.columns.add("Name", "Name");
    shop.document.searchLV.add("i3").cells[0] = "Nut";
    shop.app.mainFrm.theListView = &shop.document.searchLV;
    EXPECT_EQ(entry::findItemContaining(shop.app, "nut", 1), &shop.document.searchLV.at(1));
    EXPECT_EQ(entry::findItemContaining(shop.app, "bolt", 1), nullptr);
    RecordsProgram empty({});
    EXPECT_EQ(entry::findItemContaining(empty.app, "", 1), nullptr) << "rows without cells contain nothing";
}

} // namespace
