#include "core/dates.h"

#include "raised.h"

#include <gtest/gtest.h>

#include <vector>

using namespace core;
using namespace std::chrono;

namespace {

constexpr year_month_day today = 2023y / 6 / 15;

DayValue dayOf(year_month_day date) {
    return (sys_days(date) - sys_days(1899y / 12 / 30)).count();
}

TEST(DatesTest, readsTheWrittenForms) {
    const std::pair<year_month_day, std::vector<const char*>> cases[] = {
        {2004y / 1 / 5,
         {"01/05/2004", "  1/5/2004  ", "1-5-2004", "1 / 5 / 2004", "1/5/4", "2004-01-05", "2004/1/5",
          "Jan 5 2004", "january 5, 2004", "5 JAN 2004", "5-Jan-04", "2004-Jan-05", "5Jan2004",
          "1/5/2004 10:30", "1/5/2004 10:30:15 PM", "5 - Jan - 2004 10 : 30 : 15 pm"}},
        {2023y / 1 / 5, {"1/5", "1-5", "Jan 5", "5 January", "1/5 3 PM", "Jan 5 10:30"}},
        {2023y / 12 / 25, {"12/25", "25/12", "25-dec"}},
        {2004y / 12 / 31, {"12/31/2004", "31/12/2004", "31-12-04"}},
        {2004y / 2 / 29, {"2/29/2004", "29/2/2004"}},
        {2000y / 2 / 29, {"2/29/2000", "2/29/00"}},
        {2004y / 1 / 1, {"1/2004", "Jan 2004", "2004-1-1"}},
        {2029y / 1 / 5, {"1/5/29"}},
        {1930y / 1 / 5, {"1/5/30"}},
        {1999y / 5 / 31, {"may 31, 99", "5/31/99"}},
        {1945y / 9 / 1, {"Sep 45"}},
        {100y / 1 / 5, {"1/5/100"}},
        {9999y / 12 / 31, {"12/31/9999"}},
        {1899y / 12 / 30, {"12/30/1899", "10:30", "23:59:59", "3PM", "12:00 am", "10:30:15 PM"}}};
    for (const auto& [date, texts] : cases)
        for (const char* text : texts) {
            EXPECT_EQ(dateValue(text, today), dayOf(date)) << text;
            EXPECT_TRUE(isDate(text, today)) << text;
        }
    EXPECT_EQ(dateValueOrRaise("1/1/1900", today), 2);
    EXPECT_LT(dateValueOrRaise("12/29/1899", today), 0);
}

TEST(DatesTest, readsNothingElseAsADate) {
    const std::vector<const char*> cases[] = {
        // Numbers and texts.
        {"", " ", "5", "12.5", "1.5", "1,234", "-5", "5-", "1e5", "abc", "------", "1@2@", "$1/5/2004",
         "٣/٤/2004"},
        // Marks that are too many, missing or mixed.
        {"/", "1/", "/1", "12//", "1/5/", "1//2004", "1/5/2004/6", "1/5-2004", "1 5 2004", "1,5,2004",
         "1.5.2004", "1\t/5/2004", "1/5/2004x", "1 1 1 1 1 1 1 1 1 1 1 1 1 1"},
        // Days that no calendar has.
        {"0/5/2004", "1/0/2004", "2/30/2004", "2/29/2003", "2/29/1900", "4/31/2004", "13/13/2004",
         "31/4/2004", "2004-13-05", "13/2004", "Jan 32 2004", "1/5/099", "1/5/99999"},
        {"Jan", "Foo 5 2004", "Janu 5", "Jan Feb 5", "Jan 5 6 7", "5 6 Jan", "Jan 2004 5 6"},
        {"PM", "24:00", "10:60", "10:30:60", "10:30:15:1", "10:", ":30", "13 PM", "0 AM", "10:30 XM",
         "5 10:30", "10:30 5", "10:30 1/5", "1/5/2004 25:00", "1/5/2004 10:3x"}};
    for (const auto& texts : cases)
        for (const char* text : texts) {
            EXPECT_FALSE(isDate(text, today)) << text;
            EXPECT_EQ(raisedBy([&] { dateValueOrRaise(text, today); }), errors::typeMismatch) << text;
        }
    // A day without a year follows the year that it is read in.
    EXPECT_FALSE(isDate("2/29", today));
    EXPECT_EQ(dateValue("2/29", 2024y / 1 / 1), dayOf(2024y / 2 / 29));
}

TEST(DatesTest, writesWhatItReads) {
    EXPECT_EQ(formatDate(2004, 1, 5), "01/05/2004");
    EXPECT_EQ(formatDate(987, 12, 31), "12/31/0987");
    for (sys_days day = 1888y / 2 / 25; day < sys_days(2101y / 1 / 1); day += days(13)) {
        const year_month_day date(day);
        const std::string text =
            formatDate(static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                       static_cast<unsigned>(date.day()));
        EXPECT_EQ(dateValue(text, today), dayOf(date)) << text;
    }
}

} // namespace
