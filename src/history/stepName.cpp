#include "history/stepName.h"

#include <algorithm>

namespace history {

namespace {

std::string counted(std::string_view verb, std::string_view thing, std::size_t count) {
    std::string text(verb);
    text += " ";
    if (count > 1) text += std::to_string(count) + " ";
    text += thing;
    if (count > 1) text += "s";
    return text;
}

std::string ofColumns(const core::ColumnHeaders& before, const core::ColumnHeaders& now) {
    if (now.count() != before.count()) return now.count() > before.count() ? "Add Column" : "Remove Column";
    const auto differs = [&](auto member) { return !std::ranges::equal(before, now, {}, member, member); };
    if (differs(&core::Column::Text)) return "Rename Column";
    if (differs(&core::Column::Tag)) return "Change Column";
    return differs(&core::Column::Position) ? "Move Column" : "Resize Column";
}

std::string ofDesign(const Design& before, const Design& now) {
    if (before.columns.count() != now.columns.count()) return ofColumns(before.columns, now.columns);
    const auto differs = [&](Design::Collection which) {
        return before.collections.at(which) != now.collections.at(which);
    };
    if (before.lockPassword != now.lockPassword)
        return now.lockPassword.empty() ? "Unlock Design" : "Lock Design";
    if (before.layoutOptions != now.layoutOptions || before.reportData != now.reportData) return "Page Setup";
    if (before.columns != now.columns) return ofColumns(before.columns, now.columns);
    if (differs(Design::formulas)) return "Change Expression";
    if (differs(Design::totaledCols)) return "Choose Columns To Total";
    if (differs(Design::optionedCols)) return "Change Entry Options";
    if (differs(Design::locks)) return "Lock Object";
    if (before.shownColumns != now.shownColumns) return ofColumns(before.shownColumns, now.shownColumns);
    return "Choose Report Columns";
}

template <typename Object>
bool arePlacesOther(const std::vector<Object>& before, const std::vector<Object>& now) {
    return !std::ranges::equal(before, now, [](const Object& a, const Object& b) {
        return a.Left == b.Left && a.Top == b.Top && a.Width == b.Width && a.Height == b.Height;
    });
}

std::string ofObjects(const Objects& before, const Objects& now) {
    const auto count = [](const Objects& all) {
        return all.layoutField.size() + all.tLabel.size() + all.pbLine.size() + all.vLine.size() +
               all.pBox.size() + all.imgHolder.size() + all.clipPic.size();
    };
    if (count(now) > count(before)) return counted("Add", "Object", count(now) - count(before));
    if (count(now) < count(before)) return counted("Delete", "Object", count(before) - count(now));
    const bool moved =
        arePlacesOther(before.layoutField, now.layoutField) || arePlacesOther(before.tLabel, now.tLabel) ||
        arePlacesOther(before.pbLine, now.pbLine) || arePlacesOther(before.vLine, now.vLine) ||
        arePlacesOther(before.pBox, now.pBox) || arePlacesOther(before.imgHolder, now.imgHolder) ||
        arePlacesOther(before.clipPic, now.clipPic);
    return moved ? "Move Object" : "Change Object";
}

// The Totals row, the last one, changes with the others.
std::string ofRecords(const Step& step, int records) {
    const RecordChange& change = step.records;
    if (change.takenOut.size() > change.putIn.size())
        return counted("Add", "Record", change.takenOut.size() - change.putIn.size());
    if (change.takenOut.size() < change.putIn.size())
        return counted("Delete", "Record", change.putIn.size() - change.takenOut.size());
    if (!change.order.empty()) return "Sort";
    const auto changed = static_cast<std::size_t>(std::ranges::count_if(
        change.splices, [&](const auto& splice) { return static_cast<int>(splice.place) + 1 < records; }));
    return counted("Change", "Record", changed);
}

} // namespace

std::string nameOf(const Step& step, const UndoStack& stack) {
    if (step.objects && step.design && step.design->columns.count() == stack.design().columns.count())
        return ofObjects(*step.objects, stack.objects());
    if (step.design) return ofDesign(*step.design, stack.design());
    if (step.objects) return ofObjects(*step.objects, stack.objects());
    if (!step.records.empty()) return ofRecords(step, stack.records());
    return step.pictures.empty() ? "Adjust Serial Number" : "Replace Picture";
}

} // namespace history
