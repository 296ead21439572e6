#pragma once

#include "app/app.h"

#include <string_view>

namespace layout {

// Web and mail addresses open at once. What else a link can name is asked about first, and a program is never
// started: a database may come by mail.
void followLink(app::App& app, std::string_view target);

} // namespace layout
