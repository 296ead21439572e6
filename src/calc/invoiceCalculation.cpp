#include "calc/invoiceCalculation.h"

#include "calc/evaluator.h"
#include "calc/formulas.h"
#include "calc/itemColumns.h"
#include "core/currency.h"
#include "core/number.h"
#include "core/runTimeError.h"
#include "core/text.h"

#include <algorithm>

namespace calc {

namespace {

using core::CellText;
using core::Column;
using core::Currency;
using core::Item;
using core::RecordsList;

bool hasPoint(std::string_view text) {
    return text.find('.') != std::string_view::npos;
}

bool isMultiValue(std::string_view cell) {
    return cell.find(core::itemSeparator) != std::string_view::npos;
}

const Column* columnOf(const RecordsList& list, std::string_view token) {
    const Column* column = list.columns.find(token);
    return column == nullptr || column->Index == 1 ? nullptr : column;
}

CellText& targetCell(RecordsList& list, Item& record, const Formula& formula) {
    return RecordsList::cell(record, list.columns[formula.name]);
}

int itemRows(const Item& record) {
    std::ptrdiff_t rows = 0;
    for (const CellText& cell : record.cells)
        rows = std::max(rows, std::ranges::count(cell.view(), core::itemSeparator));
    return static_cast<int>(rows);
}

// The handler that the first evaluation of a routine arms.
template <typename Routine>
std::optional<std::string> guarded(const bool& armed, Routine&& routine) {
    try {
        routine();
        return std::nullopt;
    } catch (const core::RunTimeError& error) {
        if (!armed) throw;
        return error.what();
    }
}

// One token of a line calculation. What is no column stands for itself in each row.
struct LineToken {
    std::string_view text;
    const Column* column = nullptr;
    std::vector<std::string_view> values; // a column's, one for each item row

    // An empty or absent value counts as 0.
    std::string inRow(std::size_t row) const {
        if (row >= values.size() || values[row].empty()) return "0";
        return Currency::parse(values[row]).text();
    }
};

class LineCalculator {
public:
    LineCalculator(const RecordsList& list, const Item& record, const Formula& formula)
        : target_(&list.columns[formula.name]) {
        for (const std::string_view text : formula.tokens()) {
            LineToken token{text, columnOf(list, text), {}};
            if (token.column != nullptr && token.column != target_) {
                const std::string_view cell = RecordsList::cell(record, *token.column);
                token.values = core::split(core::trim(cell), core::itemSeparator);
                bAnyPoint_ = bAnyPoint_ || hasPoint(cell);
            }
            bAnyPoint_ =
                bAnyPoint_ || (token.column != nullptr && token.column->isType(core::ColumnType::Currency));
            refersToItself_ = refersToItself_ || token.column == target_;
            tokens_.push_back(std::move(token));
        }
    }

