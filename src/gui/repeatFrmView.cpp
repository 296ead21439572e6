#include "gui/repeatFrmView.h"

#include "gui/qtText.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace gui {

repeatFrmView::repeatFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : QDialog(parent), events_(events), form_(app), Text1_(new QLineEdit), List1_(new QListWidget),
      List2_(new QListWidget) {
    setObjectName(QStringLiteral("repeatFrm"));
    setWindowTitle(tr("Item Row Creation Tool"));
    Text1_->setObjectName(QStringLiteral("Text1"));
    List1_->setObjectName(QStringLiteral("List1"));
    List2_->setObjectName(QStringLiteral("List2"));
    auto* rows = new QLabel(tr("&Number of entry rows to create:"));
    auto* available = new QLabel(tr("A&vailable columns:"));
    auto* selected = new QLabel(tr("Selected Columns and Order:"));
    rows->setBuddy(Text1_);
    available->setBuddy(List1_);
    auto* clear = new QPushButton(tr("C&lear"));
    clear->setObjectName(QStringLiteral("Command1"));
    clear->setAutoDefault(false);
    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton(tr("&OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("OKButton"));
    ok->setDefault(true);
    QPushButton* cancel = buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    for (const std::string& column : form_.List1) List1_->addItem(toQt(column));
    List2_->setSelectionMode(QAbstractItemView::NoSelection);
    List2_->setFocusPolicy(Qt::NoFocus);

    auto* grid = new QGridLayout(this);
    grid->addWidget(rows, 0, 0);
    grid->addWidget(Text1_, 0, 1);
    grid->addWidget(available, 1, 0);
    grid->addWidget(selected, 1, 1);
    grid->addWidget(List1_, 2, 0);
    grid->addWidget(List2_, 2, 1);
    grid->addWidget(clear, 3, 1, Qt::AlignRight);
    grid->addWidget(buttons, 4, 0, 1, 2);

    connect(Text1_, &QLineEdit::textChanged, this,
            [this](const QString& text) { form_.Text1 = fromQt(text); });
    const auto choose = [this](QListWidgetItem* item) { run([&] { form_.List1_Click(List1_->row(item)); }); };
    connect(List1_, &QListWidget::itemClicked, this, choose);
    // By the keyboard. An activation would come with a click as well on some desktops.
    auto* space = new QShortcut(Qt::Key_Space, List1_);
    space->setContext(Qt::WidgetShortcut);
    connect(space, &QShortcut::activated, this, [this, choose] {
        if (List1_->currentItem() != nullptr) choose(List1_->currentItem());
    });
    connect(clear, &QPushButton::clicked, this, [this] { run([&] { form_.Command1_Click(); }); });
    connect(ok, &QPushButton::clicked, this, [this] { run([&] { form_.OKButton_Click(); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { run([&] { form_.CancelButton_Click(); }); });
    Text1_->setFocus();
}

void repeatFrmView::run(const std::function<void()>& event) {
    events_.run(event);
    refresh();
}

void repeatFrmView::refresh() {
    List2_->clear();
    for (const std::string& column : form_.List2) List2_->addItem(toQt(column));
    if (form_.unloaded) accept();
}

} // namespace gui
