#include "databases.h"
#include "search/replaceFrm.h"
#include "search/replaceWords.h"
#include "search/searchMode.h"

#include <gtest/gtest.h>

using namespace search;

namespace {

TEST(Replace, WordsOfACell) {
    struct {
        const char* cell;
        const char* find;
        const char* replacement;
        const char* expected;
    } const cases[] = {{"lapdog lap, lap. lap", "lap", "dog", "lapdog dog, dog. dog"},
                       {"Lap LAP lap", " laP ", "x", "x x x"},
                       {"(lap) lap; lap! lap,, lap", "lap", "x", "(lap) lap; lap! lap,, x"},
                       {"a lap b", "lap", "", "a  b"},
                       {"lap", "LAP", " x ", " x "},
                       {"lap", "lap", "new lap", "new lap"},
                       {" lap  lap ", "lap", "x", " x  x "},
                       {"a  b", "", "x", "a x b"},
                       {"a , . b", "", "x", "a x, x. b"},
                       {"", "", "x", ""},
                       {"New York", "new york", "x", "New York"},
                       {"\xC3\xA9t\xC3\xA9, \xC3\x89T\xC3\x89", "\xC3\xA9T\xC3\xA9", "x", "x, x"},
                       {"a", "a", "a,", "a,,"}, // matches again, as it then stands
                       {"a", "a", "a.", "a.."},
                       {"a. b.", ".", "x", "a. b."},
                       {"12 1 2", "1", "$", "12 $ 2"}};
    for (const auto& c : cases) {
        core::CellText cell(c.cell);
        EXPECT_EQ(WordReplacer(c.find, c.replacement).replaceInCell(cell), std::string(c.cell) != c.expected)
            << c.cell << " / " << c.find;
        EXPECT_EQ(cell, c.expected) << c.cell << " / " << c.find;
    }
}

DataFile twoColumns() {
    DataFile data({{"A", 3}, {"B", 3}});
    data.rows = "lap|lap top|\r\nx|LAP.|\r\n------|------|\r\n";
    return data;
}

TEST(Replace, ColumnsOfTheList) {
    Program program;
    program.open(program.make("a.fwk", twoColumns().text()));
    replaceFrm form(program.app);
    ASSERT_EQ(form.List1.size(), 3U);
    EXPECT_EQ(form.List1[0].Text, "Index");
    EXPECT_EQ(form.List1[2].Text, "B");
    form.Text1 = "lap";
    form.Text2 = "dog";
    EXPECT_EQ(form.Command3_Click(), 0); // nothing is selected
    form.List1[0].Selected = true;
    EXPECT_EQ(form.Command3_Click(), 0);
    form.List1[2].Selected = true;
    EXPECT_EQ(form.Command3_Click(), 2);
    EXPECT_EQ(Program::cells(program.app.document.LV), "lap|dog top|;x|dog.|;------|------|;");
    EXPECT_EQ(form.Command1_Click(), 1);
    EXPECT_EQ(Program::cells(program.app.document.LV), "dog|dog top|;x|dog.|;------|------|;");
    form.Text1 = "------"; // the Totals row has words like all others
    EXPECT_EQ(form.Command1_Click(), 2);
    EXPECT_EQ(Program::cells(program.app.document.LV), "dog|dog top|;x|dog.|;dog|dog|;");
    EXPECT_FALSE(program.app.document.bModified);
    EXPECT_TRUE(program.platform.messages.empty());
    EXPECT_FALSE(form.unloaded);
}

TEST(Replace, IsForRecordsOfStandardDatabases) {
    Program program;
    program.open(program.make("a.fwk", twoColumns().text()));
    mnuReplace_Click(program.app);
    EXPECT_EQ(program.platform.forms, std::vector<std::string>{"replaceFrm"});
    program.app.mainFrm.theListView = &program.app.document.searchLV;
    mnuReplace_Click(program.app);
    EXPECT_EQ(program.platform.lastMessage(),
              "You cannot globally relace items in a search window, please use the normal view.");
    program.openCopyOf("invoices.fwk");
    mnuReplace_Click(program.app);
    EXPECT_EQ(program.platform.lastMessage(),
              "This feature is only available for normal non-invoice style databases.");
    EXPECT_EQ(program.platform.forms.size(), 1U);
}

} // namespace
