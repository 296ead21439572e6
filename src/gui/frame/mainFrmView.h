#pragma once

#include "app/app.h"
#include "gui/frame/commandActions.h"
#include "gui/frame/eventBoundary.h"
#include "gui/frame/noticeBar.h"
#include "gui/frame/statusPanels.h"
#include "gui/frame/unsavedTimer.h"
#include "gui/layout/layoutPageView.h"
#include "gui/machine/qtPlatform.h"
#include "gui/print/previewView.h"
#include "gui/records/reportPage.h"
#include "gui/summary/summaryDock.h"

#include <QMainWindow>
#include <QTabWidget>

namespace gui {

// The main window: a frame of menus, toolbar, tabs and status bar around the pages.
class MainFrmView : public QMainWindow {
    Q_OBJECT

public:
    MainFrmView(app::App& app, QtPlatform& platform, QWidget* parent = nullptr);
    ~MainFrmView() override;

    // Shows the state of the window as it is now.
    void refresh();
    EventBoundary& events() { return events_; }

    // Starts the program: Command is what the command line says, see shell::Form_Load.
    void load(const std::string& Command);
    // The system may end the program soon, or ends it now; see shell/mainWindow.h.
    void keepForTheEnd();
    void endAtOnce();

signals:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showState();
    void showCaption();
    void makeTabs();
    void showSummary();

    app::App& app_;
    QtPlatform& platform_;
    EventBoundary events_;
    CommandActions* actions_;
    QTabWidget* tabs_;
    ReportPage* report_;
    LayoutPageView* layout_;
    PreviewView* preview_;
    StatusPanels* status_;
    NoticeBar* notice_;
    UnsavedTimer* unsaved_;
    SummaryDock* summary_;
    bool stale_ = false; // an event came while the window was shown anew
    bool refreshing_ = false;
};

} // namespace gui
