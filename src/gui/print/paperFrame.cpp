#include "gui/print/paperFrame.h"

#include "gui/dialogs/formView.h"
#include "gui/widgets/qtText.h"

#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>

namespace gui {

namespace {

QComboBox* makePaperList(const print::PaperChoice& choice) {
    auto* list = named("paperList", new QComboBox);
    list->setAccessibleName(QObject::tr("Other paper"));
    for (const platform::PaperName& paper : choice.papers) list->addItem(toQt(paper.name));
    if (choice.chosen) list->setCurrentIndex(static_cast<int>(*choice.chosen));
    // A printer's longest name does not make the form wider than it has to be.
    constexpr int shortest = 12;
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(shortest);
    return list;
}

} // namespace

QGroupBox* makePaperFrame(print::reportPageSetup& form) {
    auto* frame = new QGroupBox(QObject::tr(" Paper Size "));
    auto* letter = named("letterOpt", new QRadioButton(QObject::tr("Letter")));
    auto* legal = named("legalOpt", new QRadioButton(QObject::tr("Legal")));
    auto* other = named("otherOpt", new QRadioButton(QObject::tr("Ot&her:")));
    QComboBox* list = makePaperList(form.otherPapers);
    (form.otherPapers.chosen ? other : form.letterOpt ? letter : legal)->setChecked(true);
    const auto take = [&form, letter, other, list] {
        form.letterOpt = letter->isChecked();
        form.otherPapers.chosen.reset();
        if (other->isChecked()) form.otherPapers.chosen = static_cast<std::size_t>(list->currentIndex());
    };
    for (QRadioButton* option : {letter, legal, other})
        QObject::connect(option, &QRadioButton::toggled, frame, take);
    QObject::connect(list, &QComboBox::activated, frame, [other, take] {
        other->setChecked(true);
        take();
    });
    auto* grid = new QGridLayout(frame);
    auto* options = new QHBoxLayout;
    options->addWidget(letter);
    options->addWidget(legal);
    options->addStretch();
    grid->addLayout(options, 0, 0, 1, 2);
    grid->addWidget(other, 1, 0);
    grid->addWidget(list, 1, 1);
    grid->setColumnStretch(1, 1);
    return frame;
}

} // namespace gui
