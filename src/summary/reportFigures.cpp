#include "summary/reportFigures.h"

#include "core/totalsRow.h"
#include "print/reportFigures.h"
#include "summary/grouping.h"

#include <algorithm>

namespace summary {

namespace {

using core::Column;
using core::ColumnType;
using core::RecordsList;

// Reads the cells as the Totals row does, money carried on from column to column too, but in fixed point.
class TotaledSums : public print::RunningSums {
public:
    TotaledSums(const core::Document& document, const RecordsList& list) {
        for (const Column& column : list.columns) {
            if (column.Index == 1 || !core::isTotaledColumn(document, column.Text)) continue;
            const Column* defined = document.LV.columns.find(column.Text);
            if (defined != nullptr && defined->isNumeric()) sums_.push_back({column.Index, defined->type()});
        }
    }

    void add(const core::Item& row) override {
        bool isAmount = false;
        for (Sum& sum : sums_) {
            const std::string_view cell = row.subItem(sum.column - 1).view();
            if (cell.find(core::itemSeparator) != std::string_view::npos) {
                sum.isMany = true;
                continue;
            }
            isAmount = isMoney(cell, sum.type) || (sum.type == ColumnType::Number && isAmount);
            const std::optional<Amount> amount =
                amountIn(cell, isAmount ? ColumnType::Currency : ColumnType::Number);
            if (!amount) continue;
            sum.total += *amount;
            sum.isAny = true;
            sum.isMoney = sum.isMoney || isAmount;
        }
    }

    std::string sumOf(const Column& column) const override {
        const auto sum = std::ranges::find(sums_, column.Index, &Sum::column);
        if (sum == sums_.end() || !(sum->isAny || sum->isMany)) return {};
        if (sum->isMany) return std::string(core::multiValueSum);
        return sum->isMoney ? sum->total.money() : sum->total.text();
    }

private:
    struct Sum {
        int column;
        ColumnType type;
        Amount total = {};
        bool isAny = false, isMoney = false;
        bool isMany = false; // a cell with several values has no sum
    };
    std::vector<Sum> sums_;
};

std::vector<print::ReportGroup> groupRows(app::App& app, const RecordsList& list, const Column& column,
                                          std::string_view step, const std::vector<int>& rows) {
    const Column* defined = app.document.LV.columns.find(column.Text);
    const ColumnType type = defined == nullptr ? column.type() : defined->type();
    GroupReader reader(type, stepNamed(step, type).value_or(Step{}), app.platform.today());
    std::vector<std::uint32_t> groupOf;
    groupOf.reserve(rows.size());
    for (const int row : rows) groupOf.push_back(reader.groupOf(RecordsList::cell(list.at(row), column)));
    const std::vector<std::uint32_t> order = reader.order();
    std::vector<print::ReportGroup> groups(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) groups[order[i]].name = reader.keys()[i].label;
    for (std::size_t i = 0; i < rows.size(); ++i) groups[order[groupOf[i]]].rows.push_back(rows[i]);
    return groups;
}

} // namespace

void countForReports(app::App& app) {
    print::ReportFigures& figures = print::reportFigures(app);
    figures.isStep = [](std::string_view step, ColumnType type) { return stepNamed(step, type).has_value(); };
    figures.group = groupRows;
    figures.sums = [](const core::Document& document, const RecordsList& list) {
        return std::make_unique<TotaledSums>(document, list);
    };
}

} // namespace summary
