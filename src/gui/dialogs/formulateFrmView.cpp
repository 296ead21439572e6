#include "gui/dialogs/formulateFrmView.h"

#include "calc/formulas.h"
#include "core/translate.h"
#include "gui/dialogs/dialogFit.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace gui {

formulateFrmView::formulateFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "formulateFrm", tr("Expression Editor"), parent), form_(app),
      colList_(named("colList", new QTreeWidget)), fieldList_(named("fieldList", new QTreeWidget)),
      expTxt_(named("expTxt", new QPlainTextEdit)) {
    const QSize told(em() * 42, em() * 36);
    // On a small screen the list stands beside the rest, or the buttons would lie below the edge.
    isFolded_ = roomOnScreen(*this).height() < told.height();
    auto* parts = new QBoxLayout(isFolded_ ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    parts->addWidget(makeColumns(), 1);
    parts->addWidget(makeDefinition(), 2);
    auto* column = new QVBoxLayout(this);
    column->addLayout(parts, 1);
    column->addLayout(makeBottomRow(makeButton("donebtn", tr("&Done"), [this] { form_.donebtn_Click(); })));
    addCalcBtn_->setDefault(true);
    colList_->setFocus();
    resize(told);
}

QGroupBox* formulateFrmView::makeColumns() {
    auto* frame = new QGroupBox(tr(" Available Calculation Columns "));
    (new QVBoxLayout(frame))->addWidget(colList_);
    colList_->setHeaderLabels({tr("Name"), tr("Formula")});
    useListLook(*colList_);
    colList_->header()->setStretchLastSection(true);
    colList_->setMinimumHeight(em() * 8); // some four columns
    colList_->header()->resizeSection(0, em() * (isFolded_ ? 6 : 12));
    for (const auto& row : form_.colList) new QTreeWidgetItem(colList_, {toQt(row.Name)});
    colList_->installEventFilter(this);
    // The keys choose as a click does; a click on the chosen row begins with its expression again.
    const auto choose = [this] {
        const QList<QTreeWidgetItem*> chosen = colList_->selectedItems();
        if (!chosen.isEmpty())
            on([&] { form_.colList_Click(colList_->indexOfTopLevelItem(chosen.constFirst())); });
    };
    connect(colList_, &QTreeWidget::itemSelectionChanged, this, choose);
    connect(colList_, &QTreeWidget::itemClicked, this, choose);
    return frame;
}

QGroupBox* formulateFrmView::makeDefinition() {
    auto* frame = named("Frame1", new QGroupBox(tr(" Define Expression ")));
    auto* upper = new QHBoxLayout;
    upper->addLayout(makeNumericColumns(), 1);
    upper->addWidget(makeKeypad());
    upper->addWidget(makeOperators());
    auto* column = new QVBoxLayout(frame);
    column->addLayout(upper, 1);
    column->addLayout(makeExpression());
    return frame;
}

QLayout* formulateFrmView::makeNumericColumns() {
    auto* caption = new QLabel(tr("Numeric Columns:"));
    caption->setBuddy(fieldList_);
    fieldList_->setHeaderHidden(true);
    useListLook(*fieldList_);
    for (const std::string& name : form_.fieldList) new QTreeWidgetItem(fieldList_, {toQt(name)});
    fieldList_->installEventFilter(this);
    // A double click is one click here: a name right behind a name would be one unknown word.
    connect(fieldList_, &QTreeWidget::itemClicked, this, &formulateFrmView::chooseField);
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(fieldList_, 1);
    return column;
}

QPushButton* formulateFrmView::makeKey(const QString& name, const QString& caption,
                                       const std::function<void()>& handler) {
    auto* key = new QPushButton(caption);
    key->setObjectName(name);
    key->setAutoDefault(false);
    key->setFixedSize(isFolded_ ? em() * 9 / 4 : em() * 3, isFolded_ ? em() * 3 / 2 : em() * 5 / 2);
    connect(key, &QPushButton::clicked, this, [this, handler] { on(handler); });
    return key;
}

QGroupBox* formulateFrmView::makeKeypad() {
    auto* frame = new QGroupBox(tr(" Keypad "));
    auto* grid = new QGridLayout(frame);
    // In the rows of a keyboard's own keypad.
    constexpr std::array<std::array<int, 3>, 4> rows = {{{7, 8, 9}, {4, 5, 6}, {1, 2, 3}, {0, 10, -1}}};
    grid->setRowStretch(static_cast<int>(rows.size()), 1);
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t place = 0; place < rows[row].size(); ++place) {
            const int index = rows[row][place];
            if (index < 0) continue;
            const QString caption = index == 10 ? QStringLiteral(".") : QString::number(index);
            QPushButton* key = makeKey(QStringLiteral("NumKey%1").arg(index), caption,
                                       [this, index] { form_.NumKey_Click(index); });
            keys_.insert(caption.front(), key);
            grid->addWidget(key, static_cast<int>(row), static_cast<int>(place));
        }
    return frame;
}

