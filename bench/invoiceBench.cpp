#include "calc/recalculation.h"
#include "entry/invoiceRecords.h"
#include "invoice/repeatFrm.h"
#include "invoice/views.h"
#include "platform/headlessPlatform.h"
#include "shell/listEvents.h"
#include "shell/program.h"

#include <benchmark/benchmark.h>

#include <iostream>
#include <string>

namespace {

constexpr int invoiceCount = 5'000;
constexpr int rowCount = 20;

// Ten columns, as a small trader has them: a line for each item, a sum, its tax and the total.
struct Invoices {
    explicit Invoices(bool items) {
        core::Document& document = app.document;
        document.bInvoiceStyle = true;
        document.bInvoiceView = items;
        const std::pair<const char*, const char*> columns[] = {
            {"No", "4"},    {"Date", "1"}, {"Customer", "3"}, {"Item", "3"}, {"Qty", "4"},
            {"Price", "2"}, {"Line", "5"}, {"Subtotal", "5"}, {"Tax", "5"},  {"Total", "5"}};
        for (const auto& [name, type] : columns) document.LV.columns.add(name, name).setTypeFromFile(type);
        for (const char* name : {"No", "Date", "Customer", "Subtotal", "Tax", "Total"})
            invoice::repeatItemRows(app, 1, {name});
        invoice::repeatItemRows(app, rowCount, {"Item", "Qty", "Price", "Line"});
        for (const char* formula :
             {"Line,Qty * Price", "Subtotal,Line", "Tax,Subtotal * 0.08", "Total,Subtotal + Tax"})
            document.formulas.add(formula);
        for (const char* column : {"Qty", "Line", "Subtotal", "Total"})
            document.totaledCols.add(column, column);
        for (int i = 0; i < invoiceCount; ++i) addInvoice(i);
        addTotalsRow(document.LV);
        calc::RecalculateAll(app, document.LV);
        invoice::rebuildView(app.document);
    }

    void addInvoice(int number) {
        core::Document& document = app.document;
        std::string item, qty, price;
        for (int row = 0; row < rowCount; ++row) {
            const int n = number * rowCount + row;
            item += "Article " + std::to_string(n % 977) + "@";
            qty += std::to_string(n % 9 + 1) + "@";
            price += "$" + std::to_string(n % 89) + "." + std::to_string(n % 90 + 10) + "@";
        }
        core::Item& record = document.LV.add(document.nextKey());
        const std::string cells[] = {std::to_string(number + 1),
                                     "03/14/2026",
                                     "Customer " + std::to_string(number % 311),
                                     item,
                                     qty,
                                     price};
        for (std::size_t i = 0; i < std::size(cells); ++i) record.cells[i] = cells[i];
    }

    platform::HeadlessPlatform machine{std::cerr};
    shell::Program app{machine};
};

void label(benchmark::State& state, const Invoices& invoices) {
    state.SetLabel(std::to_string(invoices.app.document.iLV.count() - 1) + " rows");
}

void buildInvoiceView(benchmark::State& state, bool items) {
    Invoices invoices(items);
    while (state.KeepRunning()) invoice::rebuildView(invoices.app.document);
    label(state, invoices);
}
BENCHMARK_CAPTURE(buildInvoiceView, items, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(buildInvoiceView, invoices, false)->Unit(benchmark::kMillisecond);

void recalculateInvoices(benchmark::State& state) {
    Invoices invoices(true);
    app::App& app = invoices.app;
    while (state.KeepRunning()) calc::RecalculateAll(app, app.document.LV);
    if (app.mainFrm.panels[app::calculationPanel] != "Done.") state.SkipWithError("a formula failed");
    label(state, invoices);
}
BENCHMARK(recalculateInvoices)->Unit(benchmark::kMillisecond);

// What each arrival in a single field costs while an invoice is typed.
void storeInvoice(benchmark::State& state, bool items) {
    Invoices invoices(items);
    app::App& app = invoices.app;
    app.document.LV.setSelectedItem(&app.document.LV.at(invoiceCount / 2));
    int typed = 0;
    while (state.KeepRunning()) {
        app.document.layout.layoutField.forEach([&](core::LayoutField& field) {
            if (field.Tag == "Qty") field.Text = std::to_string(++typed % 10);
            if (field.Tag == "Price") field.Text = "2.50";
            if (field.Tag == "Item") field.Text = "Article";
        });
        entry::editInvoiceRecord(app, true);
    }
    label(state, invoices);
}
BENCHMARK_CAPTURE(storeInvoice, items, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(storeInvoice, invoices, false)->Unit(benchmark::kMillisecond);

void sortItems(benchmark::State& state) {
    Invoices invoices(true);
    core::RecordsList& view = invoices.app.document.iLV;
    const int column = view.columns["Item"].Index;
    while (state.KeepRunning()) shell::list_ColumnClick(invoices.app, view, column);
    label(state, invoices);
}
BENCHMARK(sortItems)->Unit(benchmark::kMillisecond);

} // namespace