    // The values of all rows. What is done stays in the text when a row fails.
    void calculate(int rows, bool& armed, std::string& done) const {
        bool bDecimal = bAnyPoint_; // once a row has brought a point in, the rows after it are money too
        std::string joined;
        for (int row = 0; row < rows; ++row) {
            // A formula that refers to itself reads its cell as far as it is written: the value of this row
            // is not there yet.
            if (refersToItself_ && hasPoint(done)) bDecimal = true;
            joined.clear();
            for (const LineToken& token : tokens_)
                joined += token.column == nullptr ? std::string(token.text)
                                                  : token.inRow(static_cast<std::size_t>(row));
            armed = true;
            const double result = evaluate(joined);
            if (hasPoint(joined)) bDecimal = true;
            done += resultText(result, bDecimal);
            done += core::itemSeparator;
        }
    }

private:
    const Column* target_;
    std::vector<LineToken> tokens_;
    bool bAnyPoint_ = false;
    bool refersToItself_ = false;
};

void calculateItemRows(RecordsList& list, Item& record, const Formula& formula, int rows, bool& armed) {
    const LineCalculator line(list, record, formula);
    CellText& cell = targetCell(list, record, formula);
    std::string done;
    try {
        line.calculate(rows, armed, done);
    } catch (const core::RunTimeError&) {
        cell = done;
        throw;
    }
    cell = done;
}

} // namespace

std::optional<std::string> RecalculateInvoice(core::Document& document, int rowIndex, RecordsList& list) {
    Item& record = list.at(rowIndex);
    const ItemColumns items(document);
    const int rows = itemRows(record);
    bool armed = false;
    // Set by the first formula that refers to a cell of one value, and never cleared: all later line
    // calculations of the invoice are skipped with it. It is wanted so.
    bool bSkip = false;
    return guarded(armed, [&] {
        for (const auto& entry : document.formulas) {
            const Formula formula(entry.item);
            if (!items.contains(formula.name)) continue;
            for (const std::string_view token : formula.tokens())
                if (const Column* column = columnOf(list, token))
                    if (!isMultiValue(RecordsList::cell(record, *column))) bSkip = true;
            if (bSkip) continue;
            if (formula.isUndefined())
                targetCell(list, record, formula) = calc::undefined;
            else
                calculateItemRows(list, record, formula, rows, armed);
        }
    });
}

void RecalculateSegmentedTotals(core::Document& document, int rowIndex, RecordsList& list) {
    Item& record = list.at(rowIndex);
    const ItemColumns items(document);
    Currency sum; // kept from entry to entry: a formula of several tokens writes what the last left
    for (const auto& entry : document.formulas) {
        const Formula formula(entry.item);
        CellText& cell = targetCell(list, record, formula);
        if (formula.isUndefined()) {
            cell = calc::undefined;
            continue;
        }
        if (items.contains(formula.name)) continue;
        bool bDecimal = false;
        const std::vector<std::string_view> tokens = formula.tokens();
        if (tokens.size() == 1) {
            sum = Currency();
            // A constant is no column and has nothing to sum: its value comes with the third routine.
            const Column* column = columnOf(list, tokens[0]);
            const std::string values =
                column == nullptr ? std::string() : RecordsList::cell(record, *column).str();
            std::vector<std::string_view> parts = core::split(values, core::itemSeparator);
            parts.pop_back(); // what stands behind the last separator is no value
            for (const std::string_view part : parts) {
                if (hasPoint(part)) bDecimal = true;
                if (!part.empty()) sum = sum + Currency::parse(part);
            }
        }
        const std::string text = sum.text();
        cell = bDecimal || hasPoint(text) ? resultText(sum.toDouble(), true) : text;
    }
}

namespace {

// The expression with the amounts of the record in the place of its columns. One of them asks for decimals.
std::string withOperands(const RecordsList& list, const Item& record,
                         const std::vector<std::string_view>& tokens, bool& bDecimal) {
    std::string joined;
    for (const std::string_view token : tokens) {
        const Column* column = columnOf(list, token);
        const std::string_view operand =
            column == nullptr ? std::string_view() : core::trim(RecordsList::cell(record, *column));
        if (column != nullptr && column->isType(core::ColumnType::Currency)) bDecimal = true;
        if (hasPoint(operand)) bDecimal = true;
        if (core::isNumeric(operand))
            joined += Currency::parse(operand).text();
        else
            joined += token;
    }
    return joined;
}

} // namespace

std::optional<std::string> RecalculateNormalInvoiceColumns(core::Document& document, int rowIndex,
                                                           RecordsList& list) {
    Item& record = list.at(rowIndex);
    const ItemColumns items(document);
    bool armed = false;
    return guarded(armed, [&] {
        for (const auto& entry : document.formulas) {
            const Formula formula(entry.item);
            const std::vector<std::string_view> tokens = formula.tokens();
            const bool refersToItems = std::ranges::any_of(tokens, [&](std::string_view token) {
                const Column* column = columnOf(list, token);
                return column != nullptr && items.contains(column->Text);
            });
            if (items.contains(formula.name) || refersToItems) continue;
            CellText& cell = targetCell(list, record, formula);
            if (formula.isUndefined()) {
                cell = calc::undefined;
                continue;
            }
            bool bDecimal = false;
            const std::string joined = withOperands(list, record, tokens, bDecimal);
            armed = true;
            const double result = evaluate(joined);
            cell = resultText(result, bDecimal || hasPoint(joined));
        }
    });
}

void calculateInvoice(app::App& app, RecordsList& list, int rowIndex) {
    if (RecalculateInvoice(app.document, rowIndex, list)) reportCalculationError(app);
    RecalculateSegmentedTotals(app.document, rowIndex, list);
    if (RecalculateNormalInvoiceColumns(app.document, rowIndex, list)) reportCalculationError(app);
}

std::optional<std::string> tryCalculateInvoice(core::Document& document, RecordsList& list, int rowIndex) {
    const std::optional<std::string> items = RecalculateInvoice(document, rowIndex, list);
    RecalculateSegmentedTotals(document, rowIndex, list);
    const std::optional<std::string> others = RecalculateNormalInvoiceColumns(document, rowIndex, list);
    return items ? items : others;
}

} // namespace calc
