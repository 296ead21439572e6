#pragma once

#include "app/app.h"

namespace summary {

// Lets reports print groups and sums, as the summary counts them.
void countForReports(app::App& app);

} // namespace summary
