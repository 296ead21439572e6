#pragma once

#include "app/app.h"

#include <string>

namespace shell {

// Offers the unsaved work that programs which no longer run have left, of one file or of all of them: the
// user restores it, looks at it as a copy, discards it, or leaves it for later. What he leaves once is
// offered in this run again only when he opens its file.
void offerRecovery(app::App& app, const std::string& file = {});

} // namespace shell
