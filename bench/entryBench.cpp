#include "databases.h"

#include "core/number.h"
#include "core/totalsRow.h"
#include "entry/editRecord.h"
#include "entry/entryFrm.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>

namespace {

using core::RecordsList;

constexpr const char* totaled[] = {"Fee", "Installed_KB", "Megabytes"};

// What a number is worth in ten-thousandths, so that sums are exact.
std::int64_t exact(std::string_view cell) {
    return std::llround(core::toDouble(cell).value_or(0) * 10000);
}

// 32,000 records with three totals: an amount, a number and a calculation.
struct Packages : bench::OpenDatabase {
    RecordsList& LV = app.document.LV;

    explicit Packages(int records = 32000) : OpenDatabase(bench::packages) {
        core::Document& document = app.document;
        app.mainFrm.bConfirmDelete = false;
        LV.removeIf([&](const core::Item& item) { return !item.isTotals() && LV.indexOf(item) > records; });
        document.iLastKey = static_cast<std::int16_t>(records);
        document.totaledCols.clear();
        for (const char* column : totaled) document.totaledCols.add(column);
        core::resetTotalsRow(LV);
        const core::TotalsRowUpdater totals(document, LV);
        LV.forEach([&](const core::Item& item) {
            if (!item.isTotals()) totals.update(core::TotalsMode::Add, item);
        });
        LV.setSelectedItem(&LV.at(1));
    }

    bool totalsAreRight() const {
        for (const char* name : totaled) {
            const core::Column& column = LV.columns[name];
            std::int64_t sum = 0;
            LV.forEach([&](const core::Item& item) {
                if (!item.isTotals()) sum += exact(RecordsList::cell(item, column));
            });
            if (exact(RecordsList::cell(*LV.totals(), column)) != sum) return false;
        }
        return true;
    }
};

void deleteSelected(benchmark::State& state) {
    while (state.KeepRunning()) {
        state.PauseTiming();
        {
            Packages packages;
            RecordsList& LV = packages.LV;
            LV.clearSelection();
            for (int i = 0; i < 10000; ++i) LV.at(1 + i * 16 / 5).Selected = true;
            LV.MultiSelect = true;
            LV.setSelectedItem(&LV.at(1));
            state.ResumeTiming();
            entry::deleteRecords(packages.app);
            state.PauseTiming();
            if (LV.count() != 22001 || !packages.totalsAreRight()) state.SkipWithError("wrong totals");
        }
        state.ResumeTiming();
    }
    state.SetLabel("10000 of 32000");
}

void duplicate(benchmark::State& state) {
    while (state.KeepRunning()) {
        state.PauseTiming();
        {
            Packages packages(20000);
            state.ResumeTiming();
            entry::duplicateRecord(packages.app, packages.LV.at(2), 10000);
            state.PauseTiming();
            if (packages.LV.count() != 30001 || !packages.totalsAreRight())
                state.SkipWithError("wrong totals");
        }
        state.ResumeTiming();
    }
    state.SetLabel("10000 copies");
}

std::vector<entry::BoxText> boxesOf(const Packages& packages) {
    std::vector<entry::BoxText> boxes;
    for (const core::Column& column : packages.LV.columns)
        if (column.Index != 1 && !column.isType(core::ColumnType::Calculation))
            boxes.push_back({column.Text, RecordsList::cell(packages.LV.at(2), column).str()});
    return boxes;
}

void addRecord(benchmark::State& state) {
    Packages packages;
    const auto boxes = boxesOf(packages);
    while (state.KeepRunning()) {
        core::Item* record = entry::EditRecord(packages.app, false, boxes);
        state.PauseTiming();
        core::UpdateTotalsRow(packages.app.document, core::TotalsMode::Subtract, packages.LV,
                              packages.LV.indexOf(*record));
        packages.LV.remove(*record);
        --packages.app.document.iLastKey;
        state.ResumeTiming();
    }
    if (!packages.totalsAreRight()) state.SkipWithError("wrong totals");
}

void updateRecord(benchmark::State& state) {
    Packages packages;
    const auto boxes = boxesOf(packages);
    int row = 0;
    while (state.KeepRunning()) {
        state.PauseTiming();
        row = row % 32000 + 1;
        packages.LV.setSelectedItem(&packages.LV.at(row));
        state.ResumeTiming();
        entry::EditRecord(packages.app, true, boxes);
    }
    if (!packages.totalsAreRight()) state.SkipWithError("wrong totals");
}

// A key in a box that is checked against all cells, and a find that comes to nothing.
void previousEntry(benchmark::State& state) {
    Packages packages;
    const entry::entryFrm form(packages.app);
    while (state.KeepRunning()) benchmark::DoNotOptimize(form.isPreviousEntry("no such entry"));
}

void findNothing(benchmark::State& state) {
    Packages packages;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(entry::findItemContaining(packages.app, "no such entry", 1));
}

BENCHMARK(deleteSelected)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(duplicate)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(addRecord)->Unit(benchmark::kMicrosecond);
BENCHMARK(updateRecord)->Unit(benchmark::kMicrosecond);
BENCHMARK(previousEntry)->Unit(benchmark::kMillisecond);
BENCHMARK(findNothing)->Unit(benchmark::kMillisecond);

} // namespace
