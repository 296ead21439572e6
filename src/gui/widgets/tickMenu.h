#pragma once

#include <QMenu>

namespace gui {

// A menu of items to tick, which stays open while they are ticked: by a click, Space or Enter.
class TickMenu : public QMenu {
    Q_OBJECT

public:
    using QMenu::QMenu;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool tick(QAction* action);
};

} // namespace gui
