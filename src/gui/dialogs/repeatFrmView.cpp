#include "gui/dialogs/repeatFrmView.h"

#include "gui/widgets/qtText.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace gui {

repeatFrmView::repeatFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "repeatFrm", tr("Item Row Creation Tool"), parent), form_(app),
      Text1_(named("Text1", new QLineEdit)), List1_(named("List1", new QListWidget)),
      List2_(named("List2", new QListWidget)) {
    auto* rows = new QLabel(tr("&Number of entry rows to create:"));
    auto* available = new QLabel(tr("A&vailable columns:"));
    rows->setBuddy(Text1_);
    available->setBuddy(List1_);
    auto* clear = named("Command1", new QPushButton(tr("C&lear")));
    clear->setAutoDefault(false);
    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = named("OKButton", buttons->addButton(tr("&OK"), QDialogButtonBox::AcceptRole));
    ok->setDefault(true);
    QPushButton* cancel =
        named("CancelButton", buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole));
    for (const std::string& column : form_.List1) List1_->addItem(toQt(column));
    List2_->setSelectionMode(QAbstractItemView::NoSelection);
    List2_->setFocusPolicy(Qt::NoFocus);

    auto* grid = new QGridLayout(this);
    grid->addWidget(rows, 0, 0);
    grid->addWidget(Text1_, 0, 1);
    grid->addWidget(available, 1, 0);
    auto* selected = new QLabel(tr("Selected Columns and Order:"));
    selected->setBuddy(List2_);
    grid->addWidget(selected, 1, 1);
    grid->addWidget(List1_, 2, 0);
    grid->addWidget(List2_, 2, 1);
    grid->addWidget(clear, 3, 1, Qt::AlignRight);
    grid->addWidget(buttons, 4, 0, 1, 2);
    connectEvents(*clear, *ok, *cancel);
    Text1_->setFocus();
}

void repeatFrmView::connectEvents(QPushButton& clear, QPushButton& ok, QPushButton& cancel) {
    const auto choose = [this] { on([this] { form_.List1_Click(List1_->currentRow()); }); };
    connect(Text1_, &QLineEdit::textChanged, this,
            [this](const QString& text) { form_.Text1 = fromQt(text); });
    connect(List1_, &QListWidget::itemClicked, this, choose);
    // By the keyboard. An activation would come with a click as well on some desktops.
    auto* space = new QShortcut(Qt::Key_Space, List1_);
    space->setContext(Qt::WidgetShortcut);
    connect(space, &QShortcut::activated, this, choose);
    connect(&clear, &QPushButton::clicked, this, [this] { on([this] { form_.Command1_Click(); }); });
    connect(&ok, &QPushButton::clicked, this, [this] { on([this] { form_.OKButton_Click(); }); });
    connect(&cancel, &QPushButton::clicked, this, [this] { on([this] { form_.CancelButton_Click(); }); });
}

void repeatFrmView::showMembers() {
    List2_->clear();
    for (const std::string& column : form_.List2) List2_->addItem(toQt(column));
}

} // namespace gui

#include "moc_repeatFrmView.cpp"
