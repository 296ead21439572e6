#include "gui/dialogs/entryFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/dialogs/entryFrmButtons.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/measures.h"
#include "gui/widgets/palette.h"
#include "gui/widgets/qtText.h"
#include "search/suggestions.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <limits>

namespace gui {

namespace {

using entry::entryFrm;

constexpr auto checkCaption = QT_TR_NOOP("Check Previous Entries");
constexpr float leastWidth = 5000, leastHeight = 3 * 615; // of the viewport
constexpr int findBoxCharacters = 14;

// The code that the form knows the key by; 0 for the others.
int keyCode(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Backspace:
        return entry::keyBack;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return entry::keyReturn;
    case Qt::Key_Up:
        return entry::keyUp;
    case Qt::Key_Down:
        return entry::keyDown;
    default:
        return 0;
    }
}

// Another window or a menu takes the keyboard for a while, but the box has not been left.
bool staysInForm(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

// On a dark ground the style outlines a box in black. A box that is lighter than the ground is seen.
QPalette raisedBoxes(QPalette palette) {
    palette.setColor(QPalette::Base, palette.color(QPalette::Button).lighter(115));
    return palette;
}

template <typename Widget>
Widget* indexed(const char* name, int index, Widget* widget) {
    widget->setObjectName(QLatin1String(name) + QString::number(index));
    return widget;
}

} // namespace

entryFrmView::entryFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : QDialog(parent), form_(app), app_(app), events_(events), values_(app),
      suggestions_(new SuggestionList(this)), srchTxt_(new QLineEdit), Picture1_(new QWidget),
      Picture2_(new QWidget(Picture1_)), VScroll1_(new QScrollBar(Qt::Vertical)) {
    setObjectName(QStringLiteral("entryFrm"));
    setWindowTitle(tr("Entry Form"));
    if (isDark(palette())) setPalette(raisedBoxes(palette()));
    const QCheckBox check(tr(checkCaption));
    pixelsPerTwip_ = std::max({static_cast<float>(logicalDpiY()) / twipsPerInch,
                               static_cast<float>(srchTxt_->sizeHint().height()) / form_.FieldBox[0].Height,
                               static_cast<float>(check.sizeHint().width()) / form_.prevChk[0].Width,
                               static_cast<float>(check.sizeHint().height()) / form_.prevChk[0].Height});
    auto* top = new QHBoxLayout;
    top->addWidget(makeToolbar());
    top->addSpacing(fontMetrics().height() / 2);
    top->addWidget(makeFindBox(), 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(makePane(), 1);
    for (int i = 0; i < static_cast<int>(form_.FieldBox.size()); ++i) makeRow(i);
    makeTabOrder();
    refresh();
    FieldBox_.front()->setFocus(Qt::TabFocusReason);
    openAtSize();
}

// As large as told, but no higher than the boxes need.
void entryFrmView::openAtSize() {
    const float margin = form_.FieldBox.front().Left;
    const float height = std::clamp(form_.Picture2.Height + margin, leastHeight, form_.Picture1.Height);
    Picture1_->setMinimumSize(pixels(form_.Picture1.Width), pixels(height));
    const QSize told = sizeHint();
    Picture1_->setMinimumSize(pixels(leastWidth), pixels(std::min(height, leastHeight)));
    // Or the told size would be the least one until the form is on view.
    Picture1_->parentWidget()->layout()->activate();
    layout()->activate();
    resize(told.boundedTo(roomOnScreen(*this)));
}

// --- building ---

QToolBar* entryFrmView::makeToolbar() {
    auto* bar = new QToolBar;
    bar->setObjectName(QStringLiteral("Toolbar1"));
    bar->setAccessibleName(tr("Records"));
    bar->setIconSize({toolbarIconSize, toolbarIconSize});
    for (const EntryFrmButton& look : entryFrmButtons()) {
        if (look.key == nullptr) {
            bar->addSeparator();
            continue;
        }
        QAction* action = bar->addAction(familyIcon(QLatin1String(look.icon)), tr(look.key));
        action->setObjectName(QLatin1String(look.key));
        action->setShortcut(look.keys);
        action->setToolTip(
            QStringLiteral("%1 (%2)").arg(tr(look.tip), look.keys.toString(QKeySequence::NativeText)));
        connect(action, &QAction::triggered, this,
                [this, key = look.key] { on([&] { form_.Toolbar1_ButtonClick(key); }); });
        // The buttons leave the focus in the box that is being typed into.
        bar->widgetForAction(action)->setFocusPolicy(Qt::NoFocus);
        Toolbar1_.push_back(action);
    }
    return bar;
}

QWidget* entryFrmView::makeFindBox() {
    auto* holder = new QWidget;
    srchTxt_->setObjectName(QStringLiteral("srchTxt"));
    srchTxt_->setAccessibleName(tr("Find"));
    srchTxt_->setClearButtonEnabled(true);
    srchTxt_->setMinimumWidth(findBoxCharacters * srchTxt_->fontMetrics().averageCharWidth());
    srchTxt_->installEventFilter(this);
    connect(srchTxt_, &QLineEdit::textEdited, this,
            [this](const QString& text) { form_.srchTxt = fromQt(text); });
    auto* search = new QPushButton(tr("&Find"));
    search->setObjectName(QStringLiteral("searchBtn"));
    connect(search, &QPushButton::clicked, this, [this] { on([this] { form_.searchBtn_Click(); }); });
    auto* again = new QPushButton(tr("&Again"));
    again->setObjectName(QStringLiteral("againBtn"));
    connect(again, &QPushButton::clicked, this, [this] { on([this] { form_.againBtn_Click(); }); });
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(srchTxt_, 1);
    for (QPushButton* button : {search, again}) {
        button->setAutoDefault(false); // Enter belongs to the boxes
        row->addWidget(button);
    }
    connect(new QShortcut(QKeySequence(QKeySequence::Find), this), &QShortcut::activated, srchTxt_, [this] {
        srchTxt_->setFocus(Qt::ShortcutFocusReason);
        srchTxt_->selectAll();
    });
    connect(new QShortcut(QKeySequence(QKeySequence::FindNext), this), &QShortcut::activated, again,
            &QPushButton::click);
    return holder;
}

// The viewport and its scroll bar. The pane in it is placed by the form.
QWidget* entryFrmView::makePane() {
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    Picture1_->setObjectName(QStringLiteral("Picture1"));
    Picture1_->installEventFilter(this);
    Picture2_->setObjectName(QStringLiteral("Picture2"));
    VScroll1_->setObjectName(QStringLiteral("VScroll1"));
    connect(VScroll1_, &QScrollBar::valueChanged, this,
            [this](int value) { on([&] { form_.VScroll1_Change(value); }); });
    connect(VScroll1_, &QScrollBar::actionTriggered, this, &entryFrmView::pageScrolled);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(frame->frameWidth(), frame->frameWidth(), frame->frameWidth(),
                            frame->frameWidth());
    row->setSpacing(0);
    row->addWidget(Picture1_, 1);
    row->addWidget(VScroll1_);
    return frame;
}

void entryFrmView::makeRow(int index) {
    const auto at = static_cast<std::size_t>(index);
    const QString caption = toQt(form_.editlbl[at].Caption);
    auto* label = indexed("editlbl", index, new QLabel(Picture2_));
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setTextFormat(Qt::PlainText);
    label->setToolTip(caption);
    editlbl_.push_back(label);

    auto* check = indexed("prevChk", index, new QCheckBox(tr(checkCaption), Picture2_));
    check->setAccessibleName(QStringLiteral("%1: %2").arg(caption, check->text()));
    connect(check, &QCheckBox::toggled, this,
            [this, index](bool value) { on([&] { form_.prevChk_Click(index, value); }); });
    check->installEventFilter(this);
    prevChk_.push_back(check);

    auto* box = indexed("FieldBox", index, new QLineEdit(Picture2_));
    box->setMaxLength(std::numeric_limits<int>::max());
    box->setAccessibleName(caption);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textEdited, this, [this, index](const QString& text) {
        changed(index, text);
        suggestions_->typed(suggestedBox(index));
    });
    FieldBox_.push_back(box);
}

// From box to box, then the check boxes, so that Tab is as quick a road as Enter. What is found stands
// at the end.
void entryFrmView::makeTabOrder() {
    QWidget* last = nullptr;
    const auto append = [&last](QWidget* widget) {
        if (last != nullptr) setTabOrder(last, widget);
        last = widget;
    };
    for (QLineEdit* box : FieldBox_) append(box);
    for (QCheckBox* check : prevChk_) append(check);
    append(srchTxt_);
    for (const char* name : {"searchBtn", "againBtn"}) append(findChild<QPushButton*>(QLatin1String(name)));
}

// --- showing ---

int entryFrmView::pixels(float twips) const {
    return static_cast<int>(std::lround(twips * pixelsPerTwip_));
}

void entryFrmView::place(QWidget& control, const entryFrm::Place& at) const {
    control.setGeometry(pixels(at.Left), pixels(at.Top), pixels(at.Width), pixels(at.Height));
    control.setVisible(at.Visible);
}

void entryFrmView::refresh() {
    const QScopedValueRollback guard(showing_, true);
    for (QAction* action : Toolbar1_) action->setEnabled(form_.isButtonEnabled(fromQt(action->objectName())));
    showScrollBar();
    // A pane that is lower than the viewport would end in the middle of the window.
    entryFrm::Place pane = form_.Picture2;
    pane.Height = std::max(pane.Height, form_.Picture1.Height + 1);
    place(*Picture2_, pane);
    for (std::size_t i = 0; i < FieldBox_.size(); ++i) showRow(i);
}

void entryFrmView::showRow(std::size_t index) {
    QLabel& label = *editlbl_[index];
    place(label, form_.editlbl[index]);
    label.setText(
        label.fontMetrics().elidedText(toQt(form_.editlbl[index].Caption), Qt::ElideRight, label.width()));
    place(*prevChk_[index], form_.prevChk[index]);
    place(*FieldBox_[index], form_.FieldBox[index]);
    prevChk_[index]->setChecked(form_.prevChk[index].Value);
    const entryFrm::TextBox& box = form_.FieldBox[index];
    const int place = static_cast<int>(index);
    const QString text = toQt(values_.shown(place, form_.editlbl[index].Caption, box.Text));
    if (FieldBox_[index]->text() == text) return;
    FieldBox_[index]->setText(text);
    if (!values_.isTyped(place)) FieldBox_[index]->setCursorPosition(box.SelStart);
}

void entryFrmView::showScrollBar() {
    const entryFrm::ScrollBar& bar = form_.VScroll1;
    VScroll1_->setRange(bar.Min, bar.Max);
    VScroll1_->setSingleStep(bar.SmallChange);
    VScroll1_->setPageStep(static_cast<int>(form_.Picture1.Height)); // how long the handle is
    VScroll1_->setValue(bar.Value);
    VScroll1_->setVisible(bar.Max > 1);
}

// A click beside the handle moves by LargeChange; Qt would take the length of the handle.
void entryFrmView::pageScrolled(int action) {
    const int step = form_.VScroll1.LargeChange;
    if (action == QAbstractSlider::SliderPageStepAdd)
        VScroll1_->setSliderPosition(VScroll1_->value() + step);
    else if (action == QAbstractSlider::SliderPageStepSub)
        VScroll1_->setSliderPosition(VScroll1_->value() - step);
}

void entryFrmView::moveFocus() {
    if (!form_.boxToFocus) return;
    const auto index = static_cast<std::size_t>(*form_.boxToFocus);
    form_.boxToFocus.reset();
    // As the Tab key does: what stands in the box is selected, and typing takes its place. A message about
    // the box that is left comes in between and undoes the selection.
    FieldBox_.at(index)->setFocus(Qt::TabFocusReason);
    FieldBox_.at(index)->selectAll();
}

// --- events ---

void entryFrmView::changed(int index, const QString& text) {
    const std::string& column = form_.editlbl[static_cast<std::size_t>(index)].Caption;
    on([&] { form_.FieldBox_Change(index, values_.typed(index, column, fromQt(text))); });
}

void entryFrmView::on(const std::function<void()>& handler) {
    if (showing_ || form_.unloaded) return;
    events_.run([&] {
        handler();
        refresh();
    });
    moveFocus();
}

void entryFrmView::reject() {
    on([this] { form_.Form_QueryUnload(); });
    QDialog::reject();
}

bool entryFrmView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Picture1_) {
        if (event->type() == QEvent::Resize)
            on([this] {
                form_.Picture1_Resize(static_cast<float>(Picture1_->width()) / pixelsPerTwip_,
                                      static_cast<float>(Picture1_->height()) / pixelsPerTwip_);
            });
        else if (event->type() == QEvent::Wheel && VScroll1_->isVisible())
            return QCoreApplication::sendEvent(VScroll1_, event);
        return QDialog::eventFilter(watched, event);
    }
    if (watched == srchTxt_) {
        if (event->type() != QEvent::KeyPress) return false;
        const int code = keyCode(*static_cast<QKeyEvent*>(event));
        if (code == entry::keyReturn) on([&] { form_.srchTxt_KeyDown(code); });
        return code == entry::keyReturn;
    }
    const auto box = std::ranges::find(FieldBox_, watched);
    if (box != FieldBox_.end()) return boxEvent(static_cast<int>(box - FieldBox_.begin()), *event);
    const auto check = std::ranges::find(prevChk_, watched);
    if (check != prevChk_.end() && event->type() == QEvent::FocusIn)
        focusArrives(static_cast<int>(check - prevChk_.begin()), *event);
    return QDialog::eventFilter(watched, event);
}

