#include "gui/dialogs/versionsFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"
#include "storage/versions.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

// The columns from the left to the right as the version has them.
void arrange(const core::ColumnHeaders& columns, QHeaderView& header) {
    std::vector<std::pair<int, int>> places; // position and section
    for (const core::Column& column : columns)
        if (column.Index > 1) places.emplace_back(column.Position, RecordsModel::section(column));
    std::ranges::sort(places);
    for (std::size_t i = 0; i < places.size(); ++i)
        header.moveSection(header.visualIndex(places[i].second), static_cast<int>(i));
}

} // namespace

versionsFrmView::versionsFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "versionsFrm", tr("Versions"), parent), form_(app),
      Label1_(named("Label1", new QLabel)), List1_(named("List1", new QTreeWidget)),
      Label2_(named("Label2", new QLabel)), LV_(named("LV", new QTreeView)),
      Check1_(named("Check1", new QCheckBox(tr("&Keep versions")))), Text1_(named("Text1", new QSpinBox)) {
    Label1_->setText(toQt(form_.Label1));
    Label1_->setBuddy(List1_);
    makeList();
    makePreview();
    auto* list = new QVBoxLayout;
    list->addWidget(Label1_);
    list->addWidget(List1_, 2);
    list->addWidget(Label2_);
    list->addWidget(LV_, 3);
    auto* upper = new QHBoxLayout;
    upper->addLayout(list, 1);
    upper->addLayout(makeButtons());
    auto* close = makeButton("CloseButton", tr("Close"), [this] { form_.CloseButton_Click(); });
    auto* lowest = new QHBoxLayout;
    lowest->addLayout(makeSettings(), 1);
    lowest->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addLayout(upper, 1);
    column->addSpacing(em() / 2);
    column->addLayout(lowest);
    resize(em() * 36, em() * 18);
}

void versionsFrmView::makeList() {
    List1_->setHeaderLabels({tr("Saved"), tr("Size"), tr("Records")});
    List1_->setRootIsDecorated(false);
    useListLook(*List1_);
    for (const storage::versionsFrm::Entry& entry : form_.List1) {
        auto* item = new QTreeWidgetItem(List1_, {toQt(entry.Time), toQt(entry.Size), toQt(entry.Records)});
        for (const int column : {1, 2}) item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    for (const int column : {1, 2})
        List1_->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    for (int column = 0; column < 3; ++column) List1_->resizeColumnToContents(column);
    List1_->setColumnWidth(0, List1_->columnWidth(0) + em());
    List1_->setMinimumHeight(em() * 5);
    connect(List1_, &QTreeWidget::itemSelectionChanged, this,
            [this] { on([&] { form_.List1_Click(List1_->indexOfTopLevelItem(List1_->currentItem())); }); });
    connect(List1_, &QTreeWidget::itemActivated, this, [this] { on([this] { form_.showBtn_Click(); }); });
}

// Of the version on view; there is none at first.
void versionsFrmView::makePreview() {
    Label2_->setBuddy(LV_);
    LV_->setRootIsDecorated(false);
    LV_->setUniformRowHeights(true);
    LV_->setAccessibleName(tr("Records of the version"));
    LV_->setMinimumHeight(em() * 5);
    useListLook(*LV_);
    for (QWidget* part : {static_cast<QWidget*>(Label2_), static_cast<QWidget*>(LV_)}) part->hide();
}

QLayout* versionsFrmView::makeButtons() {
    showBtn_ = makeButton("showBtn", tr("&Show"), [this] { form_.showBtn_Click(); });
    restoreBtn_ = makeButton("restoreBtn", tr("&Restore"), [this] { form_.restoreBtn_Click(); });
    copyBtn_ = makeButton("copyBtn", tr("Save a &Copy..."), [this] { form_.copyBtn_Click(); });
    showBtn_->setToolTip(tr("Shows the records of the version"));
    restoreBtn_->setToolTip(
        tr("Puts the version in the place of the open document, as work that is not saved yet"));
    copyBtn_->setToolTip(tr("Saves the version as a database of its own"));
    showBtn_->setDefault(true);
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {showBtn_, restoreBtn_, copyBtn_}) buttons->addWidget(button);
    buttons->addStretch(1);
    return buttons;
}

QLayout* versionsFrmView::makeSettings() {
    Text1_->setRange(1, storage::VersionSettings::mostMegabytes);
    Text1_->setSuffix(tr(" MB"));
    auto* label = named("Label3", new QLabel(tr("of all databases, in at &most")));
    label->setBuddy(Text1_);
    Text1_->setAccessibleName(tr("Megabytes for the versions of all databases"));
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check1_Click(checked); }); });
    connect(Text1_, &QSpinBox::valueChanged, this,
            [this](int megabytes) { on([&] { form_.Text1 = std::to_string(megabytes); }); });
    connect(Text1_, &QSpinBox::editingFinished, this, [this] { on([this] { form_.Text1_LostFocus(); }); });
    auto* settings = new QHBoxLayout;
    settings->addWidget(Check1_);
    settings->addWidget(label);
    settings->addWidget(Text1_);
    settings->addStretch(1);
    return settings;
}

void versionsFrmView::showRecords() {
    if (shown_ == form_.shown) return;
    LV_->setModel(nullptr);
    model_.reset();
    shown_ = form_.shown;
    const bool isOnView = shown_ != nullptr;
    if (isOnView) {
        Label2_->setText(tr("Records of the version saved %1:")
                             .arg(toQt(form_.List1[static_cast<std::size_t>(form_.selected)].Time)));
        model_ = std::make_unique<RecordsModel>(shown_->LV);
        LV_->setModel(model_.get());
        for (int section = 0; section < model_->columnCount(); ++section)
            LV_->resizeColumnToContents(section);
        arrange(shown_->LV.columns, *LV_->header());
        const int height = std::min(em() * 30, roomOnScreen(*this).height());
        if (!LV_->isVisible() && this->height() < height) {
            resize(width(), height);
            keepOnScreen(*this);
        }
    }
    Label2_->setVisible(isOnView);
    LV_->setVisible(isOnView);
}

void versionsFrmView::showMembers() {
    List1_->setCurrentItem(List1_->topLevelItem(form_.selected));
    showBtn_->setEnabled(form_.showBtnEnabled);
    restoreBtn_->setEnabled(form_.restoreBtnEnabled);
    copyBtn_->setEnabled(form_.copyBtnEnabled);
    Check1_->setChecked(form_.Check1);
    Text1_->setEnabled(form_.Check1);
    const int megabytes = toQt(form_.Text1).toInt();
    if (Text1_->value() != megabytes) Text1_->setValue(megabytes);
    showRecords();
}

} // namespace gui

#include "moc_versionsFrmView.cpp"
