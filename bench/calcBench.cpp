#include "databases.h"

#include "calc/columns.h"
#include "calc/recalculation.h"
#include "entry/editRecord.h"
#include "shell/program.h"
#include "storage/openFile.h"

#include <benchmark/benchmark.h>

namespace {

class CountingPlatform : public platform::HeadlessPlatform {
public:
    CountingPlatform() : HeadlessPlatform(std::cerr) {}
    void paintStatus() override { ++paints; }

    int paints = 0;
};

struct Calculated {
    Calculated() {
        app.document.currentFile = bench::databasePath(bench::packages);
        storage::readArchive(app, app.document.currentFile);
        // Beside Megabytes, which the database has: a formula over amounts, and one over other formulas.
        define("Cost", "( Fee + Bytes / 1000 ) * 1.19");
        define("Rest", "Cost - Megabytes * 2 + Installed_KB");
        for (const char* column : {"Fee", "Cost"}) app.document.totaledCols.add(column, column);
    }
    void define(const std::string& name, const std::string& expression) {
        calc::addColumn(app.document, name, "5");
        app.document.formulas.add(name + "," + expression, name);
    }

    CountingPlatform machine;
    shell::Program app{machine};
};

void recalculateAll(benchmark::State& state) {
    Calculated calculated;
    app::App& app = calculated.app;
    while (state.KeepRunning()) {
        calculated.machine.paints = 0;
        calc::RecalculateAll(app, app.document.LV);
    }
    if (app.mainFrm.panels[app::calculationPanel] != "Done.") state.SkipWithError("a formula failed");
    state.counters["paints"] = calculated.machine.paints;
    state.SetLabel(std::to_string(app.document.LV.count() - 1) + " records, 3 formulas, 3 totals");
}
BENCHMARK(recalculateAll)->Unit(benchmark::kMillisecond);

void addColumn(benchmark::State& state, int database) {
    bench::OpenDatabase open(database);
    core::Document& document = open.app.document;
    while (state.KeepRunning()) {
        calc::addColumn(document, "Added", "4");
        state.PauseTiming();
        // Cells without room to spare, as a database has them that has just been opened.
        calc::removeColumn(document, "Added");
        document.LV.forEach([](core::Item& item) { item.cells.shrink_to_fit(); });
        state.ResumeTiming();
    }
    state.SetLabel(bench::databaseName(database));
}
BENCHMARK_CAPTURE(addColumn, packages, bench::packages)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(addColumn, largest, bench::largest)->Unit(benchmark::kMillisecond);

// A record stored again, with its formulas and totals.
void updateRecord(benchmark::State& state) {
    Calculated calculated;
    core::RecordsList& LV = calculated.app.document.LV;
    LV.setSelectedItem(&LV.at(LV.count() / 2));
    int size = 0;
    while (state.KeepRunning())
        entry::EditRecord(calculated.app, true, {{"Installed_KB", std::to_string(++size)}});
}
BENCHMARK(updateRecord)->Unit(benchmark::kMicrosecond);

} // namespace
