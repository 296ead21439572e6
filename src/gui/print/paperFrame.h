#pragma once

#include "print/reportPageSetup.h"

#include <QGroupBox>

namespace gui {

// The frame " Paper Size " of the report's page setup: two papers by name, and below them a list of the
// others.
QGroupBox* makePaperFrame(print::reportPageSetup& form);

} // namespace gui
