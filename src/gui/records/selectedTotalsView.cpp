#include "gui/records/selectedTotalsView.h"

#include "entry/valueBoxes.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QHeaderView>

namespace gui {

SelectedTotalsView::SelectedTotalsView(const app::App& app, QWidget* parent)
    : QTreeWidget(parent), app_(app), list_(app.document.LV3) {
    setObjectName(toQt(list_.Name));
    setAccessibleName(tr("Sums of the selected records"));
    setColumnCount(2);
    setHeaderLabels({tr("Column"), tr("Sum of the selected records")});
    headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    useListLook(*this);
    header()->setStretchLastSection(false);
    for (const int section : {0, 1}) header()->resizeSection(section, fontMetrics().averageCharWidth() * 32);
    setMinimumHeight(fontMetrics().height() * 4);
}

void SelectedTotalsView::refresh() {
    setVisible(list_.Visible);
    if (!list_.Visible) return;
    // At most one row a column, so the rows are simply written anew; their number stays as a rule.
    while (topLevelItemCount() > list_.count()) delete takeTopLevelItem(topLevelItemCount() - 1);
    while (topLevelItemCount() < list_.count()) addTopLevelItem(new QTreeWidgetItem);
    int row = 0;
    list_.forEach([&](const core::Item& sum) {
        QTreeWidgetItem* shown = topLevelItem(row++);
        const std::string_view column = sum.Text.view();
        shown->setText(0, toQt(column));
        shown->setText(1, sum.cells.empty()
                              ? QString()
                              : toQt(entry::shownValue(app_, column, sum.cells.front().view())));
        shown->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    });
}

QSize SelectedTotalsView::sizeHint() const {
    return {QTreeWidget::sizeHint().width(), fontMetrics().height() * 8};
}

} // namespace gui

#include "moc_selectedTotalsView.cpp"
