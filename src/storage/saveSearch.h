#pragma once

#include "app/app.h"
#include "core/runTimeError.h"

#include <optional>

namespace storage {

// Asks for a name and stores the records that searchLV lists as a database of their own: the design of
// the open one, and none of its images. The open document stays the one that was open, but shows as
// saved, whether or not it was. It is wanted so. Answers what failed, as SaveFile does.
std::optional<core::RunTimeError> saveSearchResults(app::App& app);

} // namespace storage
