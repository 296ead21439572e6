#include "gui/print/reportChoicesFrmView.h"

#include "gui/widgets/qtText.h"

#include <QGroupBox>
#include <QHBoxLayout>
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
    auto* okay = makeButton("OKButton", tr("&OK"), [this] { form_.OKButton_Click(); });
    okay->setDefault(true);
    auto* cancel = makeButton("CancelButton", tr("&Cancel"), [this] { form_.CancelButton_Click(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeSheetsFrame());
    column->addWidget(makeGroupsFrame());
    column->addWidget(noteLbl_);
    column->addWidget(told);
    column->addStretch();
    column->addLayout(makeBottomRow(okay, cancel));
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
    connect(stepList_, &QComboBox::activated, this,
            [this](int entry) { on([&] { form_.stepList_Click(entry); }); });
    auto* row = new QHBoxLayout(frame);
    row->addWidget(caption);
    row->addWidget(groupList_, 2);
    row->addWidget(stepLbl_);
    row->addWidget(stepList_, 1);
    return frame;
}

void reportChoicesFrmView::showMembers() {
    totalsChk_->setChecked(form_.totalsChk);
    groupList_->setCurrentIndex(form_.groupIndex);
    stepList_->clear();
    stepList_->addItems(toQt(form_.stepList));
    stepList_->setCurrentIndex(form_.stepList.empty() ? -1 : form_.stepIndex);
    stepList_->setEnabled(!form_.stepList.empty());
    stepLbl_->setEnabled(stepList_->isEnabled());
    noteLbl_->setText(toQt(form_.noteLbl));
}

} // namespace gui
