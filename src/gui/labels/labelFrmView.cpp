#include "gui/labels/labelFrmView.h"

#include "core/translate.h"
#include "gui/dialogs/dialogFit.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>

namespace gui {

using labels::labelFrm;

namespace {

QLabel* wrapped(const char* name) {
    auto* label = named(name, new QLabel);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* captionOf(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

// A page that has less room than its parts need is scrolled, with large letters or on a small screen.
QScrollArea* scrolled(QWidget* page) {
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    page->setAutoFillBackground(false); // nor the viewport: it looks as the rest of the dialog does
    area->viewport()->setAutoFillBackground(false);
    // The Tab key sees to it by itself; mnemonics do not.
    QObject::connect(qApp, &QApplication::focusChanged, area, [area, page](QWidget*, QWidget* now) {
        if (now != nullptr && page->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton)
            area->ensureWidgetVisible(now);
    });
    return area;
}

QString millimetres(double twips) {
    constexpr int digits = 1;
    QString text = QString::number(labels::millimetresOf(twips), 'f', digits);
    return text.endsWith(QLatin1String(".0")) ? text.chopped(2) : text;
}

QString sizeOf(const labels::LabelStock& stock) {
    return millimetres(stock.width) + QStringLiteral(" \u00D7 ") + millimetres(stock.height);
}

} // namespace

labelFrmView::labelFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "labelFrm", tr("Label Wizard"), parent), form_(app),
      stepLbl_(named("stepLbl", new QLabel)), pages_(new QStackedWidget), faultLbl_(wrapped("faultLbl")),
      searchTxt_(named("searchTxt", new QLineEdit)), List1_(named("List1", new QTreeWidget)),
      sheet_(named("sheetPic", new LabelSheetPicture)), sheetLbl_(wrapped("sheetLbl")),
      linesTxt_(named("linesTxt", new QPlainTextEdit)), columnList_(named("columnList", new QListWidget)),
      sizeLbl_(wrapped("sizeLbl")), preview_(named("previewPic", new LabelPreview(form_.preview))),
      recordLbl_(named("recordLbl", new QLabel)), startTxt_(named("startTxt", new QSpinBox)),
      copiesTxt_(named("copiesTxt", new QSpinBox)), aboutLbl_(wrapped("aboutLbl")),
      exactLbl_(wrapped("exactLbl")), used_(named("usedPic", new LabelSheetPicture)) {
    QFont bold = font();
    bold.setBold(true);
    stepLbl_->setFont(bold);
    QSize needed;
    for (QWidget* page : {makeSheetPage(), makeTextPage(), makePrintPage()}) {
        page->layout()->setContentsMargins(0, 0, 0, 0);
        pages_->addWidget(scrolled(page));
        needed = needed.expandedTo(page->minimumSizeHint());
    }
    auto* column = new QVBoxLayout(this);
    column->addWidget(stepLbl_);
    column->addWidget(pages_, 1);
    column->addWidget(faultLbl_);
    column->addLayout(makeButtons());
    const QSize around(em() * 3, em() * 9); // the pages: margins, heading, fault and buttons
    resize((needed + around).expandedTo({em() * 56, em() * 36}).boundedTo(roomOnScreen(*this)));
}

QLayout* labelFrmView::makeButtons() {
    backBtn_ = makeButton("backBtn", tr("< &Back"), [this] { form_.backBtn_Click(); });
    nextBtn_ = makeButton("nextBtn", tr("&Next >"), [this] { form_.nextBtn_Click(); });
    auto* cancel = makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    for (QPushButton* button : {backBtn_, cancel}) button->setAutoDefault(false);
    nextBtn_->setDefault(true);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(backBtn_);
    row->addWidget(nextBtn_);
    row->addSpacing(em() / 2);
    row->addWidget(cancel);
    return row;
}

QComboBox* labelFrmView::makeChoice(const char* name, const std::vector<std::string>& entries,
                                    void (labelFrm::*chosen)(int)) {
    auto* box = named(name, new QComboBox);
    for (const std::string& entry : entries) box->addItem(toQt(entry));
    connect(box, &QComboBox::activated, this,
            [this, chosen](int entry) { on([&] { (form_.*chosen)(entry); }); });
    return box;
}

QCheckBox* labelFrmView::makeCheck(const char* name, const QString& caption,
                                   void (labelFrm::*checked)(bool)) {
    auto* box = named(name, new QCheckBox(caption));
    connect(box, &QCheckBox::clicked, this,
            [this, checked](bool value) { on([&] { (form_.*checked)(value); }); });
    return box;
}

QWidget* labelFrmView::makeSheetPage() {
    searchTxt_->setClearButtonEnabled(true);
    searchTxt_->setPlaceholderText(tr("Maker, number, words, or a size: 99.1 x 38.1"));
    searchTxt_->setMaxLength(200);
    connect(searchTxt_, &QLineEdit::textChanged, this,
            [this](const QString& text) { on([&] { form_.searchTxt_Change(fromQt(text)); }); });
    List1_->setHeaderLabels({tr("Labels"), tr("Kind"), tr("Size in mm"), tr("On a sheet"), tr("Paper")});
    List1_->setAccessibleName(tr("Sheets of labels"));
    List1_->setRootIsDecorated(false);
    List1_->setUniformRowHeights(true);
    useListLook(*List1_);
    connect(List1_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) on([&] { form_.List1_Click(List1_->indexOfTopLevelItem(item)); });
    });
    connect(List1_, &QTreeWidget::itemActivated, this, [this] { nextBtn_->click(); });
    ownChk_ = makeCheck("ownChk", tr("&Other size"), &labelFrm::ownChk_Click);
    auto* search = new QHBoxLayout;
    search->addWidget(captionOf(tr("&Find:"), searchTxt_));
    search->addWidget(searchTxt_, 1);
    auto* left = new QVBoxLayout;
    left->addLayout(search);
    left->addWidget(List1_, 1);
    left->addWidget(ownChk_);
    left->addWidget(makeOwnSize());
    auto* right = new QVBoxLayout;
    sheet_->setMinimumWidth(em() * 13);
    right->addWidget(sheet_, 1);
    right->addWidget(sheetLbl_);
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->addLayout(left, 4);
    row->addLayout(right, 1);
    return page;
}

