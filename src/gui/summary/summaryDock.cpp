#include "gui/summary/summaryDock.h"

#include "app/appearance.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/tickMenu.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

constexpr int soonMilliseconds = 150; // without another change
constexpr int fewestLetters = 6;      // of a box

void fillBox(QComboBox& box, const std::vector<std::string>& texts) {
    bool isSame = box.count() == static_cast<int>(texts.size());
    for (int i = 0; isSame && i < box.count(); ++i)
        isSame = box.itemText(i) == toQt(texts[static_cast<std::size_t>(i)]);
    if (isSame) return;
    box.clear();
    for (const std::string& text : texts) box.addItem(toQt(text));
}

} // namespace

SummaryDock::SummaryDock(app::App& app, EventBoundary& events, QWidget* parent)
    : QDockWidget(tr("Summary"), parent), app_(app), events_(events), panel_(app),
      model_(new SummaryModel(this)) {
    setObjectName(QStringLiteral("summaryDock"));
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(8, 2, 8, 4);
    rows->setSpacing(4);
    rows->addLayout(makeChoosers());
    rows->addWidget(makeResult(), 1);
    rows->addLayout(makeButtons());
    content->setFocusProxy(table_);
    // As narrow as a small screen at twice the size; the choosers make two rows of themselves there.
    constexpr int narrowest = 24; // heights of a line
    content->setMinimumWidth(narrowest * fontMetrics().height());
    setWidget(content);
    soon_.setSingleShot(true);
    soon_.setInterval(soonMilliseconds);
    connect(&soon_, &QTimer::timeout, this, &SummaryDock::count);
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool bVisible) {
        if (bVisible) refresh();
    });
    hide();
}

QLayout* SummaryDock::makeChoosers() {
    auto* groups = new QHBoxLayout;
    const std::array<QString, 2> captions = {tr("&Group by:"), tr("a&nd by:")};
    const std::array<QString, 2> names = {tr("Steps of the groups"), tr("Steps of the groups within")};
    for (std::size_t i = 0; i < by_.size(); ++i) {
        auto* label = new QLabel(captions.at(i));
        auto* column = new QComboBox;
        auto* step = new QComboBox;
        column->setObjectName(QStringLiteral("groupCbo%1").arg(i));
        step->setObjectName(QStringLiteral("stepCbo%1").arg(i));
        step->setAccessibleName(names.at(i));
        step->setToolTip(tr("How finely values are told apart: dates by year, quarter, month or day, numbers "
                            "by steps, which can be typed"));
        step->setInsertPolicy(QComboBox::NoInsert);
        label->setBuddy(column);
        connect(column, &QComboBox::activated, this,
                [this, i](int entry) { on([&] { panel_.column_Click(i, entry); }); });
        connect(step, &QComboBox::currentTextChanged, this,
                [this, i](const QString& text) { on([&] { panel_.step_Change(i, fromQt(text)); }); });
        by_.at(i) = {column, step};
        for (QComboBox* box : {column, step}) {
            box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
            box->setMinimumContentsLength(fewestLetters);
            box->setMinimumWidth(box->minimumContentsLength() * fontMetrics().averageCharWidth() * 2);
        }
        groups->addWidget(label);
        groups->addWidget(column);
        groups->addWidget(step);
    }
    figures_ = new QPushButton(tr("Fig&ures"));
    figures_->setObjectName(QStringLiteral("figuresBtn"));
    figures_->setToolTip(tr("Which sums, means, least and greatest values are counted"));
    figureMenu_ = new QMenu(figures_);
    figureMenu_->setObjectName(QStringLiteral("figureMenu"));
    figures_->setMenu(figureMenu_);
    auto* barsLabel = new QLabel(tr("&Bars:"));
    bars_ = new QComboBox;
    bars_->setObjectName(QStringLiteral("barsCbo"));
    bars_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    barsLabel->setBuddy(bars_);
    connect(bars_, &QComboBox::activated, this, [this](int entry) {
        on([&] { panel_.bars_Click(entry); });
        showSummary();
    });
    onlyFound_ = new QCheckBox(tr("&Search results only"));
    onlyFound_->setObjectName(QStringLiteral("onlyFound"));
    connect(onlyFound_, &QCheckBox::clicked, this,
            [this](bool bChecked) { on([&] { panel_.onlyFound_Click(bChecked); }); });
    auto* figures = new QHBoxLayout;
    for (QWidget* widget : std::initializer_list<QWidget*>{figures_, barsLabel, bars_, onlyFound_})
        figures->addWidget(widget);
    choosers_ = new QBoxLayout(QBoxLayout::LeftToRight);
    for (QHBoxLayout* row : {groups, figures}) {
        row->addStretch(1);
        choosers_->addLayout(row);
    }
    return choosers_;
}

