#pragma once

#include "app/app.h"

namespace storage {

// Makes an empty database: asks for its style and its name, makes the archive, and has the first
// columns defined. With bStartUp a refused overwriting disables the commands too.
void newDatabase(app::App& app, bool bStartUp);

// What is open has unsaved changes: asks whether they are saved ahead of giving it up.
void offerToSave(app::App& app);

// What newDatabase and the command-line tool share: the empty archive under that name, and a
// document without columns. Raises when the archive cannot be made.
void createEmptyArchive(app::App& app, const std::string& path);
// The Totals row, the page defaults and the status bar of a database whose columns have been defined.
void finishNewDatabase(app::App& app);

} // namespace storage
