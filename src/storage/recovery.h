#pragma once

#include "app/app.h"

#include <optional>
#include <string>

namespace storage {

// Keeps the document, with the images of its archive, in a new archive of the work folder, when the
// program has to end in the middle of something. Says where; nothing when there is no document or
// nowhere to write to. Never raises.
std::optional<std::string> keepRecoveryCopy(app::App& app) noexcept;

} // namespace storage
