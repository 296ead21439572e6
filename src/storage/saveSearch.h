#pragma once

#include "app/app.h"

namespace storage {

// Asks for a name and stores the records that searchLV lists as a database of their own: the design of
// the open one, and none of its images. The open document stays the one that was open, but shows as
// saved, whether or not it was. It is wanted so.
void saveSearchResults(app::App& app);

} // namespace storage
