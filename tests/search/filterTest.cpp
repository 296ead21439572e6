#include "app/appearance.h"
#include "entry/navBar.h"
#include "search/filter/filterMode.h"
#include "search/filter/folding.h"
#include "searchProgram.h"
#include "shell/mainWindow.h"

#include <array>
#include <cstdio>
#include <random>

namespace {

struct FilterProgram : SearchProgram {
    using SearchProgram::SearchProgram;
    // What the filter finds, or its error: where, how much and why; "?" behind what may be right with the
    // next key.
    std::string filter(const std::string& text, const std::string& scope = {}) {
        search::setFilter(app, text, scope);
        const search::FilterBarState& bar = search::filterBar(app);
        if (!bar.error) return bar.isOn ? found() + bar.doubt : "all";
        return std::to_string(bar.error->offset) + "+" + std::to_string(bar.error->size) + " " +
               bar.error->reason + (bar.error->isUnfinished ? "?" : "");
    }
};

TEST(Filter, TheLanguage) {
    FilterProgram program(
        DataFile("Name Bed Price:2 Qty:4 Planted:1 Mail",
                 "Oak|North hedge|$10.00|5|05/01/2015|a@x.com;Eiche rot|north|$1,200.50|-3|12/31/2015|;"
                 "Été or so|Süd: wall|$.00||01/01/2016|z@a.com;Fern \"x\"||$99.99|10.5||;"
                 "Straße|12|$5.00|oak|02/29/2016|http://b"));
    for (
        const auto& each : table(
            " -> all; OAK -> i1 i5; ete -> i3; é -> i1 i2 i3 i4 i5; strasse -> i5; oak north -> i1; north "
            "rot -> i2; "
            "\"north hedge\" -> i1; \"hedge north\" -> -; \"h h -> i1; -north -> i3 i4 i5; oak -hedge -> i5; "
            "- -> all; "
            "oak | rot -> i1 i2 i5; oak or rot -> i1 i2 i5; oak or -> i1 i5; oak | -> i1 i5; or -> i1 i2 i3; "
            "hedge \"or\" -> i1; oak north|été -> i1 i3; \"\"\"x\"\"\" -> i4; http://b -> i5; 12:30 -> -; "
            "bed:NORTH -> i1 i2; Bed:süd: -> i3; bed: -> i1 i2 i3 i5; -bed: -> i4; bed= -> i4; bed:\"\" -> "
            "i4; "
            "bed!= -> i1 i2 i3 i5; bed=north -> i2; bed <> north -> i1 i3 i4 i5; \"Bed\":north -> i1 i2; "
            "[Bed]:north -> i1 i2; [Bed:north -> -; bed>north -> i1 i3; bed>=north -> i1 i2 i3; bed<n -> i5; "
            "bed<13 -> i5; bed:10..13 -> i5; bed:a..b -> -; mail>m -> i3; "
            "a://b 1:2 Nam>5 -> -There is no column \"Nam\"; oak|Nam:x -> i1 i5; "
            "price>10 -> i2 i4; price >= 10 -> i1 i2 i4; price<$10.00 -> i3 i5; price=1200.5 -> i2; "
            "price:5..10 -> i1 i5; price:..5 -> i3 i5; price:99.99.. -> i2 i4; price:10..5 -> -; price:.. -> "
            "i1 i2 i3 "
            "i4 i5; price:>1,000 -> i2; price:10 -> i1; -price>5 -> i3 i5; qty<0 -> i2; qty=10.5 -> i4; "
            "qty!=5 -> i2 i3 "
            "i4 i5; qty> -> i1 i2 i4 i5; "
            "planted:2015 -> i1 i2; planted>2015 -> i3 i5; planted<=2015 -> i1 i2; planted:2/2016.. -> i5; "
            "planted:2015-05..2015 -> i1 i2; planted=\"Feb 2016\" -> i5; planted:2/29/2016 -> i5; "
            "planted!=2015 -> i3 i4 "
            "i5; planted<today -> i1 i2 i3 i5; planted:01/ -> i1 i3; planted>12/30/2015 -> i2 i3 i5; "
            "oak price>x -> 10+1 \"x\" is no number?; planted>20 oak -> 8+2 \"20\" is no date; price:1..a -> "
            "6+4 \"a\" is "
            "no number?; [Bad]:x -> 0+5 There is no column \"Bad\"; price>99999999999999999 -> 6+17 "
            "\"99999999999999999\" is no number?"))
        EXPECT_EQ(program.filter(each[0]), each[1]) << each[0];
    for (const auto& each :
         table("oak -> i1; >n -> i1 i2 i3; =north -> i2; n qty:5 -> i1; -oak -> i2 i3 i4 i5"))
        EXPECT_EQ(program.filter(each[0], each[0] == "oak" || each[0] == "-oak" ? "Name" : "Bed"), each[1])
            << each[0];
    EXPECT_EQ(program.filter(search::filterPiece("Name", "=", "Fern \"x\"")), "i4");
    EXPECT_EQ(program.filter(std::string(1001, 'x')), "1000+1 The filter is too long?");
    EXPECT_EQ(search::folded("Ǻﬀ ŝ\xFFΌсЁ\xCC\x81\t"), search::folded("aﬀ S\xFFοСе "));
}

// What is typed in the form of a country, and the filter that it is.
TEST(Filter, HasValuesInTheFormOfTheUser) {
    FilterProgram program(DataFile("Name Price:2 Planted:1", "Oak 1,5|$1,200.50|12/31/2015"));
    app::appearance(program.app).localeForm = {
        core::LocaleForm::DateOrder::DayMonthYear, '.', ",", ".", "EUR", true, true};
    for (const bool bInUse : {false, true}) {
        app::appearance(program.app).bLocaleForm = bInUse;
        for (const auto& each :
             table("Planted>=31.12.2015 oak | Price<1.200,50 -> Planted>=12/31/2015 oak | "
                   "Price<1200.50; Price:1,5..2.000 \"1,5\" -> Price:1.5..2000 \"1,5\"; Planted:=2015 -> "
                   "Planted:=2015; -Price=\"1,50 EUR\" -> -Price=\"$1.50\"; Planted=\"01.02.2015\"..  -> "
                   "Planted=\"02/01/2015\".. ; 1,5 -> 1,5; Price>x Planted=1.2.2015 -> Price>x "
                   "Planted=1.2.2015")) {
            EXPECT_EQ(search::filterFromForm(program.app, each[0], ""), bInUse ? each[1] : each[0]);
            const std::string shown = search::filterInForm(program.app, each[1], "");
            EXPECT_EQ(search::filterFromForm(program.app, shown, ""), each[1]) << shown;
        }
    }
    EXPECT_EQ(search::filterFromForm(program.app, "1,5", "Price"), "1.5");
}

TEST(Filter, NeedsAColumn) {
    FilterProgram program(DataFile("", ""));
    EXPECT_FALSE(search::canFilter(program.app));
    search::mnuFilter_Click(program.app);
    EXPECT_FALSE(search::filterBar(program.app).isOpen);
}

TEST(Filter, EachItemOfAnInvoiceCounts) {
    FilterProgram program(DataFile("Item Price:2", "bolt@nut@|$5.00@$12.00@;nail@|$7.00@"));
    for (const auto& each :
         table("price>10 -> i1; price=5 -> i1; item=nut -> i1; price:6..8 -> i2; -price<6 -> i2"))
        EXPECT_EQ(program.filter(each[0]), each[1]) << each[0];
}

TEST(Filter, IsKeptByFileAndEndsWhereASearchDoes) {
    FilterProgram program(DataFile("Name Bed", "Oak|North;Fern|South;Elm|North"));
    program.platform.inputs = {"In the north", " In the north", ""};
    program.platform.answers = {platform::Answer::Yes};
    EXPECT_EQ(program.filter("north", "Bed"), "i1 i3");
    search::keepFilter(program.app);
    EXPECT_EQ(program.filter("oak"), "i1");
    search::keepFilter(program.app); // in place of the other
    search::keepFilter(program.app); // cancelled
    EXPECT_EQ(program.filter("f"), "i2");
    ASSERT_EQ(search::keptFilters(program.app), std::vector<std::string>{"In the north"});
    search::useKeptFilter(program.app, "In the north");
    EXPECT_EQ(program.found() + search::filterBar(program.app).text, "i1oak");
    search::removeKeptFilter(program.app, "In the north");
    EXPECT_TRUE(search::keptFilters(program.app).empty());
    // The record that was chosen among the results is the current one afterwards.
    program.filter("north");
    program.app.document.searchLV.setSelectedItem(&program.app.document.searchLV.at(2));
    program.run("Search");
    EXPECT_EQ(search::filterBar(program.app).text, "");
    EXPECT_FALSE(program.app.document.searchLV.Visible);
    program.filter("north");
    program.app.document.searchLV.setSelectedItem(&program.app.document.searchLV.at(2));
    search::leaveFilter(program.app);
    EXPECT_EQ(program.app.document.LV.selectedItem()->Key, "i3");
    program.filter("north");
    EXPECT_FALSE((program.inDialog([](search::searchFrm&) {}), program.app.document.searchLV.Visible));
    program.filter("north");
    EXPECT_EQ(program.find("Name = fern") + search::filterBar(program.app).text, "i2");
}

// Its sums are those of what is on show.
TEST(Filter, AddsUpWhatIsLeftOfItsResults) {
    FilterProgram program(DataFile("Bed Qty:4", "North|1;South|2;North|4").section("Totaled Cols", "Qty|"));
    program.filter("north");
    program.platform.answers = {platform::Answer::Yes};
    shell::SSTab1_Click(program.app, app::layoutTab);
    entry::layoutNavBar_ButtonClick(program.app, "Delete");
    EXPECT_EQ(program.app.document.searchLV.totals()->subItem(2), "4");
}

// Records and filters of small parts, so that a good deal is found; each part of a filter comes with a test
// that knows nothing of its text.
struct Chance {
    std::mt19937 engine{7};
    int below(int limit) { return static_cast<int>(engine() % static_cast<unsigned>(limit)); }
};
struct Plain {
    std::string name, bed; // in lower case, without accents
    int cents = 0, qty = 0, year = 0, month = 0, day = 0;
    bool isDated = false;
};
using Holds = std::function<bool(const Plain&)>;
using Part = std::pair<std::string, Holds>;

std::string spelled(const std::string& plain, Chance& chance) {
    const std::map<char, std::string> accented = {{'a', "á"}, {'e', "È"}, {'o', "ö"}, {'c', "Ç"}};
    std::string text;
    for (const char c : plain) {
        const auto other = accented.find(c);
        if (other != accented.end() && chance.below(3) == 0)
            text += other->second;
        else
            text += static_cast<char>(chance.below(2) == 0 && c != ' ' ? std::toupper(c) : c);
    }
    return text;
}

std::string word(Chance& chance, int most) {
    std::string text;
    for (int length = 1 + chance.below(most); length > 0; --length) text += "aecob"[chance.below(5)];
    return text;
}

template <typename Value>
bool compare(const Value& left, int how, const Value& right) {
    switch (how) {
    case 0:
        return left > right;
    case 1:
        return left >= right;
    case 2:
        return left < right;
    case 3:
        return left <= right;
    default:
        return (left == right) == (how == 4);
    }
}

Part part(Chance& chance) {
    const auto has = [](const std::string& text, const std::string& w) {
        return text.find(w) != std::string::npos;
    };
    const int how = chance.below(6);
    const std::string sign = std::array{">", ">=", "<", "<=", "=", "!="}[static_cast<std::size_t>(how)];
    const std::string w = word(chance, 2), shown = spelled(w, chance);
    const int a = chance.below(4000), b = chance.below(4000), year = 2014 + chance.below(3);
    switch (chance.below(8)) {
    case 0:
        return {shown, [=](const Plain& r) { return has(r.name, w) || has(r.bed, w); }};
    case 1:
        return {"-" + shown, [=](const Plain& r) { return !has(r.name, w) && !has(r.bed, w); }};
    case 2:
        return {"bed:" + shown, [=](const Plain& r) { return has(r.bed, w); }};
    case 3:
        return {"bed:", [](const Plain& r) { return !r.bed.empty(); }};
    case 4: // nothing stands above or below an empty cell
        return {"Bed" + sign + shown,
                [=](const Plain& r) { return r.bed.empty() ? how == 5 : compare(r.bed, how, w); }};
    case 5:
        return {"price:" + std::to_string(a / 100) + "." + std::to_string(a % 100 / 10) + ".." +
                    std::to_string(b / 100),
                [=](const Plain& r) { return r.cents >= a / 10 * 10 && r.cents <= b / 100 * 100; }};
    case 6:
        return {"Qty " + sign + " " + std::to_string(a % 9),
                [=](const Plain& r) { return compare(r.qty, how, a % 9); }};
    default:
        return {"planted" + sign + std::to_string(year),
                [=](const Plain& r) { return r.isDated ? compare(r.year, how, year) : how == 5; }};
    }
}

Part filter(Chance& chance) {
    Part whole{"", [](const Plain&) { return false; }};
    for (int sides = 1 + chance.below(5) / 3; sides > 0; --sides) {
        Part side{"", [](const Plain&) { return true; }};
        for (int parts = 1 + chance.below(3); parts > 0; --parts) {
            const Part one = part(chance);
            side = {side.first + one.first + " ", [holds = one.second, before = side.second](const Plain& r) {
                        return before(r) && holds(r);
                    }};
        }
        whole = {whole.first + (whole.first.empty() ? "" : "| ") + side.first,
                 [before = whole.second, now = side.second](const Plain& r) { return before(r) || now(r); }};
    }
    return whole;
}

TEST(Filter, FindsWhatALoopFindsWhileItIsTypedAndRecordsChange) {
    Chance chance;
    int some = 0;
    for (int base = 0; base < 10; ++base) {
        std::vector<Plain> plain;
        std::string rows;
        for (int i = 0; i < 60; ++i) {
            Plain r{word(chance, 4),        chance.below(4) == 0 ? "" : word(chance, 2),
                    chance.below(4000),     chance.below(9),
                    2013 + chance.below(5), 1 + chance.below(12),
                    1 + chance.below(28),   chance.below(5) != 0};
            std::array<char, 64> cells{};
            std::snprintf(cells.data(), cells.size(), "$%d.%02d|%d|%02d/%02d/%d", r.cents / 100,
                          r.cents % 100, r.qty, r.month, r.day, r.year);
            std::string text = cells.data();
            if (!r.isDated) text.erase(text.rfind('|') + 1);
            rows += spelled(r.name, chance) + "|" + spelled(r.bed, chance) + "|" + text + ";";
            plain.push_back(std::move(r));
        }
        FilterProgram program(DataFile("Name Bed Price:2 Qty:4 Planted:1", rows));
        program.total({"Qty"});
        for (int round = 0; round < 50; ++round) {
            const Part one = filter(chance);
            const std::string& text = one.first;
            std::string wanted;
            int sum = 0;
            for (std::size_t i = 0; i < plain.size(); ++i)
                if (one.second(plain[i])) {
                    wanted += (wanted.empty() ? "i" : " i") + std::to_string(i + 1);
                    sum += plain[i].qty;
                }
            some += wanted.empty() || wanted == "i1" ? 0 : 1;
            for (std::size_t end = text.size() / 2; end <= text.size(); ++end)
                program.filter(text.substr(0, end));
            ASSERT_EQ(program.found(), wanted.empty() ? "-" : wanted) << text << "\n" << program.cells();
            program.app.document.searchLV.forEach([&](const core::Item& item) {
                const core::Item* record = item.isTotals() ? nullptr : program.app.document.LV.find(item.Tag);
                if (record == nullptr) return;
                EXPECT_EQ(program.cells(item), program.cells(*record)) << text;
            });
            const core::Item& totals = *program.app.document.searchLV.totals();
            ASSERT_EQ(totals.subItem(4), wanted.empty() ? "------" : std::to_string(sum)) << text;
            const auto changed = static_cast<std::size_t>(chance.below(60));
            plain[changed].bed = word(chance, 2);
            program.app.document.LV.at(static_cast<int>(changed) + 1).subItem(2) =
                spelled(plain[changed].bed, chance);
            app::setDocumentModified(program.app, true);
        }
    }
    EXPECT_GT(some, 250) << "of 500 filters find something";
}

} // namespace
