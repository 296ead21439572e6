#include "gui/tables/pasteFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QEvent>
#include <QHeaderView>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

// A cell of several lines would push the other rows out of sight.
QString onOneLine(const std::string& text) {
    return toQt(text).replace(QLatin1Char('\n'), QChar(0x21B5));
}

} // namespace

pasteFrmView::pasteFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "pasteFrm", tr("Paste Records"), parent), form_(app),
      Label1_(named("Label1", new QLabel)),
      Check1_(named("Check1", new QCheckBox(tr("The first row has the &names of the columns")))),
      Grid1_(named("Grid1", new QTableWidget)), Label2_(named("Label2", new QLabel)),
      List1_(named("List1", new QTreeWidget)),
      Check2_(named("Check2", new QCheckBox(tr("&Leave refused cells empty")))) {
    makeGrid();
    makeList();
    Label2_->setWordWrap(true);
    Label2_->setTextFormat(Qt::PlainText);
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check1_Click(checked); }); });
    connect(Check2_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check2_Click(checked); }); });
    OKButton_ = makeButton("OKButton", tr("&Paste"), [this] { form_.OKButton_Click(); });
    OKButton_->setDefault(true);
    auto* cancel = makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(Label1_);
    column->addWidget(Check1_);
    column->addWidget(Grid1_, 3);
    column->addWidget(Label2_);
    column->addWidget(List1_, 2);
    column->addWidget(Check2_);
    column->addLayout(makeBottomRow(OKButton_, cancel));
    resize(em() * 44, em() * 30);
}

void pasteFrmView::makeGrid() {
    Grid1_->setAccessibleName(tr("Rows to paste"));
    Grid1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1_->setTabKeyNavigation(false); // from one choice to the next and out again
    Grid1_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    Grid1_->setMinimumHeight(em() * 7);
    Grid1_->setWordWrap(false);
    Grid1_->verticalHeader()->setDefaultSectionSize(em() * 3 / 2);
    Grid1_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const auto columns = static_cast<int>(form_.Columns.size());
    Grid1_->setColumnCount(columns);
    Grid1_->setRowCount(1);
    for (int column = 0; column < columns; ++column) {
        auto* choice = new QComboBox;
        choice->setObjectName(QStringLiteral("columnCbo%1").arg(column));
        for (const std::string& name : form_.columnCbo) choice->addItem(toQt(name));
        choice->installEventFilter(this);
        connect(choice, &QComboBox::activated, this, [this, column](int entry) {
            on([&] { form_.columnCbo_Click(static_cast<std::size_t>(column), entry); });
        });
        Grid1_->setCellWidget(0, column, choice);
        columnCbo_.push_back(choice);
    }
}

void pasteFrmView::makeList() {
    List1_->setHeaderLabels({tr("Row"), tr("Column"), tr("Value"), tr("Refused because it")});
    List1_->setAccessibleName(tr("Refused cells"));
    List1_->setRootIsDecorated(false);
    List1_->setMinimumHeight(em() * 5);
    useListLook(*List1_);
}

// A choice that gets the keys may be out of sight.
bool pasteFrmView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const auto found = std::ranges::find(columnCbo_, watched);
        if (found != columnCbo_.end())
            Grid1_->scrollTo(Grid1_->model()->index(0, static_cast<int>(found - columnCbo_.begin())));
    }
    return FormView::eventFilter(watched, event);
}

QString pasteFrmView::nameOf(std::size_t column) const {
    const std::string& heading = form_.Columns[column].Heading;
    return heading.empty() ? tr("Column %1").arg(column + 1) : onOneLine(heading);
}

void pasteFrmView::showGrid() {
    const auto rows = static_cast<int>(form_.Grid1.size());
    Grid1_->setRowCount(rows + 1);
    QStringList headings;
    for (std::size_t column = 0; column < form_.Columns.size(); ++column) {
        headings.append(nameOf(column));
        columnCbo_[column]->setCurrentIndex(form_.Columns[column].ListIndex);
        columnCbo_[column]->setAccessibleName(tr("%1 goes into").arg(headings.back()));
        const bool isLeftOut = form_.Columns[column].ListIndex == 0;
        for (int row = 0; row < rows; ++row) {
            auto* item =
                new QTableWidgetItem(onOneLine(form_.Grid1[static_cast<std::size_t>(row)].Cells[column]));
            if (isLeftOut) item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            Grid1_->setItem(row + 1, static_cast<int>(column), item);
        }
    }
    Grid1_->setHorizontalHeaderLabels(headings);
    QStringList numbers(tr("Goes into"));
    for (const tables::pasteFrm::Row& row : form_.Grid1) numbers.append(QString::number(row.Number));
    Grid1_->setVerticalHeaderLabels(numbers);
    if (isVisible()) return; // a width that was chosen stays
    Grid1_->resizeColumnsToContents();
    for (int column = 0; column < Grid1_->columnCount(); ++column)
        Grid1_->setColumnWidth(
            column, std::clamp(Grid1_->columnWidth(column),
                               columnCbo_[static_cast<std::size_t>(column)]->sizeHint().width(), em() * 16));
    Grid1_->setRowHeight(0, columnCbo_.front()->sizeHint().height());
}

void pasteFrmView::showList() {
    List1_->clear();
    QList<QTreeWidgetItem*> items;
    for (const tables::pasteFrm::Refused& refused : form_.List1)
        items.append(new QTreeWidgetItem(
            {toQt(refused.Row), toQt(refused.Column), onOneLine(refused.Value), toQt(refused.Reason)}));
    List1_->addTopLevelItems(items);
    for (int column = 0; column < 3; ++column) {
        List1_->resizeColumnToContents(column);
        List1_->setColumnWidth(column, std::min(List1_->columnWidth(column) + em() / 2, em() * 16));
    }
    List1_->setVisible(!items.isEmpty());
}

void pasteFrmView::showMembers() {
    Label1_->setText(toQt(form_.Label1));
    Check1_->setChecked(form_.Check1);
    showGrid();
    Label2_->setText(toQt(form_.Label2));
    Label2_->setVisible(!form_.Label2.empty());
    showList();
    Check2_->setVisible(form_.Check2Visible);
    Check2_->setChecked(form_.Check2);
    OKButton_->setEnabled(form_.okEnabled);
}

} // namespace gui

#include "moc_pasteFrmView.cpp"
