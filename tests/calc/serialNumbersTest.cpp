#include "calc/serialNumbers.h"

#include "recordsProgram.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono;

struct Options : RecordsProgram {
    Options() : RecordsProgram({{"No", "4"}, {"Day", "1"}, {"Name", "3"}}) {
        for (const char* name : {"No", "Day"}) document.optionedCols.add(name, name);
        document.SerialsLV.add("No", "No").subItem(1) = "0";
    }
};

TEST(SerialNumbersTest, whatANewRecordProposes) {
    Options options;
    EXPECT_EQ(calc::proposedValue(options.app, "No"), "1");
    EXPECT_EQ(calc::proposedValue(options.app, "Day"), "03/14/2026");
    EXPECT_EQ(calc::proposedValue(options.app, "Name"), std::nullopt);
    EXPECT_EQ(calc::proposedValue(options.app, "day"), std::nullopt) << "names of options are exact";
    EXPECT_EQ(calc::proposedValue(options.app, "no"), "1");
    calc::advanceSerial(options.document, "Day"); // has no counter
    EXPECT_EQ(options.document.SerialsLV.count(), 1);
    EXPECT_EQ(options.document.SerialsLV.at(1).subItem(1), "0") << "proposing uses up nothing";
    // A counter stands for a serial number even where no option is on.
    options.document.optionedCols.clear();
    EXPECT_EQ(calc::proposedValue(options.app, "No"), "1");
}

TEST(SerialNumbersTest, countsOnFromWhateverTheCounterHolds) {
    struct Case {
        const char *counter, *next;
    };
    const Case cases[] = {{"0", "1"},
                          {"100", "101"},
                          {"-5", "-4"},
                          {"1.5", "2.5"},
                          {"", "1"},
                          {"1,000", "2"},
                          {"$7", "1"},
                          {"abc", "1"},
                          {"32767", "32768"},
                          {"1e3", "1001"},
                          {"999999999999998", "999999999999999"},
                          {"99999999999999999999", "1E+20"}};
    for (const Case& c : cases) {
        Options options;
        options.document.SerialsLV.at(1).subItem(1) = c.counter;
        EXPECT_EQ(calc::proposedValue(options.app, "No"), c.next) << c.counter;
        calc::advanceSerial(options.document, "No");
        EXPECT_EQ(options.document.SerialsLV.at(1).subItem(1), c.next) << c.counter;
    }
}

TEST(SerialNumbersTest, todayHasTwoTwoAndFourDigits) {
    Options options;
    const std::pair<year_month_day, const char*> cases[] = {{year(2026) / 1 / 2, "01/02/2026"},
                                                            {year(1999) / 12 / 31, "12/31/1999"},
                                                            {year(987) / 6 / 5, "06/05/0987"}};
    for (const auto& [day, text] : cases) {
        options.platform.day = day;
        EXPECT_EQ(calc::todayText(options.app), text);
    }
}

} // namespace
