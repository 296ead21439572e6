#pragma once

#include "app/app.h"

#include <string>

namespace shell {

// Tables from and for other programs.
void importTable(app::App& app);
void exportTable(app::App& app);
bool canExportTable(const app::App& app);
// Whether Import reads a file, by its name.
bool isTableFile(const std::string& file);
// Imports a table that was dropped on the window.
void importDropped(app::App& app, const std::string& file);

} // namespace shell
