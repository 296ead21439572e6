#include "../search/searchProgram.h"
#include "../support/printRecorder.h"
#include "app/appearance.h"
#include "core/dates.h"
#include "core/format.h"
#include "invoiceFixture.h"
#include "search/filter/filterMode.h"
#include "shell/mainWindow.h"
#include "summary/statisticsFrm.h"
#include "summary/summaryPanel.h"

#include <random>

using namespace summary;

namespace {

constexpr std::chrono::year_month_day today{std::chrono::year(2026) / 3 / 14};

// A word for a column's type: "date", "money", "number", "text".
core::ColumnType typeOf(const std::string& word) {
    using core::ColumnType;
    return word == "date"     ? ColumnType::Date
           : word == "money"  ? ColumnType::Currency
           : word == "number" ? ColumnType::Number
                              : ColumnType::Text;
}

TEST(Grouping, NamesTheGroupOfACell) {
    for (const auto& row :
         table("date -> year -> 02/29/2016 -> 2016; date -> quarter -> 03/31/2016 -> 2016-Q1; "
               "date -> quarter -> 12/01/1999 -> 1999-Q4; date -> month -> 4/5/16 -> 2016-04; "
               "date -> day -> May 4, 2016 -> 05/04/2016; date ->  -> 5/4/2016 -> 05/04/2016; "
               "date -> year -> 02/30/2016 -> 02/30/2016; date -> month ->  -> (empty); "
               "number -> 10 -> 10 -> 10 to below 20; number -> 10 -> 9.999 -> 0 to below 10; "
               "number -> 10 -> -1 -> -10 to below 0; number -> 0.1 -> .3 -> 0.3 to below 0.4; "
               "number -> 10 -> pcs -> pcs; number ->  -> 1,000 -> 1,000; "
               "money -> 100 -> $1,234.50 -> $1,200.00 to below $1,300.00; "
               "money -> 100 -> -$.50 -> -$100.00 to below $.00; text ->  ->    -> (empty); "
               "text ->  -> (empty) -> (empty); text -> year -> a -> !; date -> 10 -> a -> !; "
               "number -> 0 -> a -> !; number -> -5 -> a -> !; number -> year -> a -> !",
               4)) {
        const core::ColumnType type = typeOf(row[0]);
        const std::optional<Step> step = row[1].empty() ? Step() : stepNamed(row[1], type);
        GroupReader reader(type, step.value_or(Step()), today);
        EXPECT_EQ(step ? reader.keys().at(reader.groupOf(row[2])).label : "!", row[3])
            << row[0] << " " << row[1] << " " << row[2];
    }
}

TEST(Grouping, OrdersAsTheColumnSorts) {
    for (const auto& row :
         table("number -> 9|10||-2|x|1.50|1.5|+9 -> (empty) -2 1.50 9 10 x; text -> b|A||a|B -> (empty) A a "
               "B b; "
               "date -> 01/02/2016|12/31/2015|never| -> (empty) 12/31/2015 01/02/2016 never",
               3)) {
        GroupReader reader(typeOf(row[0]), {}, today);
        const std::vector<std::string> cells = table(core::replaceAll(row[1], "|", " -> "), 1)[0];
        for (const std::string& cell : cells) reader.groupOf(cell);
        const auto order = reader.order();
        std::vector<std::string> sorted(order.size());
        for (std::size_t i = 0; i < order.size(); ++i) sorted[order[i]] = reader.keys()[i].label;
        std::string all;
        for (const std::string& label : sorted) all += (all.empty() ? "" : " ") + label;
        EXPECT_EQ(all, row[2]);
    }
}

TEST(Amounts, AreReadAsTheTotalsRowReadsThem) {
    for (const auto& row : table(
             "money -> $1.005 -> 1.01; money -> -$1,234.50 -> -1234.5; money -> abc -> none; number -> 1,234 "
             "-> 1; "
             "number -> 12 pcs -> 12; number -> .1 -> 0.1; number -> $5 -> 0; number ->  -> none; number -> "
             "0 -> 0; "
             "number -> 1e30 -> 1E+30; number -> 0.0000000004 -> 0; number -> 0.0000000005 -> 0.000000001; "
             "number -> 999999999999999999 -> 1E+18; number -> 123456789012.123456789 -> "
             "123456789012.123456789; "
             "number -> 12345678901234567890.5 -> 1.23456789012346E+19; number -> 1e-12 -> 0; number -> "
             "(2.5e-3) -> -0.0025")) {
        const std::optional<Amount> amount = amountIn(row[1], typeOf(row[0]));
        EXPECT_EQ(amount ? amount->text() : "none", row[2]) << row[1];
    }
}

// Whatever is grouped: the groups, their records and their figures are those of a loop in whole cents.
TEST(Summary, CountsWhatALoopCounts) {
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int database = 0; database < 60; ++database) {
        struct Counted {
            std::size_t records = 0, values = 0;
            long sum = 0, least = 0, greatest = 0;
        };
        const auto add = [](Counted& counted, std::optional<long> cents) {
            ++counted.records;
            if (!cents) return;
            counted.least = counted.values == 0 ? *cents : std::min(counted.least, *cents);
            counted.greatest = counted.values == 0 ? *cents : std::max(counted.greatest, *cents);
            counted.sum += *cents;
            ++counted.values;
        };
        std::map<std::string, Counted> wanted;
        Counted all;
        std::string rows;
        for (int record = below(120); record >= 0; --record) {
            const std::string bed = std::array{"a", "b", "B", "", "a, b"}[static_cast<std::size_t>(below(5))];
            const int year = 2010 + below(3);
            const std::optional<long> cents =
                below(6) > 0 ? std::optional(below(2'000'000) - 1'000'000L) : std::nullopt;
            const std::string cost =
                cents ? core::format(static_cast<double>(*cents) / 100, core::Mask::Money) : "";
            rows += bed + "|" + core::formatDate(year, 1 + static_cast<unsigned>(below(12)), 1) + "|" + cost +
                    ";";
            add(wanted[(bed.empty() ? "(empty)" : bed) + "/" + std::to_string(year)], cents);
            add(all, cents);
        }
        Program program(DataFile("Bed Planted:1 Cost:2", rows).section("Totaled Cols", "Cost|"));
        Request request{{{"Bed", {}}, {"Planted", {Step::Kind::Year, {}}}}, {}};
        for (const FigureKind kind : figureKinds) request.figures.push_back({kind, "Cost"});
        const Summary found = summarise(program.app.document, request, today);
        const auto expect = [&](const Group& group, const Counted& counted, const std::string& name) {
            EXPECT_EQ(group.records, counted.records) << name;
            const auto n = static_cast<long>(std::max<std::size_t>(counted.values, 1));
            const long half = counted.sum < 0 ? -(n / 2) : n / 2;
            const std::array<long, 4> cents = {counted.sum, (counted.sum + half) / n, counted.least,
                                               counted.greatest};
            for (std::size_t i = 0; i < cents.size(); ++i)
                EXPECT_EQ(group.figures[i].text,
                          counted.values == 0
                              ? ""
                              : core::format(static_cast<double>(cents[i]) / 100, core::Mask::Money))
                    << name << " " << i;
        };
        ASSERT_EQ(found.groups.size(), wanted.size());
        for (std::size_t i = 0; i < found.groups.size(); ++i) {
            const Group& group = found.groups[i];
            const std::string name = group.keys[0].label + "/" + group.keys[1].label;
            expect(group, wanted.at(name), name);
            EXPECT_EQ(found.membersOf(i).size(), group.records);
            EXPECT_TRUE(i == 0 || found.groups[i - 1].keys[0] < group.keys[0] ||
                        found.groups[i - 1].keys[1] < group.keys[1]);
        }
        expect(found.total, all, "total");
        // And the sum is that of the Totals row.
        core::Document& document = program.app.document;
        core::resetTotalsRow(document.LV);
        const core::TotalsRowUpdater totals(document, document.LV);
        document.LV.forEach([&](const core::Item& item) {
            if (!item.isTotals()) totals.update(core::TotalsMode::Add, item);
        });
        if (all.values == all.records) {
            EXPECT_EQ(document.LV.totals()->subItem(3), found.total.figures[0].text);
        }
    }
}

