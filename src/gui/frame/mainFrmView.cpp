#include "gui/frame/mainFrmView.h"

#include "gui/dialogs/dialogFit.h"
#include "gui/dialogs/forms.h"
#include "gui/frame/drops.h"
#include "gui/frame/paneKeys.h"
#include "gui/widgets/icon.h"
#include "gui/widgets/qtText.h"
#include "gui/widgets/theme.h"
#include "shell/mainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QVBoxLayout>

#include <array>

namespace gui {

namespace {

constexpr QSize firstSize(1100, 720);

} // namespace

MainFrmView::MainFrmView(app::App& app, QtPlatform& platform, QWidget* parent)
    : QMainWindow(parent), app_(app), platform_(platform), events_(app, [this] { refresh(); }),
      actions_(new CommandActions(app, events_, this)), tabs_(new QTabWidget),
      report_(new ReportPage(app, events_, *actions_)), layout_(new LayoutPageView(app, events_)),
      preview_(new PreviewView(app, events_, *actions_)), status_(new StatusPanels(app)),
      notice_(new NoticeBar(app, events_)), unsaved_(new UnsavedTimer(app, this)),
      summary_(new SummaryDock(app, events_, this)) {
    setObjectName(QStringLiteral("MainFrm"));
    setWindowIcon(programIcon());
    new Drops(app, events_, *layout_, *this);
    actions_->addMenuBar(*this);
    actions_->addToolbar(*this);
    makeTabs();
    addDockWidget(Qt::BottomDockWidgetArea, summary_);
    summary_->hide();
    new PaneKeys(*this, *tabs_, [this] {
        const int tab = tabs_->currentIndex();
        return tab == app::layoutTab    ? layout_->keyHolder()
               : tab == app::previewTab ? preview_->keyHolder()
                                        : report_->keyHolder();
    });
    setStatusBar(status_);
    resize(firstSize);
    restoreGeometry(platform_.windowGeometry());
    if (!isMaximized())
        resize(size().boundedTo(roomOnScreen(*this))); // it may have been another screen, or another scale

    platform_.attach({this, [this] { refresh(); },
                      [this] {
                          status_->refresh();
                          status_->repaint();
                      },
                      [this] { return app_.document.currentFile; }});
    registerForms(platform_, app_, events_);
    // The desktop asks when its user logs out, who may still stay.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &MainFrmView::keepForTheEnd);
}

MainFrmView::~MainFrmView() {
    platform_.attach({});
}

void MainFrmView::makeTabs() {
    tabs_->setObjectName(QStringLiteral("SSTab1"));
    tabs_->setAccessibleName(tr("Pages"));
    tabs_->setDocumentMode(true);
    tabs_->addTab(report_, tr("Report"));
    tabs_->addTab(layout_, tr("Layout"));
    tabs_->addTab(preview_, tr("Print Preview"));
    layout_->takeKeysOf(*tabs_->tabBar());
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) {
        if (!refreshing_) events_.run([&] { shell::SSTab1_Click(app_, tab); });
    });
    auto* centre = new QWidget;
    auto* rows = new QVBoxLayout(centre);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(notice_);
    rows->addWidget(tabs_, 1);
    setCentralWidget(centre);
    connect(unsaved_, &UnsavedTimer::tended, notice_, &NoticeBar::refresh);
}

void MainFrmView::load(const std::string& Command) {
    events_.run([&] {
        shell::Form_Load(app_, Command, [this] {
            refresh();
            show();
        });
    });
}

void MainFrmView::refresh() {
    if (refreshing_) {
        stale_ = true;
        return;
    }
    showState();
    // The focus that moved meanwhile may have completed a field.
    if (std::exchange(stale_, false)) showState();
    stale_ = false;
}

void MainFrmView::showState() {
    const QScopedValueRollback guard(refreshing_, true);
    showTheme(app::appearance(app_).theme);
    showCaption();
    actions_->refresh();
    tabs_->tabBar()->setEnabled(app_.mainFrm.SSTab1Enabled);
    tabs_->setCurrentIndex(app_.mainFrm.SSTab1);
    // Each of them when it comes into view: while an invoice is typed the list behind it is built over and
    // over again.
    if (app_.mainFrm.SSTab1 == app::reportTab) report_->refresh();
    if (app_.mainFrm.SSTab1 == app::layoutTab) layout_->refresh();
    if (app_.mainFrm.SSTab1 == app::previewTab) preview_->refresh();
    showSummary();
    status_->refresh();
    notice_->refresh();
    unsaved_->refresh();
    if (app_.mainFrm.unloaded) close();
}

// The caption, with the desktop's own mark of unsaved work behind it. Qt puts that in the place of "[*]".
void MainFrmView::showCaption() {
    const bool isModified = app_.document.bModified && !app_.document.currentFile.empty();
    QString caption = toQt(app_.mainFrm.Caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    if (isModified) caption += QLatin1String("[*]");
    setWindowFilePath(toQt(app_.document.currentFile));
    setWindowTitle(caption);
    setWindowModified(isModified);
}

// It takes the keys when it comes up, and gives them back to the page.
void MainFrmView::showSummary() {
    const bool bShown = app_.mainFrm.control("mnuSummary").Value && app_.mainFrm.SSTab1Enabled;
    if (bShown == summary_->isHidden()) {
        const bool bHadKeys = summary_->isAncestorOf(focusWidget());
        summary_->setVisible(bShown);
        if (bShown)
            summary_->widget()->setFocus();
        else if (bHadKeys)
            report_->keyHolder()->setFocus();
    }
    summary_->refresh();
}

// Whichever way the window is closed: the menu's Exit has done the handler's part already.
void MainFrmView::closeEvent(QCloseEvent* event) {
    if (!app_.mainFrm.unloaded) events_.run([&] { shell::Form_QueryUnload(app_); });
    platform_.saveWindowGeometry(saveGeometry());
    event->accept();
    emit closed();
}

void MainFrmView::keepForTheEnd() {
    shell::keepForTheEnd(app_);
    platform_.saveWindowGeometry(saveGeometry());
}

void MainFrmView::endAtOnce() {
    shell::endAtOnce(app_);
    platform_.saveWindowGeometry(saveGeometry());
}

void MainFrmView::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // The date in the status bar may have become another one.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) status_->refresh();
}

} // namespace gui

#include "moc_mainFrmView.cpp"
