#include "gui/databaseTypeFrmView.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace gui {

databaseTypeFrmView::databaseTypeFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "databaseTypeFrm", tr("Choose your database format."), parent), form_(app),
      Option1_(
          named("Option1", new WrappedRadioButton(tr("Create a standard database for simple spreadsheets, "
                                                     "inventory, collectibles, recipes, etc")))),
      Option2_(named("Option2", new WrappedRadioButton(
                                    tr("Create an invoice style database.  This means you will design a "
                                       "layout where the calculations take place in the layout itself and "
                                       "you will have multiple values stored in a single row and column "
                                       "cell.")))) {
    auto* frame = named("Frame1", new QGroupBox(tr("  Database Types")));
    auto* options = new QVBoxLayout(frame);
    options->setSpacing(em());
    options->setContentsMargins(em(), em(), em(), em());
    options->addWidget(Option1_);
    options->addWidget(Option2_);
    options->addStretch();
    connect(Option1_, &QRadioButton::clicked, this, [this] { choose(false); });
    connect(Option2_, &QRadioButton::clicked, this, [this] { choose(true); });

    auto* buttons = new QDialogButtonBox;
    auto* ok = named("OKButton", buttons->addButton(QDialogButtonBox::Ok));
    auto* cancel = named("CancelButton", buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] { on([this] { form_.OKButton_Click(); }); });
    connect(cancel, &QPushButton::clicked, this, [this] { on([this] { form_.CancelButton_Click(); }); });

    auto* column = new QVBoxLayout(this);
    column->addWidget(frame, 1);
    column->addWidget(buttons);
    resize(em() * 32, sizeHint().height());
}

void databaseTypeFrmView::choose(bool invoice) {
    on([&] {
        form_.Option1 = !invoice;
        form_.Option2 = invoice;
    });
}

void databaseTypeFrmView::showMembers() {
    Option1_->setChecked(form_.Option1);
    Option2_->setChecked(form_.Option2);
}

} // namespace gui