// "a, b: 2 $1.00 ; total: 3 $2.00"
std::string tellAll(const Summary& summary) {
    std::string all;
    const auto add = [&](const Group& group, const std::string& name) {
        all += name + ": " + std::to_string(group.records);
        for (const Value& figure : group.figures) all += " " + (figure.text.empty() ? "-" : figure.text);
    };
    for (const Group& group : summary.groups) {
        add(group, group.name());
        all += "; ";
    }
    add(summary.total, "all");
    return all;
}

// The values of an item row belong together; the tax of an invoice counts in each of its groups, but once in
// all.
TEST_F(InvoiceTest, ItemsCountInTheGroupOfTheirRow) {
    layoutWith(3);
    record({{"Customer", "Ann"}, {"Item", "Bolt@Nut@Bolt@"}, {"Qty", "1@2@4@"}, {"Tax", "$1.50"}});
    record({{"Customer", "Bob"},
            {"Item", "Nut@@@"},
            {"Qty", "8@@@"},
            {"Line", "$8.00@$.00@$.00@"},
            {"Tax", "$.25"}});
    core::moveTotals(app.document.LV);
    const auto by = [&](const char* column) {
        return tellAll(summarise(
            app.document, {{{column, {}}}, {{FigureKind::Sum, "Qty"}, {FigureKind::Sum, "Tax"}}}, today));
    };
    EXPECT_EQ(by("Customer"), "Ann: 1 7 $1.50; Bob: 1 8 $.25; all: 2 15 $1.75");
    EXPECT_EQ(by("Item"), "Bolt: 1 5 $1.50; Nut: 2 10 $1.75; all: 2 15 $1.75");
    EXPECT_EQ(namedFigures(statisticsOf(app.document, "Line", today))[1].second, "1");
    record({{"Customer", "Cid"}, {"Qty", "@1@@"}, {"Tax", "$1.00"}});
    record({{"Customer", "Dan"}});
    EXPECT_EQ(by("Item"), "(empty): 2 1 $1.00; Bolt: 1 5 $1.50; Nut: 2 10 $1.75; all: 4 16 $2.75");
}

