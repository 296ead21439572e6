#include "gui/widgets/zoomWheel.h"

#include "shell/looks.h"

namespace gui {

void zoomByWheel(app::App& app, EventBoundary& events, QWheelEvent& event) {
    constexpr int perNotch = 120;
    static int turned = 0;
    event.accept();
    if (event.phase() == Qt::ScrollMomentum) return; // what a touchpad rolls out with is no wish
    const int delta = event.angleDelta().y();
    if ((delta > 0) != (turned > 0)) turned = 0;
    turned += delta;
    const int steps = turned / perNotch;
    turned %= perNotch;
    if (steps != 0) events.run([&] { shell::zoomBy(app, steps); });
}

} // namespace gui
