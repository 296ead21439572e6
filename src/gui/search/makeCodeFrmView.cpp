#include "gui/search/makeCodeFrmView.h"

#include "gui/records/listLook.h"
#include "gui/widgets/columnLists.h"
#include "gui/widgets/qtText.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QMenu>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

// Modules stay sharp: larger by whole steps only.
QPixmap fitted(const QPixmap& code, QSize room, qreal ratio) {
    const QSize dots = room * ratio;
    const int times = std::min(dots.width() / code.width(), dots.height() / code.height());
    QPixmap shown = times >= 1 ? code.scaled(code.size() * times)
                               : code.scaled(dots, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    return shown;
}

} // namespace

makeCodeFrmView::makeCodeFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "makeCodeFrm", tr("Make Code"), parent), form_(app),
      List1_(named("List1", new QComboBox)), List2_(named("List2", new QComboBox)),
      Text1_(named("Text1", new QLineEdit)),
      Check1_(named("Check1", new QCheckBox(tr("Make ane&w when the text of a record changes")))),
      Check2_(named("Check2", new QCheckBox(tr("Lea&ve out these records")))),
      Label1_(named("Label1", new QLabel)), Label2_(named("Label2", new QLabel)),
      picture_(named("picture", new QLabel)), pictureText_(named("pictureText", new QLabel)),
      List3_(named("List3", new QTreeWidget)) {
    auto* left = new QVBoxLayout;
    left->addLayout(
        makeColumnChoice(*List1_, form_.List1, [this](int entry) { on([&] { form_.List1_Click(entry); }); }));
    left->addWidget(makeSource());
    Opt1_ = named("Frame2", new ScopeButtons(tr("The se&lected records"), form_.Opt1,
                                             [this](int scope) { on([&] { form_.Opt1_Click(scope); }); }));
    left->addWidget(Opt1_);
    left->addWidget(Check1_);
    left->addStretch(1);
    auto* parts = new QHBoxLayout;
    parts->addLayout(left, 1);
    parts->addWidget(makePicture());
    auto* column = new QVBoxLayout(this);
    column->addLayout(parts);
    Label2_->setTextFormat(Qt::PlainText);
    Label2_->setWordWrap(true);
    Label2_->setMinimumHeight(em() * 5 / 2); // the window does not jump while one types
    Label2_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    column->addWidget(Label2_);
    refused_ = makeRefused();
    refused_->hide(); // until there are some
    column->addWidget(refused_, 1);
    OKButton_ = makeButton("OKButton", tr("&Make"), [this] { form_.OKButton_Click(); });
    OKButton_->setDefault(true);
    column->addLayout(makeBottomRow(
        OKButton_, makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); })));
    connect(Check1_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check1_Click(checked); }); });
    Text1_->setFocus();
    resize(em() * 38, em() * 20);
}

QWidget* makeCodeFrmView::makeSource() {
    auto* frame = named("Frame1", new QGroupBox(tr("Code")));
    for (const std::string& kind : form_.List2) List2_->addItem(toQt(kind));
    connect(List2_, &QComboBox::currentIndexChanged, this,
            [this](int entry) { on([&] { form_.List2_Click(entry); }); });
    connect(Text1_, &QLineEdit::textEdited, this,
            [this](const QString& text) { on([&] { form_.Text1_Change(fromQt(text)); }); });
    auto* insert = named("insertBtn", new QPushButton(tr("&Insert Column")));
    auto* menu = new QMenu(insert);
    for (const std::string& name : form_.columns)
        menu->addAction(withoutMnemonics(toQt(name)), this, [this, name] {
            // Qt counts units of UTF-16.
            const QString text = Text1_->text();
            const bool isChosen = Text1_->hasSelectedText();
            const qsizetype at = isChosen ? Text1_->selectionStart() : Text1_->cursorPosition();
            const auto start = static_cast<int>(text.left(at).toStdU32String().size());
            const auto length = static_cast<int>(Text1_->selectedText().toStdU32String().size());
            on([&] { form_.Insert_Click(name, start, length); });
            Text1_->setFocus();
        });
    insert->setMenu(menu);
    insert->setAutoDefault(false);
    insert->setEnabled(!form_.columns.empty());
    auto* text = new QHBoxLayout;
    text->addWidget(Text1_, 1);
    text->addWidget(insert);
    auto* rows = new QFormLayout(frame);
    rows->addRow(tr("&Kind:"), List2_);
    auto* caption = new QLabel(tr("&Text:"));
    caption->setBuddy(Text1_);
    rows->addRow(caption, text);
    return frame;
}