void SummaryDock::resizeEvent(QResizeEvent* event) {
    QDockWidget::resizeEvent(event);
    arrangeChoosers();
}

// Side by side where there is room for all of them.
void SummaryDock::arrangeChoosers() {
    int wanted = 4 * fontMetrics().height();
    for (int i = 0; i < choosers_->count(); ++i) wanted += choosers_->itemAt(i)->sizeHint().width();
    choosers_->setDirection(wanted > width() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

QWidget* SummaryDock::makeResult() {
    table_ = new QTreeView;
    table_->setObjectName(QStringLiteral("summaryTable"));
    table_->setAccessibleName(tr("Groups"));
    table_->setModel(model_);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->header()->setStretchLastSection(false);
    table_->header()->setSectionsClickable(true);
    table_->header()->setSortIndicatorShown(true);
    table_->header()->setToolTip(tr("A click sorts the groups, and another one the other way"));
    useListLook(*table_);
    connect(table_->header(), &QHeaderView::sectionClicked, this, &SummaryDock::sortBy);
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table_, &QWidget::customContextMenuRequested, this, &SummaryDock::showSortMenu);
    chart_ = new BarChart;
    chart_->setObjectName(QStringLiteral("summaryBars"));
    connect(table_, &QTreeView::clicked, this, [this](const QModelIndex& index) { choose(index.row()); });
    table_->installEventFilter(this);
    chart_->installEventFilter(this);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) { chart_->setCurrent(now.row()); });
    connect(chart_, &BarChart::currentChanged, this,
            [this](int group) { table_->setCurrentIndex(model_->index(group, 0)); });
    connect(chart_, &BarChart::chosen, this, &SummaryDock::choose);
    auto* splitter = new QSplitter;
    splitter->addWidget(table_);
    splitter->addWidget(chart_);
    splitter->setChildrenCollapsible(false);
    constexpr int fewestLines = 4; // in sight; a list asks for more by itself
    table_->setMinimumHeight(fewestLines * fontMetrics().height());
    chart_->setMinimumHeight(table_->minimumHeight());
    return splitter;
}

QPushButton* SummaryDock::makeButton(const char* name, const QString& caption,
                                     void (summary::SummaryPanel::*handler)()) {
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, [this, handler] {
        on([&] {
            count(); // for the handler, which may ask something, and for what is seen behind the question
            (panel_.*handler)();
        });
    });
    return button;
}

QLayout* SummaryDock::makeButtons() {
    auto* row = new QHBoxLayout;
    note_ = new QLabel;
    note_->setObjectName(QStringLiteral("summaryNote"));
    note_->setTextFormat(Qt::PlainText);
    note_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(note_, 1);
    all_ = makeButton("allBtn", tr("&All Records"), &summary::SummaryPanel::showAll);
    all_->setToolTip(tr("Puts all records back in place of those of a group (Esc)"));
    row->addWidget(all_);
    copy_ = makeButton("copySummary", tr("&Copy"), &summary::SummaryPanel::copy);
    outputs_ = {copy_, makeButton("exportSummary", tr("E&xport..."), &summary::SummaryPanel::exportTable),
                makeButton("printSummary", tr("&Print..."), &summary::SummaryPanel::print)};
    for (QPushButton* button : outputs_) row->addWidget(button);
    return row;
}

