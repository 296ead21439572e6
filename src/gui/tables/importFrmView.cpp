#include "gui/tables/importFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QButtonGroup>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace gui {

using tables::importFrm;

namespace {

// A cell of several lines would push the other rows out of sight.
QString inOneLine(const std::string& text) {
    return toQt(text).replace(QLatin1Char('\n'), QChar(0x21B5));
}

constexpr int noteColumn = 3;

// Rows like those of other lists, but with as many lines as their note needs.
class NoteDelegate final : public QStyledItemDelegate {
public:
    explicit NoteDelegate(QTreeWidget& list) : QStyledItemDelegate(&list), list_(list) {}
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        int height = option.fontMetrics.height();
        const int air = height / 3;
        const QString text = index.data().toString();
        if (index.column() == noteColumn && !text.isEmpty()) {
            const int margin = list_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list_) + 1;
            const QRect room(0, 0, std::max(1, list_.columnWidth(noteColumn) - margin * 2), 0);
            height = std::max(height, option.fontMetrics.boundingRect(room, Qt::TextWordWrap, text).height());
        }
        return {QStyledItemDelegate::sizeHint(option, index).width(), height + air};
    }

private:
    QTreeWidget& list_;
};

} // namespace

importFrmView::importFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "importFrm", tr("Import"), parent), form_(app), Label1_(named("Label1", new QLabel)),
      Check1_(named("Check1", new QCheckBox(tr("The &first row has the names of the columns")))),
      List2_(named("List2", new QTreeWidget)), nameCaption_(new QLabel(tr("&Name:"))),
      Text1_(named("Text1", new QLineEdit)), Grid1_(named("Grid1", new QTableWidget)),
      Label2_(named("Label2", new QLabel)), List1_(named("List1", new QTreeWidget)),
      Check2_(named("Check2", new QCheckBox(tr("&Leave these cells empty")))), refused_(new QWidget) {
    auto* column = new QVBoxLayout(this);
    Label1_->setTextFormat(Qt::PlainText);
    Label1_->setWordWrap(true);
    column->addWidget(Label1_);
    column->addLayout(makeFile());
    column->addLayout(makeTarget());
    column->addLayout(makeColumns(), 3);
    column->addLayout(makeRows(), 3);
    refused_->setLayout(makeRefused());
    refused_->layout()->setContentsMargins(0, 0, 0, 0);
    column->addWidget(refused_, 3);
    OKButton_ = makeButton("OKButton", tr("&Import"), [this] { form_.OKButton_Click(); });
    OKButton_->setDefault(true);
    column->addLayout(makeBottomRow(
        OKButton_, makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); })));
    // The stretches decide, and not what each of them would like to have.
    for (QWidget* list :
         {static_cast<QWidget*>(List2_), static_cast<QWidget*>(Grid1_), static_cast<QWidget*>(List1_)})
        list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    resize(em() * 54, em() * 43);
}

void importFrmView::addChoice(QHBoxLayout& row, const char* name, const QString& caption,
                              List importFrm::*member, ListEvent chosen) {
    auto* label = new QLabel(caption);
    auto* box = named(name, new QComboBox);
    label->setBuddy(box);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(box, &QComboBox::activated, this,
            [this, chosen](int entry) { on([&] { (form_.*chosen)(entry); }); });
    row.addWidget(label);
    row.addWidget(box);
    choices_.push_back({member, label, box});
}

QLayout* importFrmView::makeFile() {
    auto* row = new QHBoxLayout;
    addChoice(*row, "sheetCbo", tr("S&heet:"), &importFrm::sheetCbo, &importFrm::sheetCbo_Click);
    addChoice(*row, "separatorCbo", tr("Se&parator:"), &importFrm::separatorCbo,
              &importFrm::separatorCbo_Click);
    addChoice(*row, "quoteCbo", tr("&Quotes:"), &importFrm::quoteCbo, &importFrm::quoteCbo_Click);
    addChoice(*row, "encodingCbo", tr("&Encoding:"), &importFrm::encodingCbo, &importFrm::encodingCbo_Click);
    row->addStretch();
    auto* column = new QVBoxLayout;
    column->addLayout(row);
    column->addWidget(Check1_);
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check1_Click(checked); }); });
    return column;
}

