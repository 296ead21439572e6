#include "fwkProgram.h"

#include <nlohmann/json.hpp>

using nlohmann::json;

namespace {

class Invoices : public FwkTest {
protected:
    void SetUp() override { copyOf("invoices.fwk", "a.fwk"); }
    json cells(const std::string& key) {
        const json all = json::parse(outputOf("records a.fwk --json"));
        for (const json& record : all["records"])
            if (record["key"] == key) return record["cells"];
        return {};
    }
};

// An amount without a point has its cents as the last two digits; sums and totals follow.
TEST_F(Invoices, AddedUpdatedAndDeleted) {
    EXPECT_EQ(outputOf("add a.fwk Customer=Ann Item=Bolt@Nut@ Qty=2@3@ Price=150@2.5@"), "i5\n");
    const json added = cells("i5");
    EXPECT_EQ(added[0], "5") << "the next number";
    EXPECT_EQ(added[1], "Ann");
    EXPECT_EQ(added[3], "Bolt@Nut@@@@@");
    EXPECT_EQ(added[4], "2@3@@@@@");
    EXPECT_EQ(added[5], "$1.50@$2.50@@@@@");
    EXPECT_EQ(added[6], "$3.00@$7.50@$.00@$.00@$.00@$.00@");
    EXPECT_EQ(added[7], "$10.50");
    EXPECT_EQ(added[8], "$.84");
    EXPECT_EQ(added[9], "$11.34");
    const auto total = [&] { return json::parse(outputOf("records a.fwk --json"))["totals"][9]; };
    EXPECT_EQ(total(), "$62.37");

    outputOf("update a.fwk i5 Qty=4@");
    EXPECT_EQ(cells("i5")[4], "4@@@@@@");
    EXPECT_EQ(cells("i5")[3], "Bolt@Nut@@@@@") << "what is not named stays";
    EXPECT_EQ(cells("i5")[9], "$6.48");
    EXPECT_EQ(total(), "$57.51");

    outputOf("delete a.fwk i5 i1");
    EXPECT_TRUE(cells("i5").is_null());
    EXPECT_EQ(total(), "$40.77");
    const std::string before = outputOf("records a.fwk --json");
    outputOf("recalculate a.fwk");
    EXPECT_EQ(outputOf("records a.fwk --json"), before);
}

} // namespace
