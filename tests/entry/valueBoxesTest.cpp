#include "entry/valueBoxes.h"
#include "databases.h"
#include "table.h"

#include <gtest/gtest.h>

// What is typed into a box of a column, the value that comes of it, and what box 1 shows of that.
TEST(ValueBoxes, ShowWhatIsTypedAsLongAsItMeansTheValue) {
    Program program(DataFile("Name Qty:4 Price:2 Made:1"));
    app::Appearance& look = app::appearance(program.app);
    look.localeForm = {core::LocaleForm::DateOrder::DayMonthYear, '.', ",", ".", "EUR", true, false};
    entry::ValueBoxes boxes(program.app);
    EXPECT_TRUE(!boxes.isInUse() && boxes.key(U',') == U',' && boxes.typed(1, "Qty", "1,5") == "1,5" &&
                boxes.shown(1, "Qty", "1.5") == "1.5" &&
                entry::shownValue(program.app, "Price", "$1.50") == "$1.50");
    look.bLocaleForm = true;
    EXPECT_TRUE(boxes.isInUse() && boxes.key(U',') == U'.' && boxes.key(U'x') == U'x' &&
                entry::shownValue(program.app, "Price", "$1.50") == "1,50EUR");
    // A separator comes by itself, and does not come back when it is deleted.
    for (const auto& c :
         table("1 Qty 1.500, -> 1500. is 1.500,; 2 Qty 1.500, -> 1500. is 1500,; 1 Name 1,5 -> 1,5 is 1,5; "
               "1 Made 3 -> 3 is 3; 1 Made 31 -> 31. is 31.; 1 Made 31 -> 31 is 31; 1 Made 21 -> 21 is 21; "
               "1 Made 211 -> 21.1 is 21.1; 2 Made 31 -> 31. is 31.; 1 Made 1.2.24 -> 02/01/2024 is 1.2.24; "
               "2 Made 1.2.24 -> 02/01/2024 is 01.02.2024")) {
        const std::size_t text = c[0].find(' ', 2);
        const std::string name = c[0].substr(2, text - 2);
        const std::string value = boxes.typed(c[0][0] - '0', name, c[0].substr(text + 1));
        EXPECT_EQ(value + " is " + boxes.shown(1, name, value), c[1]) << c[0];
    }
    EXPECT_TRUE(boxes.isTyped(2) && !boxes.isTyped(1) && boxes.shown(2, "Made", "02/01/2024") == "1.2.24");
    boxes.left();
    EXPECT_EQ(boxes.shown(2, "Made", "02/01/2024") + (boxes.isTyped(2) ? "!" : ""), "01.02.2024");
}
