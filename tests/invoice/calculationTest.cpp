#include "invoiceFixture.h"
#include "raised.h"
#include "table.h"

#include <sstream>

namespace {

// The formulas of one invoice with three item rows on the layout, and what becomes of its cells.
TEST_F(InvoiceTest, Calculation) {
    // Formulas, and the cells before and behind it, as "Name=text,Name=text"; "!" where it is told that it
    // failed.
    const char* const cases =
        // A point or a Currency column makes money of all rows; the longest cell says how many there are.
        "Line=Qty * Price -> Qty=2@3@,Price=1.50@2@ -> Line=$3.00@$6.00@; Line=Qty * Price -> "
        "Qty=2@3@,Price=4@5@ -> Line=$8.00@$15.00@; Line=Qty / 2 -> Qty=4@5@6@ -> Line=2@$2.50@3@; Line=Qty "
        "* 2 -> Qty=7@,Item=a@b@c@ -> Line=14@0@0@; Line=Qty * 2 -> Qty=1@2@3@4@5@ -> Line=2@4@6@8@10@; "
        // An item column keeps the running sum; ahead of the sums there is none yet.
        "Line=Qty * Price,Subtotal=Line,Tax=Subtotal * 0.08 -> Qty=2@3@,Price=1.50@2@ -> Subtotal=$9.00,"
        "Tax=$.72; Subtotal=Qty,Tax=Qty * 2 -> Qty=2@@5@ -> Subtotal=7,Tax=7; Subtotal=No,Tax=0.5 -> No=4,"
        "Qty=2@ -> Subtotal=4,Tax=$.50; Tax=Qty + 1,Subtotal=Qty -> Qty=2@5@ -> Tax=0,Subtotal=7; "
        // A line that refers to itself counts 0, and its own points carry on to the rows below.
        "Line=Line + Qty / 2 -> Qty=2@3@4@,Line=9@9@9@ -> Line=1@$1.50@$2.00@; "
        // A single value makes the line skip, and every line behind it.
        "Line=Qty * No,Item=Qty * 2 -> No=4,Qty=2@,Line=old,Item=x@ -> Line=old,Item=x@; Item=Qty * "
        "2,Line=Qty * No -> No=4,Qty=2@,Line=old,Item=x@ -> Item=4@,Line=old; "
        "Line=Undefined,Subtotal=Undefined -> Qty=2@ -> Line=Undefined,Subtotal=Undefined; Line=6 / Qty "
        "-> Qty=2@0@3@ -> Line=3@ -> !; " // keeps the rows that are done
        "Tax=6 / No -> No=0,Tax=old -> Tax=0 -> !; "
        // What is no number raises; behind a row that was calculated it is told.
        "Subtotal=Item -> Item=bolt@ -> Line= -> raised; Line=Item * 2 -> Item=bolt@ -> Line= -> raised; "
        "Tax=No + 1 -> No=1e20 -> Tax=0 -> raised; Line=Qty * 2,Price=Item * 2 -> "
        "Qty=2@,Item=bolt@,Price=1@ -> Line=4@,Price= -> !";
    const auto each = [](const std::string& text, const auto& take) {
        std::istringstream rest(text);
        for (std::string name, value; std::getline(rest, name, '=') && std::getline(rest, value, ',');)
            take(name, value);
    };
    layoutWith(3);
    for (const auto& c : table(cases, 4)) {
        SCOPED_TRACE(c[0] + " of " + c[1]);
        app.document.LV.clear();
        app.document.formulas.clear();
        addTotalsRow(app.document.LV);
        app.mainFrm.bCalcError = false;
        each(c[0], [&](const auto& name, const auto& expression) { program.formula(name, expression); });
        core::Item& item = record({});
        each(c[1], [&](const auto& name, const auto& text) { cell(item, name.c_str()) = text; });
        const int row = app.document.LV.indexOf(item);
        EXPECT_EQ(raisedBy([&] { calc::calculateInvoice(app, app.document.LV, row); }) != 0,
                  c[3] == "raised");
        each(c[2], [&](const auto& name, const auto& text) { EXPECT_EQ(cell(item, name.c_str()), text); });
        EXPECT_EQ(app.mainFrm.bCalcError, c[3] == "!");
        EXPECT_EQ(program.told().find("An error has occured during one of your") != std::string::npos,
                  c[3] == "!");
    }
}

} // namespace
