#include "gui/dialogs/designFrmView.h"

#include "core/translate.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

designFrmView::designFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "designFrm", tr("Database Properties"), parent), form_(app),
      fieldTxt_(named("fieldTxt", new QLineEdit)), List1_(named("List1", new QTreeWidget)),
      note_(new QLabel) {
    auto* sides = new QHBoxLayout;
    sides->addLayout(makeLeftSide());
    sides->addSpacing(em() / 2);
    sides->addLayout(makeRightSide(), 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(sides, 1);
    column->addLayout(makeBottomRow(makeButton("doneBtn", tr("&Done"), [this] { form_.doneBtn_Click(); })));
    resize(em() * 46, em() * 25);
}

QGroupBox* designFrmView::makeTypes() {
    const std::array<QString, 6> captions = {tr("Date"),   tr("Currency"), tr("Calculation"),
                                             tr("Number"), tr("Text"),     tr("Picture")};
    const std::array<QString, 6> meanings = {tr("A day: 12/31/2024"),
                                             tr("An amount of money: $1,234.50"),
                                             tr("Worked out from other columns by an expression"),
                                             tr("A number, or a serial number that counts by itself"),
                                             tr("Any words, also numbers that begin with 0"),
                                             tr("A photo or drawing: a .jpg or .gif file")};
    auto* frame = new QGroupBox(tr(" Type "));
    auto* grid = new QGridLayout(frame);
    for (std::size_t i = 0; i < typeOpt_.size(); ++i) {
        const int index = static_cast<int>(i);
        typeOpt_[i] = new QRadioButton(captions[i]);
        typeOpt_[i]->setObjectName(QStringLiteral("typeOpt%1").arg(index));
        typeOpt_[i]->setToolTip(meanings[i]);
        typeOpt_[i]->setAccessibleDescription(meanings[i]);
        connect(typeOpt_[i], &QRadioButton::clicked, this,
                [this, index] { on([&] { form_.typeOpt_Click(index); }); });
        grid->addWidget(typeOpt_[i], index / 2, index % 2);
    }
    return frame;
}

QLayout* designFrmView::makeLeftSide() {
    auto* caption = new QLabel(tr("Column Name:"));
    caption->setBuddy(fieldTxt_);
    fieldTxt_->setToolTip(tr("Name of column to create"));
    fieldTxt_->installEventFilter(this);
    connect(fieldTxt_, &QLineEdit::textEdited, this, [this](const QString& text) {
        on([&] { form_.fieldTxt_Change(fromQt(text)); });
        // After every change the caret stands at the end, wherever the change was. It is wanted so.
        fieldTxt_->end(false);
    });
    auto* add = makeButton("addBtn", tr("&Add"), [this] { form_.addBtn_Click(); });
    add->setToolTip(tr("Add column to list"));
    add->setDefault(true); // Enter in the name box
    auto* change = makeButton("changeBtn", tr("&Change Name"), [this] { form_.changeBtn_Click(); });
    auto* remove = makeButton("deleteBtn", tr("&Remove"), [this] { form_.deleteBtn_Click(); });
    remove->setToolTip(tr("Delete selected column from list"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {add, change, remove}) {
        // On a small screen they are narrower than buttons are elsewhere.
        button->setMinimumWidth(fontMetrics().horizontalAdvance(button->text()) + em() / 2);
        buttons->addWidget(button);
    }
    auto* explanation =
        new QLabel(tr("  To set entry options, simply double click on a row in the list to the right.  You "
                      "can only set options for date and number columns."));
    explanation->setWordWrap(true);

    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(fieldTxt_);
    column->addWidget(makeTypes());
    column->addLayout(buttons);
    column->addSpacing(em() / 2);
    column->addWidget(explanation);
    column->addStretch(1);
    return column;
}

QLayout* designFrmView::makeRightSide() {
    auto* caption = new QLabel(tr("Current Columns:"));
    caption->setBuddy(List1_);
    List1_->setHeaderLabels({tr("Column Name"), tr("Type"), tr("Auto-Date"), tr("Auto-Serial")});
    useListLook(*List1_);
    QHeaderView* header = List1_->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    // The headings stand whole, also beside a scroll bar, and so does the longest type.
    int longestType = 0; // "Calculation", where it is called so
    for (const QString& type :
         {tr("Date"), tr("Currency"), tr("Calculation"), tr("Number"), tr("Text"), tr("Picture")})
        longestType = std::max(longestType, fontMetrics().horizontalAdvance(type) + em());
    int width = header->sectionSizeHint(0) + List1_->verticalScrollBar()->sizeHint().width() +
                2 * List1_->frameWidth();
    for (const int section : {1, 2, 3}) {
        header->resizeSection(section,
                              std::max(header->sectionSizeHint(section), section == 1 ? longestType : 0));
        width += header->sectionSize(section);
    }
    List1_->setMinimumWidth(std::max(width, em() * 22));
    List1_->installEventFilter(this);
    connect(List1_, &QTreeWidget::itemSelectionChanged, this, [this] {
        const QList<QTreeWidgetItem*> chosen = List1_->selectedItems();
        on([&] {
            form_.selectedRow = chosen.isEmpty() ? -1 : List1_->indexOfTopLevelItem(chosen.constFirst());
        });
    });
    connect(List1_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        on([&] { form_.List1_DblClick(List1_->indexOfTopLevelItem(item)); });
    });
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(List1_, 1);
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    column->addWidget(note_);
    return column;
}

// The focus goes back to the name with each type that is chosen, so that the keys choose it from there.
bool designFrmView::chooseType(int key) {
    if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
    const int last = static_cast<int>(typeOpt_.size()) - (form_.pictureVisible ? 1 : 2);
    const int wanted = form_.typeOpt + (key == Qt::Key_Up ? -1 : 1);
    if (wanted >= 0 && wanted <= last) on([&] { form_.typeOpt_Click(wanted); });
    return true;
}

// Enter on a row is the keyboard's double click.
bool designFrmView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == fieldTxt_ && event->type() == QEvent::KeyPress &&
        chooseType(static_cast<QKeyEvent*>(event)->key()))
        return true;
    if (watched == List1_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            on([this] { form_.List1_DblClick(form_.selectedRow); });
            return true;
        }
    }
    return FormView::eventFilter(watched, event);
}

