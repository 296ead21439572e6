#include "gui/summary/statisticsFrmView.h"

#include "entry/valueBoxes.h"
#include "gui/records/listLook.h"
#include "gui/summary/barDrawing.h"
#include "gui/widgets/columnLists.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/toolTip.h"

#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

constexpr int partRole = Qt::UserRole; // of the longest bar, from 0 to 1

class BarDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        constexpr int sides = 6; // pixels
        const QRect room =
            option.rect.adjusted(sides, option.rect.height() / 5, -sides, -option.rect.height() / 5);
        drawBar(
            *painter,
            QRectF(room.left(), room.top(), room.width() * index.data(partRole).toDouble(), room.height()),
            option.palette,
            option.state.testFlag(QStyle::State_Selected) ? BarLook::OnSelection : BarLook::Plain);
    }
};

} // namespace

statisticsFrmView::statisticsFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "statisticsFrm", tr("Column Statistics"), parent), app_(app), form_(app),
      columnCbo_(named("columnCbo", new QComboBox)),
      Check1_(named("Check1", new QCheckBox(tr("&Search results only")))),
      List1_(makeList("List1", {tr("Figure"), tr("Value")})),
      List2_(makeList("List2", {tr("Most frequent"), tr("Count"), QString()})) {
    auto* top = makeColumnChoice(*columnCbo_, form_.columnCbo,
                                 [this](int entry) { on([&] { form_.columnCbo_Click(entry); }); });
    top->addWidget(Check1_);
    List1_->setAccessibleName(tr("Figures"));
    List2_->setAccessibleName(tr("Most frequent values"));
    List2_->setItemDelegateForColumn(2, new BarDelegate(List2_));
    auto* lists = new QHBoxLayout;
    lists->addWidget(List1_, 2);
    lists->addWidget(List2_, 3);
    auto* copy = makeButton("copyBtn", tr("Co&py"), [this] { form_.copyBtn_Click(); });
    auto* close = makeButton("CloseButton", tr("Close"), [this] { form_.CloseButton_Click(); });
    copy->setAutoDefault(false);
    close->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copy);
    buttons->addStretch(1);
    buttons->addWidget(close);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(top);
    rows->addLayout(lists, 1);
    rows->addLayout(buttons);
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool bChecked) { on([&] { form_.Check1_Click(bChecked); }); });
    resize(em() * 42, em() * 22);
}

QTreeWidget* statisticsFrmView::makeList(const char* name, const QStringList& headings) {
    auto* list = named(name, new QTreeWidget);
    list->setHeaderLabels(headings);
    useListLook(*list);
    list->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    return list;
}

void statisticsFrmView::showMembers() {
    columnCbo_->setCurrentIndex(form_.ListIndex);
    Check1_->setEnabled(form_.Check1Enabled);
    Check1_->setChecked(form_.Check1);
    if (shown_ == form_.countings) return;
    shown_ = form_.countings;
    const std::string ofColumn =
        form_.columnCbo.empty() ? "" : form_.columnCbo.at(static_cast<std::size_t>(form_.ListIndex));
    const auto add = [](QTreeWidget& list, const std::string& name, const std::string& value) {
        auto* item = new QTreeWidgetItem(&list, {toQt(name), toQt(value)});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        for (int column = 0; column < 2; ++column) item->setToolTip(column, toolTipOf(item->text(column)));
        return item;
    };
    List1_->clear();
    List2_->clear();
    for (const auto& [name, value] : form_.List1)
        add(*List1_, name, entry::shownValue(app_, ofColumn, value));
    for (const summary::FrequentValue& value : form_.List2) {
        QTreeWidgetItem* item =
            add(*List2_, entry::shownValue(app_, ofColumn, value.value), std::to_string(value.count));
        item->setData(2, partRole, static_cast<double>(value.count) / static_cast<double>(form_.mostOfList2));
    }
    const int mostOfName = em() * 12;
    for (QTreeWidget* list : {List1_, List2_}) {
        // The last one has the room that is left, however long a text is.
        for (int column = 0; column + 1 < list->columnCount(); ++column) list->resizeColumnToContents(column);
        list->setColumnWidth(0, std::min(list->columnWidth(0), mostOfName));
        list->setCurrentItem(list->topLevelItem(0));
    }
}

} // namespace gui

#include "moc_statisticsFrmView.cpp"
