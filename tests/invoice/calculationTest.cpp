#include "invoiceFixture.h"

#include <sstream>

namespace {

// The formulas of one invoice with three item rows on the layout, and what becomes of its cells.
TEST_F(InvoiceTest, Calculation) {
    // Formulas and cells as "Name=text;Name=text".
    const struct {
        const char *what, *formulas, *before, *after;
        bool error = false;
    } cases[] = {
        {"a point in any value makes money of all rows", "Line=Qty * Price", "Qty=2@3@;Price=1.50@2@",
         "Line=$3.00@$6.00@"},
        {"a Currency column makes money even without a point", "Line=Qty * Price", "Qty=2@3@;Price=4@5@",
         "Line=$8.00@$15.00@"},
        {"whole numbers", "Line=Qty * Qty", "Qty=2@3@", "Line=4@9@"},
        {"a quotient with a point makes that row money, and whole ones stay plain", "Line=Qty / 2",
         "Qty=4@5@6@", "Line=2@$2.50@3@"},
        {"empty slots count as 0", "Line=Qty * 2", "Qty=@@", "Line=0@0@"},
        {"a cell with fewer values than the longest counts 0 behind them", "Line=Qty * 2",
         "Qty=7@;Item=a@b@c@", "Line=14@0@0@"},
        {"more values than the layout has rows are all worked out", "Line=Qty * 2", "Qty=1@2@3@4@5@",
         "Line=2@4@6@8@10@"},
        {"a sum of item values, a header formula over it",
         "Line=Qty * Price;Subtotal=Line;Tax=Subtotal * 0.08", "Qty=2@3@;Price=1.50@2@",
         "Subtotal=$9.00;Tax=$.72"},
        {"a plain sum stays plain", "Subtotal=Qty", "Qty=2@@5@", "Subtotal=7"},
        {"a header formula over an item column keeps the running sum", "Subtotal=Qty;Tax=Qty * 2", "Qty=2@5@",
         "Subtotal=7;Tax=7"},
        {"a sum over a single value is that value, and a constant stands for itself", "Subtotal=No;Tax=0.5",
         "No=4;Qty=2@", "Subtotal=4;Tax=$.50"},
        {"a several-token formula ahead of the sums gets 0, between them the sum before it",
         "Tax=Qty + 1;Subtotal=Qty", "Qty=2@5@", "Tax=0;Subtotal=7"},
        {"a line that refers to itself counts 0, and its own points carry on to the rows below",
         "Line=Line + Qty / 2", "Qty=2@3@4@;Line=9@9@9@", "Line=1@$1.50@$2.00@"},
        {"a single value makes the line skip, and every line behind it", "Line=Qty * No;Item=Qty * 2",
         "No=4;Qty=2@;Line=old;Item=x@", "Line=old;Item=x@"},
        {"a line skipped behind one that was not", "Item=Qty * 2;Line=Qty * No",
         "No=4;Qty=2@;Line=old;Item=x@", "Item=4@;Line=old"},
        {"undefined formulas are written as such", "Line=Undefined;Subtotal=Undefined", "Qty=2@",
         "Line=Undefined;Subtotal=Undefined"},
        {"a failing line keeps the rows that are done", "Line=6 / Qty", "Qty=2@0@3@", "Line=3@", true},
        {"a failing header formula", "Tax=6 / No", "No=0;Tax=old", "Tax=0", true}};
    const auto pairs = [](std::istringstream text) {
        std::vector<std::pair<std::string, std::string>> all;
        for (std::string name, value; std::getline(text, name, '=') && std::getline(text, value, ';');)
            all.emplace_back(name, value);
        return all;
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        app.document.LV.clear();
        app.document.formulas.clear();
        addTotalsRow(app.document.LV);
        program.platform.messages.clear();
        app.mainFrm.bCalcError = false;
        layoutWith(3);
        for (const auto& [name, expression] : pairs(std::istringstream(c.formulas)))
            formula(name, expression);
        core::Item& item = record({});
        for (const auto& [name, text] : pairs(std::istringstream(c.before))) cell(item, name.c_str()) = text;
        calculate(item);
        for (const auto& [name, text] : pairs(std::istringstream(c.after)))
            EXPECT_EQ(cell(item, name.c_str()), text) << name;
        EXPECT_EQ(app.mainFrm.bCalcError, c.error);
        EXPECT_EQ(program.platform.lastMessage().starts_with("An error has occured during one of your"),
                  c.error);
    }
}

TEST_F(InvoiceTest, ASumOfWhatIsNoNumberIsARunTimeError) {
    layoutWith(2);
    formula("Subtotal", "Item");
    core::Item& item = record({{"Item", "bolt@"}});
    EXPECT_THROW(calculate(item), core::RunTimeError);
}

} // namespace
