#include "gui/serialFrmView.h"

#include "gui/listLook.h"
#include "gui/qtText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
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

    auto* set = named("setBtn", new QPushButton(tr("&Set")));
    // Enter behind a value sets it: as the other two buttons do nothing but close, it would be lost.
    set->setDefault(true);
    connect(set, &QPushButton::clicked, this, [this] { on([this] { form_.setBtn_Click(); }); });
    auto* value = new QHBoxLayout;
    value->addWidget(valueCaption);
    value->addWidget(Text1_, 1);
    value->addWidget(set);

    auto* column = new QVBoxLayout(this);
    column->addWidget(caption);
    column->addWidget(List1_, 1);
    column->addLayout(value);
    column->addWidget(explanation);
    column->addLayout(makeButtons());
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

QLayout* serialFrmView::makeButtons() {
    auto* buttons = new QDialogButtonBox;
    auto* ok = named("OKButton", buttons->addButton(QDialogButtonBox::Ok));
    auto* cancel = named("CancelButton", buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole));
    connect(ok, &QPushButton::clicked, this, [this] { on([this] { form_.OKButton_Click(); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { on([this] { form_.CancelButton_Click(); }); });
    auto* row = new QHBoxLayout;
    row->addWidget(buttons);
    return row;
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
