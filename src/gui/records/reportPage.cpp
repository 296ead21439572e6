#include "gui/records/reportPage.h"

#include "gui/widgets/qtText.h"
#include "shell/listCommands.h"
#include "shell/listEvents.h"
#include "shell/mainWindow.h"

#include <QHBoxLayout>
#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace gui {

ReportPage::ReportPage(app::App& app, EventBoundary& events, CommandActions& actions, QWidget* parent)
    : QStackedWidget(parent), app_(app), actions_(actions), start_(new StartPage(app, events, actions)),
      records_(new QWidget), invoiceFrame_(makeInvoiceFrame(events)), filter_(new FilterBar(app, events)),
      shownList_(new QStackedWidget), listStates_{&app.document.LV, &app.document.iLV,
                                                  &app.document.searchLV},
      sums_(new SelectedTotalsView(app)) {
    const std::array<QString, 3> names = {tr("Records"), tr("Items and invoices"), tr("Search results")};
    for (std::size_t i = 0; i < lists_.size(); ++i) {
        lists_[i] = new RecordsView(app, *listStates_[i], events);
        lists_[i]->setAccessibleName(names[i]);
        lists_[i]->addAction(actions.action("mnuNewRecord"));
        connect(lists_[i], &RecordsView::menuWanted, this, [this, i](QPoint place) { showMenu(i, place); });
        connect(lists_[i], &RecordsView::filterWanted, this,
                [&actions] { actions.action("mnuFilter")->trigger(); });
        hints_[i] = new EmptyHint(app, events, lists_[i]);
        shownList_->addWidget(lists_[i]);
    }
    connect(filter_, &FilterBar::listWanted, this, [this] { keyHolder()->setFocus(Qt::TabFocusReason); });
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(shownList_);
    splitter->addWidget(sums_);
    splitter->setStretchFactor(0, 1);
    splitter->setChildrenCollapsible(false);

    auto* column = new QVBoxLayout(records_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(invoiceFrame_);
    column->addWidget(filter_);
    column->addWidget(splitter, 1);
    addWidget(start_);
    addWidget(records_);
}

QFrame* ReportPage::makeInvoiceFrame(EventBoundary& events) {
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("invoiceFrame"));
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(8, 4, 8, 4);
    viewOpt_ = {new QRadioButton(tr("&Items")), new QRadioButton(tr("&Invoices"))};
    for (std::size_t i = 0; i < viewOpt_.size(); ++i) {
        viewOpt_[i]->setObjectName(QStringLiteral("viewOpt%1").arg(i));
        const int index = static_cast<int>(i);
        connect(viewOpt_[i], &QRadioButton::clicked, this, [this, &events, index] {
            if (app_.mainFrm.viewOpt == index) return;
            events.run([&] { shell::viewOpt_Click(app_, index); });
        });
        row->addWidget(viewOpt_[i]);
    }
    row->addStretch();
    return frame;
}

void ReportPage::showMenu(std::size_t list, QPoint place) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("recordMenu"));
    menu.setAccessibleName(tr("Record"));
    actions_.fill(menu, shell::contextMenuKeys(*listStates_[list], app_.document));
    menu.setDefaultAction(actions_.action(shell::defaultMenuKey(app_, *listStates_[list])));
    menu.addSeparator();
    lists_[list]->addSortMenu(menu);
    menu.exec(place);
}

QWidget* ReportPage::keyHolder() const {
    return currentWidget() == records_ ? shownList_->currentWidget() : start_->keyHolder();
}

void ReportPage::refresh() {
    const bool open = app_.mainFrm.SSTab1Enabled;
    start_->refresh();
    if (!open) {
        setCurrentWidget(start_);
        return;
    }
    invoiceFrame_->setVisible(app_.mainFrm.invoiceFrameVisible);
    viewOpt_[app_.mainFrm.viewOpt == 0 ? 0 : 1]->setChecked(true);
    const core::RecordsList& visible = shell::visibleList(app_.document);
    for (std::size_t i = 0; i < lists_.size(); ++i) {
        if (listStates_[i] != &visible) continue;
        const bool another = currentWidget() != records_ || shownList_->currentWidget() != lists_[i];
        shownList_->setCurrentWidget(lists_[i]);
        setCurrentWidget(records_);
        lists_[i]->refresh(std::exchange(app_.mainFrm.listScroll, app::ListScroll::ToCurrent));
        hints_[i]->show(shell::emptyList(app_, *listStates_[i]));
        // The keys go to the records as soon as they are there, but not away from what is typed.
        const bool opened = std::exchange(app_.mainFrm.bListFocus, false);
        if (opened || (another && !filter_->hasKeys())) lists_[i]->setFocus();
    }
    filter_->refresh();
    sums_->refresh();
}

} // namespace gui

#include "moc_reportPage.cpp"
