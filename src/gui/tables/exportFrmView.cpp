#include "gui/tables/exportFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/columnLists.h"
#include "gui/widgets/qtText.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace gui {

exportFrmView::exportFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "exportFrm", tr("Export"), parent), form_(app),
      List1_(named("List1", new QTreeWidget)),
      Check1_(named("Check1", new QCheckBox(tr("With the &Totals row")))),
      Check2_(named("Check2", new QCheckBox(tr("Calculated columns as &formulas")))),
      Check3_(named("Check3", new QCheckBox)), formatCbo_(named("formatCbo", new QComboBox)) {
    auto* kind = new QLabel(tr("&Kind of file:"));
    kind->setBuddy(formatCbo_);
    for (const std::string& name : form_.formatCbo) formatCbo_->addItem(toQt(name));
    connect(formatCbo_, &QComboBox::activated, this,
            [this](int entry) { on([&] { form_.formatCbo_Click(entry); }); });
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check1_Click(checked); }); });
    connect(Check2_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check2_Click(checked); }); });
    connect(Check3_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check3_Click(checked); }); });
    auto* row = new QHBoxLayout;
    row->addWidget(kind);
    row->addWidget(formatCbo_, 1);
    auto* column = new QVBoxLayout(this);
    Opt1_ = named("Frame1", new ScopeButtons(tr("The &selected records"), form_.Opt1,
                                             [this](int scope) { on([&] { form_.Opt1_Click(scope); }); }));
    column->addWidget(Opt1_);
    column->addWidget(makeColumns(), 1);
    column->addWidget(Check1_);
    column->addLayout(row);
    column->addWidget(Check2_);
    column->addWidget(Check3_);
    column->addSpacing(em() / 2);
    OKButton_ = makeButton("OKButton", tr("&Export..."), [this] { form_.OKButton_Click(); });
    OKButton_->setDefault(true);
    column->addLayout(makeBottomRow(
        OKButton_, makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); })));
    resize(em() * 26, em() * 37);
}

QWidget* exportFrmView::makeColumns() {
    auto* frame = named("Frame2", new QGroupBox(tr("Columns")));
    List1_->setHeaderHidden(true);
    List1_->setAccessibleName(tr("Columns to export"));
    List1_->setMinimumHeight(em() * 8);
    useListLook(*List1_);
    std::vector<std::string> names;
    for (const tables::exportFrm::Column& column : form_.List1) names.push_back(column.Name);
    fillCheckList(*List1_, names, [this](std::size_t row, bool checked) {
        on([&] { form_.List1_ItemCheck(row, checked); });
    });
    auto* all = makeButton("Command1", tr("A&ll"), [this] { form_.Command1_Click(); });
    auto* none = makeButton("Command2", tr("&None"), [this] { form_.Command2_Click(); });
    for (QPushButton* button : {all, none}) button->setAutoDefault(false);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(all);
    buttons->addWidget(none);
    buttons->addStretch();
    auto* row = new QHBoxLayout(frame);
    row->addWidget(List1_, 1);
    row->addLayout(buttons);
    return frame;
}

void exportFrmView::showMembers() {
    Opt1_->choose(form_.scope);
    for (std::size_t i = 0; i < form_.List1.size(); ++i) showCheck(*List1_, i, form_.List1[i].Checked);
    Check1_->setChecked(form_.Check1 && form_.Check1Enabled);
    Check1_->setEnabled(form_.Check1Enabled);
    Check2_->setChecked(form_.Check2 && form_.Check2Enabled);
    Check2_->setEnabled(form_.Check2Enabled);
    Check3_->setText(form_.bPicturesInside ? tr("With the &pictures, in the file")
                                           : tr("With the &pictures, in a folder beside the file"));
    Check3_->setChecked(form_.Check3 && form_.Check3Enabled);
    Check3_->setEnabled(form_.Check3Enabled);
    formatCbo_->setCurrentIndex(form_.ListIndex);
    OKButton_->setEnabled(form_.OKButtonEnabled);
}

} // namespace gui

#include "moc_exportFrmView.cpp"
