#pragma once

#include "app/app.h"
#include "core/runTimeError.h"

#include <optional>

namespace storage {

// Writes the document into its archive. Save As asks for a name and works on a copy of the archive,
// so that the images come along; Clone writes the design alone into a new archive and leaves the
// open document the one that was open. Failures end in a message; the archive is then as it was. The
// message does not tell what failed; the answer does, for who can say it.
std::optional<core::RunTimeError> SaveFile(app::App& app, bool bSaveAs, bool bClone);

} // namespace storage
