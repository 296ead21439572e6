#include "core/dates.h"
#include "readings.h"

using namespace core;
using namespace std::chrono;

namespace {

constexpr year_month_day today = 2023y / 6 / 15;

std::string written(DayValue day) {
    const year_month_day date(sys_days(1899y / 12 / 30) + days(day));
    return formatDate(int(date.year()), unsigned(date.month()), unsigned(date.day()));
}

TEST(Dates, ReadTheWrittenFormsAndNothingElse) {
    expectEach("01/05/2004 -> 01/05/2004|  1/5/2004  |1-5-2004|1 / 5 / 2004|1/5/4|2004-01-05|2004/1/5|Jan 5 "
               "2004|january 5, 2004|5 JAN 2004|5-Jan-04|2004-Jan-05|5Jan2004|1/5/2004 10:30:15 PM|5 - Jan - "
               "2004 10 : 30 : 15 pm; 01/05/2023 -> 1/5|Jan 5|1/5 3 PM|Jan 5 10:30; 12/25/2023 -> "
               "12/25|25/12|25-dec; 12/31/2004 -> 12/31/2004|31/12/2004; 02/29/2004 -> 2/29/2004|29/2/2004; "
               "02/29/2000 -> 2/29/2000|2/29/00; 01/01/2004 -> 1/2004|Jan 2004|2004-1-1; 01/05/2029 -> "
               "1/5/29; 01/05/1930 -> 1/5/30; 05/31/1999 -> may 31, 99|5/31/99; 01/31/2023 -> Jan 31; "
               "01/01/1932 -> Jan 32; 01/05/0100 -> 1/5/100; 12/31/9999 -> 12/31/9999; 12/12/2023 -> 12/12; "
               "12/30/1899 -> 12/30/1899|0:00|23:59:59|3PM|12:00 am|10:30:15 PM; "
               // No dates are numbers and texts; marks that are too many, missing or mixed; days that no
               // calendar has; months and times.
               "Type mismatch -> | "
               "|5|1.5|1,234|-5|5-|1e5|abc|------|1@2@|$1/5/2004|٣/٤/2004|/|1/|/1|12//|1/5/|1//2004|1/5/2004/"
               "6|1/5-2004|1 5 2004|1,5,2004|1.5.2004|1\t/5/2004|1/5/2004x|1 1 1 1 1 1 1 1 1 1 1 1 1 "
               "1|0/5/2004|1/0/2004|2/30/2004|2/29/2003|2/29/1900|2/29|4/31/2004|13/13/2004|31/4/"
               "2004|2004-13-05|13/2004|Jan 32 2004|1/5/099|1/5/99999|Jan|Foo 5 2004|Janu 5|Jan Feb 5|Jan 5 "
               "6 7|5 6 Jan|Jan 2004 5 6|PM|24:00|10:60|10:30:60|10:30:15:1|10:|:30|13 PM|0 AM|10:30 XM|5 "
               "10:30|10:30 5|10:30 1/5|1/5/2004 25:00|1/5/2004 10:3x",
               [](const std::string& text) {
                   EXPECT_EQ(isDate(text, today), dateValue(text, today).has_value());
                   return written(dateValueOrRaise(text, today));
               });
    EXPECT_TRUE(isDate("1/5/" + std::string(32, ' ') + "2004", today));
    for (DayValue day = -3000; day < 73000; day += 13) EXPECT_EQ(dateValue(written(day), today), day);
    // A day without a year follows the year that it is read in.
    EXPECT_EQ(written(dateValueOrRaise("2/29", 2024y / 1 / 1)), "02/29/2024");
}

} // namespace
