#include "gui/search/setValuesFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/columnLists.h"
#include "gui/widgets/qtText.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHeaderView>
#include <QVBoxLayout>

namespace gui {

setValuesFrmView::setValuesFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "setValuesFrm", tr("Set Values"), parent), app_(app), values_(app), form_(app),
      List1_(named("List1", new QComboBox)), Text1_(named("Text1", new QLineEdit)),
      Label1_(named("Label1", new QLabel)), Label2_(named("Label2", new QLabel)),
      preview_(named("preview", new QTreeWidget)) {

    auto* column = new QVBoxLayout(this);
    column->addLayout(
        makeColumnChoice(*List1_, form_.List1, [this](int entry) { on([&] { form_.List1_Click(entry); }); }));
    column->addWidget(makeValue());
    Opt1_ = named("Frame2", new ScopeButtons(tr("The se&lected records"), form_.Opt1,
                                             [this](int scope) { on([&] { form_.Opt1_Click(scope); }); }));
    column->addWidget(Opt1_);
    column->addWidget(makePreview(), 1);
    OKButton_ = makeButton("OKButton", tr("&Set"), [this] { form_.OKButton_Click(); });
    OKButton_->setDefault(true);
    column->addLayout(makeBottomRow(
        OKButton_, makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); })));
    resize(em() * 30, em() * 34);
}

QWidget* setValuesFrmView::makeValue() {
    auto* frame = named("Frame1", new QGroupBox(tr("New Contents")));
    valueOpt_ = named("Opt2_0", new QRadioButton(tr("The same &value for all")));
    expressionOpt_ = named("Opt2_1", new QRadioButton(tr("&Worked out from the columns of each record")));
    const std::array<QRadioButton*, 2> buttons = {valueOpt_, expressionOpt_};
    auto* group = new QButtonGroup(frame);
    for (QRadioButton* button : buttons) {
        group->addButton(button);
        connect(button, &QRadioButton::clicked, this,
                [this, button] { on([&] { form_.Opt2_Click(button == expressionOpt_); }); });
    }
    connect(Text1_, &QLineEdit::textEdited, this, [this](const QString& text) {
        on([&] { form_.Text1_Change(values_.typed(0, columnName(), fromQt(text))); });
    });
    connect(Text1_, &QLineEdit::editingFinished, this, [this] {
        values_.left();
        on([this] { form_.Text1_LostFocus(); });
    });
    auto* caption = new QLabel(tr("Set &to:"));
    caption->setBuddy(Text1_);
    auto* typed = new QHBoxLayout;
    typed->addWidget(caption);
    typed->addWidget(Text1_, 1);
    Label2_->setTextFormat(Qt::PlainText);
    Label2_->setWordWrap(true);
    Label2_->setMinimumHeight(em() * 5 / 2); // the window does not jump while one types
    Label2_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(valueOpt_);
    column->addWidget(expressionOpt_);
    column->addLayout(typed);
    column->addWidget(Label2_);
    return frame;
}

QWidget* setValuesFrmView::makePreview() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    QFont bold = Label1_->font();
    bold.setBold(true);
    Label1_->setFont(bold);
    Label1_->setTextFormat(Qt::PlainText);
    Label1_->setBuddy(preview_);
    preview_->setHeaderLabels({tr("Record"), tr("Now"), tr("Then")});
    preview_->setAccessibleName(tr("What the first records become"));
    preview_->setSelectionMode(QAbstractItemView::SingleSelection);
    useListLook(*preview_);
    preview_->header()->setSectionResizeMode(QHeaderView::Stretch);
    preview_->setMinimumHeight(em() * 10);
    column->addWidget(Label1_);
    column->addWidget(preview_, 1);
    return part;
}

// Whose values are typed; none where it is an expression, which has no form but its own.
std::string setValuesFrmView::columnName() const {
    return form_.bExpression || form_.ListIndex < 0
               ? std::string()
               : form_.List1.at(static_cast<std::size_t>(form_.ListIndex));
}

void setValuesFrmView::showPreview() {
    preview_->clear();
    const std::string column =
        form_.ListIndex < 0 ? "" : form_.List1.at(static_cast<std::size_t>(form_.ListIndex));
    for (const search::setValuesFrm::Row& row : form_.preview) {
        auto* item = new QTreeWidgetItem(preview_,
                                         {toQt(row.Record), toQt(entry::shownValue(app_, column, row.Before)),
                                          toQt(entry::shownValue(app_, column, row.After))});
        for (int place = 0; place < 3; ++place) item->setToolTip(place, item->text(place));
    }
}

void setValuesFrmView::showMembers() {
    List1_->setCurrentIndex(form_.ListIndex);
    (form_.bExpression ? expressionOpt_ : valueOpt_)->setChecked(true);
    Text1_->setPlaceholderText(form_.bExpression ? tr("Price * 1.1, with a blank beside each name")
                                                 : QString());
    Opt1_->choose(form_.scope);
    Label1_->setText(toQt(form_.Label1));
    Label2_->setText(toQt(form_.Label2));
    const QString text = toQt(values_.shown(0, columnName(), form_.Text1.Text));
    if (Text1_->text() != text) {
        Text1_->setText(text);
        if (form_.Text1.SelStart >= 0) Text1_->setCursorPosition(form_.Text1.SelStart);
    }
    OKButton_->setEnabled(form_.OKButtonEnabled);
    showPreview();
}

} // namespace gui

#include "moc_setValuesFrmView.cpp"
