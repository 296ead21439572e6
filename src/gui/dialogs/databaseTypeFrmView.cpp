#include "gui/dialogs/databaseTypeFrmView.h"

#include <QGroupBox>
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

    auto* ok = makeButton("OKButton", tr("OK"), [this] { form_.OKButton_Click(); });
    auto* cancel = makeButton("CancelButton", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    ok->setDefault(true);

    auto* column = new QVBoxLayout(this);
    column->addWidget(frame, 1);
    column->addLayout(makeBottomRow(ok, cancel));
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

#include "moc_databaseTypeFrmView.cpp"
