#include "print/reportPlan.h"

#include "core/totalsRow.h"
#include "core/translate.h"
#include "print/previewPage.h"

#include <algorithm>
#include <utility>

namespace print {

namespace {

using core::RecordsList;
using Entry = ReportPlan::Entry;
using Kind = ReportPlan::Kind;

class Planner {
public:
    Planner(app::App& app, const RecordsList& list, const std::vector<ReportColumn>& columns,
            const ReportChoices& choices, const SheetMeasures& measures)
        : app_(app), list_(list), columns_(columns), choices_(choices), measures_(measures) {
        isTotaled_ = std::ranges::any_of(columns, [&](const ReportColumn& entry) {
            return entry.isPrinted && entry.isNumeric &&
                   core::isTotaledColumn(app.document, entry.column->Text);
        });
        if (choices.sheetTotals && isTotaled_) running_ = newSums();
    }

    ReportPlan plan() {
        collectRows();
        plan_.sheets.emplace_back();
        room_ = measures_.room - measures_.headings;
        for (std::size_t group = 0; group < groups_.size(); ++group) placeGroup(group);
        place({Kind::Totals});
        return std::move(plan_);
    }

private:
    void collectRows() {
        std::vector<int> rows;
        rows.reserve(static_cast<std::size_t>(list_.count()));
        const bool bSelectedOnly = previewPage(app_).bReportSelectedOnly;
        list_.forEach([&, row = 0](const core::Item& item) mutable {
            ++row;
            if (!item.isTotals() && (!bSelectedOnly || item.Selected)) rows.push_back(row);
        });
        const core::Column* by = list_.columns.find(choices_.groupColumn);
        if (by == nullptr || by->Index == 1 || !reportFigures(app_).group) {
            if (!rows.empty()) groups_.push_back({{}, std::move(rows)});
            return;
        }
        isGrouped_ = true;
        groups_ = reportFigures(app_).group(app_, list_, *by, choices_.groupStep, rows);
        for (const ReportGroup& group : groups_) {
            ReportPlan::Group planned;
            planned.heading = core::fill(core::tr("%1: %2"), {by->Text, group.name});
            planned.subtotal.label = core::tr("%n record", "%n records", static_cast<int>(group.rows.size()));
            planned.subtotal.ownLine = !fitsAhead(planned.subtotal.label);
            plan_.groups.push_back(std::move(planned));
        }
    }

    // A group's heading stays with its first record, and its last record with the subtotal; so does the last
    // one of all with the Totals row.
    void placeGroup(std::size_t number) {
        const std::vector<int>& rows = groups_[number].rows;
        const int group = static_cast<int>(number);
        const std::unique_ptr<RunningSums> sums = isGrouped_ ? newSums() : nullptr;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const bool isFirst = i == 0, isLast = i + 1 == rows.size();
            const bool isEnd = isLast && number + 1 == groups_.size();
            if (!fits(heightWith(group, isFirst, isLast) + (isEnd ? height({Kind::Totals}) : 0), isEnd)) {
                nextSheet();
                if (isGrouped_ && !isFirst) place({Kind::Continued, group});
            }
            if (isGrouped_ && isFirst) place({Kind::Heading, group});
            place({Kind::Row, rows[i]});
            const core::Item& record = list_.at(rows[i]);
            if (sums) sums->add(record);
            if (running_) running_->add(record);
        }
        if (!isGrouped_) return;
        if (sums) plan_.groups[number].subtotal.texts = textsOf(*sums);
        place({Kind::Subtotal, group});
    }

    // Of a record with what must not be torn from it.
    float heightWith(int group, bool isFirst, bool isLast) const {
        float needed = measures_.line;
        if (isGrouped_ && isFirst) needed += height({Kind::Heading, group});
        if (isGrouped_ && isLast) needed += height({Kind::Subtotal, group});
        return needed;
    }

    // A record that finds no room on a sheet of its own stands there all the same.
    bool fits(float needed, bool isEnd) const {
        const float reserved = running_ && !isEnd ? height({Kind::Carried}) : 0;
        return !hasRow_ || used_ + needed + reserved <= room_;
    }

    void place(Entry entry) {
        used_ += height(entry);
        hasRow_ = hasRow_ || entry.kind == Kind::Row;
        plan_.sheets.back().entries.push_back(entry);
    }

    void nextSheet() {
        if (running_) {
            place({Kind::Carried});
            plan_.sheets.back().carried = textsOf(*running_);
        }
        plan_.sheets.emplace_back();
        room_ = measures_.room - (choices_.heads ? measures_.headings : 0);
        used_ = 0;
        hasRow_ = false;
        if (running_) place({Kind::Brought});
    }

    float height(Entry entry) const {
        return heightOf(plan_, measures_, entry, plan_.sheets.back().entries.empty());
    }
    bool fitsAhead(std::string_view label) const {
        return !isTotaled_ ||
               static_cast<float>(core::length(label)) * measures_.character <= measures_.labelRoom;
    }
    std::unique_ptr<RunningSums> newSums() const {
        const ReportFigures& figures = reportFigures(app_);
        return figures.sums ? figures.sums(app_.document, list_) : nullptr;
    }
    std::vector<std::string> textsOf(const RunningSums& sums) const {
        std::vector<std::string> texts;
        texts.reserve(columns_.size());
        for (const ReportColumn& entry : columns_)
            texts.push_back(entry.isPrinted ? sums.sumOf(*entry.column) : std::string());
        return texts;
    }

    app::App& app_;
    const RecordsList& list_;
    const std::vector<ReportColumn>& columns_;
    const ReportChoices& choices_;
    const SheetMeasures& measures_;
    ReportPlan plan_;
    std::vector<ReportGroup> groups_; // without a name where there is no choice of groups
    std::unique_ptr<RunningSums> running_;
    bool isTotaled_ = false, isGrouped_ = false;
    float room_ = 0, used_ = 0; // of the last sheet
    bool hasRow_ = false;
};

} // namespace

float heightOf(const ReportPlan& plan, const SheetMeasures& measures, Entry entry, bool isFirst) {
    const auto linesOf = [&](bool ownLine) { return measures.line * (ownLine ? 2 : 1) + 2 * ruleGap; };
    switch (entry.kind) {
    case Kind::Row:
        return measures.line;
    case Kind::Heading:
    case Kind::Continued:
        return measures.line + (isFirst ? 0 : measures.line / 2);
    case Kind::Subtotal:
        return linesOf(plan.groups[static_cast<std::size_t>(entry.number)].subtotal.ownLine);
    case Kind::Brought:
    case Kind::Carried:
        return linesOf(measures.sumsLabel > measures.labelRoom);
    case Kind::Totals:
        return linesOf(false);
    }
    return 0;
}

ReportPlan planReport(app::App& app, const RecordsList& list, const std::vector<ReportColumn>& columns,
                      const ReportChoices& choices, const SheetMeasures& measures) {
    return Planner(app, list, columns, choices, measures).plan();
}

} // namespace print
