#include "gui/records/recordsView.h"

#include "app/appearance.h"
#include "app/looks.h"
#include "gui/records/listLook.h"
#include "gui/records/recordsHeader.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/zoomWheel.h"
#include "search/coloursFrm.h"
#include "search/filter/filterMode.h"
#include "shell/commands.h"
#include "shell/listEvents.h"
#include "summary/statisticsFrm.h"

#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace gui {

RecordsView::RecordsView(app::App& app, core::RecordsList& list, EventBoundary& events, QWidget* parent)
    : QTreeView(parent), app_(app), list_(list), events_(events), model_(new RecordsModel(list, this)),
      header_(new RecordsHeader(this)) {
    setObjectName(toQt(list.Name));
    setItemsExpandable(false);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollMode(ScrollPerPixel);
    model_->markOf = [this](const core::Column& column, std::string_view cell) {
        return search::markOf(app_, column, cell);
    };
    model_->formInUse = [this] { return app::formInUse(app_); };
    setModel(model_);

    RecordsHeader* columns = header_;
    setHeader(columns);
    // A tree takes these from the header that it is given.
    columns->setFirstSectionMovable(true);
    columns->setSectionsClickable(true);
    columns->setSortIndicatorShown(true);
    useListLook(*this);
    connect(columns, &QHeaderView::sectionClicked, this, &RecordsView::columnClicked);
    columns->setContextMenuPolicy(Qt::CustomContextMenu);
    frozen_ = new FrozenColumn(*this);
    connect(frozen_->header(), &QHeaderView::sectionClicked, this, &RecordsView::columnClicked);
    for (const QHeaderView* heads : {static_cast<QHeaderView*>(columns), frozen_->header()})
        connect(heads, &QWidget::customContextMenuRequested, this,
                [this, heads](QPoint place) { showHeaderMenu(*heads, place); });
    connect(columns, &RecordsHeader::menuWanted, this,
            [this](QPoint place) { showHeaderMenu(*header_, place); });
    connect(columns, &RecordsHeader::left, this, [this] { setFocus(Qt::OtherFocusReason); });
    connect(columns, &RecordsHeader::chosen, this, &RecordsView::showColumn);
    connect(columns, &QHeaderView::sectionMoved, this,
            [this](int section, int, int newVisual) { columnMoved(section, newVisual); });
    constexpr int sizedFor = 300; // milliseconds without another width: it is a step to undo
    resized_.setSingleShot(true);
    resized_.setInterval(sizedFor);
    connect(&resized_, &QTimer::timeout, this, [this] { events_.run([] {}); });
    connect(columns, &QHeaderView::sectionResized, this,
            [this](int section, int, int newSize) { columnResized(section, newSize); });
}

void RecordsView::refresh(app::ListScroll scroll) {
    const QScopedValueRollback guard(showing_, true);
    const int offset = horizontalScrollBar()->value();
    const int top = verticalScrollBar()->value();
    setSelectionMode(list_.MultiSelect ? ExtendedSelection : SingleSelection);
    followZoom();
    if (model_->isStale()) {
        model_->reload();
        showColumns();
        executeDelayedItemsLayout();
        verticalScrollBar()->setValue(top);
        showSelection();
        horizontalScrollBar()->setValue(offset);
    } else {
        showColumns();
        showSelection();
        viewport()->update();
    }
    // To choose the current row has scrolled to it.
    if (scroll == app::ListScroll::Stay) verticalScrollBar()->setValue(top);
    if (scroll == app::ListScroll::ToTop) scrollToTop();
    showSortArrow();
    const std::vector<int> order = sectionOrder();
    frozen_->setSection(app::looks(app_).bFreezeColumn && !order.empty() ? order.front() : -1);
}

// --- selection ---

std::vector<RecordsView::Rows> RecordsView::selectedInList() const {
    std::vector<Rows> ranges;
    int row = 0;
    list_.forEach([&](const core::Item& item) {
        if (item.Selected) {
            if (!ranges.empty() && ranges.back().last == row - 1)
                ranges.back().last = row;
            else
                ranges.push_back({row, row});
        }
        ++row;
    });
    return ranges;
}

std::vector<RecordsView::Rows> RecordsView::selectedInView() const {
    std::vector<Rows> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.push_back({range.top(), range.bottom()});
    std::ranges::sort(ranges, {}, &Rows::first);
    std::vector<Rows> merged;
    for (const Rows& range : ranges) {
        if (!merged.empty() && range.first <= merged.back().last + 1)
            merged.back().last = std::max(merged.back().last, range.last);
        else
            merged.push_back(range);
    }
    return merged;
}

