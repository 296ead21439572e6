#include "gui/frame/unsavedTimer.h"

#include "layout/sheet.h"
#include "storage/recoveryCopies.h"

namespace gui {

namespace {
constexpr int stepMilliseconds = 250;
}

UnsavedTimer::UnsavedTimer(app::App& app, QObject* parent) : QObject(parent), app_(app) {
    timer_.setInterval(stepMilliseconds);
    connect(&timer_, &QTimer::timeout, this, [this] {
        const bool goesOn = storage::tendUnsavedWork(app_);
        if (!goesOn) timer_.stop();
        emit tended();
    });
}

void UnsavedTimer::refresh() {
    // What is moved and set in design mode does not say so one by one; the press of the button has said it
    // for all.
    if (app_.mainFrm.SSTab1 == app::layoutTab && layout::isDesignMode(app_) && app_.document.bModified)
        storage::markUnsaved(app_);
    if (storage::unsavedWork(app_).isStale && !timer_.isActive()) timer_.start();
}

} // namespace gui

#include "moc_unsavedTimer.cpp"
