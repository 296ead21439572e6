#include "summary/statistics.h"

#include "core/translate.h"
#include "summary/counter.h"
#include "summary/itemRows.h"

#include <algorithm>
#include <numeric>

namespace summary {

using core::ColumnType;
using core::Item;

namespace {

class ColumnRun {
public:
    ColumnRun(const core::Document& document, std::string_view name, std::chrono::year_month_day today)
        : column_(document.LV.columns[name]), items_(document), reader_(column_.type(), {}, today),
          counter_(column_.type(), today), bItems_(items_.isItemColumn(column_)),
          isNumber_(isCounted(FigureKind::Sum, column_.type())),
          isOrdered_(isCounted(FigureKind::Least, column_.type())) {
        statistics_.type = column_.type();
    }

    void add(const Item& record) {
        ++statistics_.records;
        splitValues(core::RecordsList::cell(record, column_), bItems_, values_);
        if (bItems_) items_.read(record);
        for (std::size_t row = 0; row < values_.size(); ++row) {
            if (bItems_ && !items_.isUsed(row)) continue;
            const std::string_view value = values_[row];
            const std::uint32_t group = reader_.groupOf(value);
            if (group == counts_.size()) counts_.push_back(0);
            ++counts_[group];
            if (!isOrdered_) continue;
            counter_.add(value);
            if (const std::optional<Amount> amount = counter_.read(value)) amounts_.push_back(*amount);
        }
    }

    Statistics result(std::size_t mostFrequent) {
        const std::vector<GroupKey>& keys = reader_.keys();
        std::vector<std::uint32_t> sorted;
        for (std::uint32_t i = 0; i < keys.size(); ++i) {
            if (keys[i].rank == GroupKey::Rank::Empty) {
                statistics_.empty = counts_[i];
                continue;
            }
            sorted.push_back(i);
            statistics_.values += counts_[i];
        }
        statistics_.different = sorted.size();
        std::ranges::sort(sorted, [&](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });
        if (!isOrdered_ && !sorted.empty()) {
            statistics_.least.text = keys[sorted.front()].label;
            statistics_.greatest.text = keys[sorted.back()].label;
        }
        std::ranges::stable_sort(sorted, std::ranges::greater(), [&](std::uint32_t i) { return counts_[i]; });
        for (const std::uint32_t i : sorted) {
            if (statistics_.mostFrequent.size() == mostFrequent) break;
            statistics_.mostFrequent.push_back({keys[i].label, counts_[i]});
        }
        addFigures();
        return std::move(statistics_);
    }

private:
    void addFigures() {
        if (amounts_.empty()) return;
        statistics_.least = counter_.value(FigureKind::Least);
        statistics_.greatest = counter_.value(FigureKind::Greatest);
        const std::size_t upper = amounts_.size() / 2, lower = (amounts_.size() - 1) / 2;
        const auto at = [&](std::size_t place) {
            const auto middle = amounts_.begin() + static_cast<std::ptrdiff_t>(place);
            std::nth_element(amounts_.begin(), middle, amounts_.end());
            return *middle;
        };
        Amount both = at(lower);
        if (!isNumber_) {
            statistics_.median = counter_.shown(both);
            return;
        }
        both += at(upper);
        statistics_.median = counter_.shown(counter_.meanOf(both, 2));
        statistics_.mean = counter_.value(FigureKind::Mean);
        statistics_.sum = counter_.value(FigureKind::Sum);
    }

    const core::Column& column_;
    ItemRows items_;
    GroupReader reader_;
    Counter counter_;
    bool bItems_, isNumber_, isOrdered_;
    Statistics statistics_;
    std::vector<std::size_t> counts_; // for each of the reader's keys
    std::vector<Amount> amounts_;
    std::vector<std::string_view> values_;
};

} // namespace

Statistics statisticsOf(const core::Document& document, std::string_view column,
                        std::chrono::year_month_day today, std::size_t mostFrequent,
                        const std::vector<const Item*>* records) {
    ColumnRun run(document, column, today);
    if (records != nullptr) {
        for (const Item* record : *records) run.add(*record);
    } else {
        document.LV.forEach([&](const Item& record) {
            if (!record.isTotals()) run.add(record);
        });
    }
    return run.result(mostFrequent);
}

std::vector<std::pair<std::string, std::string>> namedFigures(const Statistics& statistics) {
    std::vector<std::pair<std::string, std::string>> figures = {
        {core::tr("Records"), std::to_string(statistics.records)},
        {core::tr("Values"), std::to_string(statistics.values)},
        {core::tr("Empty"), std::to_string(statistics.empty)},
        {core::tr("Different values"), std::to_string(statistics.different)}};
    const auto add = [&](const std::string& name, const Value& value) {
        if (!value.text.empty()) figures.emplace_back(name, value.text);
    };
    add(core::tr("Least"), statistics.least);
    add(core::tr("Greatest"), statistics.greatest);
    add(core::tr("Mean"), statistics.mean);
    add(core::tr("Median"), statistics.median);
    add(core::tr("Sum"), statistics.sum);
    return figures;
}

} // namespace summary
