#pragma once

#include "app/app.h"
#include "gui/frame/commandActions.h"
#include "gui/frame/eventBoundary.h"
#include "gui/print/fitBar.h"
#include "gui/print/previewPort.h"
#include "gui/widgets/emptyHint.h"
#include "print/previewPage.h"

#include <QLabel>
#include <QScrollBar>
#include <QToolBar>

#include <optional>

namespace gui {

// The preview tab: the buttons that turn the pages, the page, and its scroll bars.
class PreviewView : public QWidget {
    Q_OBJECT

public:
    PreviewView(app::App& app, EventBoundary& events, CommandActions& actions, QWidget* parent = nullptr);

    void refresh();
    // Takes the keys when somebody goes to the page with them.
    QWidget* keyHolder() const { return port_; }

private:
    QToolBar* makeToolbar(CommandActions& actions);
    QScrollBar* makeScrollBar(Qt::Orientation orientation);
    static void show(QScrollBar& bar, const print::PreviewPage::ScrollBar& state, float visible);
    void portResized();
    void turnPage(bool forward);
    void goToEnd(bool last);
    void tellPortSize();
    struct Fitted {
        qreal zoom;
        QSize port;
    };
    Fitted fitted() const;
    void followZoom();

    app::App& app_;
    EventBoundary& events_;
    QLabel* percent_ = nullptr; // made with the toolbar, so ahead of it
    QLabel* place_ = nullptr;
    QToolBar* reportToolbar_;
    FitBar* fitBar_;
    PreviewPort* port_;
    EmptyHint* hint_;
    QScrollBar* rptHScroll1_;
    QScrollBar* rptVScroll1_;
    std::optional<QPointF> zoomAnchor_; // on the port; its centre without one
    bool refreshing_ = false;
};

} // namespace gui
