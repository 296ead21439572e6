#include "databases.h"
#include "search/replaceFrm.h"
#include "search/replaceWords.h"
#include "search/searchMode.h"
#include "table.h"

#include <gtest/gtest.h>

using namespace search;

namespace {

TEST(Replace, WordsOfACell) {
    // The last of them match again, as they then stand.
    for (const auto& c :
         table("lapdog lap, lap. lap -> lap -> dog -> lapdog dog, dog. dog; (lap) Lap: lap! lap,, LAP ->  "
               "laP  -> x -> (lap) Lap: lap! lap,, x; a lap b -> lap ->  -> a  b; lap -> LAP ->  x  ->  x ; "
               "lap -> lap -> new lap -> new lap;  lap  lap  -> lap -> x ->  x  x ; a , . b ->  -> x -> a x, "
               "x. b;  ->  -> x; New York -> new york -> x -> New York; été, ÉTÉ -> éTé -> x -> x, x; a. b. "
               "-> . -> x -> a. b.; a -> a -> a, -> a,,; a -> a -> a. -> a..",
               4)) {
        SCOPED_TRACE(c[0] + " / " + c[1]);
        core::CellText cell(c[0]);
        EXPECT_EQ(WordReplacer(c[1], c[2]).replaceInCell(cell), c[0] != c[3]);
        EXPECT_EQ(cell, c[3]);
    }
}

TEST(Replace, ColumnsOfTheListOfAStandardDatabase) {
    Program program(DataFile("A B", "lap|lap top;x|LAP."));
    mnuReplace_Click(program.app);
    EXPECT_EQ(program.platform.forms, std::vector<std::string>{"replaceFrm"});
    replaceFrm form(program.app);
    ASSERT_EQ(form.List1.size(), 3U);
    EXPECT_EQ(form.List1[0].Text + form.List1[2].Text, "IndexB");
    form.Text1 = "lap";
    form.Text2 = "dog";
    const auto changed = [&](int cells) { return std::to_string(cells) + " " + program.cells(); };
    EXPECT_EQ(form.Command3_Click(), 0) << "nothing is selected";
    form.List1[0].Selected = true; // the hidden column
    EXPECT_EQ(changed(form.Command3_Click()), "0 lap|lap top|;x|LAP.|;------|------|;");
    form.List1[2].Selected = true;
    EXPECT_EQ(changed(form.Command3_Click()), "2 lap|dog top|;x|dog.|;------|------|;");
    EXPECT_EQ(changed(form.Command1_Click()), "1 dog|dog top|;x|dog.|;------|------|;");
    form.Text1 = "------"; // the Totals row has words like all others
    EXPECT_EQ(changed(form.Command1_Click()), "2 dog|dog top|;x|dog.|;dog|dog|;");
    EXPECT_FALSE(program.app.document.bModified || form.unloaded);
    EXPECT_EQ(program.told(), "");

    program.app.mainFrm.theListView = &program.app.document.searchLV;
    mnuReplace_Click(program.app);
    program.openCopyOf("invoices.fwk");
    mnuReplace_Click(program.app);
    const std::string told = program.told();
    EXPECT_TRUE(told.starts_with("i You cannot") && told.find("\ni This feature") != told.npos) << told;
    EXPECT_EQ(program.platform.forms.size(), 1U);
}

} // namespace
