#include "calc/formulateFrm.h"
#include "calc/recalculation.h"
#include "calc/serialCheck.h"
#include "calc/serialFrm.h"
#include "calc/totalsFrm.h"
#include "cli/command.h"
#include "cli/output.h"
#include "cli/session.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <optional>

namespace cli {

namespace {

struct CalculationOptions {
    std::string file, column, value;
    std::optional<std::string> expression;
    std::vector<std::string> columns;
    bool check = false;
    double wait = usualWait;
};

int rowOf(Session& session, const calc::formulateFrm& form, const std::string& column) {
    const std::string& name = session.column(column).Text;
    const auto row = std::ranges::find(form.colList, name, &calc::formulateFrm::Row::Name);
    if (row == form.colList.end())
        throw Failure(session.file, "the column \"" + name + "\" is no calculation column");
    return static_cast<int>(row - form.colList.begin());
}

int printExpression(const CalculationOptions& options) {
    Session session(options.file);
    session.open();
    const calc::formulateFrm form(session.app);
    const int row = rowOf(session, form, options.column);
    writeOut(form.colList[static_cast<std::size_t>(row)].Formula + "\n");
    return done;
}

// A number that one record lacks is that record's matter, an expression that no record could be calculated
// with is a slip.
void requireExpression(Session& session, const std::string& column) {
    const core::RecordsList& records = session.app.document.LV;
    const auto* formula = session.app.document.formulas.find(session.column(column).Text);
    if (records.count() > 1 && formula != nullptr &&
        !calc::isExpression(records, calc::Formula(formula->item)))
        throw Failure(session.file, "the calculation failed, so that nothing is saved");
}

// The buttons of the window can build anything that they have; what is wrong with an expression shows
// when it is worked out.
int setExpression(const CalculationOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    if (options.column.find(',') != std::string::npos)
        throw Failure(session.file, "the column \"" + options.column +
                                        "\" can have no expression: a comma divides names from expressions");
    session.changeAndCalculate([&] {
        calc::formulateFrm form(session.app);
        form.colList_Click(rowOf(session, form, options.column));
        form.expTxt = session.typedInList(*options.expression);
        form.addCalcBtn_Click();
        form.donebtn_Click();
    });
    requireExpression(session, options.column);
    session.save();
    return done;
}

int chooseTotals(const CalculationOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    session.changeAndCalculate([&] {
        calc::TotalsFrm form(session.app);
        for (calc::TotalsFrm::Row& row : form.LV) row.Checked = false;
        for (const std::string& column : options.columns) {
            const std::string& name = session.column(column).Text;
            const auto row = std::ranges::find(form.LV, name, &calc::TotalsFrm::Row::Text);
            if (row == form.LV.end())
                throw Failure(session.file, "the column \"" + name + "\" cannot be totalled");
            row->Checked = true;
        }
        form.OKButton_Click();
    });
    session.save();
    return done;
}

int recalculate(const CalculationOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    session.changeAndCalculate([&] { calc::recalculateAfterDialog(session.app); });
    session.save();
    return done;
}

int setSerial(const CalculationOptions& options) {
    Session session(options.file, options.wait);
    session.openToWrite();
    const std::string name = session.column(options.column).Text;
    session.change([&] {
        calc::serialFrm form(session.app);
        const auto entry = std::ranges::find(form.List1, name);
        if (entry == form.List1.end())
            throw Failure(session.file, "the column \"" + name + "\" has no serial numbers");
        form.List1_Click(static_cast<int>(entry - form.List1.begin()));
        form.Text1 = session.typed(options.value);
        form.setBtn_Click();
        // The box keeps the focus for the next value once this one is stored.
        if (!form.text1HasFocus)
            throw Failure(session.file, "the serial number of \"" + name + "\" is not set");
    });
    session.save();
    return done;
}

std::string keysOf(const std::vector<const core::Item*>& records) {
    std::string keys;
    for (const core::Item* record : records) keys.append(" ").append(record->Key.view());
    return keys;
}

int checkSerial(const CalculationOptions& options) {
    Session session(options.file);
    session.open();
    const core::Column& column = session.column(options.column);
    const std::vector<std::string> names = calc::serialColumns(session.app.document);
    if (std::ranges::find(names, column.Text) == names.end())
        throw Failure(session.file, "the column \"" + column.Text + "\" has no serial numbers");
    const calc::SerialFindings findings = calc::checkSerials(session.app.document, column);
    std::string out;
    for (const auto& repeat : findings.repeats)
        out.append(calc::repeatText(repeat)).append(":").append(keysOf(repeat.records)).push_back('\n');
    for (const auto& gap : findings.gaps) out.append(calc::gapText(gap)).push_back('\n');
    if (!findings.unnumbered.empty())
        out.append("no whole number:").append(keysOf(findings.unnumbered)).push_back('\n');
    writeOut(out);
    return done;
}

void addColumnArgument(CLI::App& command, CalculationOptions& options) {
    command.add_option("COLUMN", options.column, "The column")->required();
}

} // namespace

Run setUpExpression(CLI::App& command) {
    const auto options = std::make_shared<CalculationOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    addColumnArgument(command, *options);
    command.add_option("EXPRESSION", options->expression,
                       "The new expression, blanks around every operator; the empty text clears it");
    return [options] { return options->expression ? setExpression(*options) : printExpression(*options); };
}

Run setUpTotal(CLI::App& command) {
    const auto options = std::make_shared<CalculationOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    command.add_option("COLUMN", options->columns, "The columns to total; no other column is");
    return [options] { return chooseTotals(*options); };
}

Run setUpRecalculate(CLI::App& command) {
    const auto options = std::make_shared<CalculationOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    return [options] { return recalculate(*options); };
}

Run setUpSerial(CLI::App& command) {
    const auto options = std::make_shared<CalculationOptions>();
    addWrittenFileArgument(command, options->file, options->wait);
    addColumnArgument(command, *options);
    CLI::Option* value = command.add_option("VALUE", options->value, "The number that was stored last");
    command.add_flag("--check", options->check, "Tell which numbers are missing, and which there are twice")
        ->excludes(value);
    command.parse_complete_callback([options, value] {
        if (!options->check && value->count() == 0) throw CLI::RequiredError("VALUE");
    });
    return [options] { return options->check ? checkSerial(*options) : setSerial(*options); };
}

} // namespace cli
