#include "tables/pasteFrm.h"

#include "app/hourglass.h"
#include "app/windowState.h"
#include "core/runTimeError.h"
#include "core/translate.h"

#include <algorithm>

namespace tables {

namespace {

constexpr std::size_t shownRows = 10;
constexpr std::size_t shownRefusals = 1000;

exchange::TextRows clipboardRows(app::App& app) {
    const auto data = app.platform.clipboard();
    return exchange::readRowsOfEither(data.text, data.html);
}

// What is left out without having been chosen so.
std::string leftOut(const std::vector<NewRecords::Source>& sources) {
    constexpr std::size_t mostNamed = 5;
    std::size_t count = 0;
    std::string named;
    for (const NewRecords::Source& source : sources) {
        if (source.whyLeftOut.empty() || ++count > mostNamed) continue;
        named.append(count == 1 ? "" : ", ").append(source.whyLeftOut);
    }
    if (count == 0) return {};
    if (count <= mostNamed) return core::fill(core::tr("Left out: %1."), {named});
    const int more = static_cast<int>(count - mostNamed);
    return core::fill(core::tr("Left out: %1, and %n more.", "Left out: %1, and %n more.", more), {named});
}

} // namespace

void mnuPaste_Click(app::App& app) {
    const core::RecordsList& list = app::visibleList(app.document);
    if (app.document.LV.columns.count() < 2)
        app::inform(app, core::tr("Your database has no columns to paste into."));
    else if (&list == &app.document.searchLV)
        app::inform(app,
                    core::tr("Records cannot be pasted into search results. Please go back to all records."));
    else if (app.document.bInvoiceStyle && app.document.bInvoiceView)
        app::inform(
            app,
            core::tr(
                "Each row that is pasted becomes an invoice. Please show the invoices, not their items."));
    else
        app.platform.showForm("pasteFrm");
}

pasteFrm::pasteFrm(app::App& app) : app_(app) {
    const app::Hourglass hourglass(app);
    try {
        exchange::TextRows rows = clipboardRows(app);
        if (rows.empty())
            app::inform(app, core::tr("There is no text and no table on the clipboard."));
        else
            records_.emplace(app, std::move(rows), Headings::Guess);
    } catch (const exchange::TableError& error) {
        app::warn(app,
                  core::fill(core::tr("What is on the clipboard cannot be pasted: %1."), {error.what()}));
    }
    unloaded = !records_;
    if (unloaded) return;
    columnCbo.push_back(core::tr("(leave out)"));
    for (const core::Column* column : records_->targets()) columnCbo.push_back(column->Text);
    showAll();
}

void pasteFrm::showAll() {
    Check1 = records_->hasHeadings();
    const bool isInvoice = app_.document.bInvoiceStyle;
    const int count = static_cast<int>(records_->count());
    Label1 = isInvoice ? core::tr("%n new invoice", "%n new invoices", count)
                       : core::tr("%n new record", "%n new records", count);
    Label1 = records_->count() > shownRows
                 ? core::fill(core::tr("%1. The first %2 are shown."), {Label1, std::to_string(shownRows)})
                 : Label1 + ".";
    const auto& targets = records_->targets();
    Columns.clear();
    for (const NewRecords::Source& source : records_->sources()) {
        const auto place = std::ranges::find(targets, source.target);
        const bool isLeftOut = place == targets.end();
        Columns.push_back({source.name, isLeftOut ? 0 : static_cast<int>(place - targets.begin()) + 1});
    }
    Grid1.assign(std::min(shownRows, records_->count()), {});
    for (std::size_t row = 0; row < Grid1.size(); ++row) {
        Grid1[row].Number = records_->rowNumber(row);
        for (std::size_t column = 0; column < Columns.size(); ++column)
            Grid1[row].Cells.emplace_back(records_->cell(row, column));
    }
    showRefusals();
}

void pasteFrm::showRefusals() {
    List1 = toldCells(*records_, shownRefusals);
    Label2 = leftOut(records_->sources());
    const std::size_t refused = records_->refusedCount();
    const std::size_t room = records_->room();
    const auto add = [&](const std::string& sentence) {
        Label2.append(Label2.empty() ? "" : "\n") += sentence;
    };
    if (refused > List1.size())
        add(core::tr("%n cells are refused, these among them.", "%n cells are refused, these among them.",
                     static_cast<int>(refused)));
    else if (refused > 0)
        add(core::tr("%n cell is refused.", "%n cells are refused.", static_cast<int>(refused)));
    if (records_->count() > room)
        add(core::tr("The database has room for %n more record.",
                     "The database has room for %n more records.", static_cast<int>(room)));
    const bool isAny =
        std::ranges::any_of(Columns, [](const Column& column) { return column.ListIndex > 0; });
    if (!isAny) add(core::tr("No column is chosen."));
    Check2Visible = refused > 0;
    okEnabled = isAny && records_->count() > 0 && records_->count() <= room && (refused == 0 || Check2);
}

void pasteFrm::Check1_Click(bool checked) {
    const app::Hourglass hourglass(app_);
    records_->setHeadings(checked);
    showAll();
}

void pasteFrm::columnCbo_Click(std::size_t column, int entry) {
    const app::Hourglass hourglass(app_);
    const auto& targets = records_->targets();
    records_->setTarget(column, entry < 1 ? nullptr : targets.at(static_cast<std::size_t>(entry) - 1));
    showAll();
}

void pasteFrm::Check2_Click(bool checked) {
    Check2 = checked;
    showRefusals();
}

void pasteFrm::OKButton_Click() {
    if (!okEnabled) return;
    try {
        store();
        unloaded = true;
    } catch (const core::RunTimeError& error) {
        if (error.number != core::errors::cancelled) throw; // given up: the form stays as it is
    }
}

void pasteFrm::store() {
    const app::Hourglass hourglass(app_);
    const std::vector<calc::Uncalculated> failed = records_->store();
    if (failed.empty()) return;
    const std::string text = core::tr("%n of the records cannot be calculated: %1",
                                      "%n of the records cannot be calculated. The first one: %1",
                                      static_cast<int>(failed.size()));
    app::warn(app_, core::fill(text, {failed.front().reason}));
}

} // namespace tables
