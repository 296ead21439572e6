#pragma once

#include "app/app.h"

#include <functional>
#include <string_view>

namespace print {

// The buttons "Print" and "PageSetup".
void Print_Click(app::App& app);
void PageSetup_Click(app::App& app);

// The entries of the Print button's menu.
void Toolbar_ButtonMenuClick(app::App& app, std::string_view key);

// Opens the printer for one command, and closes it behind it.
void printOn(app::App& app, const std::function<void(drawing::DrawTarget& printer)>& draw);

// Asks for printer, copies and paper. The paper becomes the document's own. False when cancelled.
bool showPrinterDialog(app::App& app);

// Prints each record on a sheet of its own: all of the list, or the given rows.
void printEachLayout(app::App& app, drawing::DrawTarget& printer, core::RecordsList& list,
                     const std::vector<int>* rows = nullptr);

} // namespace print
