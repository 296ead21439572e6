#include "gui/print/reportChoicesFrmView.h"

#include "gui/widgets/qtText.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace gui {

reportChoicesFrmView::reportChoicesFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "reportChoicesFrm", tr("Report Choices"), parent), form_(app),
      totalsChk_(
          named("totalsChk", new QCheckBox(tr("&Totals carried and brought forward from sheet to sheet")))),
      groupList_(named("groupList", new QComboBox)), stepList_(named("stepList", new QComboBox)),
      stepLbl_(new QLabel(tr("&by"))), noteLbl_(named("noteLbl", new QLabel)) {
    noteLbl_->setWordWrap(true);
    noteLbl_->setTextFormat(Qt::PlainText);
    noteLbl_->setMinimumHeight(2 * em());
    noteLbl_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* told = new QLabel(tr("These choices are yours alone: they are kept for this file, but not stored "
                               "in the database."));
    told->setWordWrap(true);
    told->setForegroundRole(QPalette::PlaceholderText);
    OKButton_ = makeButton("OKButton", tr("&OK"), [this] { form_.OKButton_Click(); });
    OKButton_->setDefault(true);
    auto* cancel = makeButton("CancelButton", tr("&Cancel"), [this] { form_.CancelButton_Click(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeSheetsFrame());
    column->addWidget(makeGroupsFrame());
    column->addWidget(noteLbl_);
    column->addWidget(told);
    column->addStretch();
    column->addLayout(makeBottomRow(OKButton_, cancel));
    resize(em() * 28, sizeHint().height());
}

QCheckBox* reportChoicesFrmView::makeCheck(const char* name, const QString& caption, bool& member) {
    auto* check = named(name, new QCheckBox(caption));
    check->setChecked(member);
    connect(check, &QCheckBox::clicked, this,
            [this, &member](bool checked) { on([&] { member = checked; }); });
    return check;
}

QWidget* reportChoicesFrmView::makeSheetsFrame() {
    auto* frame = new QGroupBox(tr("On Each Sheet"));
    auto* rows = new QVBoxLayout(frame);
    rows->addWidget(makeCheck("headsChk", tr("Title and column &headings"), form_.headsChk));
    rows->addWidget(makeCheck("pagesChk", tr("&Page numbers, as 3 of 8"), form_.pagesChk));
    rows->addWidget(makeCheck("dateChk", tr("&Date of the print"), form_.dateChk));
    rows->addWidget(totalsChk_);
    connect(totalsChk_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.totalsChk_Click(checked); }); });
    return frame;
}

QWidget* reportChoicesFrmView::makeGroupsFrame() {
    auto* frame = new QGroupBox(tr("Groups With Subtotals"));
    auto* caption = new QLabel(tr("&Group by"));
    caption->setBuddy(groupList_);
    stepLbl_->setBuddy(stepList_);
    groupList_->addItems(toQt(form_.groupList));
    groupList_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(groupList_, &QComboBox::activated, this,
            [this](int entry) { on([&] { form_.groupList_Click(entry); }); });
    stepList_->setInsertPolicy(QComboBox::NoInsert);
    connect(stepList_, &QComboBox::activated, this,
            [this](int entry) { on([&] { form_.stepList_Click(entry); }); });
    connect(stepList_, &QComboBox::editTextChanged, this,
            [this](const QString& text) { on([&] { form_.stepTxt_Change(fromQt(text)); }); });
    auto* row = new QHBoxLayout(frame);
    row->addWidget(caption);
    row->addWidget(groupList_, 2);
    row->addWidget(stepLbl_);
    row->addWidget(stepList_, 1);
    return frame;
}

// Only the user's typing is to be told to the form.
void reportChoicesFrmView::showSteps() {
    const QSignalBlocker blocker(stepList_);
    const QStringList steps = toQt(form_.stepList);
    if (stepsShown_ != steps || stepList_->isEditable() != form_.bFreeSteps) {
        stepsShown_ = steps;
        stepList_->clear();
        stepList_->setEditable(form_.bFreeSteps);
        stepList_->addItems(steps);
        constexpr int longest = 20; // letters of a step
        if (form_.bFreeSteps) stepList_->lineEdit()->setMaxLength(longest);
    }
    if (!form_.bFreeSteps) return stepList_->setCurrentIndex(steps.isEmpty() ? -1 : form_.stepIndex);
    if (stepList_->currentText() != toQt(form_.stepTxt)) stepList_->setEditText(toQt(form_.stepTxt));
}

void reportChoicesFrmView::showMembers() {
    totalsChk_->setChecked(form_.totalsChk);
    groupList_->setCurrentIndex(form_.groupIndex);
    showSteps();
    stepList_->setEnabled(!form_.stepList.empty());
    stepLbl_->setEnabled(stepList_->isEnabled());
    noteLbl_->setText(toQt(form_.noteLbl));
    OKButton_->setEnabled(form_.OKButtonEnabled);
}

} // namespace gui

#include "moc_reportChoicesFrmView.cpp"
