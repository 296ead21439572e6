#pragma once

#include "gui/dialogs/formView.h"
#include "gui/machine/qtPlatform.h"

#include <QApplication>

namespace gui {

// Ahead of a modal dialog the windows behind it show the state that the handler has reached, and the
// hourglass rests as long as the user is asked. Behind it the keys are with those windows again.
class QtPlatform::ModalScope {
public:
    explicit ModalScope(QtPlatform& owner) : owner_(owner), hourglass_(owner.hourglass_) {
        owner_.setMousePointer(platform::MousePointer::Default);
        if (owner_.window_.refresh) owner_.window_.refresh();
        if (auto* form = qobject_cast<FormView*>(QApplication::activeModalWidget())) form->refresh();
    }
    ~ModalScope() {
        if (hourglass_) owner_.setMousePointer(platform::MousePointer::Hourglass);
        // Where no window manager does it, the keys would be left with no window at all.
        if (QWidget* window = owner_.dialogParent(); window != nullptr && window->isVisible())
            window->activateWindow();
    }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

private:
    QtPlatform& owner_;
    bool hourglass_;
};

} // namespace gui
