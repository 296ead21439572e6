#include "gui/search/coloursFrmView.h"

#include "gui/records/colourLook.h"
#include "gui/widgets/qtText.h"

#include <QVBoxLayout>

namespace gui {

namespace {

QStringList entriesOf(const QComboBox& box) {
    QStringList entries;
    for (int i = 0; i < box.count(); ++i) entries << box.itemText(i);
    return entries;
}

} // namespace

coloursFrmView::coloursFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "coloursFrm", tr("Colours"), parent), values_(app), form_(app),
      List1_(named("List1", new QComboBox)), Label1_(named("Label1", new QLabel)) {
    auto* caption = new QLabel(tr("Cells of the colu&mn"));
    caption->setBuddy(List1_);
    List1_->addItems(toQt(form_.List1));
    connect(List1_, &QComboBox::activated, this,
            [this](int entry) { on([&] { form_.List1_Click(entry); }); });
    auto* top = new QHBoxLayout;
    top->addWidget(caption);
    top->addWidget(List1_, 1);

    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < rows_.size(); ++i) makeRow(*grid, i);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto* told =
        new QLabel(tr("The first rule that holds decides. A cell that is coloured has a mark as well, "
                      "and says why when the mouse rests on it. Colours are yours alone: they are "
                      "not stored in the database."));
    told->setWordWrap(true);
    told->setForegroundRole(QPalette::PlaceholderText);
    Label1_->setTextFormat(Qt::PlainText);
    Label1_->setMinimumHeight(em());

    auto* okay = makeButton("OKButton", tr("OK"), [this] { form_.OKButton_Click(); });
    okay->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addSpacing(em() / 2);
    column->addLayout(grid);
    column->addWidget(Label1_);
    column->addWidget(told);
    column->addStretch();
    column->addLayout(makeBottomRow(
        okay, makeButton("CancelButton", tr("&Cancel"), [this] { form_.CancelButton_Click(); })));
    resize(em() * 38, sizeHint().height());
}

void coloursFrmView::makeRow(QGridLayout& grid, std::size_t index) {
    const int number = static_cast<int>(index) + 1;
    const auto under = [&](const char* name, auto* widget, const QString& told) {
        widget->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index));
        widget->setAccessibleName(told.arg(number));
        return widget;
    };
    Row& row = rows_.at(index);
    row = {under("Combo1", new QComboBox, tr("Rule %1")), under("Text1", new QLineEdit, tr("Rule %1, value")),
           new QLabel(tr("and")), under("Text2", new QLineEdit, tr("Rule %1, second value")),
           under("Combo2", new QComboBox, tr("Rule %1, colour"))};
    for (int colour = 0; colour < search::colourCount; ++colour)
        row.Combo2->addItem(colourMark(colour), toQt(search::colourName(colour)));
    connect(row.Combo1, &QComboBox::activated, this,
            [this, index](int entry) { on([&] { form_.Combo1_Click(index, entry); }); });
    connect(row.Combo2, &QComboBox::activated, this,
            [this, index](int entry) { on([&] { form_.Combo2_Click(index, entry); }); });
    const int box = 2 * static_cast<int>(index);
    connect(row.Text1, &QLineEdit::textEdited, this, [this, index, box](const QString& text) {
        on([&] { form_.Text1_Change(index, values_.typed(box, columnName(), fromQt(text))); });
    });
    connect(row.Text2, &QLineEdit::textEdited, this, [this, index, box](const QString& text) {
        on([&] { form_.Text2_Change(index, values_.typed(box + 1, columnName(), fromQt(text))); });
    });
    for (QLineEdit* each : {row.Text1, row.Text2})
        connect(each, &QLineEdit::editingFinished, this, [this] {
            values_.left();
            on([] {});
        });
    int place = 0;
    for (QWidget* widget : {static_cast<QWidget*>(row.Combo1), static_cast<QWidget*>(row.Text1),
                            static_cast<QWidget*>(row.and_), static_cast<QWidget*>(row.Text2),
                            static_cast<QWidget*>(row.Combo2)}) {
        QSizePolicy kept = widget->sizePolicy();
        kept.setRetainSizeWhenHidden(true); // nothing jumps while one chooses
        widget->setSizePolicy(kept);
        grid.addWidget(widget, static_cast<int>(index), place++);
    }
}

void coloursFrmView::showRow(std::size_t index) {
    const search::coloursFrm::Row& state = form_.rows.at(index);
    const Row& row = rows_.at(index);
    if (const QStringList tests = toQt(form_.tests); entriesOf(*row.Combo1) != tests) {
        row.Combo1->clear();
        row.Combo1->addItems(tests);
    }
    row.Combo1->setCurrentIndex(state.Combo1);
    row.Combo2->setCurrentIndex(state.Combo2);
    row.Combo2->setVisible(state.Combo1 != 0);
    row.Text1->setVisible(state.bText1);
    for (QWidget* second : {static_cast<QWidget*>(row.and_), static_cast<QWidget*>(row.Text2)})
        second->setVisible(state.bText2);
    const int box = 2 * static_cast<int>(index);
    showValue(*row.Text1, box, state.Text1);
    showValue(*row.Text2, box + 1, state.Text2);
}

std::string coloursFrmView::columnName() const {
    const auto place = static_cast<std::size_t>(std::max(form_.ListIndex, 0));
    return place < form_.List1.size() ? form_.List1[place] : std::string();
}

void coloursFrmView::showValue(QLineEdit& box, int place, const std::string& value) {
    const QString text = toQt(values_.shown(place, columnName(), value));
    if (box.text() != text) box.setText(text);
}

void coloursFrmView::showMembers() {
    List1_->setCurrentIndex(form_.ListIndex);
    for (std::size_t i = 0; i < rows_.size(); ++i) showRow(i);
    Label1_->setText(toQt(form_.Label1));
    Label1_->setAccessibleName(Label1_->text());
    if (!form_.rowToFocus) return;
    QLineEdit* wrong = rows_.at(*form_.rowToFocus).Text1;
    form_.rowToFocus.reset();
    wrong->setFocus();
    wrong->selectAll();
}

} // namespace gui

#include "moc_coloursFrmView.cpp"
