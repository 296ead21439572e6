#include "gui/search/duplicatesFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/columnLists.h"
#include "gui/widgets/qtText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

duplicatesFrmView::duplicatesFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "duplicatesFrm", tr("Find Duplicates"), parent), form_(app),
      List1_(named("List1", new QTreeWidget)), List2_(named("List2", new QTreeWidget)),
      Check1_(named("Check1", new QCheckBox(tr("&Ignore capitals, and blanks at the ends")))),
      Label1_(named("Label1", new QLabel)) {
    auto* parts = new QHBoxLayout;
    parts->addLayout(makeColumns(), 2);
    parts->addLayout(makeGroups(), 3);
    auto* column = new QVBoxLayout(this);
    column->addLayout(parts, 1);
    column->addWidget(Check1_);
    column->addSpacing(em() / 2);
    column->addLayout(makeButtons());
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool bChecked) { on([&] { form_.Check1_Click(bChecked); }); });
    resize(em() * 40, em() * 24);
}

QLayout* duplicatesFrmView::makeColumns() {
    auto* caption = new QLabel(tr("&Columns to compare:"));
    caption->setBuddy(List1_);
    List1_->setHeaderHidden(true);
    useListLook(*List1_);
    std::vector<std::string> names;
    for (const search::duplicatesFrm::Entry& entry : form_.List1) names.push_back(entry.Text);
    fillCheckList(*List1_, names,
                  [this](std::size_t row, bool checked) { on([&] { form_.List1_Check(row, checked); }); });
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(List1_, 1);
    return column;
}

QLayout* duplicatesFrmView::makeGroups() {
    auto* caption = new QLabel(tr("&Groups of equal records:"));
    caption->setBuddy(List2_);
    List2_->setHeaderLabels({tr("Records"), tr("Values")});
    List2_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    useListLook(*List2_);
    List2_->headerItem()->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
    List2_->header()->setStretchLastSection(true);
    List2_->setColumnWidth(0, em() * 5);
    connect(List2_, &QTreeWidget::itemSelectionChanged, this,
            [this] { on([this] { form_.List2_Select(selectedRows()); }); });
    connect(List2_, &QTreeWidget::itemDoubleClicked, this, [this] { on([this] { form_.showBtn_Click(); }); });
    Label1_->setTextFormat(Qt::PlainText);
    Label1_->setWordWrap(true);
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(List2_, 1);
    column->addWidget(Label1_);
    return column;
}

QLayout* duplicatesFrmView::makeButtons() {
    showBtn_ = makeButton("showBtn", tr("&Show"), [this] { form_.showBtn_Click(); });
    showBtn_->setToolTip(tr("Shows the records of the selected groups in the list"));
    previousBtn_ = makeButton("previousBtn", tr("&Previous"), [this] { form_.previousBtn_Click(); });
    nextBtn_ = makeButton("nextBtn", tr("&Next"), [this] { form_.nextBtn_Click(); });
    deleteBtn_ = makeButton("deleteBtn", tr("&Delete All But First"), [this] { form_.deleteBtn_Click(); });
    deleteBtn_->setToolTip(tr("Keeps one record of each selected group"));
    deleteBtn_->setAutoDefault(false);
    auto* close = makeButton("CloseButton", tr("Close"), [this] { form_.CloseButton_Click(); });
    showBtn_->setDefault(true);
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {showBtn_, previousBtn_, nextBtn_, deleteBtn_}) row->addWidget(button);
    row->addStretch(1);
    row->addWidget(close);
    return row;
}

// By ranges: all of thousands of groups can be selected.
std::vector<std::size_t> duplicatesFrmView::selectedRows() const {
    std::vector<std::size_t> rows;
    for (const QItemSelectionRange& range : List2_->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(static_cast<std::size_t>(row));
    std::ranges::sort(rows);
    return rows;
}

void duplicatesFrmView::showSelection() {
    std::vector<std::size_t> wanted;
    for (std::size_t i = 0; i < form_.List2.size(); ++i)
        if (form_.List2[i].Selected) wanted.push_back(i);
    if (wanted == selectedRows()) return;
    List2_->clearSelection();
    if (wanted.empty()) return;
    List2_->setCurrentItem(List2_->topLevelItem(static_cast<int>(wanted.front())));
}

void duplicatesFrmView::showMembers() {
    if (shown_ != form_.findings) {
        shown_ = form_.findings;
        List2_->clear();
        QList<QTreeWidgetItem*> items;
        for (const search::duplicatesFrm::Group& group : form_.List2) {
            auto* item = new QTreeWidgetItem(
                {QString::number(static_cast<qulonglong>(group.Records)), toQt(group.Values)});
            item->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
            item->setToolTip(1, item->text(1));
            items.append(item);
        }
        List2_->addTopLevelItems(items);
    }
    for (std::size_t i = 0; i < form_.List1.size(); ++i) showCheck(*List1_, i, form_.List1[i].Checked);
    showSelection();
    Check1_->setChecked(form_.Check1);
    Label1_->setText(toQt(form_.Label1));
    showBtn_->setEnabled(form_.hasSelection);
    deleteBtn_->setEnabled(form_.hasSelection);
    previousBtn_->setEnabled(!form_.List2.empty());
    nextBtn_->setEnabled(!form_.List2.empty());
}

} // namespace gui

#include "moc_duplicatesFrmView.cpp"
