#include "databases.h"

#include "file/dataReader.h"
#include "file/dataWriter.h"
#include "shell/program.h"
#include "storage/openFile.h"
#include "storage/saveFile.h"

#include <benchmark/benchmark.h>

namespace {

void bothDatabases(benchmark::internal::Benchmark* benchmark) {
    benchmark->Unit(benchmark::kMillisecond)->ArgName("database");
    for (const int database : {bench::packages, bench::largest}) benchmark->Arg(database);
}

int databaseOf(benchmark::State& state) {
    const auto database = static_cast<int>(state.range(0));
    state.SetLabel(bench::databaseName(database));
    return database;
}

void countBytes(benchmark::State& state, int database) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(bench::dataFileOf(database).size()));
}

void readText(benchmark::State& state) {
    const int database = databaseOf(state);
    const std::string& text = bench::dataFileOf(database);
    for (auto _ : state) {
        core::Document document;
        file::readDataFile(text, document);
        benchmark::DoNotOptimize(document.LV.count());
    }
    countBytes(state, database);
}
BENCHMARK(readText)->Apply(bothDatabases);

void writeText(benchmark::State& state) {
    const int database = databaseOf(state);
    bench::OpenDatabase open(database);
    for (auto _ : state)
        benchmark::DoNotOptimize(file::encodeDataFile(file::writeDataFile(open.app.document, false)));
    countBytes(state, database);
}
BENCHMARK(writeText)->Apply(bothDatabases);

void openArchive(benchmark::State& state) {
    const int database = databaseOf(state);
    const std::string& path = bench::databasePath(database);
    platform::HeadlessPlatform machine(std::cerr);
    shell::Program app(machine);
    for (auto _ : state) storage::readArchive(app, path);
    countBytes(state, database);
}
BENCHMARK(openArchive)->Apply(bothDatabases);

void saveArchive(benchmark::State& state) {
    const int database = databaseOf(state);
    bench::OpenDatabase open(database);
    core::RecordsList& records = open.app.document.LV;
    int count = 0;
    for (auto _ : state) {
        records.at(1).subItem(1) = std::to_string(++count); // or there would be nothing to write
        storage::SaveFile(open.app, false, false);
    }
    if (open.machine.exclamations() > 0) state.SkipWithError("the save has failed");
    countBytes(state, database);
}
BENCHMARK(saveArchive)->Apply(bothDatabases);

} // namespace
