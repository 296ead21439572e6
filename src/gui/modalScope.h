#pragma once

#include "gui/qtPlatform.h"

namespace gui {

// Ahead of a modal dialog the window behind it shows the state that the handler has reached, and the
// hourglass rests as long as the user is asked.
class QtPlatform::ModalScope {
public:
    explicit ModalScope(QtPlatform& owner) : owner_(owner), hourglass_(owner.hourglass_) {
        owner_.setMousePointer(platform::MousePointer::Default);
        if (owner_.window_.refresh) owner_.window_.refresh();
    }
    ~ModalScope() {
        if (hourglass_) owner_.setMousePointer(platform::MousePointer::Hourglass);
    }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

private:
    QtPlatform& owner_;
    bool hourglass_;
};

} // namespace gui
