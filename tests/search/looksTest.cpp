#include "app/fileSettings.h"
#include "calc/designFrm.h"
#include "search/coloursFrm.h"
#include "search/columnNames.h"
#include "search/filter/folding.h"
#include "search/suggestions.h"
#include "searchProgram.h"

#include <random>

namespace {

using core::ColumnType;
using search::ColourTest;

search::ColourRule rule(std::string_view words) {
    const auto rules = search::coloursFrom(core::replaceAll(words, "|", "\t"));
    return rules.empty() ? search::ColourRule{ColourTest::Equal, {}, {}, 0} : rules.front();
}

// The type, the rule and the cell; today is the scripted machine's day.
TEST(ColourRules, HoldForCells) {
    Program program;
    const auto today = program.platform.today();
    const auto day = [&](int after) {
        const std::chrono::year_month_day date = std::chrono::sys_days(today) + std::chrono::days(after);
        return core::formatDate(int(date.year()), unsigned(date.month()), unsigned(date.day()));
    };
    for (const auto& each : table(
             "4 above|10||Red -> 10.0001 -> yes; 4 above|10||Red -> 10 -> no; 4 above|10||Red -> 1,000 -> "
             "yes; "
             "4 above|10||Red -> (11) -> no; 4 above|10||Red ->  -> no; 4 above|10||Red -> abc -> no; "
             "4 above|abc||Red -> 99 -> no; 2 below|$.30||Red -> $.29999 -> no; 2 below|.3||Red -> $.2999 -> "
             "yes; "
             "2 equal|.1||Red -> $0.1000 -> yes; 5 between|-1|1|Red -> -1 -> yes; 5 between|-1|1|Red -> "
             "1.0001 -> no; "
             "5 between|1|-1|Red -> 0 -> no; 4 empty|||Red ->   -> yes; 4 empty|||Red -> 0 -> no; "
             "3 equal|été||Red -> ETE  -> yes; 3 equal|ete||Red -> etee -> no; 3 above|b||Red -> Bé -> yes; "
             "3 above|9||Red -> 10 -> yes; 3 above|9||Red -> x10 -> yes; 3 below|||Red -> a -> no; "
             "3 between|a|c|Red -> Cd -> no; 3 between|a|c|Red -> C -> yes; 3 passed|||Red -> 01/01/2000 -> "
             "no; "
             "1 above|5/1/2015||Red -> 05/02/2015 -> yes; 1 above|5/2015||Red -> 05/31/2015 -> no; "
             "1 equal|2015||Red -> 12/31/2015 -> yes; 1 below|2015||Red -> 12/31/2014 -> yes; "
             "1 between|2014|2015|Red -> 06/30/2015 -> yes; 1 between|2014|2015|Red -> 01/01/2016 -> no; "
             "1 passed|||Red -> -1 -> yes; 1 passed|||Red -> 0 -> no; 1 passed|||Red -> soon -> no; "
             "1 near|7||Red -> 7 -> yes; 1 near|7||Red -> 8 -> no; 1 near|0||Red -> 0 -> yes; "
             "1 near|7||Red -> -1 -> no; 1 near|x||Red -> 0 -> no",
             3)) {
        const auto type = static_cast<ColumnType>(each[0][0] - '0');
        const auto kept = rule(std::string_view(each[0]).substr(2));
        const bool isOffset = each[0].starts_with("1 passed") || each[0].starts_with("1 near");
        const bool isNumber = !each[1].empty() && each[1].size() < 3;
        const std::string cell = isOffset && isNumber ? day(std::stoi(each[1])) : each[1];
        EXPECT_EQ(search::holds(kept, cell, type, today) ? "yes" : "no", each[2]) << each[0] << " " << cell;
    }
    for (const auto& each : table("4 above|x||Red -> x is no number.; 4 above|||Red -> A value is missing.; "
                                  "4 between|1|y|Red -> y is no number.; "
                                  "1 below|13/45/2015||Red -> 13/45/2015 is no date.; 1 near|-1||Red -> -1 "
                                  "is no number of days, from 0 to 3650.; "
                                  "3 equal|x||Red -> ; 1 passed|||Red -> ; 4 empty|||Red -> "))
        EXPECT_EQ(search::ruleError(rule(std::string_view(each[0]).substr(2)),
                                    static_cast<ColumnType>(each[0][0] - '0'), today),
                  each[1])
            << each[0];
}

// What is kept is read again; anything else in the settings does no harm.
TEST(ColourRules, AreKeptBesideTheDatabase) {
    Program program(DataFile("Name Qty:4", "Bolt|12;Nut|7"));
    const core::Column& column = program.app.document.LV.columns["Qty"];
    app::setFileSetting(program.app, "colours.Name", "nonsense\n\tabove\nabove\t1\t\tPink\textra\n");
    search::readColours(program.app);
    EXPECT_TRUE(search::coloursOf(program.app, "Name").empty());
    program.platform.onForm = [&](std::string_view) {
        search::coloursFrm form(program.app);
        EXPECT_EQ(form.List1.at(static_cast<std::size_t>(form.ListIndex)), "Qty");
        const auto boxes = [&](int entry) {
            form.Combo1_Click(0, entry);
            return int(form.rows[0].bText1) * 10 + int(form.rows[0].bText2);
        };
        // None, empty, equal, above, below, between.
        for (const auto& [entry, shown] : std::map<int, int>{{0, 0}, {1, 0}, {2, 10}, {4, 10}, {5, 11}})
            EXPECT_EQ(boxes(entry), shown) << entry;
        form.Combo1_Click(0, 3); // above
        form.Text1_Change(0, "x");
        form.OKButton_Click();
        EXPECT_FALSE(form.unloaded);
        form.List1_Click(0); // what is wrong is not left
        EXPECT_EQ(form.ListIndex, 1);
        form.Text1_Change(0, "10");
        form.Combo1_Click(1, 1);
        form.Combo2_Click(1, 4);
        form.List1_Click(0);
        form.List1_Click(1);
        EXPECT_EQ(form.rows[0].Text1, "10");
        form.OKButton_Click();
        EXPECT_TRUE(form.unloaded);
    };
    search::showColours(program.app, "Qty");
    const auto marks = [&] {
        std::string all;
        for (const char* cell : {"12", "7", ""}) {
            const search::ColourRule* found = search::markOf(program.app, column, cell);
            all += found == nullptr ? "-" : search::colourName(found->colour);
            all += ' ';
        }
        return all;
    };
    EXPECT_EQ(marks(), "Red - Blue ");
    EXPECT_FALSE(program.app.document.bModified);
    const std::string other = program.path("other.fwk");
    program.platform.files = {other};
    program.run("mnuSaveAs");
    program.open(program.path("test.fwk"));
    EXPECT_EQ(marks(), "Red - Blue ");
    program.open(other);
    EXPECT_EQ(marks(), "Red - Blue ");
    search::setColours(program.app, "Qty", {});
    EXPECT_EQ(marks(), "- - - ");
    program.openCopyOf("books.fwk");
    EXPECT_EQ(marks(), "- - - ");
}

// What a marked cell is said to be.
TEST(ColourRules, AreToldInWords) {
    for (const auto& each :
         table("4 empty|||Red -> empty; 4 above|10||Red -> above 10; 4 below|10||Red -> below 10; 2 "
               "between|1|2|Red -> between 1 and 2; 1 passed|||Red -> has passed; 1 near|1||Red -> within 1 "
               "day; 1 near|07||Red -> within 07 days; 1 above|2015||Red -> after 2015; 1 below|2015||Red -> "
               "before 2015; 1 equal|2015||Red -> equal to 2015"))
        EXPECT_EQ(search::ruleText(rule(std::string_view(each[0]).substr(2)), ColumnType(each[0][0] - '0')),
                  each[1]);
    EXPECT_EQ(search::colourTestsOf(ColumnType::Date).back(), ColourTest::DateNear);
}

// Both cases of what a filter takes as a letter of the alphabet, or as what the keyboard has.
TEST(Folding, TakesLettersAsTheKeyboardHasThem) {
    for (const auto& each :
         table("a\u00A0b\u2009c\u202Fd -> A B C D; ÆæÞþß -> AEAETHTHSS; ĲĳŒœ -> IJIJOEOE; ‐‑‒–—― -> -----―; "
               "‘’‚“”„ -> '''\"\"\"; ΆάΈέΉή -> ΑΑΕΕΗΗ; ΊίΐΪϊ -> ΙΙΙΙΙ; ΌόΏώ -> ΟΟΩΩ; ΎύΫϋΰ -> ΥΥΥΥΥ; Ёё -> "
               "ЕЕ; e\u0300e\u036Fe\u0370× -> EEE\u0370×"))
        EXPECT_EQ(search::folded(each[0]), each[1]) << each[0];
}

// A name is new in the settings when it is in the file, and the other file keeps the old one.
TEST(ColumnNames, AreFollowedByColoursAndFilters) {
    Program program(DataFile("Name Qty:4 Bed", "Bolt|12|x;Nut|7|Qty:7"));
    auto& app = program.app;
    for (const char* column : {"Qty", "Bed"}) search::setColours(app, column, {rule("above|1||Red")});
    app::setFileSetting(app, "filter.a", "qty>7 | [Qty]:7 \"Qty:7\"\nQty");
    const auto sit = [&](const char* column, const char* name) {
        program.platform.answers = {platform::Answer::Yes};
        calc::designFrm form(app);
        form.selectedRow = column[0] == 'B' ? 2 : 1;
        form.fieldTxt = name;
        *name == '\0' ? form.deleteBtn_Click() : form.changeBtn_Click();
        form.doneBtn_Click();
    };
    const auto kept = [&] {
        std::string all = search::withNewNames(app, app::fileSetting(app, "filter.a")) + "|";
        for (const std::string& name : app::fileSettingNames(app, "colours.")) all += name + " ";
        return all + (search::coloursOf(app, "Qty").empty() ? "" : "Qty") +
               (search::coloursOf(app, "In-Stock").empty() ? "" : "In-Stock");
    };
    sit("Qty", "In-Stock");
    sit("Bed", "");
    const std::string renamed = "\"In-Stock\">7 | \"In-Stock\":7 \"Qty:7\"\nIn-Stock|";
    EXPECT_EQ(kept(), renamed + "Qty Bed In-Stock");
    const std::string other = program.path("other.fwk");
    program.platform.files = {other};
    program.run("mnuSaveAs");
    EXPECT_EQ(kept(), renamed + "In-Stock In-Stock");
    program.open(program.path("test.fwk"));
    EXPECT_EQ(kept(), "qty>7 | [Qty]:7 \"Qty:7\"\nQty|Qty Bed Qty");
    sit("Qty", "In-Stock");
    program.run("Save");
    program.open(program.path("test.fwk"));
    EXPECT_EQ(kept(), renamed + "Bed In-Stock In-Stock");
}

struct Suggesting : Program {
    using Program::Program;
    std::string values(std::string_view column, std::string_view typed, bool asked = false) {
        std::string all;
        for (const std::string& value :
             search::suggestions(app, column, typed, asked ? search::Asked::ForList : search::Asked::Typing))
            all += value + "|";
        return all;
    }
};

TEST(Suggestions, AreTheMostFrequentAndTheNewestEarlierValues) {
    Suggesting program(DataFile("Name Qty:4 Planted:1 Sum:5 Pic:7",
                                "Oak|12|05/01/2015|1|a.jpg;Öl| 7|01/02/2016||;oak tree|12|||;Ash|100|||;oak "
                                "tree||||;  ||||;Olive||||"));
    for (const auto& each :
         table("Name -> o -> oak tree|Olive|Öl|Oak|; Name -> OAK -> oak tree|Oak|; Name -> Oak -> oak tree|; "
               "Name -> x -> ; Name ->  -> ; Name -> ? -> Ash|Oak|oak tree|Öl|Olive|; Qty -> 1 -> ; "
               "Qty -> ? -> 7|12|100|; Planted -> ? -> 05/01/2015|01/02/2016|; Sum -> ? -> ; Pic -> ? -> ; "
               "None -> ? -> ",
               3))
        EXPECT_EQ(program.values(each[0], each[1] == "?" ? "" : each[1], each[1] == "?"), each[2])
            << each[0] << " " << each[1];
    program.record({"Oh", "", "", "", ""});
    app::setDocumentModified(program.app, true);
    EXPECT_EQ(program.values("Name", "oh"), "Oh|");
    EXPECT_EQ(program.values("Name", "OH"), "Oh|");
}

// As a loop over all records finds them, whatever they hold.
TEST(Suggestions, FindWhatALoopFinds) {
    std::mt19937 random(7);
    const auto word = [&] {
        static constexpr std::array<const char*, 6> parts = {"a", "B", "é", "E", " ", "ß"};
        std::string text;
        for (auto size = random() % 4 + 1; size > 0; --size) text += parts.at(random() % parts.size());
        return text;
    };
    for (int round = 0; round < 50; ++round) {
        std::string records;
        for (int row = 0; row < 30; ++row) records += (row > 0 ? ";" : "") + word() + "x";
        Suggesting program(DataFile("Name", records));
        const std::string typed = word();
        std::map<std::string, int> wanted;
        program.app.document.LV.forEach([&](const core::Item& item) {
            const std::string cell = item.cells[0].str();
            if (!item.isTotals() && search::folded(cell).starts_with(search::folded(typed))) ++wanted[cell];
        });
        const auto found = search::suggestions(program.app, "Name", typed, search::Asked::Typing);
        const bool isTyped = !core::trim(typed).empty();
        EXPECT_EQ(found.size(), isTyped ? std::min(wanted.size(), search::typingMost) : 0) << typed;
        int most = 99;
        for (const std::string& value : found) {
            EXPECT_TRUE(wanted.contains(value) && wanted[value] <= most) << typed << ": " << value;
            most = wanted[value];
        }
    }
}

} // namespace
