#include "gui/widgets/tickMenu.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace gui {

bool TickMenu::tick(QAction* action) {
    if (action == nullptr || !action->isCheckable() || !action->isEnabled()) return false;
    action->trigger();
    return true;
}

void TickMenu::mouseReleaseEvent(QMouseEvent* event) {
    if (!tick(actionAt(event->position().toPoint()))) QMenu::mouseReleaseEvent(event);
}

void TickMenu::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool bTicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!bTicks || !tick(activeAction())) QMenu::keyPressEvent(event);
}

} // namespace gui

#include "moc_tickMenu.cpp"