QWidget* labelFrmView::makeOwnSize() {
    const std::array<QString, labelFrm::OwnBoxes> captions = {
        tr("&Width:"),       tr("&Height:"),     tr("&Labels across:"), tr("Labels &down:"),
        tr("L&eft margin:"), tr("&Top margin:"), tr("Gap a&cross:"),    tr("&Gap down:")};
    ownFrame_ = new QWidget;
    auto* grid = new QGridLayout(ownFrame_);
    grid->setContentsMargins(em(), 0, 0, 0);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        auto* box = new QLineEdit;
        box->setObjectName(QStringLiteral("ownTxt_%1").arg(i));
        box->setMaxLength(20);
        box->setMinimumWidth(em() * 4); // "215.875"
        const int index = static_cast<int>(i);
        connect(box, &QLineEdit::textEdited, this, [this, index](const QString& text) {
            on([&] { form_.ownTxt_Change(index, fromQt(text)); });
        });
        ownTxt_.at(i) = box;
        constexpr int columns = 3; // caption, box, unit
        const int row = index / 2, column = index % 2 * columns;
        const bool isCount = i == labelFrm::Columns || i == labelFrm::Rows;
        grid->addWidget(captionOf(captions.at(i), box), row, column);
        grid->addWidget(box, row, column + 1);
        grid->addWidget(new QLabel(isCount ? QString() : tr("mm")), row, column + 2);
    }
    paperCbo_ = makeChoice("paperCbo", form_.paperCbo, &labelFrm::paperCbo_Click);
    grid->addWidget(captionOf(tr("&Paper:"), paperCbo_), 4, 0);
    grid->addWidget(paperCbo_, 4, 1, 1, 4);
    return ownFrame_;
}

QLayout* labelFrmView::makeColumns() {
    for (const std::string& column : form_.columnList) columnList_->addItem(toQt(column));
    columnList_->setCurrentRow(0);
    connect(columnList_, &QListWidget::itemActivated, this, [this] { insertColumn(true); });
    auto* line = named("lineBtn", new QPushButton(tr("&Add Line")));
    auto* here = named("insertBtn", new QPushButton(tr("&Insert")));
    line->setToolTip(tr("Put the column on a line of its own"));
    here->setToolTip(tr("Put the column where the text cursor is"));
    connect(line, &QPushButton::clicked, this, [this] { insertColumn(true); });
    connect(here, &QPushButton::clicked, this, [this] { insertColumn(false); });
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {line, here}) {
        button->setAutoDefault(false);
        button->setEnabled(!form_.columnList.empty());
        buttons->addWidget(button);
    }
    auto* column = new QVBoxLayout;
    column->addWidget(captionOf(tr("C&olumns:"), columnList_));
    column->addWidget(columnList_, 1);
    column->addLayout(buttons);
    return column;
}

void labelFrmView::insertColumn(bool bNewLine) {
    const QListWidgetItem* item = columnList_->currentItem();
    if (item == nullptr) return;
    const QString piece = QLatin1Char('{') + item->text() + QLatin1Char('}');
    if (!bNewLine) {
        linesTxt_->insertPlainText(piece);
    } else {
        const QString text = linesTxt_->toPlainText();
        linesTxt_->setPlainText(text.isEmpty() || text.endsWith(QLatin1Char('\n'))
                                    ? text + piece
                                    : text + QLatin1Char('\n') + piece);
        linesTxt_->moveCursor(QTextCursor::End);
    }
    columnList_->setCurrentRow(std::min(columnList_->currentRow() + 1, columnList_->count() - 1));
}

