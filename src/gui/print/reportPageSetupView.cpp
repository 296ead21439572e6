#include "gui/print/reportPageSetupView.h"

#include "gui/print/pageSetupFrames.h"
#include "gui/print/paperFrame.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QVBoxLayout>

namespace gui {

reportPageSetupView::reportPageSetupView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "reportPageSetup", tr("Report Page Setup"), parent), form_(app),
      LV3_(makeColumnList()), allChk_(named("allChk", new QCheckBox(tr("A&ll")))) {
    auto* columns = new QGroupBox(tr(" Columns To Print "));
    auto* choice = new QVBoxLayout(columns);
    choice->addWidget(LV3_);
    choice->addWidget(allChk_);
    connect(allChk_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.allChk_Click(checked); }); });
    auto* title = new QGroupBox(tr(" Report Title "));
    (new QVBoxLayout(title))->addWidget(boundEdit("titleTxt", form_.titleTxt));

    auto* ok = makeButton("Command1", tr("&Ok"), [this] { form_.Command1_Click(); });
    auto* apply = makeButton("ApplyBtn", tr("&Apply"), [this] { form_.ApplyBtn_Click(); });
    auto* cancel = makeButton("Command2", tr("&Cancel"), [this] { form_.Command2_Click(); });
    auto* more = makeButton("moreBtn", tr("&More..."), [this] { form_.moreBtn_Click(); });
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(apply, QDialogButtonBox::ApplyRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    auto* bottom = new QHBoxLayout; // the box would put a fourth button out of the way of the Tab key
    bottom->addWidget(more);
    bottom->addWidget(buttons, 1);

    auto* right = new QVBoxLayout;
    right->addWidget(title);
    right->addWidget(makeOptionsFrame(tr(" Bold Headers "), "boldYesOpt", tr("Yes"), "boldNoOpt", tr("No"),
                                      form_.boldYesOpt));
    right->addWidget(makePaperFrame(form_));
    right->addWidget(makeOptionsFrame(tr(" Orientation "), "PortraitOpt", tr("Portrait"), "LandscapeOpt",
                                      tr("Landscape"), form_.PortraitOpt));
    right->addWidget(makeMarginsFrame(form_.leftTxt, form_.rightTxt, form_.TopTxt, form_.bottomTxt), 1);
    auto* sides = new QHBoxLayout;
    sides->addWidget(columns, 1);
    sides->addLayout(right, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(sides, 1);
    column->addLayout(bottom);
    ok->setDefault(
        true); // once it is in the dialog, or it would be the first button, which opens another one
    LV3_->setFocus();
    resize(em() * 32, sizeHint().height());
}

QTreeWidget* reportPageSetupView::makeColumnList() {
    auto* list = named("LV3", new QTreeWidget);
    list->setHeaderLabels({tr("Columns To Print")});
    useListLook(*list);
    for (const auto& row : form_.LV3) {
        auto* item = new QTreeWidgetItem(list, {toQt(row.Text)});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemNeverHasChildren);
        item->setCheckState(0, row.Checked ? Qt::Checked : Qt::Unchecked);
    }
    list->setCurrentItem(list->topLevelItem(0));
    connect(list, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        on([&] {
            form_.LV3[static_cast<std::size_t>(LV3_->indexOfTopLevelItem(item))].Checked =
                item->checkState(0) == Qt::Checked;
        });
    });
    return list;
}

void reportPageSetupView::showMembers() {
    allChk_->setChecked(form_.allChk());
    for (std::size_t row = 0; row < form_.LV3.size(); ++row)
        LV3_->topLevelItem(static_cast<int>(row))
            ->setCheckState(0, form_.LV3[row].Checked ? Qt::Checked : Qt::Unchecked);
}

} // namespace gui

#include "moc_reportPageSetupView.cpp"