void designFrmView::showRows() {
    const int count = static_cast<int>(form_.List1.size());
    const bool grows = List1_->topLevelItemCount() < count;
    while (List1_->topLevelItemCount() > count) delete List1_->takeTopLevelItem(count);
    while (List1_->topLevelItemCount() < count) List1_->addTopLevelItem(new QTreeWidgetItem);
    for (int row = 0; row < count; ++row) {
        const calc::designFrm::Row& shown = form_.List1[static_cast<std::size_t>(row)];
        QTreeWidgetItem* item = List1_->topLevelItem(row);
        const std::array<const std::string*, 4> texts = {&shown.Name, &shown.Type, &shown.AutoDate,
                                                         &shown.AutoSerial};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const int section = static_cast<int>(i);
            item->setText(section, toQt(i == 0 ? *texts[i] : core::tr(*texts[i])));
            // What cannot be set for the column steps back.
            item->setData(section, Qt::ForegroundRole,
                          *texts[i] == "NA" && section >= 2
                              ? QVariant(palette().brush(QPalette::Disabled, QPalette::Text))
                              : QVariant());
        }
    }
    List1_->setCurrentItem(List1_->topLevelItem(form_.selectedRow));
    if (grows) List1_->scrollToItem(List1_->topLevelItem(count - 1));
}

void designFrmView::showMembers() {
    const QString name = toQt(form_.fieldTxt);
    if (fieldTxt_->text() != name) fieldTxt_->setText(name);
    for (std::size_t i = 0; i < typeOpt_.size(); ++i)
        typeOpt_[i]->setChecked(static_cast<int>(i) == form_.typeOpt);
    typeOpt_.back()->setVisible(form_.pictureVisible);
    showRows();
    note_->setText(toQt(form_.emptyCalculations()));
    note_->setVisible(!note_->text().isEmpty());
    if (!form_.fieldTxtHasFocus) return;
    form_.fieldTxtHasFocus = false;
    fieldTxt_->setFocus();
}

} // namespace gui

#include "moc_designFrmView.cpp"