TEST(Statistics, TellOfAColumn) {
    Program program(DataFile("Name Qty:4 Day:1 Cost:2",
                             "b|3|01/02/2016|$1.00;B|1|01/01/2016|$2.00;b|2|03/01/2016|;"
                             "|x||$2.01;a|2.5|02/30/2016|$9.00"));
    const auto figures = [&](const char* column) {
        const Statistics statistics = statisticsOf(program.app.document, column, today, 2);
        std::string all;
        for (const auto& [name, value] : namedFigures(statistics)) all += value + " ";
        for (const FrequentValue& value : statistics.mostFrequent)
            all += value.value + "=" + std::to_string(value.count) + " ";
        return all;
    };
    EXPECT_EQ(figures("Name"), "5 4 1 3 a b b=2 a=1 ");
    EXPECT_EQ(figures("Qty"), "5 5 0 5 1 3 2.125 2.25 8.5 1=1 2=1 ");
    EXPECT_EQ(figures("Day"), "5 4 1 4 01/01/2016 03/01/2016 01/02/2016 01/01/2016=1 01/02/2016=1 ");
    EXPECT_EQ(figures("Cost"), "5 4 1 4 $1.00 $9.00 $3.50 $2.01 $14.01 $1.00=1 $2.00=1 ");
}