QWidget* makeCodeFrmView::makePicture() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    const int side = em() * 12;
    for (QLabel* label : {Label1_, pictureText_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFixedWidth(side);
    }
    QFont bold = Label1_->font();
    bold.setBold(true);
    Label1_->setFont(bold);
    Label1_->setMinimumHeight(2 * em()); // the picture stays where it is while one types
    Label1_->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    picture_->setFixedSize(side, side);
    picture_->setAlignment(Qt::AlignCenter);
    picture_->setFrameShape(QFrame::StyledPanel);
    pictureText_->setMaximumHeight(em() * 4);
    pictureText_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    column->addWidget(Label1_);
    column->addWidget(picture_);
    column->addWidget(pictureText_);
    column->addStretch(1);
    return part;
}

QWidget* makeCodeFrmView::makeRefused() {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    List3_->setHeaderLabels({tr("Row"), tr("Record"), tr("No code because of")});
    List3_->setAccessibleName(tr("Records that get no code"));
    useListLook(*List3_);
    List3_->header()->setStretchLastSection(true);
    List3_->setColumnWidth(0, em() * 4);
    List3_->setColumnWidth(1, em() * 9);
    List3_->setMinimumHeight(em() * 5);
    connect(Check2_, &QCheckBox::clicked, this,
            [this](bool checked) { on([&] { form_.Check2_Click(checked); }); });
    column->addWidget(List3_, 1);
    column->addWidget(Check2_);
    return part;
}

void makeCodeFrmView::showPicture() {
    QPixmap code;
    code.loadFromData(reinterpret_cast<const uchar*>(form_.picture.data()),
                      static_cast<uint>(form_.picture.size()), "GIF");
    const QSize room = picture_->contentsRect().size() - QSize(4, 4);
    picture_->setPixmap(code.isNull() || room.isEmpty() ? QPixmap()
                                                        : fitted(code, room, devicePixelRatioF()));
    picture_->setAccessibleName(code.isNull() ? tr("No code") : toQt(form_.Label1));
    QString text = toQt(form_.pictureText);
    constexpr int most = 120;
    if (text.size() > most) text = text.left(most) + QChar(0x2026);
    pictureText_->setText(text);
}

// For the whole reasons, within the screen.
void makeCodeFrmView::makeRoom() {
    const QRect room = screen()->availableGeometry();
    const int before = List3_->columnWidth(0) + List3_->columnWidth(1) + em() * 4; // and a scroll bar
    constexpr std::size_t looked = 200;                                            // rows
    int widest = 0;
    for (std::size_t row = 0; row < std::min(form_.List3.size(), looked); ++row)
        widest = std::max(widest, fontMetrics().horizontalAdvance(toQt(form_.List3[row].Reason)));
    resize(std::clamp(before + widest, width(), std::max(width(), em() * 60)),
           std::min(height() + refused_->sizeHint().height(), room.height()));
    move(std::max(room.left(), std::min(x(), room.right() - width())),
         std::max(room.top(), std::min(y(), room.bottom() - height())));
}

void makeCodeFrmView::showRefused() {
    const bool isShown = !form_.List3.empty();
    if (isShown != refused_->isVisibleTo(this)) {
        refused_->setVisible(isShown);
        if (isShown) makeRoom();
    }
    if (List3_->topLevelItemCount() == static_cast<int>(form_.List3.size())) return;
    List3_->clear();
    QList<QTreeWidgetItem*> items;
    for (const search::makeCodeFrm::Refused& row : form_.List3) {
        items << new QTreeWidgetItem({toQt(row.Row), toQt(row.Record), toQt(row.Reason)});
        items.last()->setToolTip(2, items.last()->text(2));
    }
    List3_->addTopLevelItems(items);
}

void makeCodeFrmView::showMembers() {
    List1_->setCurrentIndex(form_.ListIndex);
    List2_->setCurrentIndex(form_.KindIndex);
    const QString text = toQt(form_.Text1);
    if (Text1_->text() != text) {
        Text1_->setText(text);
        if (form_.SelStart >= 0) {
            const std::u32string before =
                text.toStdU32String().substr(0, static_cast<std::size_t>(form_.SelStart));
            Text1_->setCursorPosition(static_cast<int>(QString::fromStdU32String(before).size()));
        }
    }
    Opt1_->choose(form_.scope);
    Check1_->setChecked(form_.bFollow);
    Check2_->setChecked(form_.bLeaveOut);
    Label1_->setText(toQt(form_.Label1));
    Label2_->setText(toQt(form_.Label2));
    OKButton_->setEnabled(form_.OKButtonEnabled);
    showPicture();
    showRefused();
}

} // namespace gui

#include "moc_makeCodeFrmView.cpp"
