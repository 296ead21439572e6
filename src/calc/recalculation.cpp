#include "calc/recalculation.h"

#include "app/hourglass.h"
#include "calc/invoiceCalculation.h"
#include "core/number.h"
#include "core/totalsRow.h"
#include "core/translate.h"

namespace calc {

namespace {

using app::App;
using core::Item;
using core::RecordsList;

// Shows the percentage, and paints it when it has gone up by enough to be seen: painting each of
// thousands of rows would take longer than the calculation.
class Progress {
public:
    Progress(App& app, int count) : app_(app), count_(count) {}

    void show(int index) {
        const int percent = static_cast<int>(core::roundHalfEven(100.0 * index / count_));
        if (percent == shown_) return;
        shown_ = percent;
        app_.mainFrm.panels[app::calculationPanel] =
            core::fill(core::tr("Recalculating... %1 percent."), {std::to_string(percent)});
        if (percent < painted_ + paintStep) return;
        painted_ = percent;
        app_.platform.paintStatus();
    }

private:
    static constexpr int paintStep = 4; // percent

    App& app_;
    int count_;
    int shown_ = -1;
    int painted_ = -paintStep;
};

} // namespace

void RecalculateAll(App& app, RecordsList& list) {
    core::resetTotalsRow(list);
    Progress progress(app, list.count());
    RowCalculator calculator(app, list);
    const core::TotalsRowUpdater totals(app.document, list);
    for (int index = 1; index <= list.count(); ++index) {
        Item& row = list.at(index);
        if (row.isTotals()) continue;
        progress.show(index);
        if (app.document.bInvoiceStyle)
            calculateInvoice(app, list, index);
        else
            calculator.calculate(row);
        if (app.mainFrm.bCalcError) {
            app.mainFrm.bCalcError = false;
            app::warn(
                app,
                core::tr(
                    "During a recalculate all rows event your columns were not able to be recalculated due "
                    "to a syntax error with one of your defined expressions."));
            return;
        }
        totals.update(core::TotalsMode::Add, row);
    }
    app.mainFrm.panels[app::calculationPanel] = core::tr("Done.");
}

std::vector<Uncalculated> recalculateEveryRow(App& app) {
    RecordsList& records = app.document.LV;
    core::resetTotalsRow(records);
    RowCalculator calculator(app, records);
    const core::TotalsRowUpdater totals(app.document, records);
    std::vector<Uncalculated> failed;
    for (int index = 1; index <= records.count(); ++index) {
        Item& row = records.at(index);
        if (row.isTotals()) continue;
        const auto reason = app.document.bInvoiceStyle ? tryCalculateInvoice(app.document, records, index)
                                                       : calculator.tryCalculate(row);
        if (reason) failed.push_back({row.Key.str(), *reason});
        totals.update(core::TotalsMode::Add, row);
    }
    app.changes.announce(app, app::Change::Values);
    return failed;
}

void recalculateAfterDialog(App& app) {
    const app::Hourglass hourglass(app);
    RecalculateAll(app, app.document.LV);
    app.changes.announce(app, app::Change::Values);
}

} // namespace calc
