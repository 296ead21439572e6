#include "gui/records/filterBar.h"

#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/qtText.h"
#include "search/filter/filterMode.h"
#include "search/searchEngine.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTextCharFormat>

namespace gui {

namespace {
constexpr int warningSize = 16;
constexpr int shortestText = 24, longestColumn = 24; // characters
} // namespace

FilterBar::FilterBar(app::App& app, EventBoundary& events, QWidget* parent)
    : QFrame(parent), app_(app), events_(events), text_(new QLineEdit), columns_(new QComboBox),
      count_(new QLabel), warning_(new QLabel), reason_(new QLabel), kept_(new QToolButton),
      close_(new QToolButton), menu_(new QMenu(this)) {
    setObjectName(QStringLiteral("filterBar"));
    setAccessibleName(tr("Filter"));
    text_->setObjectName(QStringLiteral("filterText"));
    text_->setAccessibleName(tr("Filter"));
    text_->setPlaceholderText(tr("Words, \"a phrase\", -without, Column:text, Column>10"));
    text_->setClearButtonEnabled(true);
    text_->setMinimumWidth(shortestText * fontMetrics().averageCharWidth());
    text_->installEventFilter(this);
    columns_->setObjectName(QStringLiteral("filterColumns"));
    columns_->setAccessibleName(tr("Columns that words are looked for in"));
    columns_->setToolTip(columns_->accessibleName());
    columns_->setMaximumWidth(longestColumn * fontMetrics().averageCharWidth());
    columns_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    columns_->installEventFilter(this);
    count_->setObjectName(QStringLiteral("filterCount"));
    reason_->setObjectName(QStringLiteral("filterReason"));
    reason_->setTextFormat(Qt::PlainText);
    reason_->setMinimumWidth(1); // a long one does not widen the window
    warning_->setPixmap(
        familyIcon(QStringLiteral("warning")).pixmap(QSize(warningSize, warningSize), devicePixelRatioF()));
    makeMenu();
    close_->setObjectName(QStringLiteral("filterClose"));
    close_->setIcon(familyIcon(QStringLiteral("closeBar")));
    close_->setAutoRaise(true);
    close_->setToolTip(tr("Show all records and close the filter (Esc)"));
    close_->setAccessibleName(tr("Close the filter"));
    close_->installEventFilter(this);
    connect(close_, &QToolButton::clicked, this, &FilterBar::close);
    setRow();
    typed_.setSingleShot(true);
    connect(&typed_, &QTimer::timeout, this, &FilterBar::take);
    connect(text_, &QLineEdit::textEdited, &typed_, [this] { typed_.start(0); });
    connect(columns_, &QComboBox::activated, this, &FilterBar::take);
    hide();
}

void FilterBar::setRow() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    auto* caption = new QLabel(tr("Fi&lter:"));
    caption->setBuddy(text_);
    row->addWidget(caption);
    row->addWidget(text_, 1);
    row->addWidget(columns_);
    row->addWidget(warning_);
    row->addWidget(reason_);
    row->addWidget(count_);
    row->addWidget(kept_);
    row->addWidget(close_);
    setTabOrder(text_, columns_);
    setTabOrder(columns_, kept_);
    setTabOrder(kept_, close_);
}

void FilterBar::makeMenu() {
    menu_->setObjectName(QStringLiteral("filterMenu"));
    kept_->setObjectName(QStringLiteral("filterKept"));
    kept_->setIcon(familyIcon(QStringLiteral("filter")));
    kept_->setAutoRaise(true);
    kept_->setPopupMode(QToolButton::InstantPopup);
    kept_->setToolTip(tr("Kept filters"));
    kept_->setAccessibleName(tr("Kept filters"));
    kept_->setMenu(menu_);
    kept_->setFocusPolicy(Qt::StrongFocus);
    kept_->installEventFilter(this);
    close_->setFocusPolicy(Qt::StrongFocus);
    connect(menu_, &QMenu::aboutToShow, this, &FilterBar::addKept);
}

// What is kept, and what can be done about it.
void FilterBar::addKept() {
    takeNow();
    menu_->clear();
    const std::vector<std::string> names = search::keptFilters(app_);
    for (const std::string& name : names)
        connect(menu_->addAction(withoutMnemonics(toQt(name))), &QAction::triggered, this, [this, name] {
            events_.run([&] { search::useKeptFilter(app_, name); });
            text_->setFocus();
        });
    if (names.empty()) menu_->addAction(tr("(no filter is kept yet)"))->setEnabled(false);
    menu_->addSeparator();
    QAction* keep = menu_->addAction(tr("&Keep This Filter..."));
    keep->setObjectName(QStringLiteral("filterKeep"));
    keep->setEnabled(search::filterBar(app_).isOn);
    connect(keep, &QAction::triggered, this, [this] { events_.run([&] { search::keepFilter(app_); }); });
    QMenu* remove = menu_->addMenu(tr("&Remove"));
    remove->setEnabled(!names.empty());
    for (const std::string& name : names)
        connect(remove->addAction(withoutMnemonics(toQt(name))), &QAction::triggered, this,
                [this, name] { events_.run([&] { search::removeKeptFilter(app_, name); }); });
}

