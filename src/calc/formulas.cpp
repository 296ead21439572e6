#include "calc/formulas.h"

#include "calc/evaluator.h"
#include "core/format.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"
#include "core/translate.h"

namespace calc {

using core::CellText;
using core::Column;
using core::Item;
using core::RecordsList;

Formula::Formula(std::string_view text) : entry(core::rtrim(text)) {
    const std::vector<std::string_view> parts = core::split(entry, ',');
    name = parts[0];
    if (parts.size() > 1) expression = core::rtrim(parts[1]);
}

std::vector<std::string_view> Formula::tokens() const {
    return core::split(expression, ' ');
}

void SortFormulas(std::vector<std::string>& formulas) {
    for (std::size_t i = formulas.size(); i-- > 0;) {
        for (std::size_t j = 1; j <= i; ++j) {
            // The name is taken afresh each time, since an exchange has brought another entry here.
            const std::string name = formulas[i].substr(0, formulas[i].find(','));
            if (formulas[j - 1].find(name) != std::string::npos) std::swap(formulas[j - 1], formulas[i]);
        }
    }
}

std::string resultText(double result, bool bDecimal) {
    if (bDecimal) return core::format(result, core::Mask::Money);
    std::string text = core::numberText(result);
    if (text.find('.') != std::string::npos) return core::format(std::string_view(text), core::Mask::Money);
    return text;
}

void reportCalculationError(app::App& app) {
    app.mainFrm.bCalcError = true;
    app::warn(
        app,
        core::tr("An error has occured during one of your calculations.  It appears that an expression is "
                 "incorrectly defined.  Please check your syntax."));
}

RowCalculator::RowCalculator(app::App& app, RecordsList& list) : app_(app) {
    for (const auto& entry : app.document.formulas) {
        const Formula formula(entry.item);
        formulas_.push_back({formula.name, formula.isUndefined(), list.columns.find(formula.name),
                             Expression(formula.expression, list)});
    }
}

bool isExpression(const RecordsList& list, const Formula& formula) {
    std::string joined;
    for (const std::string_view token : formula.tokens())
        joined += list.columns.find(token) == nullptr ? token : std::string_view("1");
    try {
        evaluate(joined);
    } catch (const core::RunTimeError& error) {
        return error.number != core::errors::syntax;
    }
    return true;
}

bool RowCalculator::calculate(Item& row) {
    if (!tryCalculate(row)) return true;
    reportCalculationError(app_);
    return false;
}

std::optional<std::string> RowCalculator::tryCalculate(Item& row) {
    // Errors end in the message from the first evaluation on; before it they are the program's end.
    bool armed = false;
    for (Prepared& formula : formulas_) {
        try {
            if (formula.target == nullptr)
                core::raise(core::errors::elementNotFound, std::string(formula.name));
            if (formula.isUndefined) {
                RecordsList::cell(row, *formula.target) = undefined;
                continue;
            }
            formula.expression.read(row);
            armed = true;
            CellText& cell = RecordsList::cell(row, *formula.target);
            cell = resultText(formula.expression.value(), formula.expression.isMoney());
        } catch (const core::RunTimeError& error) {
            if (!armed) throw;
            return error.what();
        }
    }
    return std::nullopt;
}

void CalculateRow(app::App& app, int rowIndex, RecordsList& list) {
    RowCalculator(app, list).calculate(list.at(rowIndex));
}

} // namespace calc
