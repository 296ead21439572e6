#include "summary/summary.h"

#include "core/text.h"
#include "core/translate.h"
#include "summary/counter.h"
#include "summary/itemRows.h"

#include <algorithm>
#include <numeric>

namespace summary {

using core::Column;
using core::ColumnType;
using core::Item;
using core::RecordsList;

namespace {

constexpr std::array<const char*, 4> kindNames = {core::marked("Sum"), core::marked("Mean"),
                                                  core::marked("Least"), core::marked("Greatest")};
constexpr std::array<const char*, 4> kindHeadings = {core::marked("Sum of %1"), core::marked("Mean of %1"),
                                                     core::marked("Least of %1"),
                                                     core::marked("Greatest of %1")};

// One run of summarise.
class GroupRun {
public:
    GroupRun(const core::Document& document, const Request& request, std::chrono::year_month_day today);

    void add(const Item& record);
    Summary result();

private:
    struct GroupColumn {
        const Column* column;
        bool bItems;
        GroupReader reader;
    };
    struct Counted {
        const Column* column;
        bool bItems;
    };

    std::uint32_t placeOf(std::uint32_t first, std::uint32_t second);
    void addSingle(const Item& record);
    void addItems(const Item& record);
    void count(std::uint32_t group, std::size_t column, std::string_view value);
    Group shown(std::size_t row) const;
    Counter& counterOf(std::size_t group, std::size_t column) {
        return counters_[group * counted_.size() + column];
    }