QLayout* importFrmView::makeTarget() {
    auto* row = new QHBoxLayout;
    auto* into = new QLabel(tr("Into:"));
    row->addWidget(into);
    auto* group = new QButtonGroup(this);
    const std::array<QString, 2> captions = {tr("a ne&w database"), tr("new records of the &open database")};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        auto* button = new QRadioButton(captions.at(i));
        button->setObjectName(QStringLiteral("Opt1_%1").arg(i));
        // Who hears it and does not see what stands in front would take it for half a sentence.
        button->setAccessibleName(into->text() + u' ' + QString(captions.at(i)).remove(u'&'));
        group->addButton(button);
        connect(button, &QRadioButton::clicked, this,
                [this, i] { on([&] { form_.Opt1_Click(static_cast<int>(i)); }); });
        row->addWidget(button);
        Opt1_.at(i) = button;
    }
    into->setBuddy(Opt1_[0]);
    row->addSpacing(em());
    addChoice(*row, "styleCbo", tr("Database st&yle:"), &importFrm::styleCbo, &importFrm::styleCbo_Click);
    row->addStretch();
    return row;
}

QLayout* importFrmView::makeColumns() {
    auto* caption = new QLabel(tr("&Columns:"));
    caption->setBuddy(List2_);
    List2_->setHeaderLabels({tr("Column"), tr("Type"), tr("Written As"), tr("Note")});
    List2_->setRootIsDecorated(false);
    List2_->setMinimumHeight(em() * 6);
    useListLook(*List2_);
    List2_->setUniformRowHeights(false);
    List2_->setWordWrap(true);
    List2_->setItemDelegate(new NoteDelegate(*List2_));
    connect(List2_->header(), &QHeaderView::sectionResized, List2_, [this](int section) {
        if (section == noteColumn) List2_->doItemsLayout();
    });
    connect(List2_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) on([&] { form_.List2_Click(List2_->indexOfTopLevelItem(item)); });
    });
    connect(List2_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        on([&] {
            form_.List2_ItemCheck(List2_->indexOfTopLevelItem(item), item->checkState(0) == Qt::Checked);
        });
    });
    nameCaption_->setBuddy(Text1_);
    connect(Text1_, &QLineEdit::textEdited, this,
            [this](const QString& text) { on([&] { form_.Text1_Change(fromQt(text)); }); });
    auto* row = new QHBoxLayout;
    row->addWidget(nameCaption_);
    row->addWidget(Text1_, 1);
    addChoice(*row, "targetCbo", tr("&Goes into:"), &importFrm::targetCbo, &importFrm::targetCbo_Click);
    addChoice(*row, "typeCbo", tr("&Type:"), &importFrm::typeCbo, &importFrm::typeCbo_Click);
    addChoice(*row, "readAsCbo", tr("Written &as:"), &importFrm::readAsCbo, &importFrm::readAsCbo_Click);
    addChoice(*row, "signCbo", tr("Currency &sign:"), &importFrm::signCbo, &importFrm::signCbo_Click);
    row->addStretch();
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(List2_, 1);
    column->addLayout(row);
    return column;
}

QLayout* importFrmView::makeRows() {
    auto* caption = new QLabel(tr("First &rows, as they will be stored:"));
    caption->setBuddy(Grid1_);
    Grid1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid1_->setTabKeyNavigation(false);
    Grid1_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    Grid1_->setWordWrap(false);
    Grid1_->setMinimumHeight(em() * 6);
    Grid1_->verticalHeader()->setDefaultSectionSize(em() * 3 / 2);
    Grid1_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(Grid1_, 1);
    return column;
}

QLayout* importFrmView::makeRefused() {
    Label2_->setWordWrap(true);
    Label2_->setTextFormat(Qt::PlainText);
    List1_->setHeaderLabels({tr("Row"), tr("Column"), tr("Value"), tr("Cannot be stored because it")});
    List1_->setAccessibleName(tr("Cells that cannot be stored"));
    List1_->setRootIsDecorated(false);
    List1_->setMinimumHeight(em() * 5);
    useListLook(*List1_);
    Command1_ = makeButton("Command1", tr("&Keep Their Columns as Text"), [this] { form_.Command1_Click(); });
    Command1_->setAutoDefault(false);
    connect(Check2_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check2_Click(checked); }); });
    auto* row = new QHBoxLayout;
    row->addWidget(Check2_);
    row->addWidget(Command1_);
    row->addStretch();
    auto* column = new QVBoxLayout;
    column->addWidget(Label2_);
    column->addWidget(List1_, 1);
    column->addLayout(row);
    return column;
}

void importFrmView::showColumns() {
    while (List2_->topLevelItemCount() > static_cast<int>(form_.List2.size()))
        delete List2_->takeTopLevelItem(List2_->topLevelItemCount() - 1);
    for (std::size_t i = 0; i < form_.List2.size(); ++i) {
        QTreeWidgetItem* item = List2_->topLevelItem(static_cast<int>(i));
        if (item == nullptr) {
            item = new QTreeWidgetItem(List2_);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                           Qt::ItemNeverHasChildren);
        }
        const importFrm::Column& column = form_.List2[i];
        item->setCheckState(0, column.Checked ? Qt::Checked : Qt::Unchecked);
        item->setText(0, inOneLine(column.Name));
        item->setText(1, toQt(column.Type));
        item->setText(2, toQt(column.ReadAs));
        item->setText(noteColumn, toQt(column.Note));
    }
    List2_->setCurrentItem(List2_->topLevelItem(form_.List2Index));
}

