#pragma once

#include "app/app.h"

namespace app {

// Brings the preview tab to the front, or draws it anew. Declared here for print/ and defined in shell/,
// which has the tabs.
void showPreviewTab(App& app);

} // namespace app
