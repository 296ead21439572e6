#pragma once

#include "app/app.h"

namespace shell {

// The whole program: an App whose rooms follow one another's changes. Every front end makes one.
struct Program : app::App {
    explicit Program(platform::Platform& platformToUse);
};

} // namespace shell
