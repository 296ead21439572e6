#include "gui/records/recordsView.h"

#include "app/looks.h"
#include "gui/widgets/measures.h"
#include "shell/listEvents.h"

#include <QApplication>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

// The columns of a list: their widths, their order, and what they are sorted by.

namespace gui {

void RecordsView::followZoom() {
    if (std::exchange(zoom_, app::looks(app_).listZoom) == app::looks(app_).listZoom) return;
    const auto zoomed = [this](QFont font) {
        if (font.pointSizeF() > 0)
            font.setPointSizeF(font.pointSizeF() * zoom_ / 100);
        else
            font.setPixelSize(font.pixelSize() * zoom_ / 100);
        return font;
    };
    const bool isPlain = zoom_ == 100;
    setFont(isPlain ? QFont() : zoomed(QApplication::font(this)));
    header()->setFont(isPlain ? QFont() : zoomed(QApplication::font(header())));
}

int RecordsView::pixels(float twips) const {
    return std::max(header()->minimumSectionSize(),
                    static_cast<int>(std::lround(twips * static_cast<float>(logicalDpiX()) *
                                                 static_cast<float>(zoom_) / (100 * twipsPerInch))));
}

std::vector<int> RecordsView::sectionOrder() const {
    std::vector<int> order;
    for (const int index : list_.columns.displayOrder())
        if (index > 1) order.push_back(index - 2);
    return order;
}

void RecordsView::showColumns() {
    QHeaderView* columns = header();
    int visual = 0;
    for (const int section : sectionOrder()) {
        const int place = columns->visualIndex(section);
        if (place != visual) columns->moveSection(place, visual);
        ++visual;
        const int width = pixels(list_.columns.at(RecordsModel::columnIndex(section)).Width);
        if (columns->sectionSize(section) != width) columns->resizeSection(section, width);
    }
}

void RecordsView::updateGeometries() {
    QTreeView::updateGeometries();
    if (frozen_ != nullptr) frozen_->place();
}

QModelIndex RecordsView::indexAt(const QPoint& place) const {
    const QModelIndex index = QTreeView::indexAt(place);
    const int section = frozen_ == nullptr ? -1 : frozen_->column(place);
    return section < 0 ? index : index.siblingAtColumn(section);
}

// The frozen column is in sight wherever the list stands, and hides what is beneath it.
void RecordsView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const int offset = horizontalScrollBar()->value();
    const bool isOver = frozen_ != nullptr && frozen_->isOver(index.column());
    QTreeView::scrollTo(index, hint);
    if (isOver) return horizontalScrollBar()->setValue(offset);
    const int hidden = frozen_ == nullptr ? 0 : frozen_->hidden(visualRect(index));
    if (hidden > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

// Dragging and sizing columns goes into the column table and so into the next save, but it does not
// make the document a modified one.
void RecordsView::columnMoved(int section, int newVisual) {
    if (showing_) return;
    events_.run([&] {
        const std::vector<int> before = sectionOrder();
        const int displaced = RecordsModel::columnIndex(before.at(static_cast<std::size_t>(newVisual)));
        list_.columns.setPosition(RecordsModel::columnIndex(section), list_.columns.at(displaced).Position);
    });
}

void RecordsView::columnResized(int section, int pixels) {
    if (showing_) return;
    // No refresh: this comes with every pixel of the drag, and the column is already as wide.
    list_.columns.at(RecordsModel::columnIndex(section)).Width =
        static_cast<float>(pixels) * 100 * twipsPerInch / static_cast<float>(logicalDpiX() * zoom_);
    frozen_->place();
    resized_.start();
}

void RecordsView::columnClicked(int section) {
    events_.run([&] {
        const std::uint64_t before = list_.arrangement();
        shell::list_ColumnClick(app_, list_, RecordsModel::columnIndex(section));
        noteSort(section, before);
    });
}

void RecordsView::sortBy(int section, shell::Order order) {
    events_.run([&] {
        const std::uint64_t before = list_.arrangement();
        shell::sortList(app_, list_, RecordsModel::columnIndex(section), order);
        noteSort(section, before);
    });
}

void RecordsView::noteSort(int section, std::uint64_t before) {
    if (list_.arrangement() != before) sort_ = {section, list_.arrangement()};
}

void RecordsView::showSortArrow() {
    header()->setSortIndicator(isSorted() ? sort_->section : -1,
                               list_.SortOrder == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
}

// --- without the mouse ---

// The same signals as of a drag tell what it does. The keys are those of the header, which has them.
void RecordsView::addColumnActions(QMenu& menu, int section) {
    const auto add = [&](const QString& text, QKeySequence keys, bool isPossible, auto&& act) {
        QAction* action = menu.addAction(text + u'\t' + keys.toString(QKeySequence::NativeText));
        action->setEnabled(isPossible);
        connect(action, &QAction::triggered, this, act);
    };
    const Qt::Key onward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const Qt::Key back = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    add(tr("Move &Left"), Qt::CTRL | Qt::Key_Left, header_->canMove(section, -1),
        [this, section] { header_->moveColumn(section, -1); });
    add(tr("Move &Right"), Qt::CTRL | Qt::Key_Right, header_->canMove(section, 1),
        [this, section] { header_->moveColumn(section, 1); });
    add(tr("&Wider"), Qt::CTRL | Qt::SHIFT | onward, true,
        [this, section] { header_->sizeColumn(section, 1); });
    add(tr("&Narrower"), Qt::CTRL | Qt::SHIFT | back,
        header_->sectionSize(section) > header_->minimumSectionSize(),
        [this, section] { header_->sizeColumn(section, -1); });
    add(tr("Size To &Content"), {}, true, [this, section] { resizeColumnToContents(section); });
}

// What was clicked last, or sorted, is what a user has in mind.
void RecordsView::takeHeaderKeys() {
    const std::vector<int> order = sectionOrder();
    if (order.empty()) return;
    const bool isClicked = std::ranges::find(order, currentSection_) != order.end() && currentSection_ > 0;
    header_->takeKeys(isClicked ? currentSection_ : isSorted() ? sort_->section : order.front());
}

void RecordsView::showColumn(int section) {
    QScrollBar& bar = *horizontalScrollBar();
    if (frozen_->isOver(section)) return bar.setValue(0); // its heading covers the one that is chosen
    const int left = header_->sectionViewportPosition(section), width = header_->sectionSize(section);
    const int first = frozen_->width();
    const int last = viewport()->width();
    if (left < first || width > last - first)
        bar.setValue(bar.value() + left - first);
    else if (left + width > last)
        bar.setValue(bar.value() + left + width - last);
}

} // namespace gui