// The panel follows the document, and a group that takes the place of the results leaves their summary.
TEST(SummaryPanel, FollowsNarrowsAndHandsOn) {
    SearchProgram program(DataFile("Bed Plant Cost:2", "Hedge|Yew|$2.00;Pond|Iris|$3.00;Hedge|Box|$1.00")
                              .section("Totaled Cols", "Cost|"));
    SummaryPanel panel(program.app);
    const auto seen = [&] {
        const bool isStale = panel.follow();
        panel.recount();
        return std::string(isStale ? "" : "same ") + tellAll(panel.summary) + " | " + program.found();
    };
    EXPECT_EQ(seen(), "Hedge: 2 $3.00; Pond: 1 $3.00; all: 3 $6.00 | -");
    EXPECT_EQ(seen(), "same Hedge: 2 $3.00; Pond: 1 $3.00; all: 3 $6.00 | -");
    const auto bar = [&] {
        const search::FilterBarState& shown = search::filterBar(program.app);
        return shown.text + "/" + shown.words + (shown.isOpen ? "" : " closed");
    };
    panel.showGroup(0);
    EXPECT_EQ(seen() + bar(), "same Hedge: 2 $3.00; Pond: 1 $3.00; all: 3 $6.00 | i1 i3Bed=Hedge/");
    EXPECT_EQ(program.app.mainFrm.theListView, &program.app.document.searchLV);
    panel.showAll();
    EXPECT_FALSE(program.app.document.searchLV.Visible);
    EXPECT_EQ(bar(), "/");
    program.find("Cost >= 2");
    panel.onlyFound_Click(panel.follow());
    EXPECT_EQ(seen(), "Hedge: 1 $2.00; Pond: 1 $3.00; all: 2 $5.00 | i1 i2");
    panel.showGroup(1);
    EXPECT_EQ(seen() + bar(), "same Hedge: 1 $2.00; Pond: 1 $3.00; all: 2 $5.00 | i2Bed=Pond/");
    search::setFilter(program.app, "-ir");
    panel.onlyFound_Click(panel.follow());
    EXPECT_EQ(seen(), "Hedge: 2 $3.00; all: 2 $3.00 | i1 i3");
    panel.showGroup(0);
    EXPECT_EQ(seen() + bar(), "same Hedge: 2 $3.00; all: 2 $3.00 | i1 i3-ir Bed=Hedge/");
    program.find("Bed = pond");
    EXPECT_EQ(seen(), "Pond: 1 $3.00; all: 1 $3.00 | i2");
    panel.showAll();
    panel.column_Click(1, 2);
    panel.figure_Click(0, FigureKind::Sum, false);
    EXPECT_EQ(seen(), "Hedge, Box: 1; Hedge, Yew: 1; Pond, Iris: 1; all: 3 | i2");
    panel.column_Click(0, 2);
    panel.column_Click(1, 0);
    panel.step_Change(0, "-1");
    panel.follow();
    panel.recount();
    EXPECT_EQ(panel.note, "\"-1\" is no step: type a number above 0.");
    panel.step_Change(0, "2");
    EXPECT_EQ(seen(), "$.00 to below $2.00: 1; $2.00 to below $4.00: 2; all: 3 | i2");
    panel.copy();
    EXPECT_EQ(program.platform.onClipboard.text, "Cost (steps of 2)\tRecords\n$.00 to below $2.00\t1\n"
                                                 "$2.00 to below $4.00\t2\nTotal\t3\n");
    program.platform.files = {program.path("sums")};
    panel.exportTable();
    EXPECT_TRUE(readBytes(program.path("sums.xlsx")).starts_with("PK"));
}

// What the language of the filters cannot tell apart, or does not know, is said in words.
TEST(SummaryPanel, SaysWhyTheListIsShort) {
    SearchProgram program(DataFile("Bed Day:1 Cost:2",
                                   "North \"A\"|04/12/2015|$2.00;north \"a\"|05/01/2015|$3.00;|soon|-1;"
                                   "a:b|06/30/2015|$12.50;|07/01/2016|$.00;a:bc||$100"));
    for (const auto& each :
         table("0 - a:b -> Bed=\"a:b\"/; 0 - (empty) -> Bed=\"\"/; 0 - North \"A\" -> /Bed: North \"A\"; "
               "1 Year 2015 -> Day=2015/; 1 Quarter 2015-Q2 -> Day:2015-04..2015-06/; 1 Month 2015-06 -> "
               "Day=2015-06/; 1 Day 06/30/2015 -> Day=06/30/2015/; 1 Day soon -> Day:soon/; "
               "2 10 $10.00 to below $20.00 -> Cost>=10 Cost<20/; 2 10 -$10.00 to below $.00 -> Cost>=-10 "
               "Cost<0/; 2 - $12.50 -> Cost=12.5/; 2 - $.00 -> Cost=0/")) {
        SummaryPanel panel(program.app);
        panel.follow();
        panel.column_Click(0, each[0][0] - '0');
        const std::size_t blank = each[0].find(' ', 2);
        if (each[0][2] != '-') panel.step_Change(0, each[0].substr(2, blank - 2));
        panel.recount();
        const auto group = std::ranges::find(panel.summary.groups, each[0].substr(blank + 1),
                                             [](const Group& one) { return one.name(); });
        const std::size_t records = group == panel.summary.groups.end() ? 0 : group->records;
        panel.showGroup(static_cast<std::size_t>(group - panel.summary.groups.begin()));
        const search::FilterBarState& bar = search::filterBar(program.app);
        EXPECT_EQ(bar.text + "/" + bar.words, each[1]) << each[0];
        EXPECT_EQ(static_cast<std::size_t>(bar.found), records) << each[0];
    }
}

