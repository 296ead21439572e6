#include "entry/editRecord.h"
#include "platform/headlessPlatform.h"
#include "shell/program.h"
#include "tables/pasteFrm.h"

#include "calc/columns.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <iostream>

namespace {

constexpr int rows = 5000;
constexpr std::array<const char*, 10> types = {"3", "3", "4", "4", "2", "2", "1", "1", "3", "3"};

class ClipboardPlatform : public platform::HeadlessPlatform {
public:
    ClipboardPlatform() : HeadlessPlatform(std::cerr) {}
    void setClipboard(const platform::ClipboardData& data) override { data_ = data; }
    platform::ClipboardData clipboard() override { return data_; }

private:
    platform::ClipboardData data_;
};

// An empty database of ten columns, as a spreadsheet's rows go into.
struct Receiver {
    ClipboardPlatform machine;
    shell::Program app{machine};

    Receiver() {
        core::Document& document = app.document;
        for (std::size_t i = 0; i < types.size(); ++i)
            calc::addColumn(document, "Column" + std::to_string(i), types[i]);
        core::addTotalsRow(document.LV);
        document.totaledCols.add("Column4", "Column4");
    }
};

std::string cellOf(int row, std::size_t column) {
    const std::string number = std::to_string(row % 1000);
    switch (types.at(column)[0]) {
    case '1':
        return "0" + std::to_string(row % 9 + 1) + "/1" + std::to_string(row % 9) + "/2024";
    case '2':
        return "$" + number + ".25";
    case '4':
        return number;
    default:
        return "text number " + number;
    }
}

std::string table() {
    std::string text;
    for (int row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < types.size(); ++column)
            text.append(column == 0 ? "" : "\t").append(cellOf(row, column));
        text.push_back('\n');
    }
    return text;
}

double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double addingTakes() {
    Receiver receiver;
    return seconds([&] {
        entry::addRecords(receiver.app, rows, [](int row, std::vector<entry::BoxText>& boxes) {
            boxes.resize(types.size());
            for (std::size_t i = 0; i < types.size(); ++i)
                boxes[i] = {"Column" + std::to_string(i), cellOf(row, i)};
        });
    });
}

// All that the window does from the key to the records but what it paints; beside the time that the records
// take by themselves.
void paste(benchmark::State& state) {
    constexpr double mostTimes = 8, mostSeconds = 0.5;
    const std::string text = table();
    double pasting = 1e9, adding = 1e9;
    while (state.KeepRunning()) {
        Receiver receiver;
        receiver.machine.setClipboard({text, {}, {}});
        const double time = seconds([&] {
            tables::pasteFrm form(receiver.app);
            form.OKButton_Click();
        });
        state.SetIterationTime(time);
        pasting = std::min(pasting, time);
        adding = std::min(adding, addingTakes());
        if (receiver.app.document.LV.count() != rows + 1) state.SkipWithError("not all rows are there");
    }
    state.counters["timesAdding"] = pasting / adding;
    if (pasting > adding * mostTimes || pasting > mostSeconds) state.SkipWithError("a paste takes too long");
    state.SetLabel("5000x10");
}

BENCHMARK(paste)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace
