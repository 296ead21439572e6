#include "gui/search/searchFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/widgets/qtText.h"

#include <QFocusEvent>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace gui {

namespace {

QLabel* boldLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

// Another window in front, or a menu, does not take the focus from a box for good.
bool leavesTheBox(const QFocusEvent& event) {
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason &&
           event.reason() != Qt::MenuBarFocusReason;
}

} // namespace

searchFrmView::searchFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : QDialog(parent), events_(events), values_(app), form_(app) {
    setObjectName(QStringLiteral("searchFrm"));
    setWindowTitle(tr("Search Data"));
    auto* groups = new QHBoxLayout;
    for (int group = 0; group < groupCount; ++group) groups->addLayout(makeGroup(group), 1);
    auto* rule = new QFrame;
    rule->setObjectName(QStringLiteral("Line1"));
    rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    auto* column = new QVBoxLayout(this);
    column->addLayout(groups, 1);
    column->addWidget(rule);
    column->addWidget(makeButtons());
    const int em = fontMetrics().height();
    resize(QSize(em * 40, em * 36).expandedTo(minimumSizeHint()));
    refresh();
    lists_.front()->setFocus();
    fitDialog(*this);
}

QVBoxLayout* searchFrmView::makeGroup(int group) {
    static constexpr std::array<const char*, groupCount> valueLabels = {"searchLbl1", "Label1", "Label3"};
    static constexpr std::array<const char*, groupCount> toLabels = {"searchLbl2", "Label2", "Label4"};
    const auto place = static_cast<std::size_t>(group);
    auto* list = new QListWidget;
    lists_.at(place) = list;
    list->setObjectName(QStringLiteral("List%1").arg(group + 1));
    list->setMinimumHeight(fontMetrics().height() * 3); // on a small screen what is typed matters more
    list->setAccessibleName(tr("Column to search, %1").arg(group + 1));
    for (const std::string& title : form_.list(group).items) list->addItem(toQt(title));
    connect(list, &QListWidget::currentRowChanged, this, [this, group](int row) {
        if (!showing_ && row >= 0) run([&] { form_.List_Click(group, row); });
    });
    auto* column = new QVBoxLayout;
    column->addWidget(list, 1);
    column->addWidget(makeOptions(group));
    const int value = 2 * group;
    QLabel* valueLabel = boldLabel(valueLabels.at(place), tr("Search Value:"));
    column->addWidget(valueLabel);
    column->addWidget(makeBox(value));
    QLabel* toLabel = boldLabel(toLabels.at(place), tr("To:"));
    column->addWidget(toLabel);
    column->addWidget(makeBox(value + 1));
    valueLabel->setBuddy(boxes_.at(static_cast<std::size_t>(value)));
    toLabel->setBuddy(boxes_.at(static_cast<std::size_t>(value) + 1));
    return column;
}

QWidget* searchFrmView::makeOptions(int group) {
    const std::array<QString, optionCount> captions = {tr("Greater than or equal to"),
                                                       tr("Less than or equal to"), tr("Exact"),
                                                       tr("Search within"), tr("Range")};
    auto* frame = new QGroupBox(group == 0 ? tr(" Criteria ") : tr("Criteria"));
    frame->setObjectName(QStringLiteral("Frame%1").arg(group + 1));
    auto* column = new QVBoxLayout(frame);
    for (std::size_t option = 0; option < captions.size(); ++option) {
        auto* button = new QRadioButton(captions[option]);
        button->setObjectName(QStringLiteral("Opt%1_%2").arg(group + 1).arg(option));
        const int index = static_cast<int>(option);
        connect(button, &QRadioButton::clicked, this,
                [this, group, index] { run([&] { form_.Opt_Click(group, index); }); });
        options_.at(static_cast<std::size_t>(group)).at(option) = button;
        column->addWidget(button);
    }
    return frame;
}

QLineEdit* searchFrmView::makeBox(int index) {
    auto* box = new QLineEdit;
    boxes_.at(static_cast<std::size_t>(index)) = box;
    box->setObjectName(QStringLiteral("SearchText_%1").arg(index));
    box->installEventFilter(this);
    connect(box, &QLineEdit::textEdited, this, [this, index, box](const QString& text) {
        run([&] {
            entry::EntryBox& state = form_.SearchText.at(static_cast<std::size_t>(index));
            state.Text = values_.typed(index, columnOf(index), fromQt(text));
            state.SelStart = box->cursorPosition();
            form_.SearchText_Change(index);
        });
    });
    return box;
}

QWidget* searchFrmView::makeButtons() {
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const QString& caption, auto&& clicked) {
        auto* button = new QPushButton(caption);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, button, clicked] {
            // A mnemonic leaves the focus where it is; here it takes it from the box, which is checked then.
            if (boxIndex(focusWidget())) button->setFocus();
            clicked();
        });
        row->addWidget(button);
        return button;
    };
    add("closeBtn", tr("&Close"), [this] { reject(); });
    row->addStretch();
    add("allBtn", tr("&All"), [this] { run([&] { form_.allBtn_Click(); }); });
    row->addStretch();
    QPushButton* searchBtn =
        add("searchBtn", tr("&Search"), [this] { run([&] { form_.searchBtn_Click(); }); });
    searchBtn->setDefault(true);
    return buttons;
}

std::optional<int> searchFrmView::boxIndex(const QObject* watched) const {
    for (std::size_t index = 0; index < boxes_.size(); ++index)
        if (boxes_.at(index) == watched) return static_cast<int>(index);
    return std::nullopt;
}

bool searchFrmView::eventFilter(QObject* watched, QEvent* event) {
    const std::optional<int> index = boxIndex(watched);
    if (index && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            run([&] { form_.SearchText_KeyDown(*index, search::searchFrm::enterKey); });
            return true;
        }
    }
    // A message must not come up in the middle of the click that took the focus away.
    if (index && event->type() == QEvent::FocusOut && leavesTheBox(*static_cast<QFocusEvent*>(event))) {
        settleLostFocus();
        lostFocus_ = index;
        QMetaObject::invokeMethod(
            this,
            [this] {
                settleLostFocus();
                refresh();
            },
            Qt::QueuedConnection);
    }
    return QDialog::eventFilter(watched, event);
}

void searchFrmView::settleLostFocus() {
    if (!lostFocus_) return;
    const int index = *lostFocus_;
    lostFocus_.reset();
    values_.left();
    events_.run([&] { form_.SearchText_LostFocus(index); });
}

void searchFrmView::run(const std::function<void()>& handler) {
    settleLostFocus();
    events_.run(handler);
    refresh();
}

// However the dialog is closed.
void searchFrmView::reject() {
    run([&] { form_.closeBtn_Click(); });
    if (form_.unloaded) QDialog::reject();
}

void searchFrmView::refresh() {
    const QScopedValueRollback guard(showing_, true);
    for (int group = 0; group < groupCount; ++group) {
        const auto place = static_cast<std::size_t>(group);
        lists_.at(place)->setCurrentRow(form_.list(group).ListIndex);
        const search::searchFrm::Options& state = form_.options(group);
        auto& buttons = options_.at(place);
        buttons.at(static_cast<std::size_t>(state.Value))->setChecked(true);
        buttons.at(search::range)->setEnabled(state.rangeEnabled);
    }
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        const entry::EntryBox& state = form_.SearchText.at(index);
        const int place = static_cast<int>(index);
        const QString text = toQt(values_.shown(place, columnOf(place), state.Text));
        if (boxes_.at(index)->text() == text) continue;
        boxes_.at(index)->setText(text);
        if (!values_.isTyped(place)) boxes_.at(index)->setCursorPosition(state.SelStart);
    }
}

} // namespace gui

#include "moc_searchFrmView.cpp"