void importFrmView::showRows() {
    const auto rows = static_cast<int>(form_.Grid1.size());
    const auto columns = static_cast<int>(form_.List2.size());
    Grid1_->setRowCount(rows);
    Grid1_->setColumnCount(columns);
    QStringList headings, numbers;
    for (const importFrm::Column& column : form_.List2) headings.append(inOneLine(column.Name));
    Grid1_->setHorizontalHeaderLabels(headings);
    std::set<int> changed; // the others keep the widths that were chosen for them
    for (int row = 0; row < rows; ++row) {
        const importFrm::Row& shown = form_.Grid1[static_cast<std::size_t>(row)];
        numbers.append(QString::number(shown.Number));
        for (int column = 0; column < columns; ++column) {
            const auto place = static_cast<std::size_t>(column);
            const QTableWidgetItem* before = Grid1_->item(row, column);
            auto* item = new QTableWidgetItem(inOneLine(shown.Cells[place]));
            if (before == nullptr || before->text() != item->text()) changed.insert(column);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            if (shown.Refused[place]) {
                QFont struck = Grid1_->font();
                struck.setStrikeOut(true);
                item->setFont(struck);
                item->setToolTip(tr("This cell cannot be stored"));
            }
            Grid1_->setItem(row, column, item);
        }
    }
    Grid1_->setVerticalHeaderLabels(numbers);
    for (const int column : changed) {
        Grid1_->resizeColumnToContents(column);
        Grid1_->setColumnWidth(column, std::clamp(Grid1_->columnWidth(column), em() * 4, em() * 16));
    }
}

void importFrmView::showRefused() {
    List1_->clear();
    QList<QTreeWidgetItem*> items;
    for (const importFrm::Refused& refused : form_.List1)
        items.append(new QTreeWidgetItem(
            {toQt(refused.Row), toQt(refused.Column), inOneLine(refused.Value), toQt(refused.Reason)}));
    List1_->addTopLevelItems(items);
    List1_->setVisible(!items.isEmpty());
    Label2_->setText(toQt(form_.Label2));
    Label2_->setVisible(!form_.Label2.empty());
    // What it leaves free goes to the columns and the rows above.
    static_cast<QVBoxLayout*>(layout())->setStretchFactor(refused_, items.isEmpty() ? 0 : 3);
    refused_->setVisible(!form_.Label2.empty());
}

void importFrmView::showMembers() {
    Label1_->setText(toQt(form_.Label1));
    for (const Choice& choice : choices_) {
        const List& list = form_.*choice.member;
        choice.box->clear();
        for (const std::string& entry : list.entries) choice.box->addItem(toQt(entry));
        choice.box->setCurrentIndex(list.ListIndex);
        choice.box->setEnabled(list.Enabled);
        choice.box->setVisible(list.Visible);
        choice.caption->setVisible(list.Visible);
    }
    Check1_->setChecked(form_.Check1);
    Check1_->setEnabled(form_.Check1Enabled);
    Opt1_.at(static_cast<std::size_t>(form_.Opt1))->setChecked(true);
    Opt1_[1]->setEnabled(form_.Opt1Enabled);
    Text1_->setEnabled(form_.Check1Enabled);
    if (Text1_->text() != toQt(form_.Text1)) Text1_->setText(toQt(form_.Text1));
    Text1_->setVisible(form_.Text1Visible);
    nameCaption_->setVisible(form_.Text1Visible);
    showColumns();
    showRows();
    showRefused();
    Command1_->setVisible(form_.Command1Visible);
    Check2_->setVisible(form_.Check2Visible);
    Check2_->setChecked(form_.Check2);
    OKButton_->setEnabled(form_.okEnabled);
    sizeColumns();
}

void importFrmView::sizeColumns() {
    if (isSized_ || form_.List2.empty()) return;
    isSized_ = true;
    // Most notes are in one line then.
    const std::array widths = {10, 6, 10};
    for (int column = 0; column < noteColumn; ++column)
        List2_->setColumnWidth(column, em() * widths.at(static_cast<std::size_t>(column)));
    for (int column = 0; column < 3; ++column) List1_->setColumnWidth(column, em() * (column == 0 ? 4 : 10));
}

} // namespace gui

#include "moc_importFrmView.cpp"
