#pragma once

#include "app/app.h"
#include "calc/expression.h"
#include "calc/formulas.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace search {

// What a column of many records is to be set to, as typed.
struct NewValue {
    std::string column;
    std::string text;
    bool isExpression = false; // worked out for each record, instead of a value for all
};

// Why a column cannot be set at all, in the user's words; nothing when it can.
std::optional<std::string> whyNotSettable(const core::Document& document, const core::Column& column);

// Makes the cells. A value goes through what an entry box makes of a typed text, and is refused where the box
// would take a text that is no value of the column. An expression is one of calculation columns. For a column
// of texts or dates it may also be another column's name alone, which copies that column.
class ValueMaker {
public:
    // The value and the document outlive it.
    ValueMaker(app::App& app, const NewValue& value);

    // What is wrong for every record, with the place in an expression; nothing while cells can be made.
    const std::optional<std::string>& fault() const { return fault_; }
    const core::Column& column() const { return *column_; }
    // The cell that a record gets. Raises RunTimeError with the reason why it gets none.
    std::string cellFor(const core::Item& record);

private:
    void prepareExpression();
    std::string checked(std::string text) const;
    std::string workedOut(const core::Item& record);

    app::App& app_;
    const NewValue& value_;
    const core::Column* column_ = nullptr;
    const core::Column* copied_ = nullptr;
    std::optional<calc::Expression> expression_;
    std::optional<std::string> fault_;
    std::string cell_; // of a typed value, the same for all
};

struct SetOutcome {
    // The first record that has no such value; nothing was set then.
    const core::Item* refused = nullptr;
    std::string reason;
    int changed = 0; // records that have another cell than before
    std::vector<calc::Uncalculated> uncalculated;
};

// Sets the column in the records of LV, in all or in none. Calculations, totals, search results and the lists
// of invoices follow. A maker with a fault sets nothing.
SetOutcome setValues(app::App& app, ValueMaker& maker, const std::vector<core::Item*>& records);

} // namespace search
