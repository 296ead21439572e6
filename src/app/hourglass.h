#pragma once

#include "app/app.h"

namespace app {

// Shows the hourglass as long as it lives. Within another one it changes nothing.
class Hourglass {
public:
    explicit Hourglass(App& app) : app_(app) {
        if (app_.mainFrm.hourglasses++ == 0) app_.platform.setMousePointer(platform::MousePointer::Hourglass);
    }
    ~Hourglass() {
        if (--app_.mainFrm.hourglasses == 0) app_.platform.setMousePointer(platform::MousePointer::Default);
    }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    App& app_;
};

} // namespace app
