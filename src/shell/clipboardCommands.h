#pragma once

#include "app/app.h"

namespace shell {

// Cut, copy and paste mean the objects of the page while it is designed, and records otherwise.
bool canCut(const app::App& app);
bool canCopy(const app::App& app);
bool canCopyRecords(const app::App& app);
bool canPaste(const app::App& app);
void cut(app::App& app);
void copy(app::App& app);
void paste(app::App& app);

} // namespace shell
