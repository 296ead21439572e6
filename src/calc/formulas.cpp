#include "calc/formulas.h"

#include "calc/evaluator.h"
#include "core/currency.h"
#include "core/format.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"

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
    app::warn(app, "An error has occured during one of your calculations.  It appears that an expression is "
                   "incorrectly defined.  Please check your syntax.");
}

RowCalculator::RowCalculator(app::App& app, RecordsList& list) : app_(app) {
    for (const auto& entry : app.document.formulas) {
        const Formula formula(entry.item);
        Prepared prepared;
        prepared.name = formula.name;
        prepared.isUndefined = formula.isUndefined();
        prepared.target = list.columns.find(formula.name);
        for (const std::string_view text : formula.tokens()) {
            Token token;
            token.text = text;
            const Column* column = list.columns.find(text);
            // The hidden column carries no data: its cell is what the last sort has left there.
            if (column != nullptr && column->Index != 1) {
                token.subItem = column->Index - 1;
                token.isCurrency = column->isType(core::ColumnType::Currency);
            }
            prepared.tokens.push_back(token);
        }
        formulas_.push_back(std::move(prepared));
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
    for (const Prepared& formula : formulas_) {
        try {
            if (formula.target == nullptr)
                core::raise(core::errors::elementNotFound, std::string(formula.name));
            if (formula.isUndefined) {
                RecordsList::cell(row, *formula.target) = undefined;
                continue;
            }
            joinTokens(formula, row);
            armed = true;
            evaluateInto(RecordsList::cell(row, *formula.target));
        } catch (const core::RunTimeError& error) {
            if (!armed) throw;
            return error.what();
        }
    }
    return std::nullopt;
}

void RowCalculator::joinTokens(const Prepared& formula, const Item& row) {
    bDecimal_ = false;
    joined_.clear();
    for (const Token& token : formula.tokens) {
        if (token.subItem == 0) {
            joined_ += token.text;
            continue;
        }
        if (token.isCurrency) bDecimal_ = true;
        const std::string_view operand = core::trim(row.subItem(token.subItem));
        if (operand.find('.') != std::string_view::npos) bDecimal_ = true;
        // A cell that is no number leaves the column's name, which is worth 0.
        if (core::isNumeric(operand))
            joined_ += core::Currency::parse(operand).text();
        else
            joined_ += token.text;
    }
}

void RowCalculator::evaluateInto(CellText& cell) {
    const double result = evaluate(joined_);
    if (joined_.find('.') != std::string::npos) bDecimal_ = true;
    cell = resultText(result, bDecimal_);
}

void CalculateRow(app::App& app, int rowIndex, RecordsList& list) {
    RowCalculator(app, list).calculate(list.at(rowIndex));
}

} // namespace calc