void RecordsView::showSelection() {
    const int lastSection = model_->columnCount() - 1;
    if (lastSection < 0) return;
    const std::vector<Rows> wanted = selectedInList();
    if (wanted != selectedInView()) {
        QItemSelection selection;
        for (const Rows& rows : wanted)
            selection.append(
                QItemSelectionRange(model_->index(rows.first, 0), model_->index(rows.last, lastSection)));
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    const core::Item* item = list_.selectedItem();
    if (item == nullptr) return;
    const QModelIndex current =
        model_->index(list_.indexOf(*item) - 1, std::clamp(currentSection_, 0, lastSection));
    if (currentIndex().row() == current.row()) return;
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    scrollTo(current);
}

void RecordsView::markSelected(const QItemSelection& rows, bool selected) {
    for (const QItemSelectionRange& range : rows)
        for (int row = range.top(); row <= range.bottom() && row < list_.count(); ++row)
            list_.at(row + 1).Selected = selected;
}

void RecordsView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    if (!showing_) {
        markSelected(deselected, false);
        markSelected(selected, true);
    }
    QTreeView::selectionChanged(selected, deselected);
}

void RecordsView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    if (!showing_ && current.isValid() && current.row() < list_.count()) {
        currentSection_ = current.column();
        core::Item& item = list_.at(current.row() + 1);
        const bool selected = item.Selected;
        list_.setSelectedItem(&item);
        // A click with Ctrl can take the current row out of the selection, which selectionChanged tells.
        if (list_.MultiSelect) item.Selected = selected;
    }
    QTreeView::currentChanged(current, previous);
}

// --- menus and typing ---

void RecordsView::showHeaderMenu(const QHeaderView& heads, QPoint place) {
    const int section = heads.logicalIndexAt(place);
    if (section < 0) return;
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("headerMenu"));
    menu.setAccessibleName(tr("Column"));
    connect(menu.addAction(familyIcon(QStringLiteral("sortUp")), tr("Sort &Ascending")), &QAction::triggered,
            this, [this, section] { sortBy(section, shell::Order::Ascending); });
    connect(menu.addAction(familyIcon(QStringLiteral("sortDown")), tr("Sort &Descending")),
            &QAction::triggered, this, [this, section] { sortBy(section, shell::Order::Descending); });
    menu.addSeparator();
    connect(menu.addAction(familyIcon(QStringLiteral("statistics")), tr("S&tatistics...")),
            &QAction::triggered, this, [this, section] {
                const std::string name = list_.columns.at(RecordsModel::columnIndex(section)).Text;
                events_.run([&] { summary::showStatisticsOf(app_, name); });
            });
    addColumnActions(menu, section);
    QAction* freeze = menu.addAction(tr("&Freeze First Column"));
    freeze->setCheckable(true);
    freeze->setChecked(app::looks(app_).bFreezeColumn);
    connect(freeze, &QAction::triggered, this,
            [this] { events_.run([&] { shell::runCommand(app_, "mnuFreezeColumn"); }); });
    connect(menu.addAction(familyIcon(QStringLiteral("colours")), tr("C&olours...")), &QAction::triggered,
            this, [this, section] {
                const std::string column = list_.columns.at(RecordsModel::columnIndex(section)).Text;
                events_.run([&] { search::showColours(app_, column); });
            });
    menu.exec(heads.viewport()->mapToGlobal(place));
}

void RecordsView::addSortMenu(QMenu& menu) {
    QMenu* columns = menu.addMenu(tr("Sort &By"));
    columns->setObjectName(QStringLiteral("sortMenu"));
    columns->setEnabled(list_.count() >= 2);
    connect(
        menu.addAction(tr("Column Headin&gs") + u'\t' +
                       QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F10).toString(QKeySequence::NativeText)),
        &QAction::triggered, this, &RecordsView::takeHeaderKeys);
    auto* one = new QActionGroup(columns);
    for (const int section : sectionOrder()) {
        const QString name = model_->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
        QAction* action = columns->addAction(withoutMnemonics(name));
        action->setCheckable(true);
        one->addAction(action);
        action->setChecked(isSorted() && sort_->section == section);
        connect(action, &QAction::triggered, this, [this, section] { columnClicked(section); });
    }
}

// What is printed and copied are the rows that were collected, by whatever way they were selected.
void RecordsView::wantMenu(QPoint place) {
    events_.run([&] { shell::collectSelected(app_, list_); });
    emit menuWanted(place);
}

void RecordsView::wantMenuAtRow() {
    const QModelIndex current = currentIndex();
    if (current.isValid()) scrollTo(current);
    if (current.isValid() && !selectionModel()->isSelected(current)) {
        selectionModel()->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        clickWithoutCtrl();
    }
    const QRect row = current.isValid() ? visualRect(current) : QRect();
    const QRect room = viewport()->rect();
    const QPoint place(std::clamp(row.left() + row.height(), room.left(), room.right()), row.bottom());
    wantMenu(viewport()->mapToGlobal(place));
}