QGroupBox* formulateFrmView::makeOperators() {
    struct Operator {
        const char *tag, *caption;
        char key;
    };
    constexpr std::array<Operator, 6> operators = {{{"Add", "+", '+'},
                                                    {"Subtract", "-", '-'},
                                                    {"Multiply", "X", '*'},
                                                    {"Divide", "/", '/'},
                                                    {"Left", "(", '('},
                                                    {"Right", ")", ')'}}};
    auto* frame = new QGroupBox(tr(" Operators "));
    auto* grid = new QGridLayout(frame);
    grid->setRowStretch(static_cast<int>(operators.size() / 2), 1);
    for (std::size_t i = 0; i < operators.size(); ++i) {
        const Operator& made = operators[i];
        QPushButton* key = makeKey(QStringLiteral("operatorBtn%1").arg(i), QLatin1String(made.caption),
                                   [this, tag = made.tag] { form_.operatorBtn_Click(tag); });
        keys_.insert(QLatin1Char(made.key), key);
        grid->addWidget(key, static_cast<int>(i / 2), static_cast<int>(i % 2));
    }
    return frame;
}

QLayout* formulateFrmView::makeExpression() {
    auto* caption = new QLabel(tr("Expression for selected column:"));
    caption->setBuddy(expTxt_);
    QFont font = expTxt_->font();
    // Where it is not installed, the system's choice in its place may be a script that nobody can read.
    if (const QString hand = QStringLiteral("Comic Sans MS"); QFontDatabase::hasFamily(hand))
        font.setFamily(hand);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    expTxt_->setFont(font);
    expTxt_->setReadOnly(true);
    expTxt_->setTabChangesFocus(true);
    expTxt_->setFixedHeight(QFontMetrics(font).lineSpacing() * (isFolded_ ? 1 : 2) + em());
    backBtn_ = makeButton("backBtn", tr("&Back"), [this] { form_.backBtn_Click(); });
    addCalcBtn_ = makeButton("addCalcBtn", tr("&Apply"), [this] { form_.addCalcBtn_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(backBtn_);
    buttons->addWidget(makeButton("clearBtn", tr("&Clear"), [this] { form_.clearBtn_Click(); }));
    buttons->addStretch();
    buttons->addWidget(addCalcBtn_);
    auto* column = new QVBoxLayout;
    column->addWidget(caption);
    column->addWidget(expTxt_);
    column->addLayout(buttons);
    return column;
}

void formulateFrmView::chooseField(QTreeWidgetItem* item) {
    if (item == nullptr) return;
    on([&] { form_.fieldList_Click(static_cast<std::size_t>(fieldList_->indexOfTopLevelItem(item))); });
}

QAbstractButton* formulateFrmView::buttonFor(const QKeyEvent& event) const {
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0) return nullptr;
    if (event.key() == Qt::Key_Backspace) return backBtn_;
    // The keypad of many keyboards has a comma for the point.
    if (event.key() == Qt::Key_Comma && (event.modifiers() & Qt::KeypadModifier) != 0)
        return keys_.value(QLatin1Char('.'));
    return event.text().size() == 1 ? keys_.value(event.text().front()) : nullptr;
}

// The keyboard presses the buttons, from wherever the focus is.
void formulateFrmView::keyPressEvent(QKeyEvent* event) {
    if (QAbstractButton* button = buttonFor(*event))
        button->click();
    else
        FormView::keyPressEvent(event);
}

// A list would search for the digits and operators, and does not choose by a key of its own.
bool formulateFrmView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (QAbstractButton* button = buttonFor(*key)) {
            button->click();
            return true;
        }
        const bool chooses =
            key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Space;
        if (watched == fieldList_ && chooses) {
            chooseField(fieldList_->currentItem());
            return true;
        }
    }
    return FormView::eventFilter(watched, event);
}

void formulateFrmView::showMembers() {
    for (std::size_t i = 0; i < form_.colList.size(); ++i) {
        QTreeWidgetItem* item = colList_->topLevelItem(static_cast<int>(i));
        const std::string& formula = form_.colList[i].Formula;
        item->setText(1, toQt(formula == calc::undefined ? core::tr(formula) : formula));
        item->setToolTip(1, item->text(1));
    }
    colList_->setCurrentItem(colList_->topLevelItem(form_.selectedRow));
    fieldList_->setEnabled(form_.fieldListEnabled);
    addCalcBtn_->setEnabled(form_.addCalcBtnEnabled);
    const QString expression = toQt(form_.expTxt);
    if (expTxt_->toPlainText() == expression) return;
    expTxt_->setPlainText(expression);
    expTxt_->moveCursor(QTextCursor::End);
}

} // namespace gui

#include "moc_formulateFrmView.cpp"
