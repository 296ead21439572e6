#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "gui/print/previewPort.h"
#include "print/previewPage.h"

#include <QScrollBar>
#include <QToolBar>

namespace gui {

// The preview tab: the buttons that turn the pages, the page, and its scroll bars.
class PreviewView : public QWidget {
    Q_OBJECT

public:
    PreviewView(app::App& app, EventBoundary& events, QWidget* parent = nullptr);

    void refresh();
    // Takes the keys when somebody goes to the page with them.
    QWidget* keyHolder() const { return port_; }

private:
    QToolBar* makeToolbar();
    QScrollBar* makeScrollBar(Qt::Orientation orientation);
    static void show(QScrollBar& bar, const print::PreviewPage::ScrollBar& state, float visible);
    void portResized();

    app::App& app_;
    EventBoundary& events_;
    QToolBar* reportToolbar_;
    PreviewPort* port_;
    QScrollBar* rptHScroll1_;
    QScrollBar* rptVScroll1_;
    bool refreshing_ = false;
};

} // namespace gui