TEST(SummaryPanel, SortsByItsHeadings) {
    SearchProgram program(
        DataFile("Bed Day:1 Cost:2", "b|01/02/2016|$9;a|02/01/2015|$10;c||-2;b|03/01/2014|;d|x|$10")
            .section("Totaled Cols", "Cost|"));
    SummaryPanel panel(program.app);
    panel.follow();
    panel.figure_Click(0, FigureKind::Greatest, true);
    panel.recount();
    std::string seen;
    for (const std::size_t column : {0U, 1U, 1U, 3U, 3U, 2U, 2U, 0U, 9U}) {
        panel.heading_Click(column);
        for (std::size_t i = 0; i < panel.summary.groups.size(); ++i)
            for (const core::Item* record : panel.summary.membersOf(i)) seen += record->subItem(1).view();
        seen += ' ';
    }
    EXPECT_EQ(seen, "dcbba acdbb bbacd cbbad adbbc abbcd bbacd abbcd abbcd ");
    // What was chosen stays with its column, wherever that goes.
    panel.heading_Click(3);
    for (const int entry : {1, 3, -1}) panel.bars_Click(entry);
    core::ColumnHeaders& columns = program.app.document.LV.columns;
    columns.setPosition(columns["Cost"].Index, 2);
    app::setDocumentModified(program.app, true);
    panel.follow();
    panel.recount();
    EXPECT_EQ(panel.barNames.at(static_cast<std::size_t>(panel.bars)), "Greatest of Day");
    EXPECT_EQ(panel.summary.groups[0].name() + panel.summary.groups[1].name(), "cb");
}

