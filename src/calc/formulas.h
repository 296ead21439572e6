#pragma once

#include "app/app.h"
#include "calc/expression.h"
#include "core/translate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calc {

// The word that stands for a missing expression, and in the cells that such a column has.
constexpr std::string_view undefined = core::marked("Undefined");

// One entry of the document's formulas: "Name,Expression". What stands behind a second comma does
// not count.
struct Formula {
    explicit Formula(std::string_view entry);

    std::string_view entry; // right-trimmed
    std::string_view name;
    std::string_view expression; // right-trimmed
    std::vector<std::string_view> tokens() const;
    bool isUndefined() const { return entry.find(undefined) != std::string_view::npos; }
};

// Brings the formulas into the order of evaluation. It is one exchange pass and no full sort by
// dependency; files depend on the order that it gives.
void SortFormulas(std::vector<std::string>& formulas);

// The cell of a result: money as soon as a fraction or a currency is in it, else the plain number.
std::string resultText(double result, bool bDecimal);

// Works out every formula for one record at a time. The columns and the tokens are looked up once,
// in the order and with the errors that looking them up record by record has.
class RowCalculator {
public:
    RowCalculator(app::App& app, core::RecordsList& list);

    // As calculate, but without the message: answers what went wrong.
    std::optional<std::string> tryCalculate(core::Item& row);

    // Writes the results into the row's cells. False, after the message, when a formula failed: its
    // cell stays as it was and the formulas behind it are not worked out. A formula for a column that
    // is not there raises elementNotFound as long as nothing has been evaluated in the row.
    bool calculate(core::Item& row);

private:
    struct Prepared {
        std::string_view name;
        bool isUndefined = false;
        const core::Column* target = nullptr;
        Expression expression;
    };

    app::App& app_;
    std::vector<Prepared> formulas_;
};

// One row of a standard database; the flag bCalcError is set when it failed.
void CalculateRow(app::App& app, int rowIndex, core::RecordsList& list);

// Whether an expression can be worked out at all: what is wrong with it for every record, and not for the
// numbers of one.
bool isExpression(const core::RecordsList& list, const Formula& formula);

// A record with a formula that could not be worked out.
struct Uncalculated {
    std::string key, reason;
};

// Tells that an expression is wrong, and remembers it for a recalculation of all rows.
void reportCalculationError(app::App& app);

} // namespace calc