// True when the key has done its work.
bool entryFrmView::boxEvent(int index, QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress: {
        if (suggestions_->keyPress(suggestedBox(index), static_cast<QKeyEvent&>(event))) return true;
        const int code = keyCode(static_cast<QKeyEvent&>(event));
        if (code != 0) on([&] { form_.FieldBox_KeyDown(index, code); });
        return code != 0 && code != entry::keyBack;
    }
    case QEvent::FocusIn:
        on([&] { form_.FieldBox_GotFocus(index); });
        focusArrives(index, event);
        return false;
    case QEvent::FocusOut:
        if (staysInForm(static_cast<QFocusEvent&>(event).reason())) {
            values_.left();
            on([&] { form_.FieldBox_LostFocus(index); });
        }
        return false;
    default:
        return false;
    }
}

SuggestedBox entryFrmView::suggestedBox(int index) {
    QLineEdit* box = FieldBox_[static_cast<std::size_t>(index)];
    const std::string column = form_.editlbl[static_cast<std::size_t>(index)].Caption;
    return {box, [box] { return box->text(); },
            [this, index, column](bool asked) {
                const entry::entryFrm::TextBox& typed = form_.FieldBox[static_cast<std::size_t>(index)];
                QStringList all;
                for (const std::string& value : search::suggestions(
                         app_, column, typed.Text, asked ? search::Asked::ForList : search::Asked::Typing))
                    all << toQt(entry::shownValue(app_, column, value));
                return all;
            },
            [this, box, index](const QString& value) {
                box->selectAll();
                box->insert(value);
                changed(index, value);
            }};
}

// Whoever walks with the Tab key sees where he is.
void entryFrmView::focusArrives(int index, QEvent& event) {
    const Qt::FocusReason reason = static_cast<QFocusEvent&>(event).reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) on([&] { form_.showBox(index); });
}

} // namespace gui

#include "moc_entryFrmView.cpp"
