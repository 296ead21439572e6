#include "gui/dialogs/exportFrmView.h"

#include "gui/records/listLook.h"
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
      Check3_(named("Check3", new QCheckBox(tr("With the &pictures")))),
      formatCbo_(named("formatCbo", new QComboBox)) {
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
    Check3_->setToolTip(
        tr("In an Excel workbook they stand in their rows, else in a folder beside the file"));
    auto* row = new QHBoxLayout;
    row->addWidget(kind);
    row->addWidget(formatCbo_, 1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeScopes());
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
    resize(em() * 24, em() * 32);
}

QWidget* exportFrmView::makeScopes() {
    const std::array<QString, 3> captions = {tr("The &selected records"), tr("The search &results"),
                                             tr("&All records")};
    auto* frame = named("Frame1", new QGroupBox(tr("Records")));
    auto* column = new QVBoxLayout(frame);
    for (std::size_t scope = 0; scope < captions.size(); ++scope) {
        const tables::exportFrm::ScopeButton& state = form_.Opt1.at(scope);
        const QString caption =
            state.Records == 0
                ? captions.at(scope)
                : tr("%1 (%2)").arg(captions.at(scope)).arg(static_cast<qulonglong>(state.Records));
        auto* button = new QRadioButton(caption);
        button->setObjectName(QStringLiteral("Opt1_%1").arg(scope));
        button->setEnabled(state.Enabled);
        connect(button, &QRadioButton::clicked, this,
                [this, scope] { on([&] { form_.Opt1_Click(static_cast<int>(scope)); }); });
        column->addWidget(button);
        Opt1_.at(scope) = button;
    }
    return frame;
}

QWidget* exportFrmView::makeColumns() {
    auto* frame = named("Frame2", new QGroupBox(tr("Columns")));
    List1_->setHeaderHidden(true);
    List1_->setAccessibleName(tr("Columns to export"));
    List1_->setMinimumHeight(em() * 8);
    useListLook(*List1_);
    for (const tables::exportFrm::Column& column : form_.List1) {
        auto* item = new QTreeWidgetItem(List1_, {toQt(column.Name)});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemNeverHasChildren);
        item->setCheckState(0, Qt::Checked);
    }
    List1_->setCurrentItem(List1_->topLevelItem(0));
    connect(List1_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        on([&] {
            form_.List1_ItemCheck(static_cast<std::size_t>(List1_->indexOfTopLevelItem(item)),
                                  item->checkState(0) == Qt::Checked);
        });
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
    Opt1_.at(static_cast<std::size_t>(form_.scope))->setChecked(true);
    for (std::size_t i = 0; i < form_.List1.size(); ++i)
        List1_->topLevelItem(static_cast<int>(i))
            ->setCheckState(0, form_.List1[i].Checked ? Qt::Checked : Qt::Unchecked);
    Check1_->setChecked(form_.Check1 && form_.Check1Enabled);
    Check1_->setEnabled(form_.Check1Enabled);
    Check2_->setChecked(form_.Check2 && form_.Check2Enabled);
    Check2_->setEnabled(form_.Check2Enabled);
    Check3_->setChecked(form_.Check3 && form_.Check3Enabled);
    Check3_->setEnabled(form_.Check3Enabled);
    formatCbo_->setCurrentIndex(form_.ListIndex);
    OKButton_->setEnabled(form_.OKButtonEnabled);
}

} // namespace gui
