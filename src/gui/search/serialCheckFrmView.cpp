#include "gui/search/serialCheckFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/columnLists.h"
#include "gui/widgets/qtText.h"

#include <QVBoxLayout>

namespace gui {

serialCheckFrmView::serialCheckFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "serialCheckFrm", tr("Check Serial Numbers"), parent), form_(app),
      List1_(named("List1", new QComboBox)), List2_(named("List2", new QTreeWidget)),
      Label1_(named("Label1", new QLabel)) {
    auto* findings = new QLabel(tr("&Findings:"));
    findings->setBuddy(List2_);
    List2_->setHeaderHidden(true);
    useListLook(*List2_);
    Label1_->setTextFormat(Qt::PlainText);

    auto* column = new QVBoxLayout(this);
    column->addLayout(
        makeColumnChoice(*List1_, form_.List1, [this](int entry) { on([&] { form_.List1_Click(entry); }); }));
    column->addWidget(findings);
    column->addWidget(List2_, 1);
    column->addWidget(Label1_);
    selectBtn_ = makeButton("selectBtn", tr("&Select Repeats"), [this] { form_.selectBtn_Click(); });
    selectBtn_->setToolTip(tr("Selects the records that share a number in the list"));
    column->addLayout(makeBottomRow(
        selectBtn_, makeButton("CloseButton", tr("Close"), [this] { form_.CloseButton_Click(); })));
    resize(em() * 26, em() * 22);
}

void serialCheckFrmView::showMembers() {
    List1_->setCurrentIndex(form_.ListIndex);
    List2_->clear();
    QList<QTreeWidgetItem*> items;
    for (const std::string& finding : form_.List2) {
        items.append(new QTreeWidgetItem({toQt(finding)}));
        items.constLast()->setToolTip(0, toQt(finding));
    }
    List2_->addTopLevelItems(items);
    List2_->setCurrentItem(List2_->topLevelItem(0));
    Label1_->setText(toQt(form_.Label1));
    selectBtn_->setEnabled(form_.selectBtnEnabled);
}

} // namespace gui

#include "moc_serialCheckFrmView.cpp"
