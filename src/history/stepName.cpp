#include "history/stepName.h"

#include "core/translate.h"

#include <algorithm>

namespace history {

namespace {

// Nothing counted is told as one.
int counted(std::size_t count) {
    return static_cast<int>(std::max<std::size_t>(count, 1));
}

std::string ofColumns(const core::ColumnHeaders& before, const core::ColumnHeaders& now) {
    if (now.count() != before.count())
        return now.count() > before.count() ? core::tr("Add Column") : core::tr("Remove Column");
    const auto differs = [&](auto member) { return !std::ranges::equal(before, now, {}, member, member); };
    if (differs(&core::Column::Text)) return core::tr("Rename Column");
    if (differs(&core::Column::Tag)) return core::tr("Change Column");
    return differs(&core::Column::Position) ? core::tr("Move Column") : core::tr("Resize Column");
}

std::string ofDesign(const Design& before, const Design& now) {
    if (before.columns.count() != now.columns.count()) return ofColumns(before.columns, now.columns);
    const auto differs = [&](Design::Collection which) {
        return before.collections.at(which) != now.collections.at(which);
    };
    if (before.lockPassword != now.lockPassword)
        return now.lockPassword.empty() ? core::tr("Unlock Design") : core::tr("Lock Design");
    if (before.layoutOptions != now.layoutOptions || before.reportData != now.reportData)
        return core::tr("Page Setup");
    if (before.columns != now.columns) return ofColumns(before.columns, now.columns);
    if (differs(Design::formulas)) return core::tr("Change Expression");
    if (differs(Design::totaledCols)) return core::tr("Choose Columns To Total");
    if (differs(Design::optionedCols)) return core::tr("Change Entry Options");
    if (differs(Design::locks)) return core::tr("Lock Object");
    if (before.shownColumns != now.shownColumns) return ofColumns(before.shownColumns, now.shownColumns);
    return core::tr("Choose Report Columns");
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
    if (count(now) > count(before))
        return core::tr("Add Object", "Add %n Objects", counted(count(now) - count(before)));
    if (count(now) < count(before))
        return core::tr("Delete Object", "Delete %n Objects", counted(count(before) - count(now)));
    const bool moved =
        arePlacesOther(before.layoutField, now.layoutField) || arePlacesOther(before.tLabel, now.tLabel) ||
        arePlacesOther(before.pbLine, now.pbLine) || arePlacesOther(before.vLine, now.vLine) ||
        arePlacesOther(before.pBox, now.pBox) || arePlacesOther(before.imgHolder, now.imgHolder) ||
        arePlacesOther(before.clipPic, now.clipPic);
    return moved ? core::tr("Move Object") : core::tr("Change Object");
}

// The Totals row, the last one, changes with the others.
std::string ofRecords(const Step& step, int records) {
    const RecordChange& change = step.records;
    if (change.takenOut.size() > change.putIn.size())
        return core::tr("Add Record", "Add %n Records",
                        counted(change.takenOut.size() - change.putIn.size()));
    if (change.takenOut.size() < change.putIn.size())
        return core::tr("Delete Record", "Delete %n Records",
                        counted(change.putIn.size() - change.takenOut.size()));
    if (!change.order.empty()) return core::tr("Sort");
    const auto changed = static_cast<std::size_t>(std::ranges::count_if(
        change.splices, [&](const auto& splice) { return static_cast<int>(splice.place) + 1 < records; }));
    return core::tr("Change Record", "Change %n Records", counted(changed));
}

} // namespace

std::string nameOf(const Step& step, const UndoStack& stack) {
    if (step.objects && step.design && step.design->columns.count() == stack.design().columns.count())
        return ofObjects(*step.objects, stack.objects());
    if (step.design) return ofDesign(*step.design, stack.design());
    if (step.objects) return ofObjects(*step.objects, stack.objects());
    if (!step.records.empty()) return ofRecords(step, stack.records());
    return step.pictures.empty() ? core::tr("Adjust Serial Number") : core::tr("Replace Picture");
}

} // namespace history