QWidget* labelFrmView::makeTextPage() {
    linesTxt_->setTabChangesFocus(true);
    linesTxt_->setLineWrapMode(QPlainTextEdit::NoWrap);
    linesTxt_->setAccessibleName(tr("Lines of the label"));
    connect(linesTxt_, &QPlainTextEdit::textChanged, this,
            [this] { on([&] { form_.linesTxt_Change(fromQt(linesTxt_->toPlainText())); }); });
    auto* lines = new QVBoxLayout;
    lines->addWidget(captionOf(tr("&Lines of the label, with columns in braces:"), linesTxt_));
    lines->addWidget(linesTxt_, 1);
    auto* top = new QHBoxLayout;
    top->addLayout(makeColumns(), 1);
    top->addLayout(lines, 2);
    sizeCbo_ = makeChoice("sizeCbo", form_.sizeCbo, &labelFrm::sizeCbo_Click);
    pictureCbo_ = makeChoice("pictureCbo", form_.pictureCbo, &labelFrm::pictureCbo_Click);
    centredChk_ = makeCheck("centredChk", tr("C&entred from top to bottom"), &labelFrm::centredChk_Click);
    auto* choices = new QHBoxLayout;
    choices->addWidget(captionOf(tr("&Text size:"), sizeCbo_));
    choices->addWidget(sizeCbo_);
    choices->addSpacing(em());
    choices->addWidget(captionOf(tr("&Picture:"), pictureCbo_));
    choices->addWidget(pictureCbo_);
    choices->addSpacing(em());
    choices->addWidget(centredChk_);
    choices->addStretch();
    pictureCbo_->setEnabled(form_.pictureCbo.size() > 1);
    auto* before = makeButton("previousBtn", tr("P&revious Record"), [this] { form_.recordBtn_Click(-1); });
    auto* after = makeButton("followingBtn", tr("Ne&xt Record"), [this] { form_.recordBtn_Click(1); });
    auto* records = new QHBoxLayout;
    records->addWidget(recordLbl_);
    records->addWidget(sizeLbl_, 1);
    for (QPushButton* button : {before, after}) {
        button->setAutoDefault(false);
        records->addWidget(button);
    }
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->addLayout(top, 3);
    column->addLayout(choices);
    column->addWidget(preview_, 4);
    column->addLayout(records);
    return page;
}

QWidget* labelFrmView::makePrintPage() {
    connect(startTxt_, &QSpinBox::valueChanged, this,
            [this](int place) { on([&] { form_.startTxt_Change(place); }); });
    connect(used_, &LabelSheetPicture::startChosen, this,
            [this](int place) { on([&] { form_.startTxt_Change(place); }); });
    copiesTxt_->setRange(1, labels::LabelChoice::mostCopies);
    connect(copiesTxt_, &QSpinBox::valueChanged, this,
            [this](int copies) { on([&] { form_.copiesTxt_Change(copies); }); });
    copiesCbo_ = makeChoice("copiesCbo", form_.copiesCbo, &labelFrm::copiesCbo_Click);
    outlinesChk_ = makeCheck("outlinesChk", tr("With &outlines, for a test on plain paper"),
                             &labelFrm::outlinesChk_Click);
    closedUpChk_ =
        makeCheck("closedUpChk", tr("&Leave out empty lines and gaps"), &labelFrm::closedUpChk_Click);
    auto* fields = new QFormLayout;
    fields->addRow(tr("&Start at label:"), startTxt_);
    auto* hint = wrapped("startLbl");
    hint->setText(tr("Or click the first free label of a sheet that you have used before."));
    fields->addRow(QString(), hint);
    fields->addRow(tr("&How many:"), copiesCbo_);
    fields->addRow(tr("&Copies:"), copiesTxt_);
    auto* left = new QVBoxLayout;
    left->addLayout(fields);
    left->addWidget(closedUpChk_);
    left->addWidget(outlinesChk_);
    left->addSpacing(em());
    left->addWidget(aboutLbl_);
    left->addWidget(exactLbl_);
    left->addStretch();
    used_->setMinimumWidth(em() * 18);
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->addLayout(left, 1);
    row->addWidget(used_, 1);
    return page;
}

