#include "gui/print/layoutPageSetupFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/print/pageSetupFrames.h"
#include "gui/records/listLook.h"
#include "gui/widgets/qtText.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace gui {

layoutPageSetupFrmView::layoutPageSetupFrmView(app::App& app, EventBoundary& events, QWidget* parent)
    : FormView(events, "layoutPageSetupFrm", tr("Layout Page Setup"), parent), form_(app),
      paperList_(makePaperList()), customFrm_(makeCustomFrame()) {
    auto* papers = new QGroupBox(tr(" Paper Sizes "));
    auto* choice = new QVBoxLayout(papers);
    choice->addWidget(paperList_);
    if (!form_.paperNotice.empty()) {
        auto* notice = named("paperNotice", new QLabel(toQt(form_.paperNotice)));
        notice->setWordWrap(true);
        choice->addWidget(notice);
    }

    auto* ok = makeButton("OKButton", tr("&OK"), [this] { form_.OKButton_Click(); });
    auto* cancel = makeButton("CancelButton", tr("&Cancel"), [this] { form_.CancelButton_Click(); });
    ok->setDefault(true);

    auto* right = new QVBoxLayout;
    right->addWidget(makeOptionsFrame(tr(" Orientation "), "PortraitOpt", tr("Portrait"), "LandscapeOpt",
                                      tr("Landscape"), form_.PortraitOpt));
    right->addWidget(makeMarginsFrame(form_.leftTxt, form_.rightTxt, form_.TopTxt, form_.bottomTxt));
    right->addWidget(makeSpacingFrame());
    right->addWidget(customFrm_);
    right->addStretch(1);
    auto* sides = new QHBoxLayout;
    sides->addWidget(papers, 1);
    sides->addLayout(right, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(sides, 1);
    column->addLayout(makeBottomRow(ok, cancel));
    paperList_->setFocus();
    resize(em() * 34, sizeHint().height());
}

QTreeWidget* layoutPageSetupFrmView::makePaperList() {
    auto* list = named("paperList", new QTreeWidget);
    list->setHeaderLabels({tr("Names")});
    useListLook(*list);
    for (const auto& paper : form_.paperList.ListItems) new QTreeWidgetItem(list, {toQt(paper.Text)});
    const auto click = [this](QTreeWidgetItem* item) {
        if (item != nullptr)
            on([&] {
                form_.paperList_ItemClick(static_cast<std::size_t>(paperList_->indexOfTopLevelItem(item)));
            });
    };
    connect(list, &QTreeWidget::currentItemChanged, this, click);
    connect(list, &QTreeWidget::itemClicked, this, click); // on the one that is chosen already, too
    return list;
}

QGroupBox* layoutPageSetupFrmView::makeCustomFrame() {
    auto* frame = named("customFrm", new QGroupBox(tr(" Custom Paper Size ")));
    // Its room stays when it goes, so that the form does not jump about.
    QSizePolicy policy = frame->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    frame->setSizePolicy(policy);
    auto* grid = new QGridLayout(frame);
    auto* length = new QLabel(tr("Length:"));
    auto* height = new QLabel(tr("Height:"));
    QLineEdit* lengthTxt = boundEdit("lengthTxt", form_.lengthTxt);
    QLineEdit* heightTxt = boundEdit("heightTxt", form_.heightTxt);
    length->setBuddy(lengthTxt);
    height->setBuddy(heightTxt);
    for (QLineEdit* edit : {lengthTxt, heightTxt}) // "10.25" and the caret behind it
        edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * 9);
    auto* accept = makeButton("customOkBtn", tr("&Accept"), [this] { form_.customOkBtn_Click(); });
    grid->addWidget(length, 0, 0);
    grid->addWidget(lengthTxt, 0, 1);
    grid->addWidget(new QLabel(tr("inches.")), 0, 2);
    grid->addWidget(height, 1, 0);
    grid->addWidget(heightTxt, 1, 1);
    grid->addWidget(new QLabel(tr("inches.")), 1, 2);
    grid->addWidget(accept, 1, 3);
    return frame;
}

QGroupBox* layoutPageSetupFrmView::makeSpacingFrame() {
    auto* frame = new QGroupBox(tr(" Layout Spacing "));
    auto* row = new QHBoxLayout(frame);
    auto* label =
        new QLabel(tr("  Amount of spacing in inches between layouts in multiple layout printing:"));
    label->setWordWrap(true);
    QLineEdit* spacingTxt = boundEdit("spacingTxt", form_.spacingTxt);
    spacingTxt->setMaximumWidth(spacingTxt->fontMetrics().averageCharWidth() * 12);
    label->setBuddy(spacingTxt);
    row->addWidget(label, 1);
    row->addWidget(spacingTxt);
    return frame;
}

void layoutPageSetupFrmView::showMembers() {
    if (form_.paperList.SelectedItem)
        paperList_->setCurrentItem(paperList_->topLevelItem(static_cast<int>(*form_.paperList.SelectedItem)));
    if (form_.customFrm.Visible == !customFrm_->isHidden()) return;
    customFrm_->setVisible(form_.customFrm.Visible);
    if (form_.customFrm.Visible) showWhole(*customFrm_);
}

} // namespace gui

#include "moc_layoutPageSetupFrmView.cpp"
