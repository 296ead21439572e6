#pragma once

#include "app/app.h"

#include <filesystem>
#include <string>

namespace storage {

// Makes a new database of one without records, as New makes an empty one: asks for its name, proposes one,
// offers to save what is open, and opens what it has made. Its pages are of the paper that is usual where the
// user lives. A message when it cannot be made; what is open stays open then.
void newFromTemplate(app::App& app, const std::filesystem::path& from, const std::string& proposed);

} // namespace storage
