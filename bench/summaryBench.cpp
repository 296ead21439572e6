#include "databases.h"
#include "summary/statistics.h"

#include <benchmark/benchmark.h>

namespace {

constexpr std::chrono::year_month_day today{std::chrono::year(2026) / 3 / 14};

// bench/summary.sh has sqlite3 count the same. By two columns, with figures of two others.
void summarise(benchmark::State& state, const summary::Step& step) {
    using summary::FigureKind;
    const bench::OpenDatabase open(bench::packages);
    const summary::Request request{{{"Section", {}}, {"Since", step}},
                                   {{FigureKind::Sum, "Bytes"},
                                    {FigureKind::Mean, "Fee"},
                                    {FigureKind::Least, "Fee"},
                                    {FigureKind::Greatest, "Fee"}}};
    for (auto _ : state) {
        const summary::Summary found = summary::summarise(open.app.document, request, today);
        benchmark::DoNotOptimize(found.groups.data());
    }
}
BENCHMARK_CAPTURE(summarise, byYear, summary::Step{summary::Step::Kind::Year, {}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(summarise, byDay, summary::Step{})->Unit(benchmark::kMillisecond);

void statistics(benchmark::State& state) {
    const bench::OpenDatabase open(bench::packages);
    for (auto _ : state) {
        const summary::Statistics found = summary::statisticsOf(open.app.document, "Fee", today);
        benchmark::DoNotOptimize(found.different);
    }
}
BENCHMARK(statistics)->Unit(benchmark::kMillisecond);

} // namespace
