#include "cli/printing/reportOptions.h"

#include "cli/output.h"
#include "print/reportFigures.h"
#include "print/reportFit.h"
#include "print/reportPrinting.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace cli {

namespace {

// A column whose name ends like a step is taken for itself.
void chooseGroups(Session& session, const std::string& argument, print::ReportChoices& choices) {
    if (argument.empty()) return;
    app::App& app = session.app;
    const core::ColumnHeaders& shown = print::reportList(app).columns;
    const std::size_t colon = argument.rfind(':');
    const bool hasStep = colon != std::string::npos && app.document.LV.columns.find(argument) == nullptr;
    const core::Column& column = session.column(hasStep ? argument.substr(0, colon) : argument);
    std::string reason;
    if (shown.find(column.Text) == nullptr) {
        reason.append("the report does not show the column \"").append(column.Text).append("\"");
        throw Failure(session.file, reason);
    }
    choices.groupColumn = column.Text;
    if (!hasStep) return;
    choices.groupStep = argument.substr(colon + 1);
    if (print::reportFigures(app).isStep(choices.groupStep, column.type())) return;
    reason.append("\"").append(choices.groupStep).append("\" is no step of the column \"");
    reason.append(column.Text).append("\"");
    if (column.isType(core::ColumnType::Date)) reason.append(": year, quarter, month or day");
    if (column.isNumeric()) reason.append(": a number above 0");
    throw Failure(session.file, reason);
}

} // namespace

void addReportOptions(CLI::App& command, ReportOptions& options) {
    print::ReportChoices& choices = options.choices;
    command.add_flag("--heads", choices.heads, "Title and column headings on each sheet");
    command.add_flag("--page-numbers", choices.pageNumbers, "Page numbers on each sheet, as \"3 of 8\"");
    command.add_flag("--date", choices.date, "The date of the print on each sheet");
    command.add_flag("--sheet-totals", choices.sheetTotals,
                     "The totals so far carried forward from sheet to sheet");
    command
        .add_option(
            "--group-by", options.groupBy,
            "In groups with subtotals; dates by COLUMN:year, quarter, month or day, numbers by steps, "
            "as COLUMN:100")
        ->type_name("COLUMN");
    command.add_flag("--widen", options.widen, "Makes columns that are too narrow wider for this print");
}

void applyReportOptions(Session& session, const ReportOptions& options) {
    print::ReportChoices choices = options.choices;
    chooseGroups(session, options.groupBy, choices);
    print::setReportChoices(session.app, choices);
    core::RecordsList& list = print::reportList(session.app);
    print::ReportFit fit = print::fitOf(session.app, list);
    if (options.widen && fit.canWiden()) {
        print::widenColumns(session.app, list, fit);
        fit = print::fitOf(session.app, list);
    }
    std::string told = fit.text();
    if (told.empty()) return;
    if (fit.canWiden()) told.append(" Use --widen to print them whole.");
    std::cerr << "fwk: " << printable(session.file) << ": " << printable(told) << '\n';
}

} // namespace cli
