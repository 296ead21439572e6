#pragma once

#include "app/app.h"

#include <string>
#include <vector>

namespace storage {

// The menu item "Clean Database": removes the JPEG images that nothing in the document refers to from the
// archive, which keeps them otherwise, whatever becomes of records and clip art. Silent in any case.
void mnuCleanDatabase_Click(app::App& app);

// The same for a front end that tells what went: the names, in the order of the archive. Raises what the
// archive raises, and has then changed nothing.
std::vector<std::string> cleanDatabase(app::App& app);

} // namespace storage
