#include "gui/records/frozenColumn.h"

#include "gui/records/listLook.h"

#include <QScrollBar>

namespace gui {

FrozenColumn::FrozenColumn(QTreeView& list)
    : QObject(&list), list_(list), header_(new RecordsHeader(&list)), rows_(new QTreeView(&list)),
      edge_(new QWidget(&list)) {
    header_->setModel(list.model());
    header_->setSectionsMovable(false);
    header_->setSectionsClickable(true);
    header_->setSortIndicatorShown(true);
    header_->setContextMenuPolicy(Qt::CustomContextMenu);
    header_->setStyle(list.header()->style());
    header_->setObjectName(QStringLiteral("frozenHeader"));

    rows_->setObjectName(QStringLiteral("frozenRows"));
    rows_->setAccessibleName(tr("First column"));
    header_->setAccessibleName(tr("First column"));
    rows_->setModel(list.model());
    useListLook(*rows_);
    rows_->setSelectionModel(list.selectionModel());
    rows_->setHeaderHidden(true);
    rows_->header()->setStretchLastSection(false);
    rows_->header()->setMinimumSectionSize(header_->minimumSectionSize());
    rows_->setItemsExpandable(false);
    rows_->setSelectionBehavior(QAbstractItemView::SelectRows);
    rows_->setAutoScroll(false);
    rows_->setFrameShape(QFrame::NoFrame);
    rows_->setFocusPolicy(Qt::NoFocus);
    rows_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows_->setAttribute(Qt::WA_TransparentForMouseEvents);

    edge_->setAutoFillBackground(true);
    edge_->setBackgroundRole(QPalette::Mid);
    edge_->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QWidget* part : {static_cast<QWidget*>(header_), static_cast<QWidget*>(rows_), edge_}) part->hide();

    connect(list.horizontalScrollBar(), &QScrollBar::valueChanged, this, &FrozenColumn::place);
    connect(list.verticalScrollBar(), &QScrollBar::valueChanged, rows_->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(header_, &QHeaderView::sectionResized, this, [this](int section, int, int size) {
        if (section == section_ && !header_->isHidden()) list_.header()->resizeSection(section, size);
    });
    connect(header_, &QHeaderView::sectionHandleDoubleClicked, &list, &QTreeView::resizeColumnToContents);
}

void FrozenColumn::setSection(int section) {
    section_ = section;
    place();
}

// A column that is nearly as wide as the list would leave no room for the others.
bool FrozenColumn::fits() const {
    return section_ >= 0 && section_ < list_.header()->count() &&
           list_.header()->sectionSize(section_) < list_.viewport()->width() * 3 / 4;
}

void FrozenColumn::place() {
    const bool isFrozen = fits();
    const bool isOver = isFrozen && list_.horizontalScrollBar()->value() > 0;
    const QRect rows = list_.viewport()->geometry();
    const QRect heads = list_.header()->geometry();
    const int width = isFrozen ? list_.header()->sectionSize(section_) : 0;
    edge_->setGeometry(rows.left() + width - 1, heads.top(), 1, heads.height() + rows.height());
    edge_->setVisible(isFrozen);
    if (!isOver) {
        header_->hide();
        rows_->hide();
        return;
    }
    rows_->setFont(list_.font());
    header_->setFont(list_.header()->font());
    for (int section = 0; section < header_->count(); ++section) {
        header_->setSectionHidden(section, section != section_);
        rows_->setColumnHidden(section, section != section_);
    }
    header_->setSortIndicator(list_.header()->sortIndicatorSection(), list_.header()->sortIndicatorOrder());
    header_->setGeometry(heads.left(), heads.top(), width, heads.height());
    rows_->setGeometry(rows.left(), rows.top(), width, rows.height());
    header_->resizeSection(section_, width);
    rows_->header()->resizeSection(section_, width);
    header_->show();
    rows_->show();
    rows_->verticalScrollBar()->setRange(0, list_.verticalScrollBar()->maximum());
    rows_->verticalScrollBar()->setValue(list_.verticalScrollBar()->value());
    edge_->raise();
}

int FrozenColumn::column(QPoint place) const {
    return !rows_->isHidden() && place.x() >= 0 && place.x() < rows_->width() ? section_ : -1;
}

} // namespace gui

#include "moc_frozenColumn.cpp"