bool FilterBar::hasKeys() const {
    return isVisible() && isAncestorOf(QApplication::focusWidget());
}

void FilterBar::take() {
    typed_.stop();
    const std::string scope = columns_->currentIndex() > 0 ? fromQt(columns_->currentText()) : std::string();
    events_.run(
        [&] { search::setFilter(app_, search::filterFromForm(app_, fromQt(text_->text()), scope), scope); });
}

// What is typed and waits is taken before anything else is done.
void FilterBar::takeNow() {
    if (typed_.isActive()) take();
}

void FilterBar::escape() {
    if (text_->text().isEmpty()) return close();
    typed_.stop();
    text_->clear();
    events_.run([&] { search::leaveFilter(app_); });
    text_->setFocus();
}

void FilterBar::close() {
    typed_.stop();
    events_.run([&] { search::closeFilterBar(app_); });
    emit listWanted();
}

bool FilterBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) takeNow();
    if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape) {
        escape();
        return true;
    }
    const bool isDown = key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched != text_ || !isDown) return QFrame::eventFilter(watched, event);
    if (key == Qt::Key_Down)
        takeNow();
    else
        take(); // anew, as the records may have changed
    const auto& error = search::filterBar(app_).error;
    if (!error || key == Qt::Key_Down) emit listWanted();
    return true;
}

void FilterBar::refresh() {
    const search::FilterBarState& bar = search::filterBar(app_);
    setVisible(bar.isOpen && search::canFilter(app_));
    if (!isVisibleTo(parentWidget())) return;
    const QScopedValueRollback guard(showing_, true);
    showColumns();
    showState();
    if (search::takeFilterKeys(app_)) {
        text_->setFocus(Qt::ShortcutFocusReason);
        text_->selectAll();
    }
}

void FilterBar::showColumns() {
    QStringList names{tr("All columns")};
    for (const search::FilterColumn& column :
         search::filterColumns(app_.document, search::sourceList(app_.document)))
        names << toQt(column.name);
    QStringList shown;
    for (int i = 0; i < columns_->count(); ++i) shown << columns_->itemText(i);
    if (names != shown) {
        columns_->clear();
        columns_->addItems(names);
    }
    const QString scope = toQt(search::filterBar(app_).scope);
    columns_->setCurrentIndex(scope.isEmpty() ? 0
                                              : std::max<int>(0, static_cast<int>(names.indexOf(scope, 1))));
}

void FilterBar::showState() {
    const search::FilterBarState& bar = search::filterBar(app_);
    // What is typed stays as it is while it means the filter.
    if (!typed_.isActive() && search::filterFromForm(app_, fromQt(text_->text()), bar.scope) != bar.text)
        text_->setText(toQt(search::filterInForm(app_, bar.text, bar.scope)));
    const QString count = bar.narrows() ? tr("%L1 of %L2").arg(bar.found).arg(bar.all) : QString();
    // What is being typed is nothing to warn of.
    const bool isWrong = bar.error && !bar.error->isUnfinished;
    const QString reason = toQt(bar.error ? bar.error->reason : bar.words.empty() ? bar.doubt : bar.words);
    const bool isNews = count != count_->text() || reason != reason_->text();
    count_->setText(count);
    count_->setVisible(!count.isEmpty());
    reason_->setText(reason);
    reason_->setToolTip(reason);
    reason_->setVisible(!reason.isEmpty());
    warning_->setVisible(isWrong);
    underline(0, 0);
    if (isWrong) {
        const auto characters = [&](std::size_t bytes) {
            return toQt(search::filterInForm(app_, std::string_view(bar.text).substr(0, bytes), bar.scope))
                .size();
        };
        const qsizetype from = characters(bar.error->offset);
        underline(from, characters(bar.error->offset + bar.error->size) - from);
    }
    if (!isNews) return;
    text_->setAccessibleDescription(reason.isEmpty() ? count : reason);
    QAccessibleEvent told(text_, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
}

// A line edit takes the looks of its text from nowhere but an input method.
void FilterBar::underline(qsizetype from, qsizetype size) {
    QList<QInputMethodEvent::Attribute> looks;
    if (size > 0) {
        QTextCharFormat wave;
        wave.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        wave.setUnderlineColor(text_->palette().color(QPalette::Text));
        looks << QInputMethodEvent::Attribute(QInputMethodEvent::TextFormat,
                                              static_cast<int>(from) - text_->cursorPosition(),
                                              static_cast<int>(size), wave);
    }
    QInputMethodEvent event(QString(), looks);
    QApplication::sendEvent(text_, &event);
}

} // namespace gui

#include "moc_filterBar.cpp"