void RecordsView::contextMenuEvent(QContextMenuEvent* event) {
    // The key itself comes too, on every platform.
    if (event->reason() != QContextMenuEvent::Keyboard) wantMenu(event->globalPos());
    event->accept();
}

bool RecordsView::isTyping() const {
    return !typed_.isEmpty() && lastTyped_.isValid() &&
           !lastTyped_.hasExpired(QApplication::keyboardInputInterval());
}

// In the sorted column, or in the first one. Letters that follow one another quickly are one beginning.
void RecordsView::keyboardSearch(const QString& search) {
    if (search.isEmpty() || !isTyping()) typed_.clear();
    lastTyped_.start();
    if (typed_.isEmpty() && search.trimmed().isEmpty()) return; // Space selects
    typed_ += search;
    const std::vector<int> order = sectionOrder();
    if (order.empty()) return;
    const core::Column& column =
        list_.columns.at(RecordsModel::columnIndex(isSorted() ? sort_->section : order.front()));
    const int row = shell::rowBeginningWith(list_, column, fromQt(typed_), currentIndex().row() + 1);
    if (row == 0) return;
    setCurrentIndex(model_->index(row - 1, std::clamp(currentSection_, 0, model_->columnCount() - 1)));
}

// --- mouse and keys ---

void RecordsView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    const QModelIndex row = indexAt(event->position().toPoint());
    const bool selects = row.isValid() && !selectionModel()->isSelected(row);
    QTreeView::mousePressEvent(event);
    // The right button takes a row that is not selected, as a click does.
    if (event->button() == Qt::RightButton && selects) clickWithoutCtrl();
}

void RecordsView::clickWithoutCtrl() {
    events_.run([&] {
        followCtrl(false);
        shell::list_Click(app_, list_);
    });
}

void RecordsView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (!pressed_ || event->button() != Qt::LeftButton) return;
    pressed_ = false;
    events_.run([&] {
        followCtrl(event->modifiers().testFlag(Qt::ControlModifier));
        shell::list_Click(app_, list_);
    });
}

void RecordsView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    pressed_ = false; // the release that follows is no click of its own
    if (event->button() == Qt::LeftButton) events_.run([&] { shell::list_DblClick(app_, list_); });
}

// The key may go down or up while another window has the keyboard, so every event says anew how it is.
void RecordsView::followCtrl(bool isDown) {
    if (isDown)
        shell::list_KeyDown(app_, shell::ctrlKey);
    else
        shell::list_KeyUp(app_);
}

void RecordsView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier)
        zoomByWheel(app_, events_, *event);
    else
        QTreeView::wheelEvent(event);
}

void RecordsView::keyPressEvent(QKeyEvent* event) {
    followCtrl(event->key() == Qt::Key_Control || event->modifiers().testFlag(Qt::ControlModifier));
    const bool isMenuKey = event->key() == Qt::Key_Menu ||
                           (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (isMenuKey) return wantMenuAtRow();
    if (event->key() == Qt::Key_F10 && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier))
        return takeHeaderKeys();
    // By whatever keys the desktop has for them; the list's own copy would take one cell alone.
    if (event->matches(QKeySequence::Copy)) {
        events_.run([&] { shell::runCommand(app_, "mnuCopy"); });
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        events_.run([&] { shell::runCommand(app_, "mnuPaste"); });
        return;
    }
    // Where a text is being typed a slash belongs to it, as in a date.
    if (event->text() == QLatin1String("/") && !isTyping()) {
        emit filterWanted();
        return;
    }
    if (event->key() == Qt::Key_Escape && search::filterBar(app_).narrows()) {
        events_.run([&] { search::leaveFilter(app_); });
        return;
    }
    // Enter is the keyboard's double click.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        events_.run([&] { shell::list_DblClick(app_, list_); });
    else
        QTreeView::keyPressEvent(event);
    // And Space its click, which the sums follow.
    if (event->key() == Qt::Key_Space) events_.run([&] { shell::list_Click(app_, list_); });
}

void RecordsView::keyReleaseEvent(QKeyEvent* event) {
    followCtrl(event->key() != Qt::Key_Control && event->modifiers().testFlag(Qt::ControlModifier));
    QTreeView::keyReleaseEvent(event);
}

void RecordsView::focusOutEvent(QFocusEvent* event) {
    followCtrl(false);
    QTreeView::focusOutEvent(event);
}

} // namespace gui

#include "moc_recordsView.cpp"
