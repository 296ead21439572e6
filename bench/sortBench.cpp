#include "databases.h"

#include "shell/listEvents.h"

#include <benchmark/benchmark.h>

namespace {

// A click on a column's header, from an order that has nothing to do with that column: a list that is
// sorted already would be sorted in no time.
void clickHeader(benchmark::State& state, int database, const char* column, const char* other) {
    bench::OpenDatabase open(database);
    core::RecordsList& LV = open.app.document.LV;
    const int index = LV.columns[column].Index;
    const int otherIndex = LV.columns[other].Index;
    while (state.KeepRunning()) {
        state.PauseTiming();
        shell::list_ColumnClick(open.app, LV, otherIndex);
        state.ResumeTiming();
        shell::list_ColumnClick(open.app, LV, index);
    }
    state.SetLabel(std::string(bench::databaseName(database)) + " by " + column);
}

BENCHMARK_CAPTURE(clickHeader, number, bench::packages, "Installed_KB", "Since")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(clickHeader, text, bench::packages, "Description", "Since")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(clickHeader, date, bench::packages, "Since", "Package")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(clickHeader, number50, bench::largest, "Col1", "Col2")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(clickHeader, text50, bench::largest, "Col2", "Col1")->Unit(benchmark::kMillisecond);

} // namespace
