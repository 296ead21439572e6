#include "gui/dialogs/totalsFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QVBoxLayout>

namespace gui {

TotalsFrmView::TotalsFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "TotalsFrm", tr("Choose Columns To Total"), parent), form_(app),
      LV_(named("LV", new QTreeWidget)) {
    LV_->setHeaderLabels({tr("Columns To Total")});
    useListLook(*LV_);
    for (std::size_t row = 0; row < form_.LV.size(); ++row) {
        auto* item = new QTreeWidgetItem(LV_, {toQt(form_.LV[row].Text)});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemNeverHasChildren);
        item->setCheckState(0, Qt::Unchecked);
    }
    connect(LV_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        on([&] {
            form_.LV[static_cast<std::size_t>(LV_->indexOfTopLevelItem(item))].Checked =
                item->checkState(0) == Qt::Checked;
        });
    });

    auto* ok = makeButton("OKButton", tr("OK"), [this] { form_.OKButton_Click(); });
    auto* cancel = makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    ok->setDefault(true);

    auto* column = new QVBoxLayout(this);
    column->addWidget(LV_);
    column->addLayout(makeBottomRow(ok, cancel));
    LV_->setCurrentItem(LV_->topLevelItem(0));
    resize(em() * 20, em() * 20);
}

void TotalsFrmView::showMembers() {
    for (std::size_t row = 0; row < form_.LV.size(); ++row)
        LV_->topLevelItem(static_cast<int>(row))
            ->setCheckState(0, form_.LV[row].Checked ? Qt::Checked : Qt::Unchecked);
}

} // namespace gui
