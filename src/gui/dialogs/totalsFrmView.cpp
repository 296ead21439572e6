#include "gui/dialogs/totalsFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/columnLists.h"

#include <QVBoxLayout>

namespace gui {

TotalsFrmView::TotalsFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "TotalsFrm", tr("Choose Columns To Total"), parent), form_(app),
      LV_(named("LV", new QTreeWidget)) {
    LV_->setHeaderLabels({tr("Columns To Total")});
    useListLook(*LV_);
    std::vector<std::string> names;
    for (const auto& row : form_.LV) names.push_back(row.Text);
    fillCheckList(*LV_, names,
                  [this](std::size_t row, bool checked) { on([&] { form_.LV[row].Checked = checked; }); });

    auto* ok = makeButton("OKButton", tr("OK"), [this] { form_.OKButton_Click(); });
    auto* cancel = makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    ok->setDefault(true);

    auto* column = new QVBoxLayout(this);
    column->addWidget(LV_);
    column->addLayout(makeBottomRow(ok, cancel));
    resize(em() * 20, em() * 20);
}

void TotalsFrmView::showMembers() {
    for (std::size_t row = 0; row < form_.LV.size(); ++row) showCheck(*LV_, row, form_.LV[row].Checked);
}

} // namespace gui

#include "moc_totalsFrmView.cpp"
