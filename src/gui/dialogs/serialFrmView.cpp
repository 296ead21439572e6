#include "gui/dialogs/serialFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QLabel>
#include <QVBoxLayout>

namespace gui {

serialFrmView::serialFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "serialFrm", tr("Adjust Serial Number Values"), parent), form_(app),
      List1_(named("List1", new QTreeWidget)), Text1_(named("Text1", new QLineEdit)) {
    makeList();
    auto* caption = new QLabel(tr(" These columns are using auto incrementing serial numbers."));
    caption->setBuddy(List1_);
    auto* valueCaption = new QLabel(tr("Current Value:"));
    valueCaption->setBuddy(Text1_);
    auto* explanation =
        new QLabel(tr("  This dialog allows you to set values of auto increment columns.  You might want to "
                      "do this for setting initial starting values or to adjust the current count to "
                      "coincide with deleted records."));
    explanation->setWordWrap(true);
    connect(Text1_, &QLineEdit::textEdited, this,
            [this](const QString& text) { on([&] { form_.Text1 = fromQt(text); }); });

    auto* set = makeButton("setBtn", tr("&Set"), [this] { form_.setBtn_Click(); });
    // Enter behind a value sets it: as the other two buttons do nothing but close, it would be lost.
    set->setDefault(true);
    auto* value = new QHBoxLayout;
    value->addWidget(valueCaption);
    value->addWidget(Text1_, 1);
    value->addWidget(set);

    auto* column = new QVBoxLayout(this);
    column->addWidget(caption);
    column->addWidget(List1_, 1);
    column->addLayout(value);
    column->addSpacing(em() / 2);
    column->addWidget(explanation);
    column->addSpacing(em() / 2);
    column->addLayout(
        makeBottomRow(makeButton("OKButton", tr("OK"), [this] { form_.OKButton_Click(); }),
                      makeButton("CancelButton", tr("&Cancel"), [this] { form_.CancelButton_Click(); })));
    resize(em() * 27, em() * 22);
}

void serialFrmView::makeList() {
    List1_->setHeaderHidden(true);
    useListLook(*List1_);
    for (const std::string& name : form_.List1) new QTreeWidgetItem(List1_, {toQt(name)});
    // The keys choose as a click does; a click on the chosen row shows its value again.
    const auto choose = [this] {
        const QList<QTreeWidgetItem*> chosen = List1_->selectedItems();
        if (!chosen.isEmpty())
            on([&] { form_.List1_Click(List1_->indexOfTopLevelItem(chosen.constFirst())); });
    };
    connect(List1_, &QTreeWidget::itemSelectionChanged, this, choose);
    connect(List1_, &QTreeWidget::itemClicked, this, choose);
}

void serialFrmView::showMembers() {
    List1_->setCurrentItem(List1_->topLevelItem(form_.selected));
    const QString value = toQt(form_.Text1);
    if (Text1_->text() != value) Text1_->setText(value);
    if (!form_.text1HasFocus) return;
    form_.text1HasFocus = false;
    Text1_->setFocus();
    Text1_->selectAll();
}

} // namespace gui

#include "moc_serialFrmView.cpp"
