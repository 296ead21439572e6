#pragma once

#include "app/app.h"
#include "gui/frame/eventBoundary.h"
#include "gui/layout/layoutPageView.h"

#include <QDropEvent>

namespace gui {

// What is dragged over the window and dropped on it: a database is opened, a table of another program is
// imported, and a picture goes into the picture box under the pointer.
class Drops : public QObject {
    Q_OBJECT

public:
    Drops(app::App& app, EventBoundary& events, LayoutPageView& page, QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The picture box for what is dragged; none for what is no picture.
    std::optional<int> boxFor(const QDropEvent& event) const;
    bool isTaken(const QDropEvent& event) const;
    void drop(QDropEvent& event);
    void dropPicture(const QMimeData& data, int box);

    app::App& app_;
    EventBoundary& events_;
    LayoutPageView& page_;
    QWidget& window_;
};

} // namespace gui