void SummaryDock::on(const std::function<void()>& handler) {
    if (!showing_) events_.run(handler); // which refreshes all that is shown
}

void SummaryDock::refresh() {
    if (!isVisible()) return;
    if (panel_.follow()) soon_.start();
    showChoosers();
    if (isStale()) showSummary();
}

bool SummaryDock::isStale() const {
    const core::LocaleForm* form = app::formInUse(app_);
    return shown_ != panel_.countings || (form == nullptr ? form_.has_value() : form_ != *form);
}

void SummaryDock::count() {
    if (!isVisible()) return;
    const QScopedValueRollback guard(showing_, true);
    if (panel_.follow()) panel_.recount();
    showSummary();
}

void SummaryDock::showChoosers() {
    const QScopedValueRollback guard(showing_, true);
    for (std::size_t i = 0; i < by_.size(); ++i) {
        const summary::SummaryPanel::Chooser& chooser = panel_.by.at(i);
        const auto& [column, step] = by_.at(i);
        fillBox(*column, chooser.columns);
        column->setCurrentIndex(chooser.column);
        fillBox(*step, chooser.steps);
        if (step->isEditable() != chooser.bFreeSteps) step->setEditable(chooser.bFreeSteps);
        if (fromQt(step->currentText()) != chooser.step) step->setCurrentText(toQt(chooser.step));
        step->setVisible(chooser.steps.size() > 1);
    }
    fillFigures();
    onlyFound_->setEnabled(panel_.onlyFoundEnabled);
    onlyFound_->setChecked(panel_.onlyFound);
    all_->setEnabled(panel_.canShowAll);
    arrangeChoosers();
}

// A menu for each column, made anew where the columns are others.
void SummaryDock::fillFigures() {
    QStringList wanted, there;
    for (const auto& column : panel_.figureColumns)
        wanted << toQt(column.name) + QString::number(static_cast<int>(column.type));
    for (const QAction* action : figureMenu_->actions()) there << action->data().toString();
    figures_->setEnabled(!wanted.isEmpty());
    if (wanted != there) {
        figureMenu_->clear();
        for (std::size_t i = 0; i < panel_.figureColumns.size(); ++i) {
            const auto& column = panel_.figureColumns[i];
            auto* menu = new TickMenu(withoutMnemonics(toQt(column.name)), figureMenu_);
            figureMenu_->addMenu(menu);
            menu->menuAction()->setData(wanted[static_cast<qsizetype>(i)]);
            for (const summary::FigureKind kind : summary::figureKinds) {
                if (!summary::isCounted(kind, column.type)) continue;
                QAction* action = menu->addAction(toQt(summary::nameOf(kind)));
                action->setCheckable(true);
                action->setData(static_cast<int>(kind));
                connect(action, &QAction::triggered, this, [this, i, kind](bool bChecked) {
                    on([&] { panel_.figure_Click(i, kind, bChecked); });
                });
            }
        }
    }
    for (std::size_t i = 0; i < panel_.figureColumns.size(); ++i)
        for (QAction* action : figureMenu_->actions()[static_cast<qsizetype>(i)]->menu()->actions())
            action->setChecked(
                panel_.figureColumns[i].checked.at(static_cast<std::size_t>(action->data().toInt())));
}

