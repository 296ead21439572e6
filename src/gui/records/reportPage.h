#pragma once

#include "app/app.h"
#include "gui/frame/commandActions.h"
#include "gui/frame/startPage.h"
#include "gui/records/filterBar.h"
#include "gui/records/recordsView.h"
#include "gui/records/selectedTotalsView.h"
#include "gui/widgets/emptyHint.h"

#include <QFrame>
#include <QRadioButton>
#include <QStackedWidget>

#include <array>

namespace gui {

// The report tab: the list that is on view, the choice between the two views of an invoice database
// above it, the sums of the selected records below.
class ReportPage : public QStackedWidget {
    Q_OBJECT

public:
    ReportPage(app::App& app, EventBoundary& events, CommandActions& actions, QWidget* parent = nullptr);

    void refresh();
    // Takes the keys when somebody goes to the page with them.
    QWidget* keyHolder() const;

private:
    QFrame* makeInvoiceFrame(EventBoundary& events);
    void showMenu(std::size_t list, QPoint place);

    app::App& app_;
    CommandActions& actions_;
    StartPage* start_;
    QWidget* records_;
    std::array<QRadioButton*, 2> viewOpt_{}; // made with the frame, so ahead of it
    QFrame* invoiceFrame_;
    FilterBar* filter_;
    QStackedWidget* shownList_;
    std::array<RecordsView*, 3> lists_{};
    std::array<core::RecordsList*, 3> listStates_{};
    std::array<EmptyHint*, 3> hints_{};
    SelectedTotalsView* sums_;
};

} // namespace gui
