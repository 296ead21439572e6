#pragma once

#include "app/app.h"

namespace app {

// Shows the hourglass as long as it lives.
class Hourglass {
public:
    explicit Hourglass(App& app) : app_(app) {
        app_.platform.setMousePointer(platform::MousePointer::Hourglass);
    }
    ~Hourglass() { app_.platform.setMousePointer(platform::MousePointer::Default); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    App& app_;
};

} // namespace app
