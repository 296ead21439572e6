#include "entry/masks.h"

#include "databases.h"
#include "raised.h"
#include "table.h"

#include <gtest/gtest.h>

using entry::EntryBox;

namespace {

struct Masks : testing::Test, Program {
    Masks()
        : Program(DataFile("Name Price:2 Qty:4 Day:1 Sum:5",
                           "Bolt|$1.50|12|01/02/2003|; Größe |$2.00|7||;Nut|$.25|1200||")) {}
    std::string completed(const char* column, const std::string& text) {
        EntryBox box{column, text};
        entry::completeCurrencyText(app, box);
        return box.Text;
    }
};

// Measured without the blanks around it, cut with them.
TEST_F(Masks, CompleteAnAmount) {
    const auto cases = table("12 -> 12.00; 1 -> 1.00; 123 -> 1.23; -5 -> -5.00; -12 -> -.12; 1,234 -> "
                             "1,2.34; $50 -> $.50; (5) -> (.5); 12.5 -> 12.5; 5. -> 5.; 1e3 -> 1.e3;  5  ->  "
                             "5 .00;  1234 ->  12.34; 123  -> 12.3 ;  -> ;   ->  ");
    for (const auto& c : cases) EXPECT_EQ(completed("Price", c[0]), c[1]) << '"' << c[0] << '"';
    for (const char* column : {"Sum", "Name", "Day", "qty"}) // a Number column alone has no such mask
        EXPECT_EQ(completed(column, "1234"), std::string_view(column) == "qty" ? "1234" : "12.34");
    EXPECT_EQ(completed("qty", "abc"), "abc");
    EXPECT_EQ(told(), "");
    for (const char* typed : {"abc", "5 apples", "-", "1.2.3", "12é"}) {
        EXPECT_EQ(completed("Price", typed), typed);
        EXPECT_EQ(told(), "! Verify Data: You entered a non numeric value.");
    }
    EXPECT_EQ(raisedBy([&] { completed("Gone", "1234"); }), core::errors::elementNotFound);
}

} // namespace