// Each sheet has the headings, and a bar is as long as its group has records.
TEST(SummaryPanel, Prints) {
    PrintProgram program;
    program.openRecords(80);
    program.record({"r1"});
    const std::string longest(300'000, 'x'); // would take minutes, measured letter by letter
    program.record({longest.c_str()});
    SummaryPanel panel(program.app);
    panel.follow();
    panel.recount();
    panel.print();
    ASSERT_EQ(program.platform.printed.ends, "/|.");
    const auto words = [&](std::size_t sheet) { return wordsOf(program.sheet(sheet)); };
    EXPECT_TRUE(words(0).starts_with("test by Name Name Records Records r1 2 r10 1 r11 1 ")) << words(0);
    EXPECT_TRUE(words(1).starts_with("Name Records Records r") && words(1).ends_with("xxx... 1 Total 82"))
        << words(1);
    EXPECT_LT(words(1).size(), 600U);
    std::vector<float> bars;
    for (const drawing::Drawn& each : program.sheet(0))
        if (const auto* line = std::get_if<drawing::DrawnLine>(&each);
            line != nullptr && line->pen.DrawWidth > 1)
            bars.push_back(line->x2 - line->x1);
    ASSERT_GT(bars.size(), 40U);
    EXPECT_NEAR(bars[0], 2 * bars[1], 1);
}

// The form begins with the column that was looked at last, and with the records found.
TEST(StatisticsForm, TellsOfAllRecordsOrOfThoseFound) {
    SearchProgram program(DataFile("Name Qty:4", "b|3;\"a\tc|1;b|10"));
    const auto told = [&](std::initializer_list<int> columns, bool bFound) {
        statisticsFrm form(program.app);
        for (const int column : columns) form.columnCbo_Click(column);
        if (form.Check1 != bFound) form.Check1_Click(bFound);
        form.copyBtn_Click();
        return std::to_string(form.mostOfList2) + std::to_string(form.countings) +
               (form.Check1 ? "found " : " ") + program.platform.onClipboard.text;
    };
    EXPECT_EQ(told({-1, 2}, true), "22 Records\t3\nValues\t3\nEmpty\t0\nDifferent "
                                   "values\t2\nLeast\t\"\"\"a\tc\"\nGreatest\tb\nb\t2\n\"\"\"a\tc\"\t1\n");
    EXPECT_EQ(told({1}, false),
              "12 Records\t3\nValues\t3\nEmpty\t0\nDifferent "
              "values\t3\nLeast\t1\nGreatest\t10\nMean\t4.6667\nMedian\t3\nSum\t14\n1\t1\n3\t1\n10\t1\n");
    program.find("Qty >= 3");
    EXPECT_EQ(told({}, true).substr(0, 17), "11found Records\t2");
    showStatisticsOf(program.app, "Name");
    EXPECT_EQ(program.platform.forms.back() + told({}, false).substr(0, 12), "statisticsFrm22 Records\t3");
}

TEST(SummaryTable, ShowsValuesInTheFormOfTheCountry) {
    Program program(DataFile("Name Day:1 Cost:2", "1.50|04/12/2015|$1,234.50;1.50|soon|$.50"));
    const Request request{{{"Name", {}}, {"Day", {}}},
                          {{FigureKind::Sum, "Cost"}, {FigureKind::Greatest, "Day"}}};
    const Summary summary = summarise(program.app.document, request, today);
    app::appearance(program.app).localeForm = {
        core::LocaleForm::DateOrder::DayMonthYear, '.', ",", ".", "EUR", true, false};
    EXPECT_EQ(tellAll(shownSummary(program.app, summary)), tellAll(summary));
    app::appearance(program.app).bLocaleForm = true;
    EXPECT_EQ(
        tellAll(shownSummary(program.app, summary)),
        "1.50, 12.04.2015: 1 1.234,50EUR 12.04.2015; 1.50, soon: 1 0,50EUR -; all: 2 1.235,00EUR 12.04.2015");
}

// What stands behind each bar, and from where to where it goes.
TEST(SummaryTable, BarsShareTheirRoom) {
    for (const auto& each :
         table("a|-2;b|6;c|;b| -> -1 -> 1 0-0.5 2 0-1 1 0-0.5 0; a|-2;b|6;c| -> 0 -> -2 0-0.25 6 0.25-1 "
               " 0.25-0.25 0.25; a|1 -> 1 ->  0-0 0; a|-2;b|-8 -> 0 -> -2 0.75-1 -8 0-1 1; "
               "a|1e308;b|-1e308 -> 0 -> 1E+308 0-1 -1E+308 0-0 0")) {
        Program program(DataFile("Name Qty:4", each[0]));
        const Summary summary =
            summarise(program.app.document, {{{"Name", {}}}, {{FigureKind::Sum, "Qty"}}}, today);
        const int figure = std::stoi(each[1]);
        const BarScale scale(summary, figure);
        std::ostringstream all;
        for (const Group& group : summary.groups)
            all << barText(group, figure) << " " << scale.barOf(group).from << "-" << scale.barOf(group).to
                << " ";
        all << scale.zero();
        EXPECT_EQ(all.str(), each[2]) << each[0];
    }
}

// A calculation with a point is money, as in the list.
TEST(Summary, FiguresHaveATypeOfTheirOwn) {
    Program program(DataFile("Name Sum:5 Price:2 Day:1 No:5", "a|$5.00|1|05/01/2015|7"));
    std::vector<Figure> figures;
    for (const char* column : {"Sum", "Price", "No"}) figures.push_back({FigureKind::Sum, column});
    figures.push_back({FigureKind::Least, "Day"});
    EXPECT_EQ(summarise(program.app.document, {{{"Name", {}}}, figures}, today).figureTypes,
              (std::vector<core::ColumnType>{core::ColumnType::Currency, core::ColumnType::Currency,
                                             core::ColumnType::Number, core::ColumnType::Date}));
}

} // namespace