    std::chrono::year_month_day today_;
    Summary summary_;
    ItemRows items_;
    std::vector<GroupColumn> by_;
    std::vector<Counted> counted_;
    std::vector<std::size_t> countedOf_; // for each figure
    bool bItems_ = false;                // a column that is grouped by has several values
    bool bItemValues_ = false;           // one that is counted has
    // Groups as they are met; the grand total is counted beside them.
    std::unordered_map<std::uint64_t, std::uint32_t> places_;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> keys_;
    std::vector<std::size_t> records_;
    std::vector<Counter> counters_, totals_;
    std::size_t allRecords_ = 0;
    std::vector<std::string_view> values_, itemValues_;
};

GroupRun::GroupRun(const core::Document& document, const Request& request, std::chrono::year_month_day today)
    : today_(today), items_(document) {
    summary_.request = request;
    for (const GroupBy& by : request.by) {
        const Column& column = document.LV.columns[by.column];
        by_.push_back({&column, items_.isItemColumn(column), GroupReader(column.type(), by.step, today)});
        bItems_ |= by_.back().bItems;
    }
    for (const Figure& figure : request.figures) {
        const Column& column = document.LV.columns[figure.column];
        const auto known = std::ranges::find(counted_, &column, &Counted::column);
        countedOf_.push_back(static_cast<std::size_t>(known - counted_.begin()));
        if (known != counted_.end()) continue;
        counted_.push_back({&column, items_.isItemColumn(column)});
        bItemValues_ |= counted_.back().bItems;
    }
    for (const Counted& counted : counted_) totals_.emplace_back(counted.column->type(), today);
}

std::uint32_t GroupRun::placeOf(std::uint32_t first, std::uint32_t second) {
    constexpr int half = 32;
    const std::uint64_t both = std::uint64_t{first} << half | second;
    const auto [place, isNew] = places_.try_emplace(both, static_cast<std::uint32_t>(keys_.size()));
    if (isNew) {
        keys_.emplace_back(first, second);
        records_.push_back(0);
        for (const Counted& counted : counted_) counters_.emplace_back(counted.column->type(), today_);
    }
    return place->second;
}

void GroupRun::add(const Item& record) {
    ++allRecords_;
    if (bItems_ || bItemValues_) items_.read(record);
    if (bItems_)
        addItems(record);
    else
        addSingle(record);
}

void GroupRun::addSingle(const Item& record) {
    std::array<std::uint32_t, 2> keys{};
    for (std::size_t i = 0; i < by_.size(); ++i)
        keys.at(i) = by_[i].reader.groupOf(RecordsList::cell(record, *by_[i].column));
    const std::uint32_t group = placeOf(keys[0], keys[1]);
    ++records_[group];
    summary_.members.emplace_back(&record, group);
    for (std::size_t i = 0; i < counted_.size(); ++i) {
        const std::string_view cell = RecordsList::cell(record, *counted_[i].column);
        splitValues(cell, counted_[i].bItems, values_);
        for (std::size_t row = 0; row < values_.size(); ++row)
            if (!counted_[i].bItems || items_.isUsed(row)) count(group, i, values_[row]);
    }
}

std::string_view valueAt(const std::vector<std::string_view>& values, std::size_t place) {
    return place < values.size() ? values[place] : std::string_view();
}

// The groups of the item rows one by one, and then the values of each row into the group of the row.
void GroupRun::addItems(const Item& record) {
    std::array<std::vector<std::string_view>, 2> values;
    const std::size_t rows = items_.rows();
    for (std::size_t i = 0; i < by_.size(); ++i) {
        splitValues(RecordsList::cell(record, *by_[i].column), by_[i].bItems, values.at(i));
    }
    std::vector<std::uint32_t> groupOfRow(rows), groups;
    for (std::size_t row = 0; row < rows; ++row) {
        if (!items_.isUsed(row)) continue;
        std::array<std::uint32_t, 2> keys{};
        for (std::size_t i = 0; i < by_.size(); ++i) {
            keys.at(i) = by_[i].reader.groupOf(valueAt(values.at(i), by_[i].bItems ? row : 0));
        }
        const std::uint32_t group = placeOf(keys[0], keys[1]);
        groupOfRow[row] = group;
        if (std::ranges::find(groups, group) == groups.end()) groups.push_back(group);
    }
    for (const std::uint32_t group : groups) {
        ++records_[group];
        summary_.members.emplace_back(&record, group);
    }
    for (std::size_t i = 0; i < counted_.size(); ++i) {
        const std::string_view cell = RecordsList::cell(record, *counted_[i].column);
        splitValues(cell, counted_[i].bItems, values_);
        for (std::size_t row = 0; row < values_.size(); ++row) {
            if (counted_[i].bItems && !items_.isUsed(row)) continue;
            totals_[i].add(values_[row]);
            if (counted_[i].bItems)
                counterOf(groupOfRow[row], i).add(values_[row]);
            else
                for (const std::uint32_t group : groups) counterOf(group, i).add(values_[row]);
        }
    }
}

void GroupRun::count(std::uint32_t group, std::size_t column, std::string_view value) {
    counterOf(group, column).add(value);
    totals_[column].add(value);
}

Summary GroupRun::result() {
    std::vector<std::vector<std::uint32_t>> orders;
    for (const GroupColumn& column : by_) orders.push_back(column.reader.order());
    std::vector<std::uint32_t> sorted(keys_.size());
    std::iota(sorted.begin(), sorted.end(), 0U);
    const auto orderOf = [&](std::uint32_t group) {
        const std::uint32_t second = orders.size() > 1 ? orders[1][keys_[group].second] : 0;
        return std::pair(orders[0][keys_[group].first], second);
    };
    std::ranges::sort(sorted, {}, orderOf);
    std::vector<std::uint32_t> newPlace(sorted.size());
    for (const std::uint32_t old : sorted) {
        newPlace[old] = static_cast<std::uint32_t>(summary_.groups.size());
        Group group;
        group.keys.push_back(by_[0].reader.keys()[keys_[old].first]);
        if (by_.size() > 1) group.keys.push_back(by_[1].reader.keys()[keys_[old].second]);
        group.records = records_[old];
        for (std::size_t i = 0; i < countedOf_.size(); ++i)
            group.figures.push_back(counterOf(old, countedOf_[i]).value(summary_.request.figures[i].kind));
        summary_.groups.push_back(std::move(group));
    }
    for (auto& [record, group] : summary_.members) group = newPlace[group];
    summary_.total.records = allRecords_;
    for (std::size_t i = 0; i < countedOf_.size(); ++i) {
        const Counter& total = totals_[countedOf_[i]];
        summary_.total.figures.push_back(total.value(summary_.request.figures[i].kind));
        summary_.figureTypes.push_back(total.shownType());
    }
    return std::move(summary_);
}

} // namespace

std::string nameOf(FigureKind kind) {
    return core::tr(kindNames.at(static_cast<std::size_t>(kind)));
}

std::string headingOf(const Figure& figure) {
    return core::fill(core::tr(kindHeadings.at(static_cast<std::size_t>(figure.kind))), {figure.column});
}

bool isCounted(FigureKind kind, ColumnType type) {
    if (type == ColumnType::Date) return kind == FigureKind::Least || kind == FigureKind::Greatest;
    return type == ColumnType::Number || type == ColumnType::Currency || type == ColumnType::Calculation;
}

std::string Group::name(std::size_t mostLetters) const {
    std::string name;
    for (const GroupKey& key : keys) {
        if (!name.empty()) name.append(", ");
        name.append(core::left(key.label, mostLetters));
    }
    return name;
}

std::vector<const Item*> Summary::membersOf(std::size_t group) const {
    std::vector<const Item*> records;
    for (const auto& [record, place] : members)
        if (place == group) records.push_back(record);
    return records;
}

Summary summarise(const core::Document& document, const Request& request, std::chrono::year_month_day today,
                  const std::vector<const Item*>* records) {
    GroupRun run(document, request, today);
    if (request.by.empty()) return {};
    if (records != nullptr) {
        for (const Item* record : *records) run.add(*record);
    } else {
        document.LV.forEach([&](const Item& record) {
            if (!record.isTotals()) run.add(record);
        });
    }
    return run.result();
}

} // namespace summary