void SummaryDock::showSummary() {
    const QScopedValueRollback guard(showing_, true);
    if (isStale()) {
        shown_ = panel_.countings;
        form_.reset();
        if (const core::LocaleForm* form = app::formInUse(app_)) {
            form_ = *form;
            inForm_ = summary::shownSummary(app_, panel_.summary);
        }
        const int current = table_->currentIndex().row(), columns = model_->columnCount();
        model_->show(form_ ? inForm_ : panel_.summary);
        table_->setCurrentIndex(model_->index(std::clamp(current, 0, std::max(0, model_->groups())), 0));
        if (columns != model_->columnCount() || current < 0) fitColumns();
        table_->header()->setSortIndicator(static_cast<int>(panel_.sortColumn),
                                           panel_.bDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
        fillBox(*bars_, panel_.barNames);
        bars_->setCurrentIndex(panel_.bars);
        note_->setText(toQt(panel_.note));
        for (QPushButton* button : outputs_) button->setEnabled(!panel_.summary.groups.empty());
    }
    const auto bar = static_cast<std::size_t>(panel_.bars);
    chart_->showSummary(form_ ? inForm_ : panel_.summary, panel_.barFigure(),
                        bar < panel_.barNames.size() ? toQt(panel_.barNames[bar]) : QString());
}

// A long text leaves the figures in sight.
void SummaryDock::fitColumns() {
    constexpr int mostOfColumn = 16; // heights of a line
    for (int i = 0; i < model_->columnCount(); ++i) {
        table_->resizeColumnToContents(i);
        table_->setColumnWidth(i, std::min(table_->columnWidth(i), mostOfColumn * fontMetrics().height()));
    }
}

void SummaryDock::sortBy(int column) {
    on([&] { panel_.heading_Click(static_cast<std::size_t>(column)); });
}

// What the headings do for the mouse.
void SummaryDock::showSortMenu(const QPoint& place) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("summaryMenu"));
    menu.setAccessibleName(tr("Sort By"));
    const auto sorted = static_cast<int>(panel_.sortColumn);
    for (int i = 0; i < model_->columnCount(); ++i) {
        const QString heading = model_->headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
        const bool bTurns = i == sorted;
        QAction* action = menu.addAction((!bTurns              ? tr("Sort by %1")
                                          : panel_.bDescending ? tr("Sort by %1, Ascending")
                                                               : tr("Sort by %1, Descending"))
                                             .arg(withoutMnemonics(heading)));
        connect(action, &QAction::triggered, this, [this, i] { sortBy(i); });
        if (bTurns) menu.setDefaultAction(action);
    }
    menu.exec(table_->viewport()->mapToGlobal(place));
}

// A group, or all records for the grand total.
void SummaryDock::choose(int row) {
    if (row < 0) return;
    QWidget* keys = window()->focusWidget(); // the list that comes up would take them
    on([&] {
        if (row < model_->groups())
            panel_.showGroup(static_cast<std::size_t>(row));
        else
            panel_.showAll();
    });
    if (keys != nullptr) keys->setFocus();
}

bool SummaryDock::eventFilter(QObject* watched, QEvent* event) {
    // Here the table of the summary is what a user means to copy, not the records above it.
    const bool bKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (bKey && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        if (event->type() == QEvent::KeyPress) copy_->click();
        return true;
    }
    const bool bMenu = watched == table_ && event->type() == QEvent::ContextMenu;
    // The key itself comes too, on every platform.
    if (bMenu && static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) return true;
    if (event->type() == QEvent::KeyPress) {
        const auto* pressed = static_cast<QKeyEvent*>(event);
        const int key = pressed->key();
        const bool bMenuKey =
            key == Qt::Key_Menu || (key == Qt::Key_F10 && pressed->modifiers() == Qt::ShiftModifier);
        if (watched == table_ && bMenuKey) {
            showSortMenu(table_->visualRect(table_->currentIndex()).bottomLeft());
            return true;
        }
        if (key == Qt::Key_Escape && panel_.canShowAll) {
            choose(model_->groups()); // as on the total
            return true;
        }
        if (watched == table_ && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            choose(table_->currentIndex().row());
            return true;
        }
    }
    return QDockWidget::eventFilter(watched, event);
}

// The cross of its title bar is the menu item once more.
void SummaryDock::closeEvent(QCloseEvent* event) {
    event->ignore();
    on([this] { app_.mainFrm.control("mnuSummary").Value = false; });
}

} // namespace gui

#include "moc_summaryDock.cpp"