void labelFrmView::fillStocks() {
    if (findingsShown_ == form_.findings) return;
    findingsShown_ = form_.findings;
    List1_->clear();
    QList<QTreeWidgetItem*> rows;
    for (const labels::LabelStock* stock : form_.List1) {
        const QString count =
            QString::number(stock->columns) + QStringLiteral(" \u00D7 ") + QString::number(stock->rows);
        rows << new QTreeWidgetItem({toQt(stock->maker + " " + stock->number), toQt(stock->kind),
                                     sizeOf(*stock), count, toQt(core::tr(stock->paper))});
    }
    List1_->addTopLevelItems(rows);
    for (int column = 0; column < List1_->columnCount(); ++column) List1_->resizeColumnToContents(column);
}

void labelFrmView::showSheetPage() {
    fillStocks();
    if (form_.ListIndex >= 0 && List1_->indexOfTopLevelItem(List1_->currentItem()) != form_.ListIndex) {
        List1_->setCurrentItem(List1_->topLevelItem(form_.ListIndex));
        List1_->scrollToItem(List1_->currentItem());
    }
    searchTxt_->setEnabled(!form_.bOwnSize);
    List1_->setEnabled(!form_.bOwnSize);
    ownChk_->setChecked(form_.bOwnSize);
    ownFrame_->setVisible(form_.bOwnSize);
    for (std::size_t i = 0; i < ownTxt_.size(); ++i)
        if (ownTxt_.at(i)->text() != toQt(form_.ownTxt.at(i)))
            ownTxt_.at(i)->setText(toQt(form_.ownTxt.at(i)));
    paperCbo_->setCurrentIndex(form_.paperIndex);
    sheet_->show(form_.stock);
    sheetLbl_->clear();
    if (!form_.stock) return;
    const labels::LabelStock& stock = *form_.stock;
    QString told = toQt(core::tr("One label of %1 mm on %2", "%n labels of %1 mm on %2", stock.perSheet()))
                       .arg(sizeOf(stock), toQt(core::tr(stock.paper)));
    if (stock.columns > 1)
        told +=
            u'\n' + tr("Gap across: %1 mm").arg(millimetres(std::max(stock.columnPitch - stock.width, 0.0)));
    if (stock.rows > 1)
        told += u'\n' + tr("Gap down: %1 mm").arg(millimetres(std::max(stock.rowPitch - stock.height, 0.0)));
    sheetLbl_->setText(told);
}

void labelFrmView::showTextPage() {
    if (linesTxt_->toPlainText() != toQt(form_.linesTxt)) linesTxt_->setPlainText(toQt(form_.linesTxt));
    pictureCbo_->setCurrentIndex(form_.pictureIndex);
    sizeCbo_->setCurrentIndex(form_.sizeIndex);
    centredChk_->setChecked(form_.bCentred);
    recordLbl_->setText(toQt(form_.recordLbl));
    sizeLbl_->setText(toQt(form_.sizeLbl));
    if (form_.stock) preview_->show(form_.stock->shape);
}

void labelFrmView::showPrintPage() {
    startTxt_->setRange(1, form_.stock->perSheet());
    startTxt_->setValue(form_.choice.start);
    used_->show(form_.stock, form_.choice.start);
    copiesTxt_->setValue(form_.choice.copies);
    copiesTxt_->setEnabled(form_.copiesIndex == 0);
    copiesCbo_->setCurrentIndex(form_.copiesIndex);
    outlinesChk_->setChecked(form_.choice.bOutlines);
    closedUpChk_->setChecked(form_.choice.bClosedUp);
    aboutLbl_->setText(toQt(form_.aboutLbl));
    exactLbl_->setText(toQt(form_.exactLbl));
}

// A page that comes to the front has the keyboard where its work begins.
void labelFrmView::focusPage() {
    if (pageShown_ == form_.page) return;
    pageShown_ = form_.page;
    const std::array<QWidget*, labelFrm::Pages> firsts = {searchTxt_, linesTxt_, startTxt_};
    firsts.at(static_cast<std::size_t>(form_.page))->setFocus();
}

void labelFrmView::showMembers() {
    const std::array<QString, labelFrm::Pages> steps = {tr("1 of 3: Which labels?"),
                                                        tr("2 of 3: What stands on a label?"),
                                                        tr("3 of 3: How are they printed?")};
    stepLbl_->setText(steps.at(static_cast<std::size_t>(form_.page)));
    pages_->setCurrentIndex(form_.page);
    if (form_.page == labelFrm::SheetPage) showSheetPage();
    if (form_.page == labelFrm::TextPage) showTextPage();
    if (form_.page == labelFrm::PrintPage) showPrintPage();
    faultLbl_->setText(toQt(form_.fault));
    backBtn_->setEnabled(form_.backEnabled);
    nextBtn_->setEnabled(form_.nextEnabled);
    nextBtn_->setText(form_.page == labelFrm::PrintPage ? tr("&Finish") : tr("&Next >"));
    focusPage();
}

} // namespace gui

#include "moc_labelFrmView.cpp"
