#include "databases.h"

#include "search/replaceFrm.h"
#include "search/searchFrm.h"
#include "search/searchMode.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <vector>

namespace {

using search::Group;

// A press of the search button, results and their Totals row included.
void find(benchmark::State& state, const std::vector<Group>& groups) {
    bench::OpenDatabase open(bench::packages);
    search::mnuSearch_Click(open.app);
    search::searchFrm form(open.app);
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const int number = static_cast<int>(i);
        const auto& titles = form.list(number).items;
        form.List_Click(number,
                        static_cast<int>(std::ranges::find(titles, groups[i].column) - titles.begin()));
        form.Opt_Click(number, groups[i].comparison);
        form.SearchText.at(2 * i).Text = groups[i].value;
        form.SearchText.at(2 * i + 1).Text = groups[i].to;
    }
    for (auto _ : state) form.searchBtn_Click();
    state.SetLabel(std::to_string(open.app.document.searchLV.count() - 1) + " found");
}

const Group inDescription{"Description", search::within, "library", ""};

// bench/search.sh has sqlite3 look for the same.
BENCHMARK_CAPTURE(find, within, {inDescription})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(find, nearlyAll, {{"Description", search::within, "e", ""}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(find, threeGroups,
                  {inDescription,
                   {"Installed_KB", search::greaterOrEqual, "100", ""},
                   {"Since", search::range, "01/01/1995", "12/31/2010"}})
    ->Unit(benchmark::kMillisecond);

// There and back again, so that each time has as much to replace.
void replaceInAllColumns(benchmark::State& state) {
    bench::OpenDatabase open(bench::packages);
    search::replaceFrm form(open.app);
    form.Text1 = "library";
    form.Text2 = "collection";
    int changed = 0;
    for (auto _ : state) {
        changed = form.Command1_Click();
        std::swap(form.Text1, form.Text2);
    }
    state.SetLabel(std::to_string(changed) + " cells changed");
}
BENCHMARK(replaceInAllColumns)->Unit(benchmark::kMillisecond);

} // namespace
